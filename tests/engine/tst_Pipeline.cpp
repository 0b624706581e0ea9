// One batch, end to end: what the service received, what lies on the disk, what the log says.

#include <fcntl.h>
#include <sys/stat.h>

#include <QDir>
#include <csignal>

#include "engine/UploadThread.h"
#include "platform/Problems.h"
#include "platform/SafeFile.h"
#include "platform/Unprivileged.h"
#include "service/VantryUtil.h"
#include "storage/LogEntry.h"
#include "storage/Preferences.h"
#include "support/EngineBench.h"
#include "support/FullDisk.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;

static const QString Failed = u"Failed to upload to Print - moved to error folder. Error Reported: "_s;
static const QString Saved = u"Uploaded to Print Warden - Saved"_s, Deleted = u"Uploaded to Print - Deleted Locally"_s;
static const QString ErrorFolder = u"out/Processing Errors - Press"_s;

class tst_Pipeline : public QObject {
  Q_OBJECT

 private slots:
  void outcomes() {
    const QString aside = ErrorFolder + u"/a.txt"_s,
                  e004 = Failed +
                         u"E004 - Wrong measurement conditions - possible mismatch. Check both application "
                         "and track/ tool preferences (M0, M1, M2, M3)"_s,
                  noXml = Failed + u"Could not parse server response - invalid or missing XML"_s;
    using Kind = Misbehaviour::Kind;
    // What the service does to it, if the task has an output folder and deletes, the copy, and the words of the log.
    const std::tuple<std::optional<Kind>, bool, bool, QString, QString> rows[] = {
        {{}, true, false, u"out/P_a.txt"_s, Saved},
        {{}, true, true, u"out/P_a.txt"_s, Deleted},
        {{}, false, true, {}, Deleted},
        {{}, false, false, {}, u"n/a"_s},
        {Kind::ErrorCode, true, true, aside, e004},
        {Kind::ErrorCode, false, true, {}, e004},
        {Kind::HtmlError, true, false, aside, noXml}};
    for (const auto& [fault, output, deletes, copy, note] : rows) {
      EngineBench bench;
      const bool good = !fault;
      const TaskPointer task = bench.makeTask();
      if (!output) task->outputFolderPath.clear();
      task->DeleteAfterSave = deletes;
      task->Prefix = u"P"_s;
      const QString path = bench.drop(u"a.txt"_s);
      const auto version = versionOf(*FolderItem::fromNativePath(path));
      if (fault) bench.service.misbehave({.kind = *fault, .text = "E004"});
      EngineBench::process(*task);
      const auto row = bench.log().value(0);
      QCOMPARE(row[u"Notes"_s], note);
      QCOMPARE(row[u"OriginalName"_s] + row[u"Track"_s] + row[u"InputFolder"_s] + row[u"OutputFolder"_s],
               u"a.txt"_s + task->Track + task->inputFolderPath + (output ? task->outputFolderPath : u"n/a"_s));
      QCOMPARE(row[u"NewName"_s], copy.isEmpty() || (good && deletes) ? u"n/a"_s : copy.section(u'/', -1));
      QCOMPARE(QFile::exists(path), !good || !deletes);
      QCOMPARE(bench.files(u"out"_s) + bench.files(ErrorFolder), QStringList(copy.section(u'/', -1)).filter(u"a"_s));
      QCOMPARE(bench.received(), good ? QStringList{u"P_a.txt"_s} : QStringList());
      QVERIFY(task->UploadedCount == (good ? 1 : 0) && !task->Busy);
      // The copy has the size and the date of what was sent.
      if (!copy.isEmpty()) QVERIFY(versionOf(bench.home.item(copy)) == version);
      if (!copy.isEmpty()) QCOMPARE(TemporaryHome::readFile(bench.home.path(copy)), "patch data");
      bench.restart();
      EngineBench::process(*task);
      EngineBench::process(*bench.makeTask());
      QVERIFY(bench.service.requests().size() == 1 && bench.log().size() == 1);  // nothing goes out twice
    }
  }

