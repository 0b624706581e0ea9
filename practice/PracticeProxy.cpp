#include "practice/PracticeProxy.h"

#include <QMutex>
#include <QTcpServer>

#include "practice/ProxyConnection.h"
#include "practice/ServiceThread.h"

class PracticeProxy::Private {
 public:
  mutable QMutex mutex;  // guards the three below
  Behaviour behaviour;
  QList<QByteArray> heads;
  int tunnels = 0;

  ServiceThread thread;
  QTcpServer* server = nullptr;  // lives in the thread and owns the connections
  quint16 port = 0;

  void takeConnections() {
    while (QTcpSocket* client = server->nextPendingConnection())
      new ProxyConnection(client, currentBehaviour(),
                          {[this](const QByteArray& head) {
                             const QMutexLocker lock(&mutex);
                             heads.append(head);
                           },
                           [this] {
                             const QMutexLocker lock(&mutex);
                             ++tunnels;
                           }},
                          server);
  }

 private:
  Behaviour currentBehaviour() const {
    const QMutexLocker lock(&mutex);
    return behaviour;
  }
};

PracticeProxy::PracticeProxy() : d(std::make_unique<Private>()) {
  d->thread.setObjectName(QStringLiteral("practice-proxy"));
}

PracticeProxy::~PracticeProxy() { stop(); }

bool PracticeProxy::start() {
  stop();
  d->server = new QTcpServer;
  QObject::connect(d->server, &QTcpServer::newConnection, d->server, [this] { d->takeConnections(); });
  d->server->moveToThread(&d->thread);
  d->thread.start();
  bool listening = false;
  QMetaObject::invokeMethod(
      d->server,
      [&] {
        listening = d->server->listen(QHostAddress::LocalHost);
        d->port = d->server->serverPort();
      },
      Qt::BlockingQueuedConnection);
  if (!listening) stop();
  return listening;
}

void PracticeProxy::stop() {
  if (!d->server) return;
  QMetaObject::invokeMethod(
      d->server, [this] { delete d->server; }, Qt::BlockingQueuedConnection);
  d->server = nullptr;
  d->thread.quit();
  d->thread.wait();
}

quint16 PracticeProxy::port() const { return d->port; }

void PracticeProxy::setBehaviour(const Behaviour& behaviour) {
  const QMutexLocker lock(&d->mutex);
  d->behaviour = behaviour;
}

QList<QByteArray> PracticeProxy::heads() const {
  const QMutexLocker lock(&d->mutex);
  return d->heads;
}

int PracticeProxy::tunnels() const {
  const QMutexLocker lock(&d->mutex);
  return d->tunnels;
}
