#include <sys/stat.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTest>

#include "Sql.h"
#include "storage/LogDatabase.h"
#include "support/TemporaryHome.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;

/// The log on a machine that lets it down.
class tst_LogDatabaseFaults : public QObject {
  Q_OBJECT
 private slots:
  void aDamagedLogIsSetAsideWithItsJournal_data();
  void aDamagedLogIsSetAsideWithItsJournal();
  void aLogCutAnywhereIsUsedOrKept();
  void aLogWithAnyBitOfItsHeaderFlippedIsUsedOrKept();
  void aLogThatCantBeUsedStaysAndIsExplained_data();
  void aLogThatCantBeUsedStaysAndIsExplained();
  void aLogHeldByAnotherIsReportedInTime();
  void aRowWaitsForALockAndIsThenLost();
  void aFullDiskLosesRowsAndNothingElse();
  void aKilledWriterLosesNoRowThatItToldOf();

 private:
  /// A whole log of `rows` rows as bytes, with no journal beside it.
  [[nodiscard]] static QByteArray wholeLog(int rows);
  /// Opens what stands in log.db: it must take a row, or be kept under a new name byte by byte.
  static void openAndJudge(const TemporaryHome& home, const QByteArray& content);
};

QByteArray tst_LogDatabaseFaults::wholeLog(int rows) {
  const TemporaryHome home;
  {
    const auto log = LogDatabase::open(home.item(u"log.db"_s));
    for (int i = 0; i < rows; ++i)
      if (!log.database->insert({.Notes = QString(100, u'x')}, nullptr)) return {};
  }
  return TemporaryHome::readFile(home.path(u"log.db"_s));
}

void tst_LogDatabaseFaults::openAndJudge(const TemporaryHome& home, const QByteArray& content) {
  home.writeFile(u"log.db"_s, content);
  const auto log = LogDatabase::open(home.item(u"log.db"_s));
  if (!log.setAsideAs.isEmpty()) QCOMPARE(TemporaryHome::readFile(home.path(log.setAsideAs)), content);
  // Without a database the file must stand as it was: the reason may pass.
  if (!log.database) {
    QVERIFY(!log.error.isEmpty());
    QCOMPARE(TemporaryHome::readFile(home.path(u"log.db"_s)), content);
    return;
  }
  QString error;
  if (!log.database->insert({}, &error))
    QVERIFY(!error.isEmpty());
  else if (!log.setAsideAs.isEmpty())
    QCOMPARE(Sql(home.path(u"log.db"_s)).run("select count(*) from log"), QStringList{u"1"_s});
}

void tst_LogDatabaseFaults::aDamagedLogIsSetAsideWithItsJournal_data() {
  QTest::addColumn<QByteArray>("content");
  const QByteArray whole = wholeLog(100);
  QTest::newRow("text") << "not a database, but long enough to be looked at as one: "_ba.repeated(20);
  QTest::newRow("cut within its pages") << whole.first(whole.size() - 4096 - 100);
  QTest::newRow("the schema overwritten") << QByteArray(whole).replace(100, 3900, QByteArray(3900, 'z'));
  QTest::newRow("the newest page overwritten")
      << QByteArray(whole).replace(whole.size() - 4096, 4096, QByteArray(4096, 'z'));
}

void tst_LogDatabaseFaults::aDamagedLogIsSetAsideWithItsJournal() {
  const TemporaryHome home;
  QFETCH(QByteArray, content);
  home.writeFile(u"log.db"_s, content);
  home.writeFile(u"log.db-wal"_s, "journal of the damaged one");
  const auto log = LogDatabase::open(home.item(u"log.db"_s));
  QVERIFY2(log.database, qPrintable(log.error));
  QVERIFY2(log.setAsideAs.startsWith(u"log damaged 2") && log.setAsideAs.endsWith(u".db"), qPrintable(log.setAsideAs));
  QCOMPARE(TemporaryHome::readFile(home.path(log.setAsideAs)), content);
  QCOMPARE(TemporaryHome::readFile(home.path(log.setAsideAs + u"-wal"_s)), "journal of the damaged one"_ba);
  QCOMPARE(log.database->insert({}, nullptr), 1);
}

void tst_LogDatabaseFaults::aLogCutAnywhereIsUsedOrKept() {
  const QByteArray whole = wholeLog(60);
  QVERIFY(whole.size() >= 3 * 4096);
  for (qsizetype length = 0; length < whole.size(); length += length < 600 ? 99 : 1999) {
    const TemporaryHome home;
    openAndJudge(home, whole.first(length));
    QVERIFY2(!QTest::currentTestFailed(), qPrintable(u"cut at %1"_s.arg(length)));
    QVERIFY2(length == 0 || QDir(home.path()).entryList({u"log damaged*.db"_s}).size() == 1,
             qPrintable(u"cut at %1 and not set aside"_s.arg(length)));
  }
}

void tst_LogDatabaseFaults::aLogWithAnyBitOfItsHeaderFlippedIsUsedOrKept() {
  const QByteArray whole = wholeLog(3);
  for (int at = 0; at < 120; ++at) {
    QByteArray flipped = whole;
    flipped[at] = static_cast<char>(flipped[at] ^ (1 << (at % 8)));
    const TemporaryHome home;
    openAndJudge(home, flipped);
    QVERIFY2(!QTest::currentTestFailed(), qPrintable(u"byte %1"_s.arg(at)));
  }
}

