// Which task runs, when a run ends, and what state the tasks are in.

#include <atomic>
#include <stdexcept>

#include "engine/EngineClock.h"
#include "engine/UploadThread.h"
#include "platform/Problems.h"
#include "support/EngineBench.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;

class tst_Scheduling : public QObject {
  Q_OBJECT

 private slots:
  void theEarliestNameIsFinishedFirstAndTheSwitchEndsTheRunBehindABatch() {
    EngineBench bench;
    for (const auto& [name, files] : {std::pair(u"b"_s, 1), {u"A"_s, 2}}) bench.listTask(name, u"in-"_s + name, files);
    bench.listTask(u"c"_s, u"in-c"_s)->disabled = true;
    bench.service.hold();
    UploadThread::Start();
    QVERIFY(bench.service.waitForHeld(1, 60'000));
    UploadThread::Enabled = false;
    bench.service.release();
    QTRY_VERIFY(!UploadThread::ProcessingNow());
    QCOMPARE(bench.received(), (QStringList{u"A1.txt"_s, u"A2.txt"_s}));
    UploadThread::Enabled = true;
    UploadThread::Start();
    QVERIFY(bench.service.waitForReceipts(3, 60'000));
    QTRY_VERIFY(!UploadThread::ProcessingNow());
    QCOMPARE(bench.received(), (QStringList{u"A1.txt"_s, u"A2.txt"_s, u"b1.txt"_s}));
  }

  void anExceptionOfALookConcernsItsTaskAloneAndIsRecordedOnce() {
    struct ThrowingClock : ManualClock {
      using ManualClock::ManualClock;
      mutable std::atomic<bool> throws{false};
      Date now() const override {
        if (throws.exchange(false)) throw std::runtime_error("planted");
        return ManualClock::now();
      }
    };
    EngineBench bench;
    ThrowingClock clock(bench.clock.now().TotalSeconds());
    setEngineClock(&clock);
    const TaskPointer a = bench.listTask(u"a"_s, u"in-a"_s);
    bench.listTask(u"b"_s, u"in-b"_s);
    for (int i = 0; i < 2; ++i) {
      clock.throws = true;
      UploadThread::Start();
      QTRY_VERIFY(!clock.throws && !UploadThread::ProcessingNow());
      QCOMPARE(bench.received(), QStringList{u"b1.txt"_s});
      QCOMPARE(a->Status.load(), UploaderTask::Fault);
    }
    const QStringList notes{u"Processing stopped: planted"_s, u"Uploaded to Print Warden - Saved"_s};
    QCOMPARE(bench.notes(), notes);
    QCOMPARE(bench.log()[0][u"InputFolder"_s], a->inputFolderPath);
    UploadThread::Start();
    QTRY_COMPARE(bench.received(), (QStringList{u"b1.txt"_s, u"a1.txt"_s}));
    QTRY_VERIFY(!UploadThread::ProcessingNow());
    QVERIFY(Problems::present().isEmpty());
    setEngineClock(&bench.clock);
  }

  void mounting() {
    const QString share = u"smb://server/a share%20x"_s, m = u"/m"_s;
    // If the folder exists, if a mount is wanted, its address, if there is a pause, where it is mounted, how often, and
    // if a pause follows.
    const std::tuple<bool, bool, QString, bool, QString, int, bool> rows[] = {
        {true, true, share, false, m, 0, false},          // a folder that exists needs no mount
        {false, false, share, false, m, 0, false},        // not wanted
        {false, true, u"  "_s, false, m, 0, false},       // no address: no attempt and no pause
        {false, true, share, true, m, 0, true},           // in the pause
        {false, true, share, false, m, 1, false},         // a good mount
        {false, true, share, false, u" "_s, 1, true},     // one that failed begins the pause
        {false, true, share, false, u"throw"_s, 1, true}  // so does one that throws
    };
    for (const auto& [exists, wanted, url, pausing, mountPoint, times, pauseAfter] : rows)
      for (const bool input : {true, false}) {
        EngineBench bench;
        QStringList mounted;
        UploaderTask::setMountOperation([&, point = mountPoint](const MountRequest& request, int& error) -> QString {
          mounted << request.url + u' ' + request.userName + u' ' + request.password;
          error = ENOENT;
          if (point == u"throw"_s) throw std::runtime_error("mount");
          return point;
        });
        UploaderTask::setTriedAutoMount(pausing);
        const TaskPointer task = bench.makeTask();
        task->inputFolderPath = task->outputFolderPath = bench.home.path(exists ? u"in"_s : u"share/folder"_s);
        (input ? task->AutoMountInputFolder : task->autoMountOutputFolder) = wanted;
        (input ? task->inputfolderURL : task->outputFolderUrl) = url;
        (input ? task->InputLogin : task->outputLogin) = u"user"_s;
        (input ? task->inputPassword : task->outputPassword) = u"secret"_s;
        task->TryAutoMount(input);
        QCOMPARE(mounted, QStringList(times, u"smb://server/a%20share%20x user secret"_s));
        QCOMPARE(UploaderTask::triedAutoMount(), pauseAfter);
        QStringList told;
        for (const Problem& problem : Problems::present()) told << problem.subject + u": "_s + problem.detail;
        const QStringList expected{url + u": the server has no such share or folder"_s};
        QCOMPARE(told, pauseAfter && !pausing ? expected : QStringList());
        QVERIFY(input ? task->inputFolder.has_value() : task->outputFolder.has_value());
      }
  }
};

VANTRY_TEST(tst_Scheduling);
#include "tst_Scheduling.moc"
