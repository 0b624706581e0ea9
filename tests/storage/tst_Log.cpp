#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QElapsedTimer>

#include "platform/Problems.h"
#include "platform/SpecialFolder.h"
#include "storage/LogDatabase.h"
#include "storage/LogEntry.h"
#include "storage/LogReader.h"
#include "support/FullDisk.h"
#include "support/Sql.h"
#include "support/TemporaryHome.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;
using namespace VantryUtil;

/// The log as it works day by day, and what is told when it doesn't.
class tst_Log : public QObject {
  Q_OBJECT
  std::optional<TemporaryHome> m_home;
  [[nodiscard]] LogDatabase::OpenResult open() const { return LogDatabase::open(m_home->item(u"log.db"_s)); }
  [[nodiscard]] QString path() const { return m_home->path(u"log.db"_s); }
  QByteArray m_whole;  // a sound log of some pages

  /// Opens `content` as a log: it must take a row or explain why not, and be kept byte by byte unless it is used.
  LogDatabase::OpenResult openAndJudge(const QByteArray& content, const QByteArray& journal = {}) {
    m_home.emplace().writeFile(u"log.db"_s, content);
    if (!journal.isEmpty()) m_home->writeFile(u"log.db-wal"_s, journal);
    auto log = open();
    const QString kept = m_home->path(log.setAsideAs.isEmpty() ? u"log.db"_s : log.setAsideAs);
    const bool keptWhole =
        TemporaryHome::readFile(kept) == content && TemporaryHome::readFile(kept + u"-wal"_s) == journal;
    if (!keptWhole && !(log.database && log.setAsideAs.isEmpty())) QTest::qFail("not kept", __FILE__, __LINE__);
    const bool takesRows = log.database && log.database->insert({}, &log.error);
    if (!takesRows && log.error.isEmpty()) QTest::qFail("refused without a word", __FILE__, __LINE__);
    return log;
  }

 private slots:
  void initTestCase() {
    m_home.emplace();
    auto log = open();
    for (int i = 0; i < 60; ++i) QVERIFY(log.database->insert({.Notes = QString(100, u'x')}, nullptr));
    log.database.reset();
    m_whole = TemporaryHome::readFile(path());
    QVERIFY(m_whole.size() >= 3 * 4096);
  }
  void init() { m_home.emplace(); }
  void cleanup() {
    logDB.reset();
    LogEntry::setRowObserver({});
    for (const Problem& problem : Problems::present()) Problems::clearKind(problem.kind);
  }

  void aNewLogIsPrivateAndCountsFromOneAndOutlivesTheProgram() {
    const mode_t mask = umask(0);
    auto log = open();
    QVERIFY2(log.database && log.setAsideAs.isEmpty() && log.error.isEmpty(), qPrintable(log.error));
    QCOMPARE(log.database->insert({.Notes = u"first"_s}, nullptr), 1);
    umask(mask);
    for (const char* suffix : {"", "-wal", "-shm"}) {
      struct stat info;
      QVERIFY2(stat((path().toUtf8() + suffix).constData(), &info) == 0 && (info.st_mode & 0777) == 0600, suffix);
    }
    log.database.reset();
    log = open();
    QCOMPARE(log.database->insert({.Notes = u"second"_s}, nullptr), 2);
    Sql viewer(path());
    QCOMPARE(viewer.text("select Notes from log order by _rowid; PRAGMA journal_mode"), u"first second wal"_s);
    QCOMPARE(viewer.text("select sql from sqlite_master"),
             u"CREATE TABLE log ( _rowid integer not null, OriginalName Text, NewName Text, InputFolder Text, "
             "OutputFolder Text, Track Text, EventTime TimeStamp, Notes Text, primary key(_rowid))"_s);
  }

