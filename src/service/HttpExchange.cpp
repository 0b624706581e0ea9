#include "service/HttpExchange.h"

#include <algorithm>
#include <array>
#include <cerrno>

#include "platform/FileCipher.h"
#include "text/Placeholders.h"
#include "text/VTULocalization.h"

using namespace Qt::Literals::StringLiterals;
using Phase = HttpFailure::Phase;

static constexpr qsizetype ReadSize = 32 << 10;
static constexpr qsizetype OutputSize = 96 << 10;  // a piece and the head: never moved, so no copy of it stays behind

static bool fitsOnOneLine(const QByteArray& text) {
  return std::none_of(text.begin(), text.end(), [](char c) { return c == '\r' || c == '\n' || c == '\0'; });
}

QByteArray requestHead(const HttpRequest& request, const Url& url) {
  InternetHeaders headers = request.headers;
  headers.set("Host", url.serverPart);
  if (request.content) {
    if (!request.contentType.trimmed().isEmpty()) headers.set("Content-type", request.contentType);
    if (request.content->size() > 0) headers.set("Content-length", QByteArray::number(request.content->size()));
  }
  const bool wholeUrl = !request.secure && !request.proxyAddress.trimmed().isEmpty() && request.proxyPort > 0;
  QByteArray head = request.method + ' ' + (wholeUrl ? url.whole : url.path) + " HTTP/1.0\r\n";
  for (const auto& [name, value] : headers.fields()) {
    if (!fitsOnOneLine(name) || !fitsOnOneLine(value)) return {};
    head += name + ": " + value + "\r\n";
  }
  return head + "\r\n";
}

bool HttpExchange::usesProxy() const { return !m_request.proxyAddress.trimmed().isEmpty() && m_request.proxyPort > 0; }

QString HttpExchange::proxyAuthority() const {
  return hostAndPort(m_request.proxyAddress.trimmed(), m_request.proxyPort);
}

bool HttpExchange::take(const HttpFailure& failure) {
  if (!failure.failed()) return true;
  m_reply.failure = failure;
  m_reply.failure.peer = m_atProxy ? proxyAuthority() : m_url.host.isEmpty() ? QString() : m_url.authority();
  m_reply.failure.atProxy = m_atProxy;
  m_reply.failure.requestCut = !m_requestOut;
  m_over = true;
  return false;
}

bool HttpExchange::fail(Phase phase, int code, const QString& detail) { return take({phase, code, detail}); }

void HttpExchange::extendDeadline() {
  m_deadline = std::chrono::steady_clock::now() + std::chrono::milliseconds(m_request.timeoutMs);
}

HttpReply HttpExchange::run() {
  extendDeadline();
  exchange();
  m_output.resize(m_output.capacity());  // wipes what earlier, longer pieces left behind, too
  wipe(m_output);
  m_connection->close();
  return std::move(m_reply);
}

void HttpExchange::exchange() {
  const std::optional<Url> url = Url::parse(m_request.url, m_request.defaultPort);
  if (!url) {
    fail(Phase::Name, EINVAL, VTULocalization::klAddressInvalid());
    return;
  }
  m_url = *url;
  m_output.reserve(OutputSize);
  m_output += requestHead(m_request, m_url);
  if (m_output.isEmpty()) {
    fail(Phase::Request, EINVAL, VTULocalization::klHeaderInvalid());
    return;
  }
  if (!standsAlready()) {
    if (!connectToPeer()) return;
    if (m_request.secure && usesProxy() && !openTunnel()) return;
    if (m_request.secure && !startTls()) return;
  }
  extendDeadline();
  m_parser = std::make_unique<ReplyParser>(m_request.limits);
  m_sending = true;
  m_contentLeft = m_request.content ? m_request.content->size() : 0;
  if (m_contentLeft > 0 && !nextPiece()) return;
  transfer();
  deliver();
}

bool HttpExchange::standsAlready() {
  if (!m_request.spare || !m_request.secure || usesProxy()) return false;
  QString error;
  m_tls = TlsContext::shared(m_request.extraCaFile, error);
  std::unique_ptr<Connection> spare = m_request.spare->take(m_tls, m_url.host, m_url.port);
  m_peer = m_url.authority();
  // Nothing of the request was sent on it, so one that fails, or is slow, is as good as none.
  const Deadline soon = std::chrono::steady_clock::now() + SpareConnection::Life;
  if (!spare || spare->finish(m_peer, std::min(soon, m_deadline)).failed()) return false;
  m_connection = std::move(spare);
  return true;
}

