#include "practice/PracticeProxy.h"

#include <QTcpServer>
#include <mutex>
#include <utility>

#include "practice/ProxyConnection.h"
#include "practice/ServiceThread.h"

class PracticeProxy::Private {
 public:
  mutable std::mutex mutex;  // guards the three below
  Behaviour behaviour;
  QList<QByteArray> heads;
  int tunnels = 0;

  ServiceThread thread{"practice-proxy"};
  QTcpServer* server = nullptr;  // lives in the thread and owns the connections
  quint16 port = 0;

  void takeConnections() {
    while (QTcpSocket* client = server->nextPendingConnection())
      new ProxyConnection(client, currentBehaviour(),
                          {[this](const QByteArray& head) {
                             const std::lock_guard lock(mutex);
                             heads.append(head);
                           },
                           [this] {
                             const std::lock_guard lock(mutex);
                             ++tunnels;
                           }},
                          server);
  }

 private:
  Behaviour currentBehaviour() const {
    const std::lock_guard lock(mutex);
    return behaviour;
  }
};

PracticeProxy::PracticeProxy() : d(std::make_unique<Private>()) {}

PracticeProxy::~PracticeProxy() { stop(); }

bool PracticeProxy::start() {
  stop();
  bool listening = false;
  d->thread.start(
      [&] {
        d->server = new QTcpServer;
        QObject::connect(d->server, &QTcpServer::newConnection, d->server, [this] { d->takeConnections(); });
        listening = d->server->listen(QHostAddress::LocalHost);
        d->port = d->server->serverPort();
      },
      [this] { delete std::exchange(d->server, nullptr); });
  if (!listening) stop();
  return listening;
}

void PracticeProxy::stop() { d->thread.stop(); }

quint16 PracticeProxy::port() const { return d->port; }

void PracticeProxy::setBehaviour(const Behaviour& behaviour) {
  const std::lock_guard lock(d->mutex);
  d->behaviour = behaviour;
}

QList<QByteArray> PracticeProxy::heads() const {
  const std::lock_guard lock(d->mutex);
  return d->heads;
}

int PracticeProxy::tunnels() const {
  const std::lock_guard lock(d->mutex);
  return d->tunnels;
}
