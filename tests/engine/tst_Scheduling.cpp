// Which task runs, when a run ends, and what state the tasks are in.

#include <QDir>
#include <QTest>
#include <stdexcept>

#include "engine/UploadThread.h"
#include "platform/Problems.h"
#include "storage/LogEntry.h"
#include "support/EngineBench.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;

class tst_Scheduling : public QObject {
  Q_OBJECT

  static void run() {
    UploadThread::Start();
    QTRY_VERIFY_WITH_TIMEOUT(!UploadThread::ProcessingNow(), 20'000);
  }

 private slots:
  void theEarliestNameIsFinishedFirstAndTheRunTakesAll() {
    EngineBench bench;
    for (const QString& name : {u"b"_s, u"A"_s, u"c"_s}) {
      const TaskPointer task = bench.makeTask(name);
      task->inputFolderPath = bench.home.makeFolder(u"in-"_s + name);
      UploaderTask::addTask(task);
    }
    bench.drop(u"1b.txt"_s, "x", u"in-b"_s);
    bench.drop(u"2a.txt"_s, "x", u"in-A"_s);
    bench.drop(u"3a.txt"_s, "x", u"in-A"_s);
    bench.drop(u"c.txt"_s, "x", u"in-c"_s);
    UploaderTask::allTasks().at(2)->disabled = true;
    UploadThread::Start();
    QVERIFY(bench.service.waitForReceipts(3, 10'000));
    QTRY_VERIFY(!UploadThread::ProcessingNow());
    QCOMPARE(bench.received(), (QStringList{u"2a.txt"_s, u"3a.txt"_s, u"1b.txt"_s}));
    QCOMPARE(UploaderTask::allTasks().at(0)->Status.load(), UploaderTask::Processing);
    QCOMPARE(UploaderTask::allTasks().at(2)->Status.load(), UploaderTask::Ready);
  }

  void theSwitchEndsTheRunBehindTheBatch() {
    EngineBench bench;
    for (const QString& name : {u"a"_s, u"b"_s}) {
      const TaskPointer task = bench.makeTask(name);
      task->inputFolderPath = bench.home.makeFolder(u"in-"_s + name);
      UploaderTask::addTask(task);
      bench.drop(name + u"1.txt"_s, "x", u"in-"_s + name);
      bench.drop(name + u"2.txt"_s, "x", u"in-"_s + name);
    }
    bench.service.hold();
    UploadThread::Start();
    QVERIFY(bench.service.waitForHeld(1, 10'000));
    UploadThread::Enabled = false;
    bench.service.release();
    QTRY_VERIFY(!UploadThread::ProcessingNow());
    QCOMPARE(bench.received(), (QStringList{u"a1.txt"_s, u"a2.txt"_s}));
    run();
    QCOMPARE(bench.received().size(), 2);
  }

  void status_data() {
    QTest::addColumn<QString>("input");
    QTest::addColumn<QString>("output");
    QTest::addColumn<qint64>("status");
    QTest::newRow("both folders there") << u"in"_s << u"out"_s << qint64(UploaderTask::Ready);
    QTest::newRow("no output folder wanted") << u"in"_s << u""_s << qint64(UploaderTask::Ready);
    QTest::newRow("no input folder") << u""_s << u"out"_s << qint64(UploaderTask::Fault);
    QTest::newRow("input folder gone") << u"gone"_s << u"out"_s << qint64(UploaderTask::Fault);
    QTest::newRow("output folder gone") << u"in"_s << u"gone"_s << qint64(UploaderTask::Fault);
    QTest::newRow("a file in place of the output folder") << u"in"_s << u"file"_s << qint64(UploaderTask::Fault);
  }
  void status() {
    QFETCH(QString, input);
    QFETCH(QString, output);
    EngineBench bench;
    bench.home.writeFile(u"file"_s, "x");
    const TaskPointer task = bench.makeTask();
    task->inputFolderPath = input.isEmpty() ? QString() : bench.home.path(input);
    task->outputFolderPath = output.isEmpty() ? QString() : bench.home.path(output);
    task->updateStatus();
    QTEST(task->Status.load(), "status");
    if (task->Status == UploaderTask::Fault && input == u"in"_s) {
      QFile::remove(bench.home.path(u"file"_s));
      bench.home.makeFolder(output);
      task->updateStatus();
      QCOMPARE(task->Status.load(), UploaderTask::Ready);  // it heals by itself
    }
  }

  void anExceptionEndsTheRunInGoodOrder() {
    EngineBench bench;
    const TaskPointer task = bench.makeTask();
    UploaderTask::addTask(task);
    bench.drop(u"a.txt"_s);
    // Also the row that tells of the exception meets it again: nothing may come of that.
    VantryUtil::LogEntry::setRowObserver([](qint64) { throw std::runtime_error("planted"); });
    UploadThread::Start();
    QTRY_COMPARE(bench.log().size(), 2);
    QTRY_VERIFY(!UploadThread::ProcessingNow());
    QVERIFY(!task->Busy);
    const EngineBench::Row row = bench.log().last();
    QCOMPARE(row[u"Notes"_s], u"Processing stopped: planted"_s);
    QCOMPARE(row[u"InputFolder"_s], task->inputFolderPath);
    QCOMPARE(row[u"OutputFolder"_s], task->outputFolderPath);
    VantryUtil::LogEntry::setRowObserver({});
    bench.clock.advance(100);
    bench.drop(u"b.txt"_s);
    UploadThread::Start();
    QTRY_COMPARE(bench.notes().last(), u"Uploaded to Print Warden - Saved"_s);
  }

  void mounting_data() {
    QTest::addColumn<bool>("exists");
    QTest::addColumn<bool>("wanted");
    QTest::addColumn<QString>("url");
    QTest::addColumn<bool>("pausing");
    QTest::addColumn<QString>("mountPoint");
    QTest::addColumn<QStringList>("mounted");
    QTest::addColumn<bool>("pauseAfter");
    const QString share = u"smb://server/a share%20x"_s;
    const QStringList none, once{u"smb://server/a%20share%20x user secret"_s};
    QTest::newRow("a folder that exists needs no mount") << true << true << share << false << u"/m"_s << none << false;
    QTest::newRow("not wanted") << false << false << share << false << u"/m"_s << none << false;
    QTest::newRow("no URL: no attempt and no pause") << false << true << u"  "_s << false << u"/m"_s << none << false;
    QTest::newRow("in the pause") << false << true << share << true << u"/m"_s << none << true;
    QTest::newRow("good mount") << false << true << share << false << u"/m"_s << once << false;
    QTest::newRow("failed mount begins the pause") << false << true << share << false << u" "_s << once << true;
    QTest::newRow("a mount that throws begins the pause") << false << true << share << false << u"throw"_s << once << true;
  }
  void mounting() {
    QFETCH(bool, exists);
    QFETCH(bool, wanted);
    QFETCH(QString, url);
    QFETCH(bool, pausing);
    QFETCH(QString, mountPoint);
    EngineBench bench;
    QStringList mounted;
    UploaderTask::setMountOperation([&](const MountRequest& request, int& error) -> QString {
      mounted << request.url + u' ' + request.userName + u' ' + request.password;
      error = ENOENT;
      if (mountPoint == u"throw"_s) throw std::runtime_error("mount");
      return mountPoint;
    });
    UploaderTask::setTriedAutoMount(pausing);
    for (const bool input : {true, false}) {
      mounted.clear();
      UploaderTask::setTriedAutoMount(pausing);
      const TaskPointer task = bench.makeTask();
      task->inputFolderPath = task->outputFolderPath = bench.home.path(exists ? u"in"_s : u"share/folder"_s);
      (input ? task->AutoMountInputFolder : task->autoMountOutputFolder) = wanted;
      (input ? task->inputfolderURL : task->outputFolderUrl) = url;
      (input ? task->InputLogin : task->outputLogin) = u"user"_s;
      (input ? task->inputPassword : task->outputPassword) = u"secret"_s;
      task->TryAutoMount(input);
      QTEST(mounted, "mounted");
      QTEST(UploaderTask::triedAutoMount(), "pauseAfter");
      QVERIFY(input ? task->inputFolder.has_value() : task->outputFolder.has_value());
    }
  }
};

VANTRY_TEST(tst_Scheduling);
#include "tst_Scheduling.moc"