bool HttpExchange::connectToPeer() {
  m_atProxy = usesProxy();
  m_peer = m_atProxy ? fillPlaceholders(VTULocalization::klTheProxy(), {proxyAuthority()}) : m_url.authority();
  const QString host = usesProxy() ? m_request.proxyAddress.trimmed() : m_url.host;
  const int port = usesProxy() ? m_request.proxyPort : m_url.port;
  NameMemory& memory = NameMemory::process();
  const auto now = std::chrono::steady_clock::now();
  const auto remembered = memory.recall(host, port, now);
  // The name may have moved, so it is asked for anew before the exchange fails, with half of the time kept for that.
  const Deadline half = now + (m_deadline - now) / 2;
  if (!remembered.empty() && !m_connection->open(remembered, m_peer, half).failed()) return true;
  memory.forget(host, port);
  NameLookupResult names = lookUpName(host, port, m_peer, m_deadline);
  if (!names.failure.failed()) names.failure = m_connection->open(names.addresses, m_peer, m_deadline);
  if (!names.failure.failed()) memory.remember(host, port, names.addresses, now);
  return take(names.failure);
}

bool HttpExchange::openTunnel() {
  QByteArray left = "CONNECT " + m_url.authority().toUtf8() + " HTTP/1.0\r\nHost: " + m_url.serverPart + "\r\n\r\n";
  HeadReader reader(m_request.limits.maxHeaderBytes);
  for (;;) {
    if (!left.isEmpty()) {
      const Connection::Outcome sent = m_connection->write(left.constData(), left.size());
      if (sent.io == Connection::Io::Progress)
        left.remove(0, sent.bytes);
      else if (sent.io != Connection::Io::Again)
        left.clear();  // its answer, or its end, is still to be read
    }
    std::array<char, ReadSize> buffer;
    const Connection::Outcome outcome = m_connection->read(buffer.data(), buffer.size());
    if (outcome.io == Connection::Io::Progress) {
      switch (reader.feed(QByteArrayView(buffer.data(), outcome.bytes))) {
        case HeadReader::State::Incomplete:
          break;
        case HeadReader::State::TooLarge:
          return fail(Phase::TooLarge, EMSGSIZE, fillPlaceholders(VTULocalization::klReplyTooLarge(), {m_peer}));
        case HeadReader::State::Complete:
          return takeTunnelAnswer(reader);
      }
    } else if (outcome.io == Connection::Io::Again) {
      if (!waitForPeer(!left.isEmpty())) return false;
    } else {
      return fail(Phase::Proxy, m_connection->lastError(),
                  fillPlaceholders(VTULocalization::klClosedConnection(), {m_peer}));
    }
  }
}

bool HttpExchange::takeTunnelAnswer(const HeadReader& reader) {
  if (reader.status() == 200) {
    m_connection->unread(reader.rest());  // belongs to whom the tunnel leads to
    return true;
  }
  m_parser = std::make_unique<ReplyParser>(m_request.limits);
  judgeReply(m_parser->feed(reader.head() + reader.rest()));
  transfer();
  deliver();
  if (m_reply.failure.failed()) return false;
  return fail(Phase::Proxy, m_reply.status,
              fillPlaceholders(VTULocalization::klRefusedWithStatus(), {m_peer, QString::number(m_reply.status)}));
}

bool HttpExchange::startTls() {
  m_peer = m_url.authority();
  m_atProxy = false;
  QString error;
  m_tls = TlsContext::shared(m_request.extraCaFile, error);
  if (!m_tls) return fail(Phase::Tls, EINVAL, error);
  return take(m_connection->startTls(*m_tls, m_url.host, m_url.port, m_peer, m_deadline));
}

HttpFailure HttpExchange::timeOut() const {
  const double seconds = m_request.timeoutMs / 1000.0;
  QString words = VTULocalization::klNoAnswerWithin();
  if (m_sending && !m_writesFailed)
    words = VTULocalization::klRequestNotTaken();
  else if (m_parser && m_parser->bodyBytes() > 0)
    words = VTULocalization::klReplyStopped();
  return {Phase::TimedOut, -1, fillPlaceholders(words, {m_peer, QString::number(seconds)})};
}

bool HttpExchange::waitForPeer(bool writing) {
  Connection* beside = m_request.spare ? m_request.spare->get() : nullptr;
  switch (m_connection->wait(writing, m_deadline, beside)) {
    case WaitOutcome::Ready:
      return true;
    case WaitOutcome::Stopped:
      return fail(Phase::Stopped, ECANCELED, VTULocalization::klStopped());
    case WaitOutcome::Expired:
      break;
  }
  return take(timeOut());
}

