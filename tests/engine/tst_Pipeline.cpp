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
  void outcomes_data() {
    addColumns<QByteArray, bool, bool, QString, QString>("fault", "output", "deletes", "copy", "note");
    const QByteArray none;
    const QString e004 = Failed +
                         u"E004 - Wrong measurement conditions - possible mismatch. Check both application and track/ "
                         "tool preferences (M0, M1, M2, M3)"_s;
    QTest::newRow("good, output, no delete") << none << true << false << u"out/P_a.txt"_s << Saved;
    QTest::newRow("good, output, delete") << none << true << true << u"out/P_a.txt"_s << Deleted;
    QTest::newRow("good, no output, delete") << none << false << true << QString() << Deleted;
    QTest::newRow("good, no output, no delete") << none << false << false << QString() << u"n/a"_s;
    QTest::newRow("failed, output, delete") << "E004"_ba << true << true << ErrorFolder + u"/a.txt"_s << e004;
    QTest::newRow("failed, no output") << "E004"_ba << false << true << QString() << e004;
    QTest::newRow("no reply of the service") << "a page"_ba << true << false << ErrorFolder + u"/a.txt"_s
                                             << Failed + u"Could not parse server response - invalid or missing XML"_s;
  }
  void outcomes() {
    QFETCH(QByteArray, fault);
    const bool good = fault.isEmpty();
    QFETCH(bool, output);
    QFETCH(bool, deletes);
    QFETCH(QString, copy);
    EngineBench bench;
    const TaskPointer task = bench.makeTask();
    if (!output) task->outputFolderPath.clear();
    task->DeleteAfterSave = deletes;
    task->Prefix = u"P"_s;
    const QString path = bench.drop(u"a.txt"_s);
    const auto version = versionOf(*FolderItem::fromNativePath(path));
    using Kind = Misbehaviour::Kind;
    if (!good) bench.service.misbehave({.kind = fault == "E004" ? Kind::ErrorCode : Kind::HtmlError, .text = fault});
    EngineBench::process(*task);
    QCOMPARE(QFile::exists(path), !good || !deletes);
    QCOMPARE(bench.files(u"out"_s) + bench.files(ErrorFolder), QStringList(copy.section(u'/', -1)).filter(u"a"_s));
    QCOMPARE(bench.received(), good ? QStringList{u"P_a.txt"_s} : QStringList());
    QVERIFY(task->UploadedCount == (good ? 1 : 0) && !task->Busy);
    const auto rows = bench.log();
    QCOMPARE(rows.size(), 1);
    QCOMPARE(rows[0][u"OriginalName"_s] + rows[0][u"Track"_s] + rows[0][u"InputFolder"_s],
             u"a.txt"_s + task->Track + task->inputFolderPath);
    QCOMPARE(rows[0][u"OutputFolder"_s], output ? task->outputFolderPath : u"n/a"_s);
    QCOMPARE(rows[0][u"NewName"_s], copy.isEmpty() || (good && deletes) ? u"n/a"_s : copy.section(u'/', -1));
    QTEST(rows[0][u"Notes"_s], "note");
    // The copy has the size and the date of what was sent.
    if (!copy.isEmpty()) QVERIFY(versionOf(bench.home.item(copy)) == version);
    if (!copy.isEmpty()) QCOMPARE(TemporaryHome::readFile(bench.home.path(copy)), "patch data");
    bench.restart();
    EngineBench::process(*task);
    EngineBench::process(*bench.makeTask());
    QCOMPARE(bench.service.requests().size(), 1);  // neither a good nor a failed file goes out twice
  }

  void aFileThatCannotBeReadForAMomentWaits_data() {
    QTest::addColumn<bool>("leased");
    QTest::newRow("another program holds a lease on it") << true;
    QTest::newRow("its folder cannot be entered") << false;
  }
  void aFileThatCannotBeReadForAMomentWaits() {
    QFETCH(bool, leased);
    EngineBench bench;
    bench.drop(u"a.txt"_s);
    const QByteArray held = QFile::encodeName(bench.drop(u"b.txt"_s)), in = QFile::encodeName(bench.home.path(u"in"_s));
    const auto before = std::signal(SIGIO, SIG_IGN);  // tells the holder that somebody waits
    int holder = -1;
    std::optional<Unprivileged> user;
    bench.service.whenBodyReaches(1, [&] {
      if (leased) {
        holder = ::open(held.constData(), O_RDONLY | O_CLOEXEC);
        QCOMPARE(::fcntl(holder, F_SETLEASE, F_WRLCK), 0);
      } else {
        ::chmod(in.constData(), 0600), user.emplace(bench.home.path());
      }
    });
    const TaskPointer task = bench.makeTask();
    EngineBench::process(*task);
    user.reset();
    ::chmod(in.constData(), 0700);
    QCOMPARE(bench.received(), QStringList{u"a.txt"_s});
    if (leased) QCOMPARE(Problems::present().value(0).kind, Problem::Kind::FileWaits);
    ::close(holder);
    std::signal(SIGIO, before);
    bench.clock.advance(4);
    EngineBench::process(*task);
    QCOMPARE(bench.received(), (QStringList{u"a.txt"_s, u"b.txt"_s}));
    QVERIFY(bench.notes().size() == 2 && !bench.notes().contains(u"File not accessible"_s));
    QVERIFY(Problems::present().isEmpty());
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
    const std::pair<QByteArray, QString> names[] = {{"[FILEBODY] [password].txt", u"[FILEBODY] [password].txt"_s},
                                                    {"a\xE2\x80\xAE"
                                                     "b.txt",
                                                     u"a\u202Eb.txt"_s},
                                                    {"B<b>&amp;\"'.txt", u"B<b>&amp;\"'.txt"_s},
                                                    {"caf\xE9.txt", u"caf\uFFFD.txt"_s},
                                                    {"line\nbreak.txt", u"line\nbreak.txt"_s},
                                                    {QByteArray(251, 'x') + ".txt", QString(251, u'x') + u".txt"_s}};
    const QByteArray in = bench.home.path(u"in/"_s).toUtf8();
    QStringList shown;
    for (const auto& [name, text] : names) {
      const QByteArray plain = bench.drop(u"plain.txt"_s, binary).toUtf8();
      QCOMPARE(::rename(plain, in + name), 0);
      shown << text;
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

  void aFileThatMovesWhileItIsReadIsNeitherSentNorCopied_data() {
    addColumns<bool, qint64, QByteArray>("replaced", "size", "written");
    const qint64 size = 12 << 20;  // more than the buffers between the two ends hold
    QTest::newRow("it grows") << false << size + 4 << QByteArray();
    QTest::newRow("it shrinks") << false << qint64{1000} << QByteArray();
    QTest::newRow("it is rewritten with the same size") << false << size << QByteArray(size, 'b');
    QTest::newRow("another file takes its name") << true << size << QByteArray(size, 'b');
  }
  void aFileThatMovesWhileItIsReadIsNeitherSentNorCopied() {
    QFETCH(bool, replaced);
    QFETCH(qint64, size);
    QFETCH(QByteArray, written);
    EngineBench bench;
    const QString path = bench.drop(u"big.txt"_s, QByteArray(12 << 20, 'a'));
    bench.service.whenBodyReaches(200'000, [&] {
      if (replaced) QFile::remove(path);
      QFile file(path);
      QVERIFY(file.open(QIODevice::ReadWrite) && file.resize(size) && file.write(written) == written.size());
    });
    const TaskPointer task = bench.makeTask();
    EngineBench::process(*task);
    QVERIFY(bench.received().isEmpty() && bench.files(u"out"_s).isEmpty() && bench.log().isEmpty());
    QCOMPARE(task->UploadedCount.load(), 0);
    // The look behind the break may have met the file between its new size and its new date: that is one wait more.
    for (int pass = 0; pass < 3; ++pass) {
      bench.clock.advance(10);
      EngineBench::process(*task);
    }
    QCOMPARE(bench.received(), QStringList{u"big.txt"_s});
    const QByteArray content = TemporaryHome::readFile(path);
    QCOMPARE(bench.service.receipts()[0].sha256, QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex());
    QCOMPARE(bench.files(u"out"_s), QStringList{u"big.txt"_s});
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
    for (int pass = 0; pass < 2; ++pass) {
      bench.clock.advance(4);
      EngineBench::process(*task);
    }
    QCOMPARE(bench.received(), (QStringList{u"a.txt"_s, u"0 later.txt"_s, u"c.txt"_s}));
    QCOMPARE(bench.notes(), (QStringList{Saved, u"File not accessible"_s, Saved, Saved}));
    QCOMPARE(bench.log().value(1)[u"NewName"_s], u"n/a"_s);
  }

  void anOutputFolderThatFailsInMidBatchKeepsTheInput_data() {
    addColumns<QString>("words");
    QTest::newRow("gone") << u"No such file or directory"_s;
    QTest::newRow("read-only") << u"Permission denied"_s;
    QTest::newRow("full") << u"File too large"_s;
  }
  void anOutputFolderThatFailsInMidBatchKeepsTheInput() {
    QFETCH(QString, words);
    EngineBench bench;
    const QString path = bench.drop(u"a.txt"_s, QByteArray(3 << 20, 'a')), out = bench.home.path(u"out"_s);
    const TaskPointer task = bench.makeTask();
    task->DeleteAfterSave = true;
    std::optional<Unprivileged> user;
    std::optional<FullDisk> full;
    bench.service.whenBodyReaches(1, [&] {
      if (words.startsWith(u'N')) QDir(out).removeRecursively();
      if (words.startsWith(u'P')) ::chmod(QFile::encodeName(out), 0555), user.emplace(bench.home.path());
      if (words.startsWith(u'F')) full.emplace(1 << 20);
    });
    EngineBench::process(*task);
    user.reset();
    full.reset();
    QVERIFY(QFile::exists(path) && bench.files(u"out"_s).isEmpty());
    QCOMPARE(task->UploadedCount.load(), 1);
    const QString note = bench.notes().value(0);
    QVERIFY2(note.startsWith(Saved + u" Copy not saved: "_s) && note.contains(words), qPrintable(note));
    bool stated = false;
    for (const Problem& problem : Problems::present()) stated |= problem.kind == Problem::Kind::CopyFailed;
    QVERIFY(stated);
    ::chmod(QFile::encodeName(bench.home.makeFolder(u"out"_s)), 0755);
    bench.drop(u"b.txt"_s);
    for (int pass = 0; pass < 2; ++pass) {
      bench.clock.advance(4);
      EngineBench::process(*task);
    }
    QCOMPARE(bench.received(), (QStringList{u"a.txt"_s, u"b.txt"_s}));
    QVERIFY(QFile::exists(path) && bench.files(u"out"_s) == QStringList{u"b.txt"_s});
  }

  void anInputThatCannotBeDeletedIsToldUntilOneIs() {
    EngineBench bench;
    const QByteArray in = QFile::encodeName(bench.home.path(u"in"_s)),
                     out = QFile::encodeName(bench.home.path(u"out"_s));
    const TaskPointer task = bench.makeTask();
    std::optional<Unprivileged> user;
    bench.service.whenBodyReaches(
        1, [&] { ::chmod(in.constData(), 0555), ::chmod(out.constData(), 0777), user.emplace(bench.home.path()); });
    for (const auto& [name, deletes, told] :
         {std::tuple(u"a.txt"_s, true, 1), {u"b.txt"_s, false, 1}, {u"c.txt"_s, true, 0}}) {
      task->DeleteAfterSave = deletes;
      bench.drop(name);
      for (int pass = 0; pass < 2; ++pass) {
        EngineBench::process(*task);
        user.reset();
        ::chmod(in.constData(), 0700);
        bench.clock.advance(4);
      }
      QVERIFY(bench.files(u"out"_s).contains(name));
      QList<Problem::Kind> kinds;
      for (const Problem& problem : Problems::present())
        if (problem.subject == task->Name) kinds << problem.kind;
      QCOMPARE(kinds, QList<Problem::Kind>(told, Problem::Kind::DeleteFailed));  // a copy of another file is no remedy
    }
    QCOMPARE(bench.files(u"in"_s), (QStringList{u"a.txt"_s, u"b.txt"_s}));
  }

  void aStopInMidBatchRepeatsNoFileAndSkipsNone_data() {
    addColumns<bool, int>("cleared", "sentOfA");
    QTest::newRow("a new start") << false << 1;
    QTest::newRow("the limit is cleared in between") << true << 2;
  }
  void aStopInMidBatchRepeatsNoFileAndSkipsNone() {
    QFETCH(bool, cleared);
    EngineBench bench;
    bench.drop(u"a.txt"_s);
    bench.drop(u"b.txt"_s, QByteArray(1 << 20, 'b'));
    const TaskPointer task = bench.makeTask();
    UploaderTask::addTask(task);
    bench.service.whenBodyReaches(200'000, [&] { bench.service.hold(); });
    UploadThread::Start();
    QVERIFY(bench.service.waitForHeld(1, 60'000));
    QVERIFY(UploadThread::stop(20'000));
    QCOMPARE(bench.notes(), QStringList{Saved});
    QVERIFY(bench.files(ErrorFolder).isEmpty());
    bench.service.release();
    UploadThread::allowAgain();
    bench.restart();
    if (cleared) bench.makeTask()->updateDateLimit(true);
    EngineBench::process(cleared ? *task : *bench.makeTask());
    QCOMPARE(bench.notes().size(), cleared ? 3 : 2);
    QTEST(static_cast<int>(bench.files(u"out"_s).filter(u"a.txt"_s).size()), "sentOfA");
    QCOMPARE(bench.files(u"out"_s).filter(u"b.txt"_s).size(), 1);
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
    for (UploaderTask* const task : {one.get(), other.get(), other.get()}) {
      EngineBench::process(*task);
      bench.clock.advance(4);
    }
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
    const TaskPointer task = bench.makeTask();
    for (int i = 0; i < 2; ++i) {
      EngineBench::process(*task);
      bench.clock.advance(4);
    }
    QCOMPARE(bench.received(), (QStringList{u"a.txt"_s, u"b.txt"_s}));
  }
};

VANTRY_TEST(tst_Pipeline);
#include "tst_Pipeline.moc"