void tst_LogDatabaseFaults::aLogThatCantBeUsedStaysAndIsExplained_data() {
  QTest::addColumn<QString>("path");
  QTest::newRow("a folder has the name") << u"taken/log.db"_s;
  QTest::newRow("the folder is a file") << u"file/log.db"_s;
  QTest::newRow("the folder is gone") << u"gone/log.db"_s;
  QTest::newRow("a link to a disk that is not there") << u"link.db"_s;
  QTest::newRow("a fifo") << u"fifo.db"_s;
}

void tst_LogDatabaseFaults::aLogThatCantBeUsedStaysAndIsExplained() {
  const TemporaryHome home;
  home.makeFolder(u"taken/log.db"_s);
  home.writeFile(u"file"_s, "x");
  QCOMPARE(symlink("/nowhere/log.db", home.item(u"link.db"_s).bytes().constData()), 0);
  QCOMPARE(mkfifo(home.item(u"fifo.db"_s).bytes().constData(), 0600), 0);
  QFETCH(QString, path);
  const QString folder = QFileInfo(home.path(path)).path();
  const auto everything = QDir::AllEntries | QDir::System | QDir::Hidden;
  const QStringList before = QDir(folder).entryList(everything);
  const auto log = LogDatabase::open(home.item(path));
  QVERIFY(!log.database && log.setAsideAs.isEmpty());
  QVERIFY2(log.error.contains(QFileInfo(path).fileName()), qPrintable(log.error));
  QCOMPARE(QDir(folder).entryList(everything), before);
}

void tst_LogDatabaseFaults::aLogHeldByAnotherIsReportedInTime() {
  const TemporaryHome home;
  const QByteArray content = wholeLog(1);
  home.writeFile(u"log.db"_s, content);
  Sql other(home.path(u"log.db"_s));
  other.run("PRAGMA locking_mode=EXCLUSIVE");
  other.run("begin exclusive");
  QElapsedTimer timer;
  timer.start();
  const auto log = LogDatabase::open(home.item(u"log.db"_s));
  QVERIFY2(timer.elapsed() > 1500 && timer.elapsed() < 4000, qPrintable(QString::number(timer.elapsed())));
  QVERIFY(!log.database && log.setAsideAs.isEmpty());
  QVERIFY2(log.error.contains(u"locked"), qPrintable(log.error));
  other.run("rollback");
  QCOMPARE(other.run("select count(*) from log"), QStringList{u"1"_s});
}

void tst_LogDatabaseFaults::aRowWaitsForALockAndIsThenLost() {
  const TemporaryHome home;
  const auto log = LogDatabase::open(home.item(u"log.db"_s));
  Sql other(home.path(u"log.db"_s));
  other.run("begin immediate");
  QElapsedTimer timer;
  timer.start();
  QString error;
  QVERIFY(!log.database->insert({}, &error));
  QVERIFY2(timer.elapsed() > 1500 && timer.elapsed() < 4000, qPrintable(QString::number(timer.elapsed())));
  QVERIFY2(error.contains(u"locked"), qPrintable(error));
  other.run("rollback");
  QCOMPARE(log.database->insert({}, &error), 1);
}

void tst_LogDatabaseFaults::aFullDiskLosesRowsAndNothingElse() {
  const TemporaryHome home;
  QProcess writer;
  writer.start(QCoreApplication::applicationFilePath(), {u"--write-log"_s, home.path(u"log.db"_s), u"200000"_s});
  QVERIFY(writer.waitForFinished());
  QCOMPARE(writer.exitStatus(), QProcess::NormalExit);
  const QList<QByteArray> lines = writer.readAllStandardOutput().trimmed().split('\n');
  const qint64 told = lines.value(lines.size() - 2).toLongLong();
  QVERIFY(told > 10);
  QVERIFY2(lines.last().startsWith("log.db: "), lines.last().constData());
  const auto log = LogDatabase::open(home.item(u"log.db"_s));
  QVERIFY2(log.database && log.setAsideAs.isEmpty(), qPrintable(log.error));
  QCOMPARE(log.database->insert({}, nullptr), told + 1);
  QCOMPARE(Sql(home.path(u"log.db"_s)).run("PRAGMA integrity_check"), QStringList{u"ok"_s});
}

void tst_LogDatabaseFaults::aKilledWriterLosesNoRowThatItToldOf() {
  const TemporaryHome home;
  qint64 told = 0;
  for (int round = 0; round < 6; ++round) {
    QProcess writer;
    writer.start(QCoreApplication::applicationFilePath(), {u"--write-log"_s, home.path(u"log.db"_s)});
    // The later rounds kill while the log is opened and its old journal is taken in.
    while (round < 4 && writer.waitForReadyRead(20'000) && told < (round + 1) * 40)
      while (writer.canReadLine()) told = writer.readLine().toLongLong();
    QVERIFY(writer.waitForStarted());
    writer.kill();
    QVERIFY(writer.waitForFinished());
    for (const QByteArray& line : writer.readAllStandardOutput().split('\n'))
      if (line.toLongLong() > told) told = line.toLongLong();
  }
  QVERIFY(told >= 160);
  const auto log = LogDatabase::open(home.item(u"log.db"_s));
  QVERIFY2(log.database && log.setAsideAs.isEmpty(), qPrintable(log.error));
  const auto rowid = log.database->insert({}, nullptr);
  QVERIFY(rowid && *rowid > told);
  Sql viewer(home.path(u"log.db"_s));
  QCOMPARE(viewer.run("PRAGMA integrity_check"), QStringList{u"ok"_s});
  QCOMPARE(viewer.run("select count(*) from log"), QStringList{QString::number(*rowid)});
}

VANTRY_TEST(tst_LogDatabaseFaults);
#include "tst_LogDatabaseFaults.moc"
