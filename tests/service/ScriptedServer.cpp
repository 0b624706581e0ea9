#include "ScriptedServer.h"

#include <netinet/in.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <unistd.h>

static constexpr qsizetype MaxReceived = 1 << 20;

static int bindToLoopback(int& port) {
  const int listener = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  sockaddr_in address{AF_INET, 0, {htonl(INADDR_LOOPBACK)}, {}};
  socklen_t size = sizeof address;
  auto* generic = reinterpret_cast<sockaddr*>(&address);
  if (bind(listener, generic, size) != 0 || getsockname(listener, generic, &size) != 0) qFatal("no port");
  port = ntohs(address.sin_port);
  return listener;
}

int closedPort() {
  int port = 0;
  close(bindToLoopback(port));
  return port;
}

HangingPort::HangingPort() : m_listener(bindToLoopback(m_port)) {
  if (listen(m_listener, 0) != 0) qFatal("no listener");
  const sockaddr_in address{AF_INET, htons(static_cast<uint16_t>(m_port)), {htonl(INADDR_LOOPBACK)}, {}};
  for (int& waiting : m_waiting) {
    waiting = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    (void)connect(waiting, reinterpret_cast<const sockaddr*>(&address), sizeof address);
  }
}

HangingPort::~HangingPort() {
  for (const int socket : m_waiting) close(socket);
  close(m_listener);
}

ScriptedServer::ScriptedServer(Script script) : m_script(std::move(script)), m_goingDown(eventfd(0, EFD_CLOEXEC)) {
  m_listener = bindToLoopback(m_port);
  if (listen(m_listener, 16) != 0) qFatal("no listener");
  m_thread = std::thread([this] { run(); });
}

ScriptedServer::~ScriptedServer() {
  eventfd_write(m_goingDown, 1);
  m_thread.join();
  close(m_listener);
  close(m_goingDown);
}

QByteArray ScriptedServer::received() const {
  const std::lock_guard lock(m_mutex);
  return m_received;
}

ScriptedServer::Script ScriptedServer::answer(const QByteArray& reply) {
  return [reply](Peer& peer) {
    (void)peer.readTo("\r\n\r\n");
    peer.write(reply);
  };
}

void ScriptedServer::run() {
  for (;;) {
    pollfd waiting[] = {{m_listener, POLLIN, 0}, {m_goingDown, POLLIN, 0}};
    poll(waiting, 2, -1);
    if (waiting[1].revents != 0) return;
    Peer peer(*this, accept4(m_listener, nullptr, nullptr, SOCK_CLOEXEC));
    m_script(peer);
  }
}

ScriptedServer::Peer::~Peer() {
  if (m_socket >= 0) close(m_socket);
}

bool ScriptedServer::Peer::await(short events, int milliseconds) const {
  pollfd waiting[] = {{m_server.m_goingDown, POLLIN, 0}, {m_socket, events, 0}};
  poll(waiting, events == 0 ? 1 : 2, milliseconds);
  return waiting[0].revents == 0;
}

bool ScriptedServer::Peer::wait(int milliseconds) { return await(0, milliseconds); }

bool ScriptedServer::Peer::readMore() {
  char piece[4096];
  if (!await(POLLIN)) return false;
  const ssize_t count = recv(m_socket, piece, sizeof piece, 0);
  if (count <= 0) return false;
  m_buffer.append(piece, count);
  const std::lock_guard lock(m_server.m_mutex);
  if (m_server.m_received.size() < MaxReceived) m_server.m_received.append(piece, count);
  return true;
}

QByteArray ScriptedServer::Peer::readTo(const QByteArray& ending) {
  while (!m_buffer.contains(ending) && readMore()) continue;
  const qsizetype found = m_buffer.indexOf(ending);
  return readCount(found < 0 ? m_buffer.size() : found + ending.size());
}

QByteArray ScriptedServer::Peer::readCount(qsizetype count) {
  while (m_buffer.size() < count && readMore()) continue;
  const QByteArray result = m_buffer.left(count);
  m_buffer.remove(0, count);
  return result;
}

void ScriptedServer::Peer::write(const QByteArray& bytes) {
  for (qsizetype sent = 0; sent < bytes.size() && await(POLLOUT);) {
    const ssize_t count =
        send(m_socket, bytes.constData() + sent, static_cast<size_t>(bytes.size() - sent), MSG_NOSIGNAL | MSG_DONTWAIT);
    if (count < 0 && errno != EAGAIN) return;
    sent += std::max<ssize_t>(count, 0);
  }
}

void ScriptedServer::Peer::holdUntilItLeaves() {
  while (readMore()) m_buffer.clear();
}

void ScriptedServer::Peer::reset() {
  const linger now{1, 0};
  setsockopt(m_socket, SOL_SOCKET, SO_LINGER, &now, sizeof now);
  close(m_socket);
  m_socket = -1;
}
