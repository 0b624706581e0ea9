#include "practice/PracticeListener.h"

#include <fcntl.h>
#include <linux/tcp.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QSslSocket>
#include <QTcpSocket>
#include <memory>

PracticeListener::PracticeListener(PracticeContext& context, QObject* parent) : QSslServer(parent), m_context(context) {
  setHandshakeTimeout(60'000);  // a loaded machine may take long over one, and nobody attacks this service
  connect(this, &QSslServer::errorOccurred, this, &PracticeListener::socketFailed);
  connect(this, &QTcpServer::pendingConnectionAvailable, this, &PracticeListener::takeConnections);
}

PracticeListener::~PracticeListener() = default;

// A second descriptor of a connection, of which the kernel can still be asked when the socket has closed its own.
// Lives no longer than the handshake: the connection would not end while this is open.
class PracticeListener::RawCount : public QObject {
 public:
  RawCount(qintptr descriptor, QObject* parent)
      : QObject(parent), m_descriptor(fcntl(static_cast<int>(descriptor), F_DUPFD_CLOEXEC, 0)) {}
  ~RawCount() override { ::close(m_descriptor); }
  [[nodiscard]] qint64 bytesReceived() const {
    tcp_info info{};
    socklen_t size = sizeof info;
    if (getsockopt(m_descriptor, IPPROTO_TCP, TCP_INFO, &info, &size) != 0) return 0;
    return static_cast<qint64>(info.tcpi_bytes_received);
  }

 private:
  int m_descriptor;
};

void PracticeListener::incomingConnection(qintptr descriptor) {
  m_context.books.connectionAccepted();
  if (const auto misbehaviour = m_context.books.takeForConnection())
    return neverSpeakTls(descriptor, misbehaviour->kind == Misbehaviour::Kind::CutHandshake);
  QSslServer::incomingConnection(descriptor);
  for (auto* socket : findChildren<QSslSocket*>(Qt::FindDirectChildrenOnly))
    if (socket->socketDescriptor() == descriptor) m_counts.insert(socket, new RawCount(descriptor, socket));
}

// Of several errors the first counts, and none after the handshake: the count is then gone.
void PracticeListener::socketFailed(QSslSocket* socket) {
  const std::unique_ptr<RawCount> count(m_counts.take(socket));
  if (!count) return;
  m_context.books.handshakeFailed(count->bytesReceived());
  socket->deleteLater();
}

void PracticeListener::takeConnections() {
  while (hasPendingConnections()) {
    auto* socket = qobject_cast<QSslSocket*>(nextPendingConnection());
    if (!socket) continue;
    delete m_counts.take(socket);
    auto* connection = new PracticeConnection(socket, m_context, this);
    connect(this, &PracticeListener::released, connection, &PracticeConnection::release);
  }
}

void PracticeListener::neverSpeakTls(qintptr descriptor, bool cutAtFirstBytes) {
  auto* socket = new QTcpSocket(this);
  auto* count = new RawCount(descriptor, socket);
  connect(socket, &QTcpSocket::disconnected, this, [this, socket, count] {
    m_context.books.handshakeFailed(count->bytesReceived());
    delete count;
    socket->deleteLater();
  });
  if (cutAtFirstBytes) connect(socket, &QTcpSocket::readyRead, socket, &QTcpSocket::abort);
  if (!socket->setSocketDescriptor(descriptor)) socket->deleteLater();
}
