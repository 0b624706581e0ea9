#include "practice/PracticeConnection.h"

#include <QRegularExpression>
#include <QSslSocket>

#include "practice/Catalogue.h"
#include "practice/PracticeReply.h"

using namespace Qt::Literals::StringLiterals;
using Kind = Misbehaviour::Kind;

static constexpr qint64 PieceBytes = 64 << 10;
static constexpr qint64 PieceBytesBeforeMethod = 256;
static constexpr qsizetype MaxHeadBytes = 64 << 10;

PracticeConnection::PracticeConnection(QSslSocket* socket, PracticeContext& context, QObject* parent)
    : QObject(parent), m_socket(socket), m_context(context) {
  m_socket->setParent(this);
  m_socket->setReadBufferSize(4 * PieceBytes);
  connect(m_socket, &QSslSocket::readyRead, this, &PracticeConnection::readMore);
  connect(m_socket, &QSslSocket::encryptedBytesWritten, this, &PracticeConnection::bytesWentOut);
  connect(m_socket, &QSslSocket::disconnected, this, &QObject::deleteLater);
  m_trickle.setTimerType(Qt::PreciseTimer);
  connect(&m_trickle, &QTimer::timeout, this, [this] { write(m_misbehaviour->bytes); });
  QMetaObject::invokeMethod(this, &PracticeConnection::readMore, Qt::QueuedConnection);
}

PracticeConnection::~PracticeConnection() {
  m_socket->disconnect(this);
  if (m_phase == Phase::Held) m_context.books.heldChanged(-1);
}

void PracticeConnection::readMore() {
  if (m_phase == Phase::Head) readHead();
  if (m_phase == Phase::Body) readBody();
  if (m_drains && m_phase != Phase::Deaf) m_socket->readAll();
}

void PracticeConnection::readHead() {
  while (m_socket->canReadLine()) {
    const QByteArray line = m_socket->readLine();
    m_head += line;
    if (line != "\r\n") continue;
    m_id = m_context.books.beginRequest(m_head);
    const QString head = QString::fromLatin1(m_head);
    static const QRegularExpression length(
        u"^content-length:\\s*(\\d{1,18})\\s*$"_s,
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::MultilineOption);
    const auto found = length.match(head);
    if (!m_head.startsWith("POST ")) return refuse(405, "Method Not Allowed");
    if (!m_head.startsWith("POST /api ")) return refuse(404, "Not Found");
    if (!found.hasMatch()) return refuse(411, "Length Required");
    m_bodyBytes = found.captured(1).toLongLong();
    if (head.contains("\r\nExpect: 100-continue"_L1, Qt::CaseInsensitive))
      m_socket->write("HTTP/1.1 100 Continue\r\n\r\n");
    if (m_context.store) m_incoming = m_context.store->begin();
    m_reader = std::make_unique<EnvelopeReader>([this](QByteArrayView bytes) {
      if (m_incoming) m_incoming->write(bytes);
      if (m_content.size() + bytes.size() <= m_context.options.keepBytes) m_content.append(bytes.data(), bytes.size());
    });
    m_phase = Phase::Body;
    return;
  }
  if (m_head.size() + m_socket->bytesAvailable() > MaxHeadBytes) refuse(400, "Bad Request");
}

void PracticeConnection::readBody() {
  while (m_phase == Phase::Body) {
    if (m_received == m_bodyBytes) return requestComplete();
    const QByteArray piece = m_socket->read(nextPieceBytes());
    if (piece.isEmpty()) return;
    bodyArrived(piece);
  }
}

// Small steps until the method is known, and then never beyond a place where something is to happen.
qint64 PracticeConnection::nextPieceBytes() const {
  const qint64 rest = m_bodyBytes - m_received;
  if (!m_met) return qMin(rest, PieceBytesBeforeMethod);
  qint64 piece = qMin(rest, PieceBytes);
  if (m_misbehaviour && m_misbehaviour->bytes > m_received) piece = qMin(piece, m_misbehaviour->bytes - m_received);
  const auto hook = m_context.books.hookAt(m_reader->method());
  if (hook && *hook > m_received) piece = qMin(piece, *hook - m_received);
  return piece;
}

void PracticeConnection::bodyArrived(const QByteArray& piece) {
  m_received += piece.size();
  m_reader->feed(piece);
  m_context.books.changeRequest(m_id, [&](PracticeRequest& request) {
    request.bodyBytes = m_received;
    if (m_bodyBytes <= m_context.options.keepBytes)
      request.body += piece;
    else
      request.body = m_reader->frame();
    request.method = m_reader->method();
  });
  const auto hook = m_context.books.hookAt(m_reader->method());
  if (hook && *hook <= m_received && !m_reader->method().isEmpty())
    if (const auto call = m_context.books.takeHook()) call();
  meetMisbehaviour();
}

void PracticeConnection::meetMisbehaviour() {
  if (!m_met && (!m_reader->method().isEmpty() || m_received == m_bodyBytes)) {
    m_met = true;
    m_misbehaviour = m_context.books.takeForRequest(m_reader->method());
  }
  if (!m_misbehaviour || m_received < m_misbehaviour->bytes) return;
  if (m_misbehaviour->kind == Kind::StopReading)
    becomeDeaf();
  else if (m_misbehaviour->kind == Kind::CutRequest)
    drop();
  else if (m_misbehaviour->kind == Kind::EarlyError)
    deliver(PracticeReply::wrong(*m_misbehaviour, m_reader->method()));
}

