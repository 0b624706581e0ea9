// Mounting for real: a file server on a loopback port, the desktop's mount service, and folders in its FUSE mount.

#include <QFile>
#include <thread>

#include "PrivateSession.h"
#include "SambaServer.h"
#include "platform/Mount.h"
#include "practice/PracticeService.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;

class tst_Mount : public QObject {
  Q_OBJECT

  SambaServer m_server;

 private slots:
  void init() { m_server.start(); }
  void cleanup() {
    m_server.thaw();
    PrivateSession::unmount(m_server.request().url);
    m_server.stop();
  }

  void whyNothingIsMounted() {
    const QByteArray bus = qgetenv("DBUS_SESSION_BUS_ADDRESS");
    using Change = std::function<void(MountRequest&)>;
    const std::pair<Change, int> rows[] = {
        {[](MountRequest& asked) { asked.password = u"guess"_s; }, MountError::LoginRefused},
        {[](MountRequest& asked) { asked.userName = u"nobody-here"_s; }, MountError::LoginRefused},
        {[](MountRequest& asked) { asked.url.replace(u"127.0.0.1"_s, u"no-such-host.invalid"_s); },
         MountError::Unreachable},
        {[](MountRequest& asked) { asked.url = u"nfs://no-such-host.invalid/srv"_s; }, MountError::Unreachable},
        {[](MountRequest& asked) { asked.url += u"-not"_s; }, MountError::NotThere},
        {[](MountRequest& asked) { asked.url.replace(u"smb:"_s, u"gopher:"_s); }, MountError::NotSupported},
        {[](MountRequest& asked) { asked.url.replace(u"smb:"_s, u"http:"_s); }, MountError::NotSupported},
        {[](MountRequest&) { qunsetenv("DBUS_SESSION_BUS_ADDRESS"); }, MountError::NoSession},
        {[this](MountRequest&) { m_server.stop(); }, MountError::Unreachable}};
    for (const auto& [change, expected] : rows) {
      MountRequest asked = m_server.request();
      change(asked);
      int error = 0;
      QCOMPARE(mountShare(asked, error), QString());
      QCOMPARE(error, expected);
      qputenv("DBUS_SESSION_BUS_ADDRESS", bus);
    }
  }

  void aServerWithACertificateThatNobodyVouchesForGetsNoLogin() {
    PracticeService server;
    QVERIFY(server.start());
    MountRequest asked = m_server.request();
    asked.url = u"davs://localhost:%1/api"_s.arg(server.port());
    int error = 0;
    QCOMPARE(mountShare(asked, error), QString());
    QCOMPARE(error, MountError::Question);
    QVERIFY(server.requests().isEmpty());
    QVERIFY(server.connections() > 0);
    QTRY_COMPARE(server.failedHandshakes(), server.connections());
  }

  void aServerThatDoesNotAnswerIsGivenUp() {
    for (const bool mounted : {false, true}) {
      int error = 0;
      MountRequest asked = m_server.request();
      if (mounted) QTRY_VERIFY(!mountShare(asked, error).isEmpty());  // one that has just come back may refuse at first
      m_server.freeze();
      QCOMPARE(mountShare(asked, error, 1500), QString());
      QCOMPARE(error, MountError::TimedOut);
      asked.cancelled = [] { return true; };
      QCOMPARE(mountShare(asked, error), QString());
      QCOMPARE(error, MountError::Cancelled);
      m_server.thaw();
    }
  }

  void aGoodLoginGivesAFolder() {
    for (const QString& login : {u"%1"_s, u"WORKGROUP\\%1"_s, u"%1@WORKGROUP"_s}) {
      MountRequest asked = m_server.request();
      asked.url = m_server.url();  // its blank as a person types it
      asked.userName = login.arg(asked.userName);
      int error = -1;
      QString path;
      const auto mount = [&] {
        std::thread([&] { path = mountShare(asked, error); }).join();
        return error;
      };
      QTRY_COMPARE(mount(), 0);
      QFile written(path + u"/from the mount.txt"_s);
      // For a second the kernel may answer from what it knew of the mount before.
      QTRY_VERIFY2(written.isOpen() || written.open(QIODevice::WriteOnly), qPrintable(written.errorString()));
      QCOMPARE(written.write("x"), 1);
      written.close();
      QVERIFY(QFile::remove(m_server.folder() + u"/from the mount.txt"_s));
      // Mounted already: the same answer, and no login is needed.
      asked.password = u"guess"_s;
      QCOMPARE(mountShare(asked, error), path);
      QCOMPARE(error, 0);
      cleanup();
      init();
    }
  }
};

VANTRY_TEST(tst_Mount);
#include "tst_Mount.moc"
