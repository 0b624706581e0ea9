#include "service/Connection.h"

#include <fcntl.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <openssl/err.h>
#include <openssl/ssl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

#include "service/ConnectRace.h"
#include "service/TlsContext.h"
#include "text/Placeholders.h"
#include "text/VTULocalization.h"

using namespace Qt::Literals::StringLiterals;

Connection::~Connection() { close(); }

/// The last, short piece of a request must not wait for the acknowledgement of the one before it.
static void sendAtOnce(int socket) {
  const int on = 1;
  setsockopt(socket, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
}

HttpFailure Connection::open(const std::vector<SocketAddress>& addresses, const QString& peer, Deadline deadline) {
  using Phase = HttpFailure::Phase;
  ConnectRace race(addresses);
  switch (race.run(deadline)) {
    case WaitOutcome::Stopped:
      return {Phase::Stopped, ECANCELED, VTULocalization::klStopped()};
    case WaitOutcome::Expired:
      return {Phase::TimedOut, -1, fillPlaceholders(VTULocalization::klConnectingSlow(), {peer})};
    case WaitOutcome::Ready:
      break;
  }
  m_socket = race.takeWinner();
  if (m_socket < 0) {
    const QString words = QString::fromLocal8Bit(strerror(race.lastError()));
    return {Phase::Connect, race.lastError(), fillPlaceholders(VTULocalization::klNoConnection(), {peer, words})};
  }
  sendAtOnce(m_socket);
  return {};
}

ssize_t Connection::receive(char* buffer, size_t size) {
  if (!m_pushedBack.isEmpty()) {
    const qsizetype count = std::min(m_pushedBack.size(), static_cast<qsizetype>(size));
    std::memcpy(buffer, m_pushedBack.constData(), static_cast<size_t>(count));
    m_pushedBack.remove(0, count);
    return count;
  }
  ssize_t count;
  do count = recv(m_socket, buffer, size, 0);
  while (count < 0 && errno == EINTR);
  m_peerClosed = m_peerClosed || count == 0;
  return count;
}

ssize_t Connection::transmit(const char* data, size_t size) {
  ssize_t count;
  do count = send(m_socket, data, size, MSG_NOSIGNAL | (m_moreFollows ? MSG_MORE : 0));
  while (count < 0 && errno == EINTR);
  return count;
}

static bool transient(int error) { return error == EAGAIN || error == EWOULDBLOCK; }

Connection::Outcome Connection::read(char* buffer, qsizetype size) {
  if (m_ssl) {
    ERR_clear_error();
    size_t count = 0;
    const int result = SSL_read_ex(m_ssl, buffer, static_cast<size_t>(size), &count);
    return tlsOutcome(result, count, false);
  }
  const ssize_t count = receive(buffer, static_cast<size_t>(size));
  if (count > 0) return {Io::Progress, count};
  if (count == 0) return {Io::Closed, 0};
  if (transient(errno)) return {Io::Again, 0};
  m_lastError = errno;
  return {Io::Broken, 0};
}

Connection::Outcome Connection::write(const char* data, qsizetype size, bool moreFollows) {
  m_moreFollows = moreFollows;
  if (m_ssl) {
    ERR_clear_error();
    size_t count = 0;
    const int result = SSL_write_ex(m_ssl, data, static_cast<size_t>(size), &count);
    return tlsOutcome(result, count, true);
  }
  const ssize_t count = transmit(data, static_cast<size_t>(size));
  if (count >= 0) return {Io::Progress, count};
  if (transient(errno)) return {Io::Again, 0};
  m_lastError = errno;
  return {Io::Broken, 0};
}

Connection::Outcome Connection::tlsOutcome(int result, size_t bytes, bool writing) {
  (writing ? m_writeWantsInput : m_readWantsOutput) = false;
  if (result == 1) return {Io::Progress, static_cast<qsizetype>(bytes)};
  switch (SSL_get_error(m_ssl, result)) {
    case SSL_ERROR_WANT_READ:
      m_writeWantsInput = writing;
      return {Io::Again, 0};
    case SSL_ERROR_WANT_WRITE:
      if (m_sendFailed && writing) return {Io::Broken, 0};
      m_readWantsOutput = !writing && !m_sendFailed;
      return {Io::Again, 0};
    case SSL_ERROR_ZERO_RETURN:
      return {Io::Closed, 0};
    default:
      break;
  }
  if (m_peerClosed) return {Io::CutOff, 0};
  if (const unsigned long code = ERR_peek_error(); code != 0 && ERR_GET_LIB(code) == ERR_LIB_SSL) {
    m_lastError = ERR_GET_REASON(code);
    m_tlsError = true;
  } else if (m_lastError == 0) {
    m_lastError = EIO;
  }
  return {Io::Broken, 0};
}

QString Connection::lastErrorWords() const {
  if (!m_tlsError) return QString::fromLocal8Bit(strerror(m_lastError));
  const char* words = ERR_reason_error_string(ERR_PACK(ERR_LIB_SSL, 0, m_lastError));
  return words ? QString::fromLatin1(words)
               : fillPlaceholders(VTULocalization::klTlsError(), {QString::number(m_lastError)});
}

WaitOutcome Connection::wait(bool writing, Deadline deadline, Connection* beside) {
  short events = POLLIN;
  if ((writing && !m_writeWantsInput) || m_readWantsOutput) events |= POLLOUT;
  pollfd descriptors[] = {{m_socket, events, 0}, {-1, 0, 0}};
  if (beside && beside->advance()) descriptors[1] = {beside->m_socket, beside->stageEvents(), 0};
  return waitFor(descriptors, deadline);
}

void Connection::close() {
  if (m_ssl) {
    // Without a goodbye of ours OpenSSL would not let the session be taken up again.
    ERR_clear_error();
    if (SSL_is_init_finished(m_ssl)) SSL_shutdown(m_ssl);
    SSL_free(m_ssl);
    ERR_clear_error();
    m_ssl = nullptr;
  }
  if (m_socket >= 0) ::close(m_socket);
  m_socket = -1;
}

int Connection::bioRead(bio_st* bio, char* buffer, int size) {
  auto* self = static_cast<Connection*>(BIO_get_data(bio));
  BIO_clear_retry_flags(bio);
  const ssize_t count = self->receive(buffer, static_cast<size_t>(size));
  if (count >= 0) return static_cast<int>(count);
  if (transient(errno))
    BIO_set_retry_read(bio);
  else
    self->m_lastError = errno;
  return -1;
}

int Connection::bioWrite(bio_st* bio, const char* data, int size) {
  auto* self = static_cast<Connection*>(BIO_get_data(bio));
  BIO_clear_retry_flags(bio);
  const ssize_t count = self->transmit(data, static_cast<size_t>(size));
  if (count >= 0) return static_cast<int>(count);
  if (!transient(errno)) {
    self->m_lastError = errno;
    self->m_sendFailed = true;
  }
  BIO_set_retry_write(bio);
  return -1;
}

long Connection::bioControl(bio_st* bio, int command, long, void*) {
  switch (command) {
    case BIO_CTRL_FLUSH:
      return 1;
    case BIO_CTRL_EOF:
      return static_cast<Connection*>(BIO_get_data(bio))->m_peerClosed;
    default:
      return 0;
  }
}

bio_st* Connection::newBio(Connection* connection) {
  static BIO_METHOD* const method = [] {
    BIO_METHOD* made = BIO_meth_new(BIO_get_new_index() | BIO_TYPE_SOURCE_SINK, "connection");
    if (made) {
      BIO_meth_set_read(made, bioRead);
      BIO_meth_set_write(made, bioWrite);
      BIO_meth_set_ctrl(made, bioControl);
    }
    return made;
  }();
  BIO* bio = method ? BIO_new(method) : nullptr;
  if (!bio) return nullptr;
  BIO_set_data(bio, connection);
  BIO_set_init(bio, 1);
  return bio;
}

bool Connection::setUpTls(TlsContext& context, const QString& host, int port) {
  m_ssl = context.newClient(host, port);
  BIO* bio = m_ssl ? newBio(this) : nullptr;
  if (!bio) return false;
  SSL_set_bio(m_ssl, bio, bio);
  return true;
}

HttpFailure Connection::startTls(TlsContext& context, const QString& host, int port, const QString& peer,
                                 Deadline deadline) {
  if (!setUpTls(context, host, port))
    return {HttpFailure::Phase::Tls, ENOMEM, fillPlaceholders(VTULocalization::klTlsNotSetUp(), {peer})};
  m_stage = Stage::Handshaking;
  HttpFailure failure = finish(peer, deadline);
  if (failure.phase == HttpFailure::Phase::Tls) context.forgetSession(host, port);
  return failure;
}

void Connection::begin(const SocketAddress& address, TlsContext& context, const QString& host, int port) {
  m_stage = Stage::Failed;
  m_socket = ::socket(address.storage.ss_family, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
  if (m_socket < 0 || !setUpTls(context, host, port)) return;
  const int result = connect(m_socket, reinterpret_cast<const sockaddr*>(&address.storage), address.length);
  if (result != 0 && errno != EINPROGRESS && errno != EINTR) return;
  m_stage = Stage::Connecting;
  advance();
}

bool Connection::advance() {
  if (m_stage == Stage::Connecting) judgeConnecting();
  if (m_stage == Stage::Handshaking) stepHandshake();
  return m_stage == Stage::Connecting || m_stage == Stage::Handshaking;
}

void Connection::judgeConnecting() {
  pollfd descriptor{m_socket, POLLOUT, 0};
  if (poll(&descriptor, 1, 0) <= 0) return;
  socklen_t size = sizeof m_lastError;
  if (getsockopt(m_socket, SOL_SOCKET, SO_ERROR, &m_lastError, &size) != 0) m_lastError = errno;
  m_stage = m_lastError == 0 ? Stage::Handshaking : Stage::Failed;
  sendAtOnce(m_socket);
}

void Connection::stepHandshake() {
  ERR_clear_error();
  const int result = SSL_connect(m_ssl);
  if (result == 1) {
    m_stage = Stage::Standing;
    return;
  }
  m_handshakeEnd = tlsOutcome(result, 0, false).io;
  if (m_handshakeEnd != Io::Again || m_sendFailed) m_stage = Stage::Failed;
}

HttpFailure Connection::handshakeFailure(const QString& peer) const {
  using Phase = HttpFailure::Phase;
  const long verdict = m_ssl ? SSL_get_verify_result(m_ssl) : X509_V_OK;
  if (verdict != X509_V_OK) {
    const QString words = QString::fromLatin1(X509_verify_cert_error_string(verdict));
    return {Phase::Tls, static_cast<int>(verdict),
            fillPlaceholders(VTULocalization::klCertificateRefused(), {peer, words})};
  }
  const bool ended = m_handshakeEnd == Io::CutOff || m_handshakeEnd == Io::Closed;
  const QString words = ended ? VTULocalization::klItClosed() : lastErrorWords();
  return {Phase::Tls, m_lastError, fillPlaceholders(VTULocalization::klNoTlsConnection(), {peer, words})};
}

short Connection::stageEvents() const {
  return m_stage == Stage::Connecting || m_readWantsOutput ? POLLIN | POLLOUT : POLLIN;
}

HttpFailure Connection::finish(const QString& peer, Deadline deadline) {
  using Phase = HttpFailure::Phase;
  while (advance()) {
    pollfd descriptors[] = {{m_socket, stageEvents(), 0}};
    switch (waitFor(descriptors, deadline)) {
      case WaitOutcome::Stopped:
        return {Phase::Stopped, ECANCELED, VTULocalization::klStopped()};
      case WaitOutcome::Expired:
        return {Phase::TimedOut, -1, fillPlaceholders(VTULocalization::klTlsSilent(), {peer})};
      case WaitOutcome::Ready:
        break;
    }
  }
  return m_stage == Stage::Standing ? HttpFailure() : handshakeFailure(peer);
}

bool Connection::peerStays() const {
  pollfd descriptor{m_socket, POLLRDHUP, 0};
  return m_stage == Stage::Standing && poll(&descriptor, 1, 0) == 0;
}

SocketAddress Connection::peerAddress() const {
  SocketAddress address;
  address.length = sizeof address.storage;
  if (getpeername(m_socket, reinterpret_cast<sockaddr*>(&address.storage), &address.length) != 0) address.length = 0;
  return address;
}
