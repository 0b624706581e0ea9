// One batch, end to end: what the service received, what lies on the disk, what the log says.

#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QTest>

#include "engine/UploadThread.h"
#include "platform/Problems.h"
#include "platform/SafeFile.h"
#include "storage/LogEntry.h"
#include "storage/Preferences.h"
#include "support/EngineBench.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;

static bool stated(Problem::Kind kind) {
  for (const Problem& problem : Problems::present())
    if (problem.kind == kind) return true;
  return false;
}

static const QString Failed = u"Failed to upload to Print - moved to error folder. Error Reported: "_s;
static const QString ErrorFolder = u"out/Processing Errors - Press"_s;

class tst_Pipeline : public QObject {
  Q_OBJECT

 private slots:
  void outcomes_data() {
    QTest::addColumn<bool>("good");
    QTest::addColumn<bool>("output");
    QTest::addColumn<bool>("deletes");
    QTest::addColumn<bool>("inputStays");
    QTest::addColumn<QStringList>("copies");
    QTest::addColumn<QStringList>("errorCopies");
    QTest::addColumn<QString>("newName");
    QTest::addColumn<QString>("note");
    const QString e004 = Failed +
                         u"E004 - Wrong measurement conditions - possible mismatch. Check both application and track/ "
                         "tool preferences (M0, M1, M2, M3)"_s;
    const QStringList none;
    QTest::newRow("good, output, no delete") << true << true << false << true << QStringList{u"P_a.txt"_s} << none
                                             << u"P_a.txt"_s << u"Uploaded to Print Warden - Saved"_s;
    QTest::newRow("good, output, delete") << true << true << true << false << QStringList{u"P_a.txt"_s} << none
                                          << u"n/a"_s << u"Uploaded to Print - Deleted Locally"_s;
    QTest::newRow("good, no output, delete") << true << false << true << false << none << none << u"n/a"_s
                                             << u"Uploaded to Print - Deleted Locally"_s;
    QTest::newRow("good, no output, no delete") << true << false << false << true << none << none << u"n/a"_s << u"n/a"_s;
    QTest::newRow("failed, output, delete") << false << true << true << true << none << QStringList{u"a.txt"_s}
                                            << u"a.txt"_s << e004;
    QTest::newRow("failed, no output") << false << false << true << true << none << none << u"n/a"_s << e004;
  }
  void outcomes() {
    QFETCH(bool, good);
    QFETCH(bool, output);
    QFETCH(bool, deletes);
    EngineBench bench;
    const TaskPointer task = bench.makeTask();
    if (!output) task->outputFolderPath.clear();
    task->DeleteAfterSave = deletes;
    task->Prefix = u"P"_s;
    const QString path = bench.drop(u"a.txt"_s);
    const auto version = versionOf(*FolderItem::fromNativePath(path));
    if (!good) bench.service.misbehave({.kind = Misbehaviour::Kind::ErrorCode, .text = "E004"});

    EngineBench::process(*task);

    QTEST(QFile::exists(path), "inputStays");
    QTEST(bench.files(u"out"_s), "copies");
    QTEST(bench.files(ErrorFolder), "errorCopies");
    QCOMPARE(bench.received(), good ? QStringList{u"P_a.txt"_s} : QStringList());
    QCOMPARE(task->UploadedCount.load(), good ? 1 : 0);
    QVERIFY(!task->Busy);
    const auto rows = bench.log();
    QCOMPARE(rows.size(), 1);
    QCOMPARE(rows[0][u"OriginalName"_s], u"a.txt"_s);
    QCOMPARE(rows[0][u"Track"_s], task->Track);
    QCOMPARE(rows[0][u"InputFolder"_s], task->inputFolderPath);
    QCOMPARE(rows[0][u"OutputFolder"_s], output ? task->outputFolderPath : u"n/a"_s);
    QTEST(rows[0][u"NewName"_s], "newName");
    QTEST(rows[0][u"Notes"_s], "note");
    if (good && output) {
      const auto copy = versionOf(bench.home.item(u"out/P_a.txt"_s));
      QVERIFY2(copy && *copy == *version, "the copy has the size and the date of what was sent");
      QCOMPARE(TemporaryHome::readFile(bench.home.path(u"out/P_a.txt"_s)), "patch data");
    }
    bench.restart();
    EngineBench::process(*task);
    EngineBench::process(*bench.makeTask());
    QCOMPARE(bench.service.requests().size(), 1);  // neither a good nor a failed file goes out twice
  }

