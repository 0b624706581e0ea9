#include <sys/stat.h>

#include <QElapsedTimer>
#include <QTest>

#include "Sql.h"
#include "storage/LogDatabase.h"
#include "support/TemporaryHome.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;

/// The log as it works day by day.
class tst_LogDatabase : public QObject {
  Q_OBJECT
 private slots:
  void aNewLogHasItsTableAndCountsFromOne();
  void theJournalIsAheadOfTheFileAndAllFilesArePrivate();
  void rowsOutliveTheProgram();
  void anyTextIsKept_data();
  void anyTextIsKept();
  void aReaderWithAnOpenCursorHoldsNobodyUp();
  void whereNoMemoryCanBeSharedARollbackJournalServes();
  void aStrangersFileWithoutTheTableStaysAsItIs();
};

static LogRow rowOf(const QString& notes) { return {.OriginalName = u"scan.txt"_s, .Notes = notes}; }

void tst_LogDatabase::aNewLogHasItsTableAndCountsFromOne() {
  const TemporaryHome home;
  const auto log = LogDatabase::open(home.item(u"new.db"_s));
  QVERIFY2(log.database, qPrintable(log.error));
  QVERIFY(log.setAsideAs.isEmpty() && log.error.isEmpty());
  QCOMPARE(log.database->insert(rowOf(u"a"_s), nullptr), 1);
  QCOMPARE(log.database->insert(rowOf(u"b"_s), nullptr), 2);
  QCOMPARE(
      Sql(home.path(u"new.db"_s)).run("select sql from sqlite_master"),
      QStringList{u"CREATE TABLE log ( _rowid integer not null, OriginalName Text, NewName Text, InputFolder Text, "
                  "OutputFolder Text, Track Text, EventTime TimeStamp, Notes Text, primary key(_rowid))"_s});
}

void tst_LogDatabase::theJournalIsAheadOfTheFileAndAllFilesArePrivate() {
  const TemporaryHome home;
  const mode_t mask = umask(0);
  const auto log = LogDatabase::open(home.item(u"wal.db"_s));
  QVERIFY(log.database && log.database->insert(rowOf(u"a"_s), nullptr));
  umask(mask);
  QCOMPARE(Sql(home.path(u"wal.db"_s)).run("PRAGMA journal_mode"), QStringList{u"wal"_s});
  for (const char* suffix : {"", "-wal", "-shm"}) {
    struct stat info;
    QVERIFY2(stat((home.item(u"wal.db"_s).bytes() + suffix).constData(), &info) == 0, suffix);
    QCOMPARE(info.st_mode & 0777, 0600u);
  }
}

void tst_LogDatabase::rowsOutliveTheProgram() {
  const TemporaryHome home;
  const FolderItem at = home.item(u"kept.db"_s);
  for (const QString& note : {u"first"_s, u"second"_s}) {
    const auto log = LogDatabase::open(at);
    QVERIFY2(log.database, qPrintable(log.error));
    QVERIFY(log.setAsideAs.isEmpty());
    QVERIFY(log.database->insert(rowOf(note), nullptr));
  }
  QCOMPARE(Sql(at.NativePath()).run("select Notes from log order by _rowid"), (QStringList{u"first"_s, u"second"_s}));
}

void tst_LogDatabase::anyTextIsKept_data() {
  QTest::addColumn<QString>("text");
  QTest::addColumn<QString>("kept");
  const auto same = [](const char* label, const QString& text) { QTest::newRow(label) << text << text; };
  same("quotes and statements", u"x'); drop table log; --\""_s);
  same("line ends, tabs, direction marks", u"a\nb\tc\u202Ed"_s);
  same("beyond the first plane", u"\U0001F5A8"_s);
  same("a megabyte", QString(1 << 20, u'x'));
  QTest::newRow("a NUL shows as the replacement character") << u"a\0b"_s << u"a\uFFFDb"_s;
  QTest::newRow("half a pair shows as a question mark") << QString(QChar(0xD800)) + u"b"_s << u"?b"_s;
}

void tst_LogDatabase::anyTextIsKept() {
  const TemporaryHome home;
  const auto log = LogDatabase::open(home.item(u"text.db"_s));
  QFETCH(QString, text);
  QString error;
  QVERIFY2(log.database->insert({.OriginalName = text, .Track = u"before"_s, .Notes = text}, &error),
           qPrintable(error));
  Sql viewer(home.path(u"text.db"_s));
  QFETCH(QString, kept);
  QCOMPARE(viewer.run("select OriginalName from log"), QStringList{kept});
  QCOMPARE(viewer.run("select Notes from log where Track = 'before'"), QStringList{kept});
}

void tst_LogDatabase::aReaderWithAnOpenCursorHoldsNobodyUp() {
  const TemporaryHome home;
  const auto log = LogDatabase::open(home.item(u"read.db"_s));
  for (int i = 0; i < 3; ++i) QVERIFY(log.database->insert(rowOf(u"old"_s), nullptr));
  Sql viewer(home.path(u"read.db"_s));
  viewer.begin("select Notes from log");
  QVERIFY(viewer.step());
  QElapsedTimer timer;
  timer.start();
  QString error;
  QVERIFY2(log.database->insert(rowOf(u"new"_s), &error), qPrintable(error));
  QVERIFY2(timer.elapsed() < 1000, qPrintable(QString::number(timer.elapsed())));
  QVERIFY(viewer.step() && viewer.step() && !viewer.step());
  viewer.end();
  QCOMPARE(viewer.run("select Notes from log").size(), 4);
}

void tst_LogDatabase::whereNoMemoryCanBeSharedARollbackJournalServes() {
  const TemporaryHome home;
  home.makeFolder(u"share.db-shm"_s);
  const auto log = LogDatabase::open(home.item(u"share.db"_s));
  QVERIFY2(log.database, qPrintable(log.error));
  QString error;
  QVERIFY2(log.database->insert(rowOf(u"a"_s), &error), qPrintable(error));
  QCOMPARE(Sql(home.path(u"share.db"_s)).run("PRAGMA journal_mode"), QStringList{u"delete"_s});
}

void tst_LogDatabase::aStrangersFileWithoutTheTableStaysAsItIs() {
  const TemporaryHome home;
  Sql stranger(home.path(u"other.db"_s));
  stranger.run("create table other (x)");
  const auto log = LogDatabase::open(home.item(u"other.db"_s));
  QVERIFY2(log.database, qPrintable(log.error));
  QVERIFY(log.setAsideAs.isEmpty());
  QString error;
  QVERIFY(!log.database->insert(rowOf(u"a"_s), &error));
  QVERIFY2(error.contains(u"no such table"), qPrintable(error));
  QCOMPARE(stranger.run("select name from sqlite_master"), QStringList{u"other"_s});
}

VANTRY_TEST(tst_LogDatabase);
#include "tst_LogDatabase.moc"
