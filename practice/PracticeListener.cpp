#include "practice/PracticeListener.h"

#include <linux/tcp.h>
#include <netinet/in.h>
#include <sys/socket.h>

#include <QSslSocket>
#include <QTcpSocket>

PracticeListener::PracticeListener(PracticeContext& context, QObject* parent) : QSslServer(parent), m_context(context) {
  connect(this, &QSslServer::errorOccurred, this, &PracticeListener::socketFailed);
  connect(this, &QTcpServer::pendingConnectionAvailable, this, &PracticeListener::takeConnections);
}

PracticeListener::~PracticeListener() = default;

void PracticeListener::incomingConnection(qintptr descriptor) {
  m_context.books.connectionAccepted();
  if (const auto misbehaviour = m_context.books.takeForConnection())
    neverSpeakTls(descriptor, misbehaviour->kind == Misbehaviour::Kind::CutHandshake);
  else
    QSslServer::incomingConnection(descriptor);
}

// What the kernel counted of a connection; 0 if it is gone.
static qint64 rawBytesReceived(qintptr descriptor) {
  tcp_info info{};
  socklen_t size = sizeof info;
  if (descriptor < 0 || getsockopt(static_cast<int>(descriptor), IPPROTO_TCP, TCP_INFO, &info, &size) != 0) return 0;
  return static_cast<qint64>(info.tcpi_bytes_received);
}

// Only a socket whose handshake has not ended is still ours, and of several errors the first counts.
void PracticeListener::socketFailed(QSslSocket* socket) {
  if (socket->parent() != this || socket->property("failed").toBool()) return;
  socket->setProperty("failed", true);
  m_context.books.handshakeFailed(rawBytesReceived(socket->socketDescriptor()));
  socket->deleteLater();
}

void PracticeListener::takeConnections() {
  while (hasPendingConnections()) {
    auto* socket = qobject_cast<QSslSocket*>(nextPendingConnection());
    if (!socket) continue;
    auto* connection = new PracticeConnection(socket, m_context, this);
    connect(this, &PracticeListener::released, connection, &PracticeConnection::release);
  }
}

void PracticeListener::neverSpeakTls(qintptr descriptor, bool cutAtFirstBytes) {
  auto* socket = new QTcpSocket(this);
  connect(socket, &QTcpSocket::disconnected, this, [this, socket, descriptor] {
    m_context.books.handshakeFailed(rawBytesReceived(descriptor));
    socket->deleteLater();
  });
  if (cutAtFirstBytes) connect(socket, &QTcpSocket::readyRead, socket, &QTcpSocket::abort);
  if (!socket->setSocketDescriptor(descriptor)) socket->deleteLater();
}
