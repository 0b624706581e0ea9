// Shares that hang or are not mounted: what they hold up, what is written, and how it heals.

#include <sys/inotify.h>
#include <unistd.h>

#include <QDir>
#include <QTemporaryDir>
#include <cstring>
#include <thread>

#include "engine/EngineActivity.h"
#include "engine/FolderWork.h"
#include "engine/MountMemory.h"
#include "engine/UploadThread.h"
#include "platform/Problems.h"
#include "storage/Preferences.h"
#include "support/EngineBench.h"
#include "support/HangingShare.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;

class tst_Shares : public QObject {
  Q_OBJECT

 private slots:
  void init() { FolderWork::setLimit(1500); }
  void cleanup() {
    FolderWork::setLimit(20'000);
    setMountTable({});
  }

  void aShareThatHangsHoldsUpItsOwnTasksAlone() {
    EngineBench bench;
    const TaskPointer a = bench.listTask(u"a"_s, u"hanging-share/a"_s);
    const TaskPointer b = bench.listTask(u"b"_s, u"hanging-share/b"_s);
    bench.listTask(u"c"_s, u"local"_s);
    {
      const HangingShare hangs;
      QVERIFY(bench.runUntil([&] { return bench.received() == QStringList{u"c1.txt"_s}; }));
      QTRY_VERIFY(!UploadThread::ProcessingNow());
      QVERIFY(a->Status == UploaderTask::Fault && b->Status == UploaderTask::Fault);
      // From now on nobody waits for them, and no more threads are spent on them.
      bench.clock.advance(100);
      bench.drop(u"c2.txt"_s, "x", u"local"_s);
      QVERIFY(bench.runUntil([&] { return bench.received().size() == 2; }));
      QCOMPARE(HangingShare::waiting(), 2);
      QCOMPARE(Problems::present().size(), 2);
    }
    QVERIFY(bench.runUntil([&] { return bench.received().size() == 4; }));
    QVERIFY(bench.received().contains(u"a1.txt"_s) && bench.received().contains(u"b1.txt"_s));
  }

  void aShareThatHangsInMidBatchIsLeftToItself() {
    EngineBench bench;
    const TaskPointer a = bench.listTask(u"a"_s, u"hanging-share/a"_s, 2);
    bench.service.hold();
    UploadThread::Start();
    QVERIFY(bench.service.waitForHeld(1, 60'000));
    bench.listTask(u"c"_s, u"local"_s);
    {
      const HangingShare hangs;
      bench.service.release();
      QVERIFY(bench.runUntil([&] { return bench.received().contains(u"c1.txt"_s); }));
      QCOMPARE(a->Status.load(), UploaderTask::Fault);
      QVERIFY(a->Busy);
      QTRY_VERIFY(!UploadThread::ProcessingNow());
    }
    QTRY_VERIFY(!a->Busy);
    QVERIFY(!engineActivity().sending && !bench.received().contains(u"a2.txt"_s));
    QVERIFY(bench.runUntil([&] { return bench.received().contains(u"a2.txt"_s); }));
    QTRY_VERIFY(!UploadThread::ProcessingNow());
    QCOMPARE(bench.received().count(u"a1.txt"_s), 1);
    QCOMPARE(bench.files(u"out"_s), (QStringList{u"a1.txt"_s, u"a2.txt"_s, u"c1.txt"_s}));
  }

  void aShareMountedAnewHealsItsTaskThoughTheOldCallsNeverEnd() {
    EngineBench bench;
    const QByteArray point = bench.home.path(u"hanging-share"_s).toUtf8();
    const auto device = std::make_shared<std::atomic<char>>('1');
    setMountTable([point, device] {
      const QByteArray id(1, device->load());
      return MountTable("9 0 8:1 / / rw - ext4 /dev/a rw\n" + id + " 9 0:9 / " + point + " rw - nfs4 s:/ rw\n", {});
    });
    const TaskPointer old = bench.listTask(u"a"_s, u"hanging-share/a"_s);
    bench.drop(u"a2.txt"_s, QByteArray(1 << 20, 'x'), u"hanging-share/a"_s);
    bench.drop(u"a3.txt"_s, "x", u"hanging-share/a"_s);
    bench.service.whenBodyReaches(200'000, [&] { bench.service.hold(); });
    UploadThread::Start();
    QVERIFY(bench.service.waitForHeld(1, 60'000));
    QTRY_COMPARE(bench.notes().size(), 1);  // a1 is kept
    TaskPointer present;
    {
      const HangingShare hangs;
      bench.service.release();
      QTRY_VERIFY_WITH_TIMEOUT(old->leftBehind && !UploadThread::ProcessingNow(), 20'000);
      UploadThread::Start();
      QTRY_VERIFY(!UploadThread::ProcessingNow());
      QCOMPARE(UploaderTask::allTasks(), QList{old});
      HangingShare::answerNewCalls();
      *device = '2';
      QVERIFY(bench.runUntil([&] { return bench.received().contains(u"a3.txt"_s); }));
      QTRY_VERIFY(!UploadThread::ProcessingNow());
      QVERIFY(HangingShare::waiting() > 0 && old->Busy);
      present = UploaderTask::allTasks().first();
      QVERIFY(present == old->heir() && !present->Busy && Problems::present().isEmpty());
      QCOMPARE(present->inputFolderPath + present->Track, old->inputFolderPath + old->Track);
    }
    QTRY_VERIFY(!old->Busy);
    bench.restart();
    const TaskPointer next = bench.makeTask(u"a"_s);
    next->inputFolderPath = old->inputFolderPath;
    bench.passes(*present, 1);
    bench.passes(*next, 2);
    QCOMPARE(bench.received(), (QStringList{u"a1.txt"_s, u"a2.txt"_s, u"a2.txt"_s, u"a3.txt"_s}));
  }

  void aFolderThatGoesInMidBatchCostsNoFileAndHoldsUpNobody() {
    for (const QString& folder : {u"in"_s, u"out-a"_s}) {
      EngineBench bench;
      const TaskPointer a = bench.listTask(u"a"_s, u"in"_s, 2);
      a->outputFolderPath = bench.home.makeFolder(u"out-a"_s);
      bench.listTask(u"b"_s, u"other"_s);
      bench.service.hold();
      UploadThread::Start();
      QVERIFY(bench.service.waitForHeld(1, 60'000));
      QVERIFY(QDir().rename(bench.home.path(folder), bench.home.path(u"away"_s)));
      bench.service.release();
      QTRY_VERIFY(!UploadThread::ProcessingNow());
      QCOMPARE(a->Status.load(), UploaderTask::Fault);
      QCOMPARE(bench.received(), (QStringList{u"a1.txt"_s, u"b1.txt"_s}));
      QVERIFY(QDir().rename(bench.home.path(u"away"_s), bench.home.path(folder)));
      QVERIFY(bench.runUntil([&] { return bench.received().contains(u"a2.txt"_s); }));
    }
  }

  void aBareFolderInTheShareSPlaceIsNeitherBelievedNorWritten() {
    EngineBench bench;
    const QTemporaryDir share(u"/dev/shm/share-XXXXXX"_s);  // another file system than the home's
    const QString link = bench.home.path(u"link"_s), bare = bench.home.makeFolder(u"bare"_s);
    const auto mount = [&](const QString& target) { return QFile::remove(link), QFile::link(target, link); };
    QVERIFY(mount(share.path()));
    // From a clock ahead: past the limit, so the ledger alone knows that it was sent.
    const QString path = bench.home.writeFile(u"link/a.txt"_s, "x", -3600);
    const TaskPointer task = bench.makeTask();
    task->inputFolderPath = link;
    task->outputFolderPath.clear();
    task->DeleteAfterSave = true;
    EngineBench::process(*task);
    bench.clock.advance(10);
    bench.service.whenBodyReaches(1, [&] { QVERIFY(mount(bare)); });
    EngineBench::process(*task);
    QCOMPARE(bench.received().size(), 1);
    QVERIFY2(bench.notes().value(0).contains(u"not deleted"_s, Qt::CaseInsensitive),
             qPrintable(bench.notes().value(0)));
    QVERIFY(mount(share.path()));
    bench.passes(*task, 2, 10);
    QCOMPARE(bench.received().size(), 1);
  }

  void aCopyIsNotWrittenWhereItsShareWas() {
    EngineBench bench;
    const QTemporaryDir share(u"/dev/shm/share-XXXXXX"_s);  // another file system than the home's
    const QString link = bench.home.path(u"link"_s), bare = bench.home.makeFolder(u"bare"_s);
    QVERIFY(QFile::link(share.path(), link));
    const QString input = bench.drop(u"a.txt"_s);
    const TaskPointer task = bench.makeTask();
    task->outputFolderPath = link;
    task->DeleteAfterSave = true;
    bench.service.whenBodyReaches(1, [&] { QVERIFY(QFile::remove(link) && QFile::link(bare, link)); });
    EngineBench::process(*task);
    QCOMPARE(bench.received(), QStringList{u"a.txt"_s});
    QVERIFY(QDir(bare).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
    QVERIFY(QFile::exists(input));
    QVERIFY2(bench.notes().value(0).contains(QString::fromLocal8Bit(strerror(ENOTCONN))),
             qPrintable(bench.notes().value(0)));
    // What the look before it has remembered, as the next start reads it.
    bench.restart();
    const QByteArray point = MountTable::present().entryOf(share.path().toUtf8()).point;
    QCOMPARE(VantryUtil::prefs->StringValue(u"mountpoint "_s + link).toUtf8(), point);
  }

  void aMountThatTakesLongHoldsUpItsOwnTaskAloneAndEndsWithTheProgram() {
    EngineBench bench;
    std::atomic<int> begun = 0;
    std::atomic<bool> released = false;
    UploaderTask::setMountOperation([&](const MountRequest& request, int& error) {
      ++begun;
      while (!released && !(request.cancelled && request.cancelled())) std::this_thread::yield();
      error = MountError::TimedOut;
      return QString();
    });
    for (const QString& name : {u"a"_s, u"b"_s}) {
      const TaskPointer task = bench.makeTask(name);
      task->inputFolderPath = bench.home.path(u"share/in"_s);
      task->AutoMountInputFolder = true;
      task->inputfolderURL = u"smb://server/share"_s;
      UploaderTask::addTask(task);
    }
    bench.listTask(u"c"_s, u"local"_s);
    QVERIFY(bench.runUntil([&] { return bench.received() == QStringList{u"c1.txt"_s}; }));
    QTRY_VERIFY(!UploadThread::ProcessingNow());
    released = true;
    QTRY_VERIFY(UploaderTask::triedAutoMount());
    QTRY_VERIFY(!UploaderTask::allTasks().first()->leftBehind);
    UploadThread::Start();
    QTRY_VERIFY(!UploadThread::ProcessingNow());
    QCOMPARE(begun, 1);  // neither beside the first nor in the pause behind it
    QCOMPARE(Problems::present().first().subject, u"smb://server/share"_s);
    QCOMPARE(Problems::present().first().detail, u"the server does not answer"_s);
    released = false;
    UploaderTask::setTriedAutoMount(false);
    FolderWork::setLimit(60'000);
    UploadThread::Start();
    QTRY_COMPARE(begun, 2);
    const bool stopped = UploadThread::stop(20'000);
    released = true;  // or a mount that was not broken off would go on
    QVERIFY(stopped);
  }

  void anAutomounterIsWokenByOpeningItsTrap() {
    EngineBench bench;
    bench.drop(u"a.txt"_s);
    const TaskPointer task = bench.makeTask();
    task->outputFolderPath.clear();
    const QByteArray trap = task->inputFolderPath.toUtf8();
    const int watch = ::inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
    QVERIFY(watch >= 0 && ::inotify_add_watch(watch, trap.constData(), IN_OPEN | IN_ONLYDIR) >= 0);
    // As the kernel does it: a look at the folder's metadata mounts nothing, its being opened does.
    const auto mounted = std::make_shared<std::atomic<bool>>(false);
    setMountTable([trap, watch, mounted] {
      char event[sizeof(inotify_event) + NAME_MAX + 1];
      if (::read(watch, event, sizeof event) > 0) *mounted = true;
      const QByteArray share = *mounted ? "10 9 0:9 / " + trap + " rw - nfs4 s:/ rw\n" : QByteArray();
      return MountTable("8 0 8:1 / / rw - ext4 /dev/a rw\n9 8 0:8 / " + trap + " rw - autofs x rw\n" + share, {});
    });
    EngineBench::process(*task);
    setMountTable({});
    ::close(watch);
    QVERIFY(*mounted);
    QCOMPARE(bench.received(), QStringList{u"a.txt"_s});
  }

  void aBareMountPointIsNeitherReadNorWritten() {
    for (const bool input : {true, false}) {
      EngineBench bench;
      bench.drop(u"a.txt"_s);
      const TaskPointer task = bench.makeTask();
      const QString folder = input ? task->inputFolderPath : task->outputFolderPath;
      // As an earlier look would have left it, had something been mounted there.
      VantryUtil::prefs->setStringValue(u"mountpoint "_s + folder, folder);
      bench.restart();
      EngineBench::process(*task);
      QCOMPARE(task->Status.load(), UploaderTask::Fault);
      QVERIFY(bench.received().isEmpty() && QDir(bench.home.path(u"out"_s)).isEmpty());
      QCOMPARE(Problems::present().value(0).detail, folder);
      UploaderTask::takeAsItIs(folder);
      EngineBench::process(*task);
      QCOMPARE(bench.received(), QStringList{u"a.txt"_s});
      QVERIFY(bench.problems().isEmpty());
    }
  }
};

VANTRY_TEST(tst_Shares);
#include "tst_Shares.moc"
