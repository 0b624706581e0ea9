#include "practice/ProxyConnection.h"

#include <QUrl>

#include "practice/PracticeReply.h"

using namespace Qt::Literals::StringLiterals;
using Kind = PracticeProxy::Behaviour::Kind;

static constexpr qint64 BufferBytes = 256 << 10;
static constexpr int PieceEveryMs = 2;
static constexpr qsizetype MaxHeadBytes = 64 << 10;
static const QByteArray Established = "HTTP/1.0 200 Connection established\r\nVia: practice proxy\r\n\r\n";

ProxyConnection::ProxyConnection(QTcpSocket* client, const PracticeProxy::Behaviour& behaviour, Events events,
                                 QObject* parent)
    : QObject(parent), m_client(client), m_server(this), m_behaviour(behaviour), m_events(std::move(events)) {
  m_client->setParent(this);
  m_client->setSocketOption(QAbstractSocket::LowDelayOption, 1);
  m_client->setReadBufferSize(BufferBytes);
  m_server.setReadBufferSize(BufferBytes);
  connect(m_client, &QTcpSocket::readyRead, this, &ProxyConnection::readHead);
  connect(m_client, &QTcpSocket::disconnected, this, [this] { end(m_server); });
  connect(&m_server, &QTcpSocket::connected, this, &ProxyConnection::serverReached);
  connect(&m_server, &QTcpSocket::disconnected, this, [this] { end(*m_client); });
  connect(&m_server, &QTcpSocket::errorOccurred, this, [this] {
    if (!m_relaying) reply(PracticeReply::html(502, "Bad Gateway"), true);
  });
  connect(&m_beat, &QTimer::timeout, this, &ProxyConnection::sendNextPiece);
  readHead();
}

void ProxyConnection::readHead() {
  if (m_relaying) return pump(*m_client, m_server);
  while (!m_headDone && m_client->canReadLine() && m_head.size() < MaxHeadBytes) {
    const QByteArray line = m_client->readLine();
    m_head += line;
    m_headDone = line == "\r\n" || line == "\n";
    if (!m_headDone) continue;
    m_events.requested(m_head);
    answer();
  }
}

void ProxyConnection::answer() {
  switch (m_behaviour.kind) {
    case Kind::Tunnel:
    case Kind::ExtraBytes:
      return connectToServer();
    case Kind::Refuse:
      return reply(PracticeReply::html(m_behaviour.status, "Refused by the proxy"), true);
    case Kind::Html:
      return reply(PracticeReply::html(200, "Please accept the terms of this network"), true);
    case Kind::Stall:
      return;
    case Kind::Close:
      return m_client->abort();
    case Kind::RawReply:
      return reply(m_behaviour.text, false);
    case Kind::HalfReply:
      return reply(Established.left(Established.size() / 2), false);
  }
}

// "CONNECT host:port HTTP/1.0", or any other method with a whole URL, whose path the server then gets.
void ProxyConnection::connectToServer() {
  const QList<QByteArray> fields = m_head.left(m_head.indexOf('\r')).split(' ');
  const QByteArray target = fields.value(1);
  if (fields.value(0) == "CONNECT") {
    const qsizetype colon = target.lastIndexOf(':');
    m_server.connectToHost(QString::fromLatin1(target.left(colon)), target.mid(colon + 1).toUShort());
    return;
  }
  const QUrl url = QUrl::fromEncoded(target);
  m_forServer = QByteArray(m_head).replace(target, url.toEncoded(QUrl::RemoveScheme | QUrl::RemoveAuthority));
  m_server.connectToHost(url.host(), static_cast<quint16>(url.port(80)));
}

void ProxyConnection::serverReached() {
  connect(&m_server, &QTcpSocket::readyRead, this, [this] { pump(m_server, *m_client); });
  connect(&m_server, &QTcpSocket::bytesWritten, this, [this] { pump(*m_client, m_server); });
  connect(m_client, &QTcpSocket::bytesWritten, this, [this] { pump(m_server, *m_client); });
  if (!m_forServer.isEmpty()) {
    m_relaying = true;
    m_server.write(m_forServer);
    return pump(*m_client, m_server);
  }
  m_events.tunnelStands();
  reply(m_behaviour.kind == Kind::ExtraBytes ? Established + m_behaviour.text : Established, false);
}

void ProxyConnection::reply(const QByteArray& bytes, bool thenClose) {
  m_out = bytes;
  m_sent = 0;
  m_closeAfter = thenClose;
  if (m_behaviour.pieceBytes > 0) m_beat.start(PieceEveryMs);
  sendNextPiece();
}

void ProxyConnection::sendNextPiece() {
  const qsizetype left = m_out.size() - m_sent;
  const qsizetype piece = m_behaviour.pieceBytes > 0 ? qMin<qsizetype>(m_behaviour.pieceBytes, left) : left;
  m_client->write(m_out.constData() + m_sent, piece);
  m_client->flush();
  m_sent += piece;
  if (m_sent < m_out.size()) return;
  m_beat.stop();
  if (m_closeAfter) return m_client->disconnectFromHost();
  if (m_server.state() != QAbstractSocket::ConnectedState) return;
  m_relaying = true;
  pump(*m_client, m_server);
  pump(m_server, *m_client);
}

void ProxyConnection::pump(QTcpSocket& from, QTcpSocket& to) {
  if (!m_relaying) return;
  while (from.bytesAvailable() > 0 && to.bytesToWrite() < BufferBytes) to.write(from.read(BufferBytes));
}

// One side is gone: what it said last still reaches the other.
void ProxyConnection::end(QTcpSocket& other) {
  QTcpSocket& gone = &other == m_client ? m_server : *m_client;
  if (m_relaying) other.write(gone.readAll());
  if (other.state() == QAbstractSocket::UnconnectedState)
    deleteLater();
  else
    other.disconnectFromHost();
}
