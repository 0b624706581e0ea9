#pragma once
// A TCP server that plays a script to each connection, on a thread of its own: for bytes that no decent server would
// send, at moments that none would choose. Every wait of a script ends when the object goes.

#include <QByteArray>
#include <QString>
#include <functional>
#include <mutex>
#include <thread>

class ScriptedServer {
 public:
  class Peer {
   public:
    QByteArray readTo(const QByteArray& ending);  ///< up to and including `ending`, or what came before the end
    QByteArray readCount(qsizetype count);
    void write(const QByteArray& bytes);
    void holdUntilItLeaves();     ///< reads and drops what comes until the client has closed
    bool wait(int milliseconds);  ///< false if the server is being taken down
    void reset();                 ///< ends the connection with a reset
    [[nodiscard]] int descriptor() const { return m_socket; }

   private:
    friend class ScriptedServer;
    Peer(ScriptedServer& server, int socket) : m_server(server), m_socket(socket) {}
    ~Peer();
    bool readMore();
    bool await(short events, int milliseconds = -1) const;
    ScriptedServer& m_server;
    int m_socket;
    QByteArray m_buffer;
  };
  using Script = std::function<void(Peer&)>;

  explicit ScriptedServer(Script script);
  ~ScriptedServer();
  ScriptedServer(const ScriptedServer&) = delete;
  ScriptedServer& operator=(const ScriptedServer&) = delete;

  [[nodiscard]] int port() const { return m_port; }
  [[nodiscard]] QString url() const { return QStringLiteral("http://127.0.0.1:%1/").arg(m_port); }
  [[nodiscard]] QByteArray received() const;  ///< what scripts have read, the first megabyte of it
  /// A script that takes a request without content, answers and closes.
  static Script answer(const QByteArray& reply);

 private:
  void run();

  Script m_script;
  int m_listener = -1, m_goingDown = -1, m_port = 0;
  mutable std::mutex m_mutex;  // guards m_received
  QByteArray m_received;
  std::thread m_thread;
};

/// A listener that accepts nobody and whose queue is full, so that connecting to it hangs.
class HangingPort {
 public:
  HangingPort();
  ~HangingPort();
  HangingPort(const HangingPort&) = delete;
  HangingPort& operator=(const HangingPort&) = delete;
  [[nodiscard]] int port() const { return m_port; }

 private:
  int m_port = 0, m_listener = -1;
  int m_waiting[4];
};

/// A port on 127.0.0.1 on which nobody listens.
[[nodiscard]] int closedPort();