void HttpExchange::transfer() {
  while (!m_over) {
    if (StopSignal::process().raised()) {
      fail(Phase::Stopped, ECANCELED, VTULocalization::klStopped());
      return;
    }
    // Input first: a reply that comes while the request is still being sent ends the sending.
    bool moved = readReply();
    if (m_over) return;
    const bool writing = m_sending && !m_writesFailed;
    if (writing) moved = sendMore() || moved;
    if (m_over) return;
    if (!moved) {
      waitForPeer(m_sending && !m_writesFailed);
    } else if (std::chrono::steady_clock::now() >= m_deadline) {
      take(timeOut());
    }
  }
}

void HttpExchange::prepareNext() {
  if (!m_request.anotherFollows || !m_request.spare || !m_request.secure || usesProxy() || m_request.spare->get())
    return;
  m_request.spare->begin(*m_connection, m_tls, m_url.host, m_url.port);
}

void HttpExchange::deliver() {
  m_reply.status = m_parser->status();
  m_reply.headers = m_parser->headers();
  if (m_reply.failure.phase != Phase::TooLarge) m_reply.body = m_parser->takeBody();
}

bool HttpExchange::readReply() {
  std::array<char, ReadSize> buffer;
  const Connection::Outcome outcome = m_connection->read(buffer.data(), buffer.size());
  if (outcome.io == Connection::Io::Again) return false;
  if (outcome.io != Connection::Io::Progress) {
    connectionEnded(outcome.io);
    return true;
  }
  const qint64 before = m_parser->bodyBytes();
  judgeReply(m_parser->feed(QByteArrayView(buffer.data(), outcome.bytes)));
  if (m_parser->bodyBytes() != before) extendDeadline();
  return true;
}

void HttpExchange::judgeReply(ReplyParser::State state) {
  switch (state) {
    case ReplyParser::State::Head:
    case ReplyParser::State::Body:
      return;
    case ReplyParser::State::Complete:
      m_over = true;
      if (m_sending) fail(Phase::Request, 0, fillPlaceholders(VTULocalization::klAnsweredEarly(), {m_peer}));
      return;
    case ReplyParser::State::TooLarge:
      fail(Phase::TooLarge, EMSGSIZE, fillPlaceholders(VTULocalization::klReplyTooLarge(), {m_peer}));
      return;
    case ReplyParser::State::BadLength:
      fail(Phase::Reply, EBADMSG, fillPlaceholders(VTULocalization::klReplyBadLength(), {m_peer}));
      return;
  }
}

void HttpExchange::connectionEnded(Connection::Io how) {
  m_over = true;
  const Phase phase = m_sending ? Phase::Request : Phase::Reply;
  if (how == Connection::Io::Broken) {
    const QString words = m_connection->lastErrorWords();
    fail(phase, m_connection->lastError(), fillPlaceholders(VTULocalization::klConnectionBroke(), {m_peer, words}));
  } else if (m_sending) {
    fail(phase, 0, fillPlaceholders(VTULocalization::klClosedInRequest(), {m_peer}));
  } else if (how == Connection::Io::CutOff || !m_parser->endsWithConnection()) {
    fail(phase, 0, fillPlaceholders(VTULocalization::klClosedInReply(), {m_peer}));
  }
}

bool HttpExchange::nextPiece() {
  const qsizetype before = m_output.size();
  const auto began = std::chrono::steady_clock::now();
  const bool read = m_request.content->read(m_output);
  m_deadline += std::chrono::steady_clock::now() - began;  // the file's time and not the service's
  const qsizetype count = m_output.size() - before;
  m_contentLeft -= count;
  // A content that isn't as long as was announced must not be sent to its end: the server would take it as whole.
  if (read && count > 0 && m_contentLeft >= 0) return true;
  return fail(Phase::Source, EIO, VTULocalization::klContentShort());
}

bool HttpExchange::sendMore() {
  bool moved = false;
  while (m_outputSent < m_output.size()) {
    const qsizetype left = m_output.size() - m_outputSent;
    const Connection::Outcome outcome =
        m_connection->write(m_output.constData() + m_outputSent, left, m_contentLeft > 0);
    if (outcome.io == Connection::Io::Again) return moved;
    moved = true;
    if (outcome.io != Connection::Io::Progress) {
      m_writesFailed = true;  // what the peer said before it closed is still to be read
      return true;
    }
    m_outputSent += outcome.bytes;
  }
  m_output.resize(0);
  m_outputSent = 0;
  if (m_contentLeft > 0) {
    (void)nextPiece();  // a failure ends the exchange by itself
    return true;
  }
  m_sending = false;
  m_requestOut = true;
  prepareNext();
  return true;
}