  void theFilesArriveByteForByteInOrderOfTheirNames() {
    EngineBench bench;
    QByteArray binary;
    for (int i = 0; i < 100'000; ++i) binary.append(static_cast<char>(i * 31));
    bench.drop(u"b.txt"_s, binary);
    bench.drop(u"A.txt"_s, "1\r\n2");
    bench.drop(u".hidden.txt"_s);
    bench.drop(u"empty.txt"_s, {});
    bench.drop(u"c.csv"_s);
    const TaskPointer task = bench.makeTask();
    task->Warden = u"instrument"_s;
    task->Track = PracticeService::knownInstrumentTrack();
    EngineBench::process(*task);
    QCOMPARE(bench.received(), (QStringList{u"A.txt"_s, u"b.txt"_s}));
    const auto receipts = bench.service.receipts();
    QCOMPARE(receipts[1].content, binary);
    QCOMPARE(receipts[1].kind, u"instrument"_s);
    QCOMPARE(receipts[1].destination, task->Track);
    QVERIFY(!bench.service.requests().first().head.isEmpty());
  }

  void strangeNamesGoThrough_data() {
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QString>("shown");
    QTest::newRow("markup") << QByteArray("a<b>&amp;\"'.txt") << u"a<b>&amp;\"'.txt"_s;
    QTest::newRow("placeholder") << QByteArray("[FILEBODY] [password].txt") << u"[FILEBODY] [password].txt"_s;
    QTest::newRow("newline") << QByteArray("line\nbreak.txt") << u"line\nbreak.txt"_s;
    QTest::newRow("not UTF-8") << QByteArray("caf\xE9.txt") << u"caf\uFFFD.txt"_s;
    QTest::newRow("direction mark") << QByteArray("a\xE2\x80\xAE" "b.txt") << u"a\u202Eb.txt"_s;
    QTest::newRow("255 bytes") << QByteArray(251, 'x') + ".txt" << QString(251, u'x') + u".txt"_s;
  }
  void strangeNamesGoThrough() {
    QFETCH(QByteArray, name);
    QFETCH(QString, shown);
    EngineBench bench;
    const QByteArray path = bench.home.path(u"in/"_s).toUtf8() + name;
    QVERIFY(QFile::rename(bench.drop(u"plain.txt"_s), QFile::decodeName(path)) ||
            ::rename(bench.home.path(u"in/plain.txt"_s).toUtf8().constData(), path.constData()) == 0);
    const TaskPointer task = bench.makeTask();
    EngineBench::process(*task);
    QCOMPARE(bench.received(), QStringList{shown});
    QCOMPARE(bench.files(u"out"_s), QStringList{shown});
    QCOMPARE(bench.log().value(0)[u"OriginalName"_s], shown);
  }

  void whatIsNoPlainFileIsPassedOver() {
    EngineBench bench;
    const QByteArray in = bench.home.path(u"in/"_s).toUtf8();
    QVERIFY(::mkfifo((in + "fifo.txt").constData(), 0666) == 0);
    QVERIFY(::symlink("loop.txt", (in + "loop.txt").constData()) == 0);
    QVERIFY(::symlink("/", (in + "folder.txt").constData()) == 0);
    bench.home.makeFolder(u"in/sub.txt"_s);
    bench.drop(u"good.txt"_s);
    EngineBench::process(*bench.makeTask());
    QCOMPARE(bench.received(), QStringList{u"good.txt"_s});
    QCOMPARE(bench.log().size(), 1);
  }

  void aTakenNameGetsANumberOnlyOnTheDisk() {
    EngineBench bench;
    bench.home.writeFile(u"out/a.txt"_s, "older");
    bench.drop(u"a.txt"_s);
    EngineBench::process(*bench.makeTask());
    QCOMPARE(bench.files(u"out"_s), (QStringList{u"1 a.txt"_s, u"a.txt"_s}));
    QCOMPARE(TemporaryHome::readFile(bench.home.path(u"out/a.txt"_s)), "older");
    QCOMPARE(bench.received(), QStringList{u"a.txt"_s});
    QCOMPARE(bench.log().value(0)[u"NewName"_s], u"1 a.txt"_s);
  }

  void aFileThatMovesWhileItIsReadIsNeitherSentNorCopied_data() {
    QTest::addColumn<int>("change");
    QTest::newRow("it grows") << 0;
    QTest::newRow("it shrinks") << 1;
    QTest::newRow("it is rewritten with the same size") << 2;
    QTest::newRow("another file takes its name") << 3;
  }
  void aFileThatMovesWhileItIsReadIsNeitherSentNorCopied() {
    QFETCH(int, change);
    EngineBench bench;
    const qint64 size = 12 << 20;  // more than the buffers between the two ends hold
    const QString path = bench.drop(u"big.txt"_s, QByteArray(size, 'a'));
    bench.service.whenBodyReaches(200'000, [&] {
      if (change == 3) QFile::remove(path);
      QFile file(path);
      if (!file.open(QIODevice::ReadWrite)) return;
      if (change == 1) file.resize(1000);
      else if (change == 0) file.seek(size), file.write("more");
      else file.write(QByteArray(size, 'b'));
    });
    const TaskPointer task = bench.makeTask();
    EngineBench::process(*task);
    QVERIFY(bench.received().isEmpty());
    QVERIFY(bench.files(u"out"_s).isEmpty());
    QVERIFY(bench.log().isEmpty());
    QCOMPARE(task->UploadedCount.load(), 0);

    // The look behind the break may have met the file between its new size and its new date: that is one wait more.
    for (int pass = 0; pass < 3; ++pass) {
      bench.clock.advance(10);
      EngineBench::process(*task);
    }
    QCOMPARE(bench.received(), QStringList{u"big.txt"_s});
    QVERIFY(bench.service.receipts().first().content.isEmpty() ||
            bench.service.receipts().first().content == TemporaryHome::readFile(path));
    QCOMPARE(bench.service.receipts().first().size, QFileInfo(path).size());
    QCOMPARE(bench.files(u"out"_s), QStringList{u"big.txt"_s});
  }