  void anyTextIsKept() {
    const auto log = open();
    const QString texts = u"x'); drop table log; --\"\n\t\u202Ed\U0001F5A8"_s.repeated(10'000);
    QVERIFY(log.database->insert({.OriginalName = texts, .Track = u"a\0b"_s, .Notes = QChar(0xD800)}, nullptr));
    QCOMPARE(Sql(path()).text("select OriginalName, Track, Notes from log"), texts + u" a\uFFFDb ?"_s);
  }

  void rowsThatGoTogetherAreAllThereOrNone() {
    const auto log = open();
    Sql other(path());
    other.run("create trigger t before insert on log when new.Notes = 'refused' begin select raise(fail, 'no'); end");
    QString error;
    QVERIFY(log.database->insertAll({{.Notes = u"good"_s}, {.Notes = u"refused"_s}}, &error).empty());
    QVERIFY2(error.contains(u"no"_s), qPrintable(error));
    QCOMPARE(log.database->insertAll({{.Notes = u"a"_s}, {.Notes = u"b"_s}}, &error), (std::vector<qint64>{1, 2}));
    QCOMPARE(other.text("select Notes from log order by _rowid"), u"a b"_s);
  }

  void whereNoMemoryCanBeSharedARollbackJournalServes() {
    m_home->makeFolder(u"log.db-shm"_s);
    const auto log = open();
    QVERIFY2(log.database && log.database->insert({}, nullptr) == 1, qPrintable(log.error));
    QCOMPARE(Sql(path()).text("PRAGMA journal_mode"), u"delete"_s);
  }

  void rowsAreVisitedInTheOrderAskedForAndNothingStaysLocked() {
    auto log = open();
    for (int i = 1; i <= 30; ++i) QVERIFY(log.database->insert({.OriginalName = QString::number(i)}, nullptr));
    log.database.reset();
    Sql other(path());
    other.run("delete from log where _rowid in (7, 8); PRAGMA journal_mode=DELETE");
    const auto opened = LogReader::open(m_home->item(u"log.db"_s));
    QString error;
    for (const auto& [ids, expected] : {std::pair(QList<qint64>{3, 4, 5}, u"3 4 5"_s),
                                        {{1, 3, 7, 8, 9}, u"1 3 9"_s},
                                        {{30, 2, 2, 1, 2}, u"30 2 2 1 2"_s},
                                        {{7, 8, 99}, u""_s}}) {
      QStringList visited;
      const auto visitor = [&](qint64, const LogReader::Fields& row) { visited << QString::fromUtf8(row.text(0)); };
      QVERIFY2(opened.reader->visit(ids, visitor, &error), qPrintable(error));
      QCOMPARE(visited.join(u' '), expected);
    }
    QCOMPARE(opened.reader->ids(5, 3, &error), (QList<qint64>{6, 9, 10}));
    QCOMPARE(other.text("insert into log (Notes) values ('x'); drop table log"), QString());
    QVERIFY(!opened.reader->ids(0, 1, &error));
    QCOMPARE(error, u"log.db: no such table: log"_s);
  }

  void whatWasNotStoredStandsAsNAAndALostRowIsToldUntilOneIsWrittenAgain() {
    ConnectToLogDatabase();
    QList<qint64> heard;
    LogEntry::setRowObserver([&heard](qint64 rowid) { heard << rowid; });
    Sql stranger(SpecialFolder::ApplicationData().Child(u"VantryUploader.db"_s).NativePath());
    LogEntry entry;
    for (const QString& key : {u"Track"_s, u"Notes"_s, u"_rowid"_s, u"EventTime"_s, u"InputFolder"_s})
      entry.setValue(key, u'<' + key + u'>');
    const auto now = [] { return QDateTime::currentDateTime().toString(u"yyyy-MM-dd HH:mm:ss"); };
    const QString before = now();
    entry.WriteToLog();
    const QString row = stranger.text("select * from log"), time = row.section(u' ', 6, 7);
    QCOMPARE(row, u"1 n/a n/a <InputFolder> n/a <Track> "_s + time + u" <Notes>"_s);
    QVERIFY2(before <= time && time <= now(), qPrintable(time));
    stranger.run("alter table log rename to elsewhere");
    for (int i = 0; i < 2; ++i) LogEntry().WriteToLog();
    const auto problems = Problems::present();
    QVERIFY(problems.size() == 1 && problems[0].kind == Problem::Kind::LogRowLost);
    QVERIFY2(problems[0].detail.contains(u"no such table"), qPrintable(problems[0].detail));
    stranger.run("alter table elsewhere rename to log");
    LogEntry().WriteToLog();
    QVERIFY(Problems::present().isEmpty());
    QCOMPARE(heard, (QList<qint64>{1, 2}));
  }

  void aDamagedOrUnusableLogIsTold() {
    for (const auto& [file, kind] :
         {std::pair(u"data"_s, Problem::Kind::LogUnavailable),  // a file where its folder should be
          {u"data/vantry-uploader/VantryUploader.db"_s, Problem::Kind::LogSetAside}}) {
      m_home.reset();
      m_home.emplace().writeFile(file, "not what should be here");
      ConnectToLogDatabase();
      LogEntry().WriteToLog();
      QVERIFY(Problems::present().size() == 1 && Problems::present()[0].kind == kind);
      QCOMPARE(logDB == nullptr, Problems::present()[0].subject.isEmpty());
      cleanup();
    }
  }

  void aDamagedLogIsSetAsideWithItsJournal() {
    const QByteArray text = "not a database, but long enough to be looked at as one: "_ba.repeated(20);
    const QByteArray pageShort = m_whole.chopped(4096);
    const QByteArray schema = QByteArray(m_whole).replace(100, 3900, QByteArray(3900, 'z'));
    for (const QByteArray& content : {text, QByteArray(), pageShort, schema, pageShort + QByteArray(4096, 'z')}) {
      const auto log = openAndJudge(content, "journal of the damaged one");
      QVERIFY2(log.setAsideAs.startsWith(u"log damaged 2") && log.setAsideAs.endsWith(u".db"), content.left(20));
      QCOMPARE(log.database->insert({}, nullptr), 2);
    }
  }

  void aLogCutOrWithAFlippedHeaderIsUsedOrKept() {
    for (qsizetype length = 99; length < m_whole.size(); length += length < 600 ? 99 : 1999) {
      const auto log = openAndJudge(m_whole.first(length));
      QVERIFY2(log.database && !log.setAsideAs.isEmpty(), qPrintable(u"cut at %1"_s.arg(length)));
    }
    // Magic, page size and versions, then the first page of the schema's tree; what lies between are counters.
    for (int at = 0; at < 108 && !QTest::currentTestFailed(); at = at == 31 ? 100 : at + 1) {
      QByteArray flipped = m_whole;
      flipped[at] = static_cast<char>(flipped[at] ^ (1 << (at % 8)));
      openAndJudge(flipped);
    }
  }

  void aLogThatCantBeUsedStaysAndIsExplained() {
    m_home->makeFolder(u"taken/log.db"_s);
    m_home->writeFile(u"file"_s, "x");
    QCOMPARE(symlink("/nowhere/log.db", m_home->item(u"link.db"_s).bytes().constData()), 0);
    QCOMPARE(mkfifo(m_home->item(u"fifo.db"_s).bytes().constData(), 0600), 0);
    const auto names = [this] {
      return QDir(m_home->path()).entryList(QDir::AllEntries | QDir::System | QDir::Hidden);
    };
    const QStringList before = names();
    for (const QString& path : {u"taken/log.db"_s, u"file/log.db"_s, u"gone/log.db"_s, u"link.db"_s, u"fifo.db"_s}) {
      const auto log = LogDatabase::open(m_home->item(path));
      QVERIFY2(!log.database && log.setAsideAs.isEmpty() && log.error.contains(path.section(u'/', -1)),
               qPrintable(path));
      QCOMPARE(names(), before);
    }
  }

  void aLockIsWaitedForTwoSecondsAndCostsOneRowOrTheLog() {
    for (const bool whileOpening : {true, false}) {
      init();
      auto log = open();
      if (whileOpening) log.database.reset();
      Sql other(path());
      if (whileOpening) other.run("PRAGMA locking_mode=EXCLUSIVE");
      other.run("begin immediate");
      QElapsedTimer timer;
      timer.start();
      if (whileOpening)
        log = open();
      else
        QVERIFY(!log.database->insert({}, &log.error));
      QVERIFY2(timer.elapsed() > 1500 && timer.elapsed() < 20'000, qPrintable(QString::number(timer.elapsed())));
      QVERIFY2(log.error.contains(u"locked"), qPrintable(log.error));
      QVERIFY(log.setAsideAs.isEmpty() && !log.database == whileOpening);
      other.run("rollback");
      if (!whileOpening) QCOMPARE(log.database->insert({}, nullptr), 1);
    }
  }

  void aFullDiskLosesRowsAndNothingElse() {
    auto log = open();
    std::optional<FullDisk> full(200'000);
    qint64 told = 0;
    while (const auto rowid = log.database->insert({.Notes = QString(1000, u'x')}, &log.error)) told = *rowid;
    QVERIFY2(told > 3 && log.error.startsWith(u"log.db: "_s), qPrintable(log.error));
    full.reset();
    QCOMPARE(log.database->insert({}, nullptr), told + 1);
    log.database.reset();
    log = open();
    QVERIFY2(log.database && log.setAsideAs.isEmpty(), qPrintable(log.error));
    QCOMPARE(Sql(path()).text("PRAGMA integrity_check; select count(*) from log"), u"ok %1"_s.arg(told + 1));
  }
};

VANTRY_TEST(tst_Log);
#include "tst_Log.moc"
