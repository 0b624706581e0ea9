#include "PrivateSession.h"

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <QStandardPaths>
#include <csignal>

using namespace Qt::Literals::StringLiterals;

void bindChild(QProcess& process) {
  process.setChildProcessModifier([] {
    ::setpgid(0, 0);
    ::prctl(PR_SET_PDEATHSIG, SIGTERM);
  });
}

PrivateSession::PrivateSession() {
  const QString services = m_home.makeFolder(u"services"_s), name = u"/org.gtk.vfs.Daemon.service"_s;
  QFile::copy(u"/usr/share/dbus-1/services"_s + name, services + name);
  const QString settings = m_home.writeFile(u"bus.conf"_s,
                                            uR"(<busconfig>
<type>session</type><listen>unix:path=%1/bus</listen><auth>EXTERNAL</auth><servicedir>%2</servicedir>
<policy context="default"><allow send_destination="*" eavesdrop="true"/><allow eavesdrop="true"/><allow own="*"/></policy>
</busconfig>)"_s.arg(m_home.path(), services)
                                                .toUtf8());
  m_bus.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  bindChild(m_bus);
  m_bus.start(u"dbus-daemon"_s, {u"--config-file="_s + settings, u"--nofork"_s, u"--print-address=1"_s});
  if (!m_bus.waitForStarted() || !m_bus.waitForReadyRead(10'000)) qFatal("the session bus doesn't start");
  qputenv("DBUS_SESSION_BUS_ADDRESS", m_bus.readLine().trimmed());
}

void PrivateSession::unmount(const QString& url) {
  QProcess gio;
  gio.start(u"gio"_s, {u"mount"_s, u"--unmount"_s, u"--force"_s, url});
  gio.waitForFinished();  // what it says is kept from the test's own output
}

PrivateSession::~PrivateSession() {
  QProcess::execute(u"fusermount3"_s, {u"-u"_s, u"-z"_s, u"-q"_s, m_home.path(u"run/gvfs"_s)});
  m_bus.terminate();  // the mount service ends with its bus
  m_bus.waitForFinished(10'000);
}

QString PrivateSession::missing() {
  const int fuse = ::open("/dev/fuse", O_RDWR | O_CLOEXEC);
  if (fuse < 0) return u"/dev/fuse can't be opened"_s;
  struct stat info {};
  const bool device = ::fstat(fuse, &info) == 0 && S_ISCHR(info.st_mode);
  ::close(fuse);
  if (!device) return u"/dev/fuse is no device"_s;
  for (const QString& program : {u"smbd"_s, u"dbus-daemon"_s, u"fusermount3"_s})
    if (QStandardPaths::findExecutable(program).isEmpty() &&
        QStandardPaths::findExecutable(program, {u"/usr/sbin"_s}).isEmpty())
      return program + u" is not installed"_s;
  return {};
}