  void aFileThatCannotBeReadForAMomentWaits() {
    EngineBench bench;
    bench.drop(u"a.txt"_s);
    const QByteArray held = QFile::encodeName(bench.drop(u"c.txt"_s)), in = QFile::encodeName(bench.home.path(u"in"_s));
    const auto before = std::signal(SIGIO, SIG_IGN);  // tells the holder that somebody waits
    int holder = -1;
    bench.service.whenBodyReaches(1, [&] {
      holder = ::open(held.constData(), O_RDONLY | O_CLOEXEC);
      QCOMPARE(::fcntl(holder, F_SETLEASE, F_WRLCK), 0);
    });
    const TaskPointer task = bench.makeTask();
    EngineBench::process(*task);
    QCOMPARE(bench.received(), QStringList{u"a.txt"_s});
    QCOMPARE(bench.problems(), QList{Problem::Kind::FileWaits});

    bench.drop(u"b.txt"_s);
    std::optional<Unprivileged> user;
    bench.service.whenBodyReaches(1, [&] { ::chmod(in.constData(), 0600), user.emplace(bench.home.path()); });
    bench.passes(*task, 2);  // which can't enter the folder for the file behind b.txt
    user.reset();
    ::chmod(in.constData(), 0700);
    ::close(holder);
    std::signal(SIGIO, before);
    QCOMPARE(bench.received(), (QStringList{u"a.txt"_s, u"b.txt"_s}));
    bench.passes(*task, 1);
    QCOMPARE(bench.received(), (QStringList{u"a.txt"_s, u"b.txt"_s, u"c.txt"_s}));
    QVERIFY(bench.notes().size() == 3 && !bench.notes().contains(u"File not accessible"_s));
    QVERIFY(bench.problems().isEmpty());
  }

  void anExceptionInMidBatchLosesNoRowRepeatsNoFileAndEndsTheRunInGoodOrder() {
    EngineBench bench;
    QStringList names;
    for (int i = 0; i < 40; ++i) names << u"%1.txt"_s.arg(i, 2, 10, QLatin1Char('0'));
    for (const QString& name : names) bench.drop(name);
    const TaskPointer task = bench.makeTask();
    UploaderTask::addTask(task);
    std::atomic<int> rows = 0;
    // Also the row that tells of the exception meets it again: nothing may come of that.
    VantryUtil::LogEntry::setRowObserver([&rows](qint64) {
      if (++rows >= 2) throw std::runtime_error("planted");
    });
    UploadThread::Start();
    QTRY_VERIFY(bench.notes().contains(u"Processing stopped: planted"_s) && !UploadThread::ProcessingNow());
    const QStringList sentBefore = bench.received();
    UploadThread::Start();  // meets it again, and adds no row of its own
    QTRY_VERIFY(bench.received() != sentBefore && !UploadThread::ProcessingNow());
    QVERIFY(bench.received().size() < names.size() && !task->Busy);
    QCOMPARE(bench.files(u"out"_s), bench.received());
    QCOMPARE(bench.log().size(), bench.received().size() + 1);
    QCOMPARE(bench.log()[bench.notes().indexOf(u"Processing stopped: planted"_s)][u"InputFolder"_s],
             task->inputFolderPath);
    VantryUtil::LogEntry::setRowObserver({});
    bench.restart();
    UploaderTask::unload();
    UploaderTask::addTask(bench.makeTask());
    UploadThread::Start();
    QTRY_COMPARE(bench.log().size(), names.size() + 1);
    QCOMPARE(bench.received(), names);
    QTRY_VERIFY(Problems::present().isEmpty());
  }

