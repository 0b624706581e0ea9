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
  void aNewLogIsPrivateAndCountsFromOneAndOutlivesTheProgram() {
    const TemporaryHome home;
    const mode_t mask = umask(0);
    auto log = LogDatabase::open(home.item(u"new.db"_s));
    QVERIFY2(log.database && log.setAsideAs.isEmpty() && log.error.isEmpty(), qPrintable(log.error));
    QCOMPARE(log.database->insert({.Notes = u"first"_s}, nullptr), 1);
    umask(mask);
    for (const char* suffix : {"", "-wal", "-shm"}) {
      struct stat info;
      QVERIFY2(stat((home.item(u"new.db"_s).bytes() + suffix).constData(), &info) == 0, suffix);
      QCOMPARE(info.st_mode & 0777, 0600u);
    }
    log.database.reset();
    log = LogDatabase::open(home.item(u"new.db"_s));
    QCOMPARE(log.database->insert({.Notes = u"second"_s}, nullptr), 2);
    Sql viewer(home.path(u"new.db"_s));
    QCOMPARE(viewer.run("select Notes from log order by _rowid").join(u' '), u"first second"_s);
    QCOMPARE(viewer.run("PRAGMA journal_mode").join(u' '), u"wal"_s);
    QCOMPARE(viewer.run("select sql from sqlite_master").join(u' '),
             u"CREATE TABLE log ( _rowid integer not null, OriginalName Text, NewName Text, InputFolder Text, "
             "OutputFolder Text, Track Text, EventTime TimeStamp, Notes Text, primary key(_rowid))"_s);
  }

  void anyTextIsKept_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("kept");
    const auto same = [](const char* label, const QString& text) { QTest::newRow(label) << text << text; };
    same("quotes and statements", u"x'); drop table log; --\""_s);
    same("line ends, tabs, direction marks, beyond the first plane", u"a\nb\tc\u202Ed\U0001F5A8"_s);
    same("a megabyte", QString(1 << 20, u'x'));
    QTest::newRow("a NUL shows as the replacement character") << u"a\0b"_s << u"a\uFFFDb"_s;
    QTest::newRow("half a pair shows as a question mark") << QString(QChar(0xD800)) + u"b"_s << u"?b"_s;
  }
  void anyTextIsKept() {
    const TemporaryHome home;
    const auto log = LogDatabase::open(home.item(u"text.db"_s));
    QFETCH(QString, text);
    QVERIFY(log.database->insert({.OriginalName = text, .Track = u"track"_s, .Notes = text}, nullptr));
    QFETCH(QString, kept);
    QCOMPARE(Sql(home.path(u"text.db"_s)).run("select OriginalName || Track || Notes from log"),
             QStringList{kept + u"track"_s + kept});
  }

  void aReaderWithAnOpenCursorHoldsNobodyUp() {
    const TemporaryHome home;
    const auto log = LogDatabase::open(home.item(u"read.db"_s));
    for (int i = 0; i < 2; ++i) QVERIFY(log.database->insert({}, nullptr));
    Sql viewer(home.path(u"read.db"_s));
    viewer.begin("select Notes from log");
    QVERIFY(viewer.step());
    QElapsedTimer timer;
    timer.start();
    QString error;
    QVERIFY2(log.database->insert({}, &error), qPrintable(error));
    QVERIFY2(timer.elapsed() < 1000, qPrintable(QString::number(timer.elapsed())));
    QVERIFY2(viewer.step() && !viewer.step(), "the reader sees rows that came later");
  }

  void whereNoMemoryCanBeSharedARollbackJournalServes() {
    const TemporaryHome home;
    home.makeFolder(u"share.db-shm"_s);
    const auto log = LogDatabase::open(home.item(u"share.db"_s));
    QVERIFY2(log.database, qPrintable(log.error));
    QCOMPARE(log.database->insert({}, nullptr), 1);
    QCOMPARE(Sql(home.path(u"share.db"_s)).run("PRAGMA journal_mode").join(u' '), u"delete"_s);
  }

  void aStrangersFileWithoutTheTableStaysAsItIs() {
    const TemporaryHome home;
    Sql stranger(home.path(u"other.db"_s));
    stranger.run("create table other (x)");
    const auto log = LogDatabase::open(home.item(u"other.db"_s));
    QVERIFY2(log.database && log.setAsideAs.isEmpty(), qPrintable(log.error));
    QString error;
    QVERIFY(!log.database->insert({}, &error));
    QVERIFY2(error.contains(u"no such table"), qPrintable(error));
    QCOMPARE(stranger.run("select name from sqlite_master").join(u' '), u"other"_s);
  }
};

VANTRY_TEST(tst_LogDatabase);
#include "tst_LogDatabase.moc"
