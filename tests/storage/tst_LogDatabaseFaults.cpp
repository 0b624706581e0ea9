#include <sys/stat.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTest>
#include <csignal>
#include <cstdio>

#include "Sql.h"
#include "storage/LogDatabase.h"
#include "support/TemporaryHome.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;

static QByteArray wholeLog(int rows) {
  const TemporaryHome home;
  auto log = LogDatabase::open(home.item(u"log.db"_s));
  for (int i = 0; i < rows; ++i)
    if (!log.database->insert({.Notes = QString(100, u'x')}, nullptr)) return {};
  log.database.reset();
  return TemporaryHome::readFile(home.path(u"log.db"_s));
}

/// Opens `content` as a log: it must take a row or explain why not, and it must be kept byte by byte unless it is used.
static LogDatabase::OpenResult openAndJudge(const TemporaryHome& home, const QByteArray& content) {
  home.writeFile(u"log.db"_s, content);
  auto log = LogDatabase::open(home.item(u"log.db"_s));
  const bool used = log.database && log.setAsideAs.isEmpty();
  const QString keptAs = log.setAsideAs.isEmpty() ? u"log.db"_s : log.setAsideAs;
  if (!used && TemporaryHome::readFile(home.path(keptAs)) != content) QTest::qFail("not kept", __FILE__, __LINE__);
  const bool takesRows = log.database && log.database->insert({}, &log.error);
  if (!takesRows && log.error.isEmpty()) QTest::qFail("refused without a word", __FILE__, __LINE__);
  return log;
}

/// The output of a writer of rows, in a process of its own that is killed once it has told of `lines` rows.
static QByteArrayList runWriter(const TemporaryHome& home, int lines, const char* largestFile = "") {
  // Not QProcess: after its vfork the thread sanitizer takes this process for the child.
  const QString program = u"exec '%1' --write-log '%2' %3"_s.arg(
      QCoreApplication::applicationFilePath(), home.path(u"log.db"_s), QString::fromLatin1(largestFile));
  FILE* writer = popen(QFile::encodeName(program).constData(), "re");
  char line[1000];
  const int pid = fgets(line, sizeof line, writer) ? QByteArray(line).trimmed().toInt() : 0;
  QByteArrayList output;
  while (output.size() < lines && fgets(line, sizeof line, writer)) output << QByteArray(line).trimmed();
  if (pid > 0) kill(pid, SIGKILL);
  while (fgets(line, sizeof line, writer)) output << QByteArray(line).trimmed();
  pclose(writer);
  return output;
}

static void judgeRowsOf(const TemporaryHome& home, qint64 told) {
  const auto log = LogDatabase::open(home.item(u"log.db"_s));
  QVERIFY2(log.database && log.setAsideAs.isEmpty(), qPrintable(log.error));
  const qint64 rowid = log.database->insert({}, nullptr).value_or(0);
  QVERIFY2(told > 3 && rowid > told, qPrintable(u"%1 after %2"_s.arg(rowid).arg(told)));
  Sql viewer(home.path(u"log.db"_s));
  QCOMPARE(viewer.run("PRAGMA integrity_check").join(u' '), u"ok"_s);
  QCOMPARE(viewer.run("select count(*) from log").join(u' '), QString::number(rowid));
}

/// The log on a machine that lets it down.
class tst_LogDatabaseFaults : public QObject {
  Q_OBJECT
 private slots:
  void aDamagedLogIsSetAsideWithItsJournal_data() {
    QTest::addColumn<QByteArray>("content");
    const QByteArray whole = wholeLog(100);
    QTest::newRow("text") << "not a database, but long enough to be looked at as one: "_ba.repeated(20);
    QTest::newRow("emptied beside its journal") << QByteArray();
    QTest::newRow("a page short") << whole.first(whole.size() - 4096);
    QTest::newRow("the schema overwritten") << QByteArray(whole).replace(100, 3900, QByteArray(3900, 'z'));
    QTest::newRow("the newest page overwritten") << whole.first(whole.size() - 4096) + QByteArray(4096, 'z');
  }
  void aDamagedLogIsSetAsideWithItsJournal() {
    const TemporaryHome home;
    QFETCH(QByteArray, content);
    home.writeFile(u"log.db-wal"_s, "journal of the damaged one");
    const auto log = openAndJudge(home, content);
    QVERIFY2(log.setAsideAs.startsWith(u"log damaged 2") && log.setAsideAs.endsWith(u".db"),
             qPrintable(log.setAsideAs));
    QCOMPARE(TemporaryHome::readFile(home.path(log.setAsideAs + u"-wal"_s)), "journal of the damaged one"_ba);
    QCOMPARE(log.database->insert({}, nullptr), 2);
  }

