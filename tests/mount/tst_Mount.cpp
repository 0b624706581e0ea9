// Mounting for real: a file server on a loopback port, the desktop's mount service, and folders in its FUSE mount.

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLocalServer>
#include <QTest>
#include <QUrl>
#include <thread>

#include "PrivateSession.h"
#include "SambaServer.h"
#include "platform/Mount.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;

class tst_Mount : public QObject {
  Q_OBJECT

  SambaServer m_server;

  MountRequest request() const {
    MountRequest request;
    request.url = m_server.url().replace(u' ', u"%20"_s);
    request.userName = m_server.login();
    request.password = m_server.password();
    return request;
  }

 private slots:
  void whyNothingIsMounted_data() {
    QTest::addColumn<QString>("change");
    QTest::addColumn<int>("error");
    QTest::newRow("wrong password") << u"password"_s << MountError::LoginRefused;
    QTest::newRow("unknown login") << u"login"_s << MountError::LoginRefused;
    QTest::newRow("no server") << u"stopped"_s << MountError::Unreachable;
    QTest::newRow("unknown server") << u"host"_s << MountError::Unreachable;
    QTest::newRow("no such share") << u"share"_s << MountError::NotThere;
    QTest::newRow("a kind of address that nothing mounts") << u"scheme"_s << MountError::NotSupported;
    QTest::newRow("an address of the web") << u"web"_s << MountError::NotSupported;
    QTest::newRow("no session bus") << u"bus"_s << MountError::NoSession;
  }
  void whyNothingIsMounted() {
    QFETCH(QString, change);
    if (change != u"stopped"_s) m_server.start();
    MountRequest asked = request();
    if (change == u"password"_s) asked.password = u"guess"_s;
    if (change == u"login"_s) asked.userName = u"nobody-here"_s;
    if (change == u"share"_s) asked.url += u"-not"_s;
    if (change == u"host"_s) asked.url.replace(u"127.0.0.1"_s, u"no-such-host.invalid"_s);
    if (change == u"scheme"_s) asked.url.replace(u"smb:"_s, u"gopher:"_s);
    if (change == u"web"_s) asked.url.replace(u"smb:"_s, u"http:"_s);
    const QByteArray bus = qgetenv("DBUS_SESSION_BUS_ADDRESS");
    if (change == u"bus"_s) qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    int error = 0;
    QCOMPARE(mountShare(asked, error), QString());
    qputenv("DBUS_SESSION_BUS_ADDRESS", bus);
    QTEST(error, "error");
    if (change != u"stopped"_s) m_server.stop();
  }

  void aServerThatDoesNotAnswerIsGivenUp() {
    m_server.start();
    m_server.freeze();
    int error = 0;
    QElapsedTimer time;
    time.start();
    QCOMPARE(mountShare(request(), error, 1500), QString());
    QCOMPARE(error, MountError::TimedOut);
    QVERIFY(time.elapsed() < 10'000);
    MountRequest cancelled = request();
    cancelled.cancelled = [&] { return true; };
    QCOMPARE(mountShare(cancelled, error), QString());
    QCOMPARE(error, MountError::Cancelled);
    m_server.thaw();
    m_server.stop();
  }

  void aFolderThatHangsBehindItsMountIsGivenUp() {
    m_server.start();
    int error = 0;
    QVERIFY(!mountShare(request(), error).isEmpty());
    m_server.freeze();
    QCOMPARE(mountShare(request(), error, 1500), QString());
    QCOMPARE(error, MountError::TimedOut);
    m_server.thaw();
    PrivateSession::unmount(request().url);
    m_server.stop();
  }

  void aSessionBusThatNeverAnswersIsGivenUp() {
    const QTemporaryDir dir;
    QLocalServer silent;
    QVERIFY(silent.listen(dir.filePath(u"bus"_s)));
    QProcess other;  // this program has met its bus
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, u"unix:path="_s + silent.fullServerName());
    other.setProcessEnvironment(environment);
    bindChild(other);
    other.start(QCoreApplication::applicationFilePath(), {u"mount-within"_s, u"1500"_s, request().url});
    QVERIFY(silent.waitForNewConnection(20'000));
    QVERIFY(other.waitForFinished(20'000));
    QCOMPARE(other.readAllStandardOutput(), QByteArray::number(MountError::NoSession));
  }

  void aGoodLoginGivesAFolder_data() {
    QTest::addColumn<QString>("login");
    QTest::newRow("a name alone") << u"%1"_s;
    QTest::newRow("domain in front") << u"WORKGROUP\\%1"_s;
    QTest::newRow("domain behind") << u"%1@WORKGROUP"_s;
  }
  void aGoodLoginGivesAFolder() {
    QFETCH(QString, login);
    m_server.start();
    MountRequest asked = request();
    asked.url = m_server.url();  // its blank as a person types it
    asked.userName = login.arg(asked.userName);
    int error = -1;
    QString path;
    std::thread([&] { path = mountShare(asked, error); }).join();
    QCOMPARE(error, 0);
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
    PrivateSession::unmount(request().url);
    m_server.stop();
  }
};

VANTRY_TEST(tst_Mount);
#include "tst_Mount.moc"
