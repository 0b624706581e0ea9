#include "SambaServer.h"

#include <pwd.h>
#include <unistd.h>

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>
#include <csignal>

#include "PrivateSession.h"

using namespace Qt::Literals::StringLiterals;

static QString login() { return QString::fromLocal8Bit(::getpwuid(::getuid())->pw_name); }
static const QString Password = u"ink & paper"_s;

static void writeFile(const QString& path, const QByteArray& text) {
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly) || file.write(text) < 0) qFatal("cannot write %s", qPrintable(path));
}

SambaServer::SambaServer() {
  {
    QTcpServer port;
    if (!port.listen(QHostAddress::LocalHost)) qFatal("no free port");
    m_port = port.serverPort();
  }
  for (const QString& name : {u"share"_s, u"state"_s, u"state/rpc"_s}) QDir(m_dir.path()).mkdir(name);
  const QByteArray hash = QCryptographicHash::hash(
      QByteArray(reinterpret_cast<const char*>(Password.utf16()), Password.size() * 2), QCryptographicHash::Md4);
  const QByteArray account = login().toUtf8() + ':' + QByteArray::number(::getuid()) + ':' + QByteArray(32, 'X') + ':' +
                             hash.toHex().toUpper() + ":[U          ]:LCT-00000001:\n";
  writeFile(m_dir.filePath(u"passwd"_s), account);
  writeFile(m_dir.filePath(u"smb.conf"_s),
            uR"([global]
server role = standalone server
smb ports = %2
interfaces = lo
bind interfaces only = yes
disable netbios = yes
server services =
private dir = %1/state
state directory = %1/state
cache directory = %1/state
lock directory = %1/state
pid directory = %1/state
ncalrpc dir = %1/state/rpc
log file = %1/log
passdb backend = smbpasswd:%1/passwd
load printers = no
printing = bsd
invalid users =
[Print Data]
path = %1/share
read only = no
)"_s.arg(m_dir.path())
                .arg(m_port)
                .toUtf8());
}

SambaServer::~SambaServer() { stop(); }

void SambaServer::start() {
  bindChild(m_server);
  m_server.setProcessChannelMode(QProcess::MergedChannels);
  const QString path = qEnvironmentVariable("PATH") + u":/usr/sbin"_s;
  qputenv("PATH", path.toUtf8());
  m_server.start(u"smbd"_s, {u"--foreground"_s, u"--no-process-group"_s, u"--debug-stdout"_s,
                             u"--configfile="_s + m_dir.filePath(u"smb.conf"_s)});
  const auto answers = [this] {
    QTcpSocket socket;
    socket.connectToHost(u"127.0.0.1"_s, static_cast<quint16>(m_port));
    return socket.waitForConnected(1000);
  };
  if (!QTest::qWaitFor(answers, 10'000)) qFatal("the file server doesn't start:\n%s", m_server.readAll().constData());
}

void SambaServer::signalAll(int number) const {
  if (m_server.processId() > 0) ::kill(-static_cast<pid_t>(m_server.processId()), number);
}

void SambaServer::stop() {
  signalAll(SIGKILL);
  m_server.waitForFinished(10'000);
}

QString SambaServer::url() const { return u"smb://127.0.0.1:%1/Print Data"_s.arg(m_port); }

MountRequest SambaServer::request() const {
  MountRequest request;
  request.url = url().replace(u' ', u"%20"_s);
  request.userName = login();
  request.password = Password;
  return request;
}
