#include <sys/stat.h>

#include "platform/Problems.h"
#include "platform/SpecialFolder.h"
#include "storage/LogDatabase.h"
#include "storage/LogEntry.h"
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

 private slots:
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

  void aStrangersFileWithoutTheTableStaysAsItIs() {
    Sql stranger(path());
    stranger.run("create table other (x)");
    const auto log = open();
    QString error;
    QVERIFY(log.database && log.setAsideAs.isEmpty() && !log.database->insert({}, &error));
    QVERIFY2(error.contains(u"no such table"), qPrintable(error));
    QCOMPARE(stranger.text("select name from sqlite_master"), u"other"_s);
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
};

VANTRY_TEST(tst_Log);
#include "tst_Log.moc"