  void filesOfAnyNameArriveByteForByteInOrderAndWhatIsNoPlainFileIsPassedOver() {
    EngineBench bench;
    QByteArray binary;
    for (int i = 0; i < 100'000; ++i) binary.append(static_cast<char>(i * 31));
    const QByteArray names[] = {"[FILEBODY] [password].txt", "a\u202Eb.txt",
                                "B<b>&amp;\"'.txt",          "caf\xE9.txt",
                                "line\nbreak.txt",           QByteArray(251, 'x') + ".txt"};
    const QByteArray in = bench.home.path(u"in/"_s).toUtf8();
    QStringList shown;
    for (const QByteArray& name : names) {
      QCOMPARE(::rename(bench.drop(u"plain.txt"_s, binary).toUtf8(), in + name), 0);
      shown << QString::fromUtf8(name);
    }
    QVERIFY(::mkfifo(in + "fifo.txt", 0666) == 0 && ::symlink("loop.txt", in + "loop.txt") == 0);
    QVERIFY(::symlink("/", in + "folder.txt") == 0);
    bench.home.makeFolder(u"in/sub.txt"_s);
    for (const QString& other : {u".hidden.txt"_s, u"c.csv"_s}) bench.drop(other);
    bench.drop(u"empty.txt"_s, {});
    bench.home.writeFile(u"out/"_s + shown[4], "older");
    const TaskPointer task = bench.makeTask();
    task->Warden = u"instrument"_s;
    task->Track = PracticeService::knownInstrumentTrack();
    EngineBench::process(*task);
    QCOMPARE(bench.received(), shown);
    for (const PracticeReceipt& receipt : bench.service.receipts())
      QVERIFY(receipt.content == binary && receipt.kind == u"instrument"_s && receipt.destination == task->Track);
    QStringList logged, copied = bench.files(u"out"_s);
    for (const EngineBench::Row& row : bench.log()) logged << row[u"OriginalName"_s];
    QCOMPARE(logged, shown);
    QCOMPARE(TemporaryHome::readFile(bench.home.path(u"out/"_s + shown[4])), "older");
    shown << bench.log()[4][u"NewName"_s];  // a taken name gets a number, and only on the disk
    QVERIFY(copied.size() == shown.size() && std::is_permutation(copied.begin(), copied.end(), shown.begin()));
  }

  void aFileThatMovesWhileItIsReadIsNeitherSentNorCopied() {
    const qsizetype size = 12 << 20;  // more than the buffers between the two ends hold
    for (const QByteArray& written : {"more"_ba, QByteArray(size, 'b')}) {
      EngineBench bench;
      const QString path = bench.drop(u"big.txt"_s, QByteArray(size, 'a'));
      bench.service.whenBodyReaches(200'000, [&] {
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadWrite) && file.seek(written.size() == size ? 0 : size));
        QCOMPARE(file.write(written), written.size());
      });
      const TaskPointer task = bench.makeTask();
      EngineBench::process(*task);
      QVERIFY(bench.received().isEmpty() && bench.files(u"out"_s).isEmpty() && bench.log().isEmpty());
      QCOMPARE(task->UploadedCount.load(), 0);
      // The look behind the break may have met the file between its new size and its new date: that is one wait more.
      bench.passes(*task, 3, 10);
      QCOMPARE(bench.received(), QStringList{u"big.txt"_s});
      QCOMPARE(bench.service.receipts()[0].sha256,
               QCryptographicHash::hash(TemporaryHome::readFile(path), QCryptographicHash::Sha256).toHex());
      QCOMPARE(bench.files(u"out"_s), QStringList{u"big.txt"_s});
    }
  }

  void whatVanishesBeforeItsTurnIsLoggedWhatMovesWaitsAndWhatLandsJoinsTheBatch() {
    EngineBench bench;
    for (const QString& name : {u"a.txt"_s, u"b.txt"_s, u"c.txt"_s}) bench.drop(name);
    bench.service.whenBodyReaches(1, [&] {
      QFile::remove(bench.home.path(u"in/b.txt"_s));
      bench.home.writeFile(u"in/c.txt"_s, "half of it", -3600);
      bench.drop(u"0 later.txt"_s);
    });
    const TaskPointer task = bench.makeTask();
    EngineBench::process(*task);
    QCOMPARE(bench.received(), QStringList{u"a.txt"_s});
    bench.passes(*task, 2);
    QCOMPARE(bench.received(), (QStringList{u"a.txt"_s, u"0 later.txt"_s, u"c.txt"_s}));
    QCOMPARE(bench.notes(), (QStringList{Saved, u"File not accessible"_s, Saved, Saved}));
    QCOMPARE(bench.log().value(1)[u"NewName"_s], u"n/a"_s);
  }

  void anOutputFolderThatFailsInMidBatchKeepsTheInput() {
    for (const QString& words : {u"No such file or directory"_s, u"Permission denied"_s, u"File too large"_s}) {
      EngineBench bench;
      const QString path = bench.drop(u"a.txt"_s, QByteArray(3 << 20, 'a')), out = bench.home.path(u"out"_s);
      const TaskPointer task = bench.makeTask();
      task->DeleteAfterSave = true;
      std::optional<Unprivileged> user;
      std::optional<FullDisk> full;
      bench.service.whenBodyReaches(1, [&] {
        if (words.startsWith(u'F')) full.emplace(1 << 20);
        if (words.startsWith(u'N')) QDir(out).removeRecursively();
        if (words.startsWith(u'P')) ::chmod(QFile::encodeName(out), 0555), user.emplace(bench.home.path());
      });
      EngineBench::process(*task);
      user.reset();
      full.reset();
      QVERIFY(QFile::exists(path) && bench.files(u"out"_s).isEmpty() && task->UploadedCount == 1);
      const QString note = bench.notes().value(0);
      QVERIFY2(note.startsWith(Saved + u" Copy not saved: "_s) && note.contains(words), qPrintable(note));
      QVERIFY(bench.problems().contains(Problem::Kind::CopyFailed));
      ::chmod(QFile::encodeName(bench.home.makeFolder(u"out"_s)), 0755);
      bench.drop(u"b.txt"_s);
      bench.passes(*task, 2);
      QCOMPARE(bench.received(), (QStringList{u"a.txt"_s, u"b.txt"_s}));
      QVERIFY(QFile::exists(path) && bench.files(u"out"_s) == QStringList{u"b.txt"_s});
    }
  }

  void anInputThatCannotBeDeletedIsToldUntilOneIs() {
    EngineBench bench;
    const QByteArray in = QFile::encodeName(bench.home.path(u"in"_s)), out = in.chopped(2) + "out";
    const TaskPointer task = bench.makeTask();
    std::optional<Unprivileged> user;
    bench.service.whenBodyReaches(
        1, [&] { ::chmod(in.constData(), 0555), ::chmod(out.constData(), 0777), user.emplace(bench.home.path()); });
    for (const auto& [name, deletes, told] :
         {std::tuple(u"a.txt"_s, true, 1), {u"b.txt"_s, false, 1}, {u"c.txt"_s, true, 0}}) {
      task->DeleteAfterSave = deletes;
      bench.drop(name);
      for (int pass = 0; pass < 2; ++pass) {
        bench.passes(*task, 1);
        user.reset();
        ::chmod(in.constData(), 0700);
      }
      QVERIFY(bench.files(u"out"_s).contains(name));
      // A copy of another file is no remedy.
      QCOMPARE(bench.problems().count(Problem::Kind::DeleteFailed), told);
    }
    QCOMPARE(bench.files(u"in"_s), (QStringList{u"a.txt"_s, u"b.txt"_s}));
  }

  void aStopInMidBatchRepeatsNoFileAndSkipsNone() {
    EngineBench bench;
    bench.drop(u"a.txt"_s);
    bench.drop(u"b.txt"_s, QByteArray(1 << 20, 'b'));
    const TaskPointer task = bench.makeTask();
    UploaderTask::addTask(task);
    bench.service.whenBodyReaches(200'000, [&] { bench.service.hold(); });
    UploadThread::Start();
    QVERIFY(bench.service.waitForHeld(1, 60'000));
    QVERIFY(UploadThread::stop(20'000));
    QVERIFY(bench.notes() == QStringList{Saved} && bench.files(ErrorFolder).isEmpty());
    bench.service.release();
    UploadThread::allowAgain();
    bench.restart();
    EngineBench::process(*bench.makeTask());
    QCOMPARE(bench.notes(), QStringList(2, Saved));
    QCOMPARE(bench.files(u"out"_s), (QStringList{u"a.txt"_s, u"b.txt"_s}));
    bench.makeTask()->updateDateLimit(true);  // all is due again, also to a task that knows better
    EngineBench::process(*task);
    QCOMPARE(bench.notes().size(), 4);
  }

  void aLoginChangedInMidBatchLeavesTheRestToTheNextOne() {
    EngineBench bench;
    for (const QString& name : {u"a.txt"_s, u"b.txt"_s, u"c.txt"_s}) bench.drop(name);
    UploaderTask::addTask(bench.makeTask());
    PracticeService::Options options;
    options.login = u"another"_s, options.password = u"of another"_s;
    PracticeService other(options);
    QVERIFY(other.start());
    bench.service.hold();
    UploadThread::Start();
    QVERIFY(bench.service.waitForHeld(1, 60'000));
    {
      const UploadHold hold;  // as the admin window's
      QVERIFY(VantryUtil::changeAccount(options.login, options.password, {}));
      QVERIFY2(VantryUtil::AccountURL().isEmpty(), "the endpoint is the old login's");
      bench.service.release();
      QTRY_VERIFY(!UploadThread::ProcessingNow());
      QCOMPARE(bench.notes(), QStringList{Saved});
      bench.restart();  // what was sent is on the disk
      VantryUtil::setAccountURL(other.url());
      VantryUtil::setExtraCaFile(other.caFile());
    }
    UploaderTask::unload();
    EngineBench::process(*bench.makeTask());
    QCOMPARE(bench.received(), QStringList{u"a.txt"_s});
    QCOMPARE(other.receipts().size(), 2);
    QCOMPARE(bench.notes(), QStringList(3, Saved));
  }

  void tasksOfOneNameAndFolderSendAFileOnce() {
    EngineBench bench;
    const TaskPointer first = bench.makeTask(), second = bench.makeTask();
    const auto pass = [&](const TaskPointer& a, const TaskPointer& b) {
      for (const TaskPointer& task : {a, b}) EngineBench::process(*task);
    };
    pass(first, second);
    bench.clock.advance(100);
    bench.drop(u"a.txt"_s);
    pass(first, second);
    QCOMPARE(bench.received(), QStringList{u"a.txt"_s});
    bench.clock.advance(100);
    bench.drop(u"b.txt"_s);
    pass(second, first);
    // Nor does one forget what the other has stored when ours was set back.
    bench.clock.jump(-300);
    bench.drop(u"c.txt"_s);
    for (int i = 0; i < 2; ++i) bench.clock.advance(4), pass(first, second);
    bench.restart();
    pass(bench.makeTask(), bench.makeTask());
    QCOMPARE(bench.received(), (QStringList{u"a.txt"_s, u"b.txt"_s, u"c.txt"_s}));
    bench.clock.advance(1000);
    first->updateDateLimit(true);
    pass(second, first);
    QCOMPARE(bench.received().size(), 6);
  }

  void clearingOneOfTwoTasksOfANameLosesNoFileOfTheOther() {
    EngineBench bench;
    const TaskPointer one = bench.makeTask(), other = bench.makeTask();
    other->inputFolderPath = bench.home.makeFolder(u"second"_s);
    bench.drop(u"a.txt"_s);
    for (UploaderTask* const task : {one.get(), other.get()}) EngineBench::process(*task);
    bench.clock.advance(100);
    bench.drop(u"b.txt"_s, "b", u"second"_s);
    one->updateDateLimit(true);
    bench.passes(*one, 1);
    bench.passes(*other, 2);
    QCOMPARE(bench.received(), (QStringList{u"a.txt"_s, u"a.txt"_s, u"b.txt"_s}));
  }

  void whatLandsWhileTheLimitLiesAheadIsSentAfterAnyPause() {
    EngineBench bench;
    bench.drop(u"a.txt"_s);
    EngineBench::process(*bench.makeTask());
    bench.clock.jump(-3600);
    EngineBench::process(*bench.makeTask());
    bench.drop(u"b.txt"_s);
    bench.clock.advance(2000);
    bench.restart();
    bench.passes(*bench.makeTask(), 2);
    QCOMPARE(bench.received(), (QStringList{u"a.txt"_s, u"b.txt"_s}));
  }

  void whatComesBackGoesOutIfItIsNoCopy() {
    EngineBench bench;
    const QString away = bench.home.path(u"b.txt"_s), output = bench.home.path(u"the input again"_s);
    QVERIFY(QFile::link(bench.home.path(u"in"_s), output));
    bench.drop(u"a.txt"_s);
    const QString there = bench.drop(u"b.txt"_s);
    bench.service.whenBodyReaches(1, [&] { QFile::rename(there, away); });
    const TaskPointer task = bench.makeTask();
    task->outputFolderPath = output;
    for (int i = 0; i < 4; ++i) {
      EngineBench::process(*task);
      if (i == 0) QVERIFY(QFile::rename(away, there));
      bench.clock.advance(4);
    }
    QCOMPARE(bench.received(), (QStringList{u"a.txt"_s, u"b.txt"_s}));
    QCOMPARE(bench.notes(), (QStringList{Saved, u"File not accessible"_s, Saved}));
  }

  void aTaskThatIsReplacedInMidBatchTakesNoNewFiles() {
    EngineBench bench;
    const TaskPointer old = bench.makeTask(), corrected = bench.makeTask();
    corrected->Track = u"another"_s;
    bench.drop(u"a.txt"_s);
    UploaderTask::addTask(old);
    bench.service.whenBodyReaches(1, [&] {
      bench.clock.advance(70);
      bench.drop(u"b.txt"_s);
      (void)UploaderTask::replaceTask(old, corrected);
    });
    for (const TaskPointer& task : {old, corrected, corrected}) {
      EngineBench::process(*task);
      bench.clock.advance(4);
    }
    QCOMPARE(bench.log().size(), 2);
    QCOMPARE(bench.log()[1][u"Track"_s], corrected->Track);
  }

  void aTaskThatComesInMidRunIsLookedAtFirst() {
    EngineBench bench;
    bench.drop(u"a.txt"_s);
    const TaskPointer task = bench.makeTask();
    task->outputFolderPath = bench.home.path(u"not there"_s);
    UploaderTask::addTask(task);
    QVERIFY(!UploaderTask::getNextTaskWithFiles());
    QCOMPARE(task->Status.load(), UploaderTask::Fault);
  }

  void aFileThatCouldNotBeJudgedIsNotPassedByTheLimit() {
    EngineBench bench;
    const QString held = QString(60, u'a') + u"!.txt"_s;
    bench.drop(held);
    bench.drop(u"b.txt"_s);
    for (const QString& pattern : {u"(a+)+$"_s, u""_s}) {
      const TaskPointer task = bench.makeTask();
      task->setExclusionPattern(pattern);
      EngineBench::process(*task);
      bench.clock.advance(2000);
    }
    QCOMPARE(bench.received(), (QStringList{u"b.txt"_s, held}));
  }
};

VANTRY_TEST(tst_Pipeline);
#include "tst_Pipeline.moc"
