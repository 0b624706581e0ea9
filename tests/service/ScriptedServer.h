#pragma once
// A TCP server that plays a script to each connection, on a thread of its own: for bytes that no decent server would
// send, at moments that none would choose. Every wait of a script ends when the object goes.

#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QByteArray>
#include <QString>
#include <functional>
#include <future>
#include <mutex>

class ScriptedServer {
 public:
  struct Peer {
    ScriptedServer& server;
    int socket;
    /// Less than `count` bytes only if the client has left.
    QByteArray read(qsizetype count) const {
      if (count == 0) return {};
      QByteArray bytes(count, Qt::Uninitialized);
      bytes.truncate(qMax(recv(socket, bytes.data(), static_cast<size_t>(count), MSG_WAITALL), ssize_t{0}));
      const std::lock_guard lock(server.m_mutex);
      if (server.m_received.size() < 1 << 20) server.m_received += bytes;
      return bytes;
    }
    void readHead() const {
      QByteArray head;
      for (qsizetype size = -1; size < head.size() && !head.endsWith("\r\n\r\n"); head += read(1)) size = head.size();
    }
    void write(const QByteArray& bytes) const {
      (void)send(socket, bytes.constData(), static_cast<size_t>(bytes.size()), MSG_NOSIGNAL);
    }
    /// False if the server is being taken down.
    [[nodiscard]] bool wait(int milliseconds) const {
      return server.m_end.wait_for(std::chrono::milliseconds(milliseconds)) == std::future_status::timeout;
    }
  };
  using Script = std::function<void(const Peer&)>;

  explicit ScriptedServer(Script script) : m_script(std::move(script)) {
    sockaddr_in address{AF_INET, 0, {htonl(INADDR_LOOPBACK)}, {}};
    socklen_t size = sizeof address;
    auto* const generic = reinterpret_cast<sockaddr*>(&address);
    if (bind(m_listener, generic, size) != 0 || getsockname(m_listener, generic, &size) != 0) qFatal("no port");
    if (listen(m_listener, 16) != 0) qFatal("no listener");
    m_port = ntohs(address.sin_port);
    m_thread = std::thread([this] { run(); });
  }
  ~ScriptedServer() {
    m_ending.set_value();
    shutdown(m_listener, SHUT_RDWR);
    {
      const std::lock_guard lock(m_mutex);
      shutdown(m_peer, SHUT_RDWR);
    }
    m_thread.join();
    close(m_listener);
  }
  ScriptedServer(const ScriptedServer&) = delete;
  ScriptedServer& operator=(const ScriptedServer&) = delete;

  [[nodiscard]] int port() const { return m_port; }
  [[nodiscard]] QString url() const { return QStringLiteral("http://127.0.0.1:%1/").arg(m_port); }
  /// What scripts have read, the first megabyte of it.
  [[nodiscard]] QByteArray received() const {
    const std::lock_guard lock(m_mutex);
    return m_received;
  }
  /// A script that takes a request without content, answers and closes.
  static Script answer(const QByteArray& reply) {
    return [reply](const Peer& peer) {
      peer.readHead();
      peer.write(reply);
    };
  }

 private:
  void run() {
    for (Peer peer{*this, 0}; (peer.socket = accept4(m_listener, nullptr, nullptr, SOCK_CLOEXEC)) >= 0;) {
      setPeer(peer.socket);
      if (peer.wait(0)) m_script(peer);
      setPeer(-1);
      close(peer.socket);
    }
  }
  void setPeer(int socket) {
    const std::lock_guard lock(m_mutex);
    m_peer = socket;
  }

  const Script m_script;
  const int m_listener = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  int m_port = 0;
  std::promise<void> m_ending;
  const std::future<void> m_end = m_ending.get_future();
  mutable std::mutex m_mutex;  // guards the two below
  QByteArray m_received;
  int m_peer = -1;
  std::thread m_thread;
};