  void aFileThatVanishesBeforeItsTurnIsLogged() {
    EngineBench bench;
    bench.drop(u"a.txt"_s);
    const QString second = bench.drop(u"b.txt"_s);
    bench.service.whenBodyReaches(1, [&] { QFile::remove(second); });
    EngineBench::process(*bench.makeTask());
    QCOMPARE(bench.notes(), (QStringList{u"Uploaded to Print Warden - Saved"_s, u"File not accessible"_s}));
    QCOMPARE(bench.log().value(1)[u"NewName"_s], u"n/a"_s);
  }

  void whatLandsDuringABatchGoesOutInIt() {
    EngineBench bench;
    bench.drop(u"a.txt"_s);
    bench.service.whenBodyReaches(1, [&] { bench.drop(u"0 later.txt"_s); });
    const TaskPointer task = bench.makeTask();
    EngineBench::process(*task);
    for (int pass = 0; pass < 3; ++pass) {
      bench.clock.advance(4);
      EngineBench::process(*task);
    }
    QCOMPARE(bench.received(), (QStringList{u"a.txt"_s, u"0 later.txt"_s}));
  }

  void anExceptionAfterSendingLosesNoRowAndRepeatsNoFile() {
    EngineBench bench;
    QStringList names;
    for (int i = 0; i < 20; ++i) names << u"%1.txt"_s.arg(i, 2, 10, QLatin1Char('0'));
    for (const QString& name : names) bench.drop(name);
    const TaskPointer task = bench.makeTask();
    int rows = 0;
    VantryUtil::LogEntry::setRowObserver([&](qint64) {
      if (++rows == 2) throw std::runtime_error("planted");
    });
    QVERIFY_THROWS_EXCEPTION(std::runtime_error, EngineBench::process(*task));
    QVERIFY(bench.received().size() < names.size());
    QCOMPARE(bench.files(u"out"_s), bench.received());
    QCOMPARE(bench.log().size(), bench.received().size());
    EngineBench::process(*task);
    QCOMPARE(bench.received(), names);
    QCOMPARE(bench.log().size(), names.size());
  }

  void aCopyThatCannotBeMadeKeepsTheInput() {
    EngineBench bench;
    const QString path = bench.drop(u"a.txt"_s);
    const TaskPointer task = bench.makeTask();
    task->DeleteAfterSave = true;
    // The output folder goes away while the file is on its way.
    bench.service.whenBodyReaches(1, [&] { QDir(bench.home.path(u"out"_s)).removeRecursively(); });
    EngineBench::process(*task);
    QVERIFY(QFile::exists(path));
    QCOMPARE(task->UploadedCount.load(), 1);
    QVERIFY2(bench.notes().value(0).startsWith(u"Uploaded to Print Warden - Saved Copy not saved: "_s),
             qPrintable(bench.notes().value(0)));
    QVERIFY(stated(Problem::Kind::CopyFailed));
  }

