// Whole tasks whose folders lie on a real share: mounted by the engine, sent, copied back, and through an outage.

#include <QDir>

#include "PrivateSession.h"
#include "SambaServer.h"
#include "engine/UploadThread.h"
#include "platform/Problems.h"
#include "support/EngineBench.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;

class tst_ShareToShare : public QObject {
  Q_OBJECT

  struct Setting {
    Setting() {
      server.start();
      for (const QString& name : {u"in"_s, u"out"_s}) QDir(server.folder()).mkdir(name);
      const MountRequest request = server.request();
      int error = 0;
      mountPoint = mountShare(request, error);
      PrivateSession::unmount(request.url);
      task = bench.makeTask();
      task->inputFolderPath = mountPoint + u"/in"_s;
      task->outputFolderPath = mountPoint + u"/out"_s;
      task->AutoMountInputFolder = task->autoMountOutputFolder = true;
      task->inputfolderURL = task->outputFolderUrl = server.url();
      task->InputLogin = task->outputLogin = request.userName;
      task->inputPassword = task->outputPassword = request.password;
      UploaderTask::addTask(task);
    }
    ~Setting() { PrivateSession::unmount(server.request().url); }
    /// Puts a file into the share from the server's side, at rest for a minute.
    void drop(const QString& name) const {
      const QString path = server.folder() + u"/in/"_s + name;
      QFile file(path);
      if (!file.open(QIODevice::WriteOnly) || file.write("data of " + name.toUtf8()) < 0) qFatal("no file");
      file.close();
      TemporaryHome::setDate(path, bench.clock.now().TotalSeconds() - 60);
    }
    QStringList names(const QString& folder) const {
      return QDir(server.folder() + u'/' + folder).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }
    static bool runUntil(const std::function<bool()>& done) {
      return EngineBench::runUntil([&done] {
        UploaderTask::setTriedAutoMount(false);  // the pause has rows of its own
        return done();
      });
    }
    bool runUntilReceived(int count) const {
      return runUntil([&] { return bench.received().size() >= count; });
    }

    SambaServer server;
    EngineBench bench;
    QString mountPoint;
    TaskPointer task;
  };

 private slots:
  void aShareIsMountedAndItsFilesGoOut() {
    Setting setting;
    QVERIFY(!QFile::exists(setting.mountPoint));
    setting.drop(u"a.txt"_s);
    setting.drop(u"b.txt"_s);
    setting.task->DeleteAfterSave = true;
    QVERIFY(setting.runUntilReceived(2));
    QTRY_VERIFY(!UploadThread::ProcessingNow());
    QCOMPARE(setting.bench.service.receipts().first().content, "data of a.txt");
    QCOMPARE(setting.names(u"out"_s), (QStringList{u"a.txt"_s, u"b.txt"_s}));
    QCOMPARE(TemporaryHome::readFile(setting.server.folder() + u"/out/b.txt"_s), "data of b.txt");
    QCOMPARE(setting.names(u"in"_s), QStringList());
    QCOMPARE(setting.bench.notes().last(), u"Uploaded to Print - Deleted Locally"_s);
  }

  void aServerThatIsAwayInMidBatchCostsNoFile() {
    Setting setting;
    const QStringList all{u"1.txt"_s, u"2.txt"_s, u"3.txt"_s, u"4.txt"_s};
    for (const QString& name : all) setting.drop(name);
    setting.task->outputFolderPath = setting.bench.home.path(u"out"_s);
    setting.bench.service.hold();
    QVERIFY(setting.runUntil([&] { return setting.bench.service.waitForHeld(1, 50); }));
    setting.server.stop();
    setting.bench.service.release();
    QTRY_VERIFY_WITH_TIMEOUT(!UploadThread::ProcessingNow(), 60'000);
    UploadThread::Start();
    QTRY_COMPARE(setting.task->Status.load(), UploaderTask::Fault);
    QTRY_VERIFY(!UploadThread::ProcessingNow());
    QCOMPARE(setting.bench.received(), QStringList{u"1.txt"_s});
    setting.server.start();
    setting.bench.clock.advance(60);
    QVERIFY(setting.runUntilReceived(4));
    QTRY_VERIFY(!UploadThread::ProcessingNow());
    QCOMPARE(setting.bench.received(), all);
    QCOMPARE(setting.names(u"in"_s), all);
    QCOMPARE(setting.bench.files(u"out"_s), all.mid(1));  // the log says that the first has no copy
  }
};

VANTRY_TEST(tst_ShareToShare);
#include "tst_ShareToShare.moc"