void PracticeConnection::requestComplete() {
  const SoapRequest request = m_reader->finish();
  m_context.books.changeRequest(m_id, [&](PracticeRequest& record) {
    record.complete = true;
    record.method = request.method;
    record.login = request.login;
    record.passwordHash = request.passwordHash;
  });
  if (!m_met) meetMisbehaviour();
  if (m_phase != Phase::Body) return;
  if (m_misbehaviour && PracticeReply::replacesReply(m_misbehaviour->kind))
    return deliver(PracticeReply::wrong(*m_misbehaviour, request.method));
  if (!request.fault.isEmpty())
    return deliver(PracticeReply::xml(500, PracticeReply::faultEnvelope(request.fault.toUtf8())));

  const QByteArray answer = judge(request);
  m_incoming.reset();
  m_context.books.changeRequest(m_id, [&](PracticeRequest& record) { record.answer = answer; });
  const QByteArray envelope = PracticeReply::envelope(request.method, answer);
  m_reply = m_misbehaviour ? PracticeReply::reshaped(*m_misbehaviour, envelope) : PracticeReply::xml(200, envelope);
  if (request.hasContent && m_context.books.holding()) {
    m_phase = Phase::Held;
    m_context.books.heldChanged(1);
    return;
  }
  deliver(m_reply);
}

void PracticeConnection::release() {
  if (m_phase != Phase::Held) return;
  m_context.books.heldChanged(-1);
  deliver(m_reply);
}

QByteArray PracticeConnection::judge(const SoapRequest& request) {
  if (request.login != m_context.options.login || request.passwordHash != m_context.passwordHash) return "E009";
  if (request.method == "Get_API_URL")
    return (m_context.options.apiUrl.isEmpty() ? m_context.ownUrl : m_context.options.apiUrl).toUtf8();
  if (request.method == "TrackList") return Catalogue::printTracksJson();
  if (request.method == "InstrumentTargetList") return Catalogue::instrumentPairsJson();
  if (request.method == "SendFile" || request.method == "SendIWFile") return takeFile(request);
  return "EUnknownError";
}

QByteArray PracticeConnection::takeFile(const SoapRequest& request) {
  const bool instrument = request.method == "SendIWFile";
  if (request.fileName.trimmed().isEmpty()) return "E007";
  if (instrument && !Catalogue::knowsInstrumentPair(request.itWorkflowName)) return "E102";
  if (!instrument && !Catalogue::knowsPrintTrack(request.trackName)) return "E008";
  PracticeReceipt receipt;
  receipt.name = request.fileName;
  receipt.kind = instrument ? u"instrument"_s : u"print"_s;
  receipt.destination = instrument ? request.itWorkflowName : request.trackName;
  receipt.size = request.contentSize;
  receipt.sha256 = request.contentSha256;
  receipt.login = request.login;
  if (request.contentSize <= m_context.options.keepBytes) receipt.content = m_content;
  if (m_context.store && !m_context.store->keep(std::move(m_incoming), receipt)) return "E003";
  m_context.books.addReceipt(receipt);
  if (!m_context.options.jsonSuccess) return "The file was taken.";
  return R"({"status":"ok","size":)" + QByteArray::number(receipt.size) + R"(,"sha256":")" + receipt.sha256 + R"("})";
}

// The rest of the request is read and thrown away, since closing on unread bytes could take the reply with it.
void PracticeConnection::refuse(int status, const QByteArray& words) {
  m_drains = true;
  deliver(PracticeReply::html(status, words));
}

bool PracticeConnection::does(Kind kind) const { return m_misbehaviour && m_misbehaviour->kind == kind; }

void PracticeConnection::deliver(const QByteArray& reply) {
  m_reply = reply;
  if (does(Kind::NoReply)) return becomeDeaf();
  m_phase = Phase::Reply;
  if (!does(Kind::TrickleReply)) return write(m_reply.size());
  m_trickle.start(m_misbehaviour->everyMs);
  write(m_misbehaviour->bytes);
}

// Hands the next bytes of the reply to the socket, never more than the misbehaviour allows in all.
void PracticeConnection::write(qint64 bytes) {
  const bool partly = does(Kind::StallReply) || does(Kind::CutReply);
  const qint64 end = partly ? qMin<qint64>(m_misbehaviour->bytes, m_reply.size()) : m_reply.size();
  const qint64 piece = qMin(qMax<qint64>(bytes, 1), end - m_written);
  if (piece > 0) m_socket->write(m_reply.constData() + m_written, piece);
  m_written += qMax<qint64>(piece, 0);
  m_allWritten = m_written == end;
  m_socket->flush();
  bytesWentOut();
}

void PracticeConnection::bytesWentOut() {
  if (m_phase != Phase::Reply || !m_allWritten) return;
  if (m_socket->bytesToWrite() > 0 || m_socket->encryptedBytesToWrite() > 0) return;
  if (does(Kind::CutReply) || (m_misbehaviour && m_misbehaviour->closeAfter)) return drop();
  becomeDeaf();
  if (does(Kind::StallReply) || does(Kind::EarlyError)) return;
  if (m_drains)
    m_phase = Phase::Drain;
  else
    m_socket->disconnectFromHost();
}

void PracticeConnection::drop() {
  becomeDeaf();
  m_socket->abort();
}

void PracticeConnection::becomeDeaf() {
  m_phase = Phase::Deaf;
  m_trickle.stop();
}
