// Mounting for real: a file server on a loopback port, the desktop's mount service, and folders in its FUSE mount.

#include <QDir>
#include <QFile>
#include <QTest>
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

  void whyNothingIsMounted_data() {
    QTest::addColumn<QString>("change");
    QTest::addColumn<int>("error");
    QTest::newRow("wrong password") << u"password"_s << MountError::LoginRefused;
    QTest::newRow("unknown login") << u"login"_s << MountError::LoginRefused;
    QTest::newRow("no server") << u"stopped"_s << MountError::Unreachable;
    QTest::newRow("unknown server") << u"host"_s << MountError::Unreachable;
    QTest::newRow("unknown server of nfs") << u"nfs"_s << MountError::Unreachable;
    QTest::newRow("no such share") << u"share"_s << MountError::NotThere;
    QTest::newRow("a kind of address that nothing mounts") << u"scheme"_s << MountError::NotSupported;
    QTest::newRow("an address of the web") << u"web"_s << MountError::NotSupported;
    QTest::newRow("no session bus") << u"bus"_s << MountError::NoSession;
  }
  void whyNothingIsMounted() {
    QFETCH(QString, change);
    MountRequest asked = m_server.request();
    if (change == u"stopped"_s) m_server.stop();
    if (change == u"password"_s) asked.password = u"guess"_s;
    if (change == u"login"_s) asked.userName = u"nobody-here"_s;
    if (change == u"share"_s) asked.url += u"-not"_s;
    if (change == u"host"_s) asked.url.replace(u"127.0.0.1"_s, u"no-such-host.invalid"_s);
    if (change == u"nfs"_s) asked.url = u"nfs://no-such-host.invalid/srv"_s;
    if (change == u"scheme"_s) asked.url.replace(u"smb:"_s, u"gopher:"_s);
    if (change == u"web"_s) asked.url.replace(u"smb:"_s, u"http:"_s);
    const QByteArray bus = qgetenv("DBUS_SESSION_BUS_ADDRESS");
    if (change == u"bus"_s) qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    int error = 0;
    QCOMPARE(mountShare(asked, error), QString());
    qputenv("DBUS_SESSION_BUS_ADDRESS", bus);
    QTEST(error, "error");
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

  void aServerThatDoesNotAnswerIsGivenUp_data() {
    QTest::addColumn<bool>("mounted");
    QTest::newRow("at the login") << false;
    QTest::newRow("behind its mount") << true;
  }
  void aServerThatDoesNotAnswerIsGivenUp() {
    QFETCH(bool, mounted);
    int error = 0;
    MountRequest asked = m_server.request();
    if (mounted) QTRY_VERIFY(!mountShare(asked, error).isEmpty());  // one that has just come back may refuse at first
    m_server.freeze();
    QCOMPARE(mountShare(asked, error, 1500), QString());
    QCOMPARE(error, MountError::TimedOut);
    asked.cancelled = [] { return true; };
    QCOMPARE(mountShare(asked, error), QString());
    QCOMPARE(error, MountError::Cancelled);
  }

  void aGoodLoginGivesAFolder_data() {
    QTest::addColumn<QString>("login");
    QTest::newRow("a name alone") << u"%1"_s;
    QTest::newRow("domain in front") << u"WORKGROUP\\%1"_s;
    QTest::newRow("domain behind") << u"%1@WORKGROUP"_s;
  }
  void aGoodLoginGivesAFolder() {
    QFETCH(QString, login);
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
    // For a second the kernel may answer from what it knew of the row before.
    QTRY_VERIFY2(written.isOpen() || written.open(QIODevice::WriteOnly), qPrintable(written.errorString()));
    QCOMPARE(written.write("x"), 1);
    written.close();
    QVERIFY(QFile::remove(m_server.folder() + u"/from the mount.txt"_s));
    // Mounted already: the same answer, and no login is needed.
    asked.password = u"guess"_s;
    QCOMPARE(mountShare(asked, error), path);
    QCOMPARE(error, 0);
  }
};

VANTRY_TEST(tst_Mount);
#include "tst_Mount.moc"