  void anErrorFolderThatCannotBeMadeIsToldBehindTheNote() {
    EngineBench bench;
    bench.home.writeFile(ErrorFolder, "a file in its place");
    bench.drop(u"a.txt"_s);
    bench.service.misbehave({.kind = Misbehaviour::Kind::ErrorCode, .text = "E999"});
    EngineBench::process(*bench.makeTask());
    QVERIFY2(bench.notes().value(0).startsWith(Failed + u"E999 - Unknown Error Copy not saved: "_s),
             qPrintable(bench.notes().value(0)));
  }

  void everyMisbehaviourOfTheServiceIsOneFailedFile_data() {
    using Kind = Misbehaviour::Kind;
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("error");
    QTest::newRow("HTML page with status 500") << int(Kind::HtmlError) << u"Could not parse server response - invalid or missing XML"_s;
    QTest::newRow("redirect") << int(Kind::Redirect) << u"Could not parse server response - invalid or missing XML"_s;
    QTest::newRow("empty reply") << int(Kind::EmptyReply) << QString();
    QTest::newRow("empty return") << int(Kind::EmptyReturn) << u"Soap Error"_s;
    QTest::newRow("no return") << int(Kind::NoReturn) << u"Soap Error"_s;
    QTest::newRow("JSON that isn't") << int(Kind::NotJson) << u"Could not parse server response - invalid JSON"_s;
    QTest::newRow("XML that isn't") << int(Kind::NotXml) << u"Could not parse server response - invalid or missing XML"_s;
    QTest::newRow("nested entities") << int(Kind::NestedEntities) << u"Could not parse server response - invalid or missing XML"_s;
    QTest::newRow("cut reply") << int(Kind::CutReply) << QString();
    QTest::newRow("cut request") << int(Kind::CutRequest) << QString();
    QTest::newRow("cut handshake") << int(Kind::CutHandshake) << QString();
  }
  void everyMisbehaviourOfTheServiceIsOneFailedFile() {
    QFETCH(int, kind);
    QFETCH(QString, error);
    EngineBench bench;
    bench.service.misbehave({.kind = static_cast<Misbehaviour::Kind>(kind)});
    bench.drop(u"a.txt"_s);
    bench.drop(u"b.txt"_s);
    EngineBench::process(*bench.makeTask());
    QCOMPARE(bench.notes(), (QStringList{Failed + error, u"Uploaded to Print Warden - Saved"_s}));
    QCOMPARE(bench.files(ErrorFolder), QStringList{u"a.txt"_s});
    QCOMPARE(bench.files(u"out"_s), QStringList{u"b.txt"_s});
  }

  void aStopInMidTransferLeavesTheBatchForTheNextStart() {
    EngineBench bench;
    bench.drop(u"a.txt"_s);
    bench.drop(u"b.txt"_s);
    const TaskPointer task = bench.makeTask();
    UploaderTask::addTask(task);
    bench.service.hold();
    UploadThread::Enabled = true;
    UploadThread::Start();
    QVERIFY(bench.service.waitForHeld(1, 10'000));
    QVERIFY(UploadThread::ProcessingNow());
    QVERIFY(task->Busy);
    QElapsedTimer timer;
    timer.start();
    QVERIFY(UploadThread::stop(2000));
    QVERIFY2(timer.elapsed() < 1000, "a stop ends a transfer within a second");
    QVERIFY(bench.log().isEmpty());
    QVERIFY(bench.files(ErrorFolder).isEmpty());
    QVERIFY(!VantryUtil::prefs->HasKey(u"Presslastprocessed"_s));

    bench.service.release();
    bench.service.forgetReceived();
    UploadThread::allowAgain();
    EngineBench::process(*bench.makeTask());
    QCOMPARE(bench.received(), (QStringList{u"a.txt"_s, u"b.txt"_s}));
  }

  void clearingTheLimitSendsTheFolderAgain() {
    EngineBench bench;
    bench.drop(u"a.txt"_s);
    const TaskPointer task = bench.makeTask();
    EngineBench::process(*task);
    bench.clock.advance(4);
    EngineBench::process(*task);
    QCOMPARE(bench.received().size(), 1);
    UploaderTask other;
    other.Name = task->Name;
    other.inputFolderPath = task->inputFolderPath;
    other.updateDateLimit(true);
    bench.clock.advance(4);
    EngineBench::process(*task);
    QCOMPARE(bench.received().size(), 2);
  }
};

VANTRY_TEST(tst_Pipeline);
#include "tst_Pipeline.moc"