  void aLogCutOrWithAFlippedHeaderIsUsedOrKept() {
    const QByteArray whole = wholeLog(60);
    QVERIFY(whole.size() >= 3 * 4096);
    for (qsizetype length = 0; length < whole.size(); length += length < 600 ? 99 : 1999) {
      const auto log = openAndJudge(TemporaryHome(), whole.first(length));
      QVERIFY2(log.database && log.setAsideAs.isEmpty() == (length == 0), qPrintable(u"cut at %1"_s.arg(length)));
    }
    // Magic, page size and versions, then the first page of the schema's tree; what lies between are counters.
    for (int at = 0; at < 108 && !QTest::currentTestFailed(); at = at == 31 ? 100 : at + 1) {
      QByteArray flipped = whole;
      flipped[at] = static_cast<char>(flipped[at] ^ (1 << (at % 8)));
      openAndJudge(TemporaryHome(), flipped);
    }
  }

  void aLogThatCantBeUsedStaysAndIsExplained_data() {
    QTest::addColumn<QString>("path");
    QTest::newRow("a folder has the name") << u"taken/log.db"_s;
    QTest::newRow("the folder is a file") << u"file/log.db"_s;
    QTest::newRow("the folder is gone") << u"gone/log.db"_s;
    QTest::newRow("a link to a disk that is not there") << u"link.db"_s;
    QTest::newRow("a fifo") << u"fifo.db"_s;
  }
  void aLogThatCantBeUsedStaysAndIsExplained() {
    const TemporaryHome home;
    home.makeFolder(u"taken/log.db"_s);
    home.writeFile(u"file"_s, "x");
    QCOMPARE(symlink("/nowhere/log.db", home.item(u"link.db"_s).bytes().constData()), 0);
    QCOMPARE(mkfifo(home.item(u"fifo.db"_s).bytes().constData(), 0600), 0);
    const auto names = [&home] { return QDir(home.path()).entryList(QDir::AllEntries | QDir::System | QDir::Hidden); };
    QFETCH(QString, path);
    const QStringList before = names();
    const auto log = LogDatabase::open(home.item(path));
    QVERIFY(!log.database && log.setAsideAs.isEmpty());
    QVERIFY2(log.error.contains(path.section(u'/', -1)), qPrintable(log.error));
    QCOMPARE(names(), before);
  }

  void aLockIsWaitedForTwoSeconds_data() {
    QTest::addColumn<bool>("whileOpening");
    QTest::newRow("when the log is opened: it stays, and nothing is logged") << true;
    QTest::newRow("when a row is written: the row is lost, the next is not") << false;
  }
  void aLockIsWaitedForTwoSeconds() {
    QFETCH(bool, whileOpening);
    const TemporaryHome home;
    auto log = LogDatabase::open(home.item(u"log.db"_s));
    if (whileOpening) log.database.reset();
    Sql other(home.path(u"log.db"_s));
    if (whileOpening) other.run("PRAGMA locking_mode=EXCLUSIVE");
    other.run("begin immediate");
    QElapsedTimer timer;
    timer.start();
    if (whileOpening)
      log = LogDatabase::open(home.item(u"log.db"_s));
    else
      QVERIFY(!log.database->insert({}, &log.error));
    QVERIFY2(timer.elapsed() > 1500 && timer.elapsed() < 4000, qPrintable(QString::number(timer.elapsed())));
    QVERIFY2(log.error.contains(u"locked"), qPrintable(log.error));
    QVERIFY(log.setAsideAs.isEmpty() && !log.database == whileOpening);
    other.run("rollback");
    if (!whileOpening) QCOMPARE(log.database->insert({}, nullptr), 1);
  }

  void aFullDiskLosesRowsAndNothingElse() {
    const TemporaryHome home;
    const QByteArrayList output = runWriter(home, 100000, "200000");
    QVERIFY2(output.value(output.size() - 1).startsWith("log.db: "), "the writer ended without a word");
    judgeRowsOf(home, output.value(output.size() - 2).toLongLong());
  }

  void aKilledWriterLosesNoRowThatItToldOf() {
    const TemporaryHome home;
    qint64 told = 0;
    for (int round = 0; round < 4; ++round) {
      const QByteArrayList output = runWriter(home, 20);
      told = output.value(output.size() - 1).toLongLong();
    }
    // The last one is killed while it opens the log and takes the old journal in.
    runWriter(home, 0);
    judgeRowsOf(home, told);
  }
};

VANTRY_TEST(tst_LogDatabaseFaults);
#include "tst_LogDatabaseFaults.moc"
