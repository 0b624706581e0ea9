#include "SingleInstance.h"

#include <QCryptographicHash>
#include <QLocalSocket>
#include <QStandardPaths>

using namespace Qt::Literals::StringLiterals;

static constexpr int AnswerLimitMs = 2000;
static constexpr int EndLimitMs = 8000;  // more than the program takes to end

// A socket's path is short by nature (107 bytes), so the data folder stands in it as a hash.
static QString socketPath(const FolderItem& dataFolder) {
  const QByteArray hash = QCryptographicHash::hash(dataFolder.bytes(), QCryptographicHash::Sha256).toHex().left(16);
  return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation) + u"/vantry-uploader-"_s +
         QString::fromLatin1(hash);
}

SingleInstance::SingleInstance(const FolderItem& dataFolder)
    : m_socketPath(socketPath(dataFolder)), m_lock(dataFolder.Child(u"vantry-uploader.lock"_s).NativePath()) {
  m_lock.setStaleLockTime(0);  // a lock is stale only when its owner is gone, however long it has run
  m_server.setSocketOptions(QLocalServer::UserAccessOption);
  connect(&m_server, &QLocalServer::newConnection, this, &SingleInstance::answer);
}

bool SingleInstance::takePlace(int waitMs) {
  if (!m_lock.tryLock(waitMs)) return false;
  QLocalServer::removeServer(m_socketPath);
  (void)m_server.listen(m_socketPath);  // without it a second start only says that the program runs
  return true;
}

SingleInstance::Start SingleInstance::start() {
  if (takePlace(0)) return Start::First;
  if (m_lock.error() != QLockFile::LockFailedError) return Start::Forbidden;
  QLocalSocket socket;
  socket.connectToServer(m_socketPath);
  if (socket.waitForConnected(AnswerLimitMs) && socket.waitForReadyRead(AnswerLimitMs)) return Start::HandedOver;
  return takePlace(EndLimitMs) ? Start::First : Start::Silent;
}

void SingleInstance::answer() {
  while (QLocalSocket* socket = m_server.nextPendingConnection()) {
    connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
    socket->write("shown\n");
    socket->disconnectFromServer();
    emit showRequested();
  }
}
