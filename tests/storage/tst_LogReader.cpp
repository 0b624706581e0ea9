#include <QTest>

#include "storage/LogDatabase.h"
#include "storage/LogReader.h"
#include "support/Sql.h"
#include "support/TemporaryHome.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;

class tst_LogReader : public QObject {
  Q_OBJECT
 private slots:
  void rowsAreVisitedInTheOrderAskedFor_data() {
    QTest::addColumn<QList<qint64>>("ids");
    QTest::addColumn<QString>("visited");
    QTest::newRow("a run") << QList<qint64>{3, 4, 5} << u"3 4 5"_s;
    QTest::newRow("a run with gaps, and rows that are gone") << QList<qint64>{1, 3, 7, 8, 9} << u"1 3 9"_s;
    QTest::newRow("out of order, far apart and twice") << QList<qint64>{30, 2, 2, 1, 2} << u"30 2 2 1 2"_s;
    QTest::newRow("none that is there") << QList<qint64>{7, 8, 99} << u""_s;
  }
  void rowsAreVisitedInTheOrderAskedFor() {
    const TemporaryHome home;
    const auto log = LogDatabase::open(home.item(u"a.db"_s));
    for (int i = 1; i <= 30; ++i)
      QVERIFY(log.database->insert({.OriginalName = QString::number(i), .Notes = u"n"_s}, nullptr));
    Sql(home.path(u"a.db"_s)).run("delete from log where _rowid in (7, 8)");
    const auto opened = LogReader::open(home.item(u"a.db"_s));
    QCOMPARE(opened.columns.join(u' '), u"OriginalName NewName InputFolder OutputFolder Track EventTime Notes"_s);
    QFETCH(QList<qint64>, ids);
    QStringList visited;
    const auto visitor = [&](qint64 id, const LogReader::Fields& row) {
      visited << QString::fromUtf8(row.text(0));
      QCOMPARE(visited.last(), QString::number(id));
      QCOMPARE(row.text(6), "n");
    };
    QString error;
    QVERIFY2(opened.reader->visit(ids, visitor, &error), qPrintable(error));
    QTEST(visited.join(u' '), "visited");
    QCOMPARE(opened.reader->ids(5, 3, &error), (QList<qint64>{6, 9, 10}));
  }

  void betweenTwoCallsNothingIsLocked() {
    const TemporaryHome home;
    auto log = LogDatabase::open(home.item(u"a.db"_s));
    QVERIFY(log.database->insert({.Notes = u"n"_s}, nullptr));
    log.database.reset();
    Sql other(home.path(u"a.db"_s));
    other.run("PRAGMA journal_mode=DELETE");
    const auto opened = LogReader::open(home.item(u"a.db"_s));
    QString error;
    QCOMPARE(opened.reader->ids(0, 1, &error), QList<qint64>{1});
    QVERIFY(opened.reader->visit(
        {1}, [](qint64, const auto&) {}, &error));
    QCOMPARE(other.run("insert into log (Notes) values ('x')"), QStringList());
    QCOMPARE(other.run("drop table log"), QStringList());
    QVERIFY(!opened.reader->ids(0, 1, &error));
    QCOMPARE(error, u"a.db: no such table: log"_s);
  }

  void deletingTakesAllRowsAndTheLogGoesOn() {
    const TemporaryHome home;
    const auto log = LogDatabase::open(home.item(u"a.db"_s));
    for (int i = 0; i < 3; ++i) QVERIFY(log.database->insert({.Notes = u"old"_s}, nullptr));
    QString error;
    QVERIFY2(log.database->deleteAll(&error), qPrintable(error));
    QVERIFY(log.database->insert({.Notes = u"new"_s}, nullptr));
    QCOMPARE(Sql(home.path(u"a.db"_s)).run("select Notes from log"), QStringList{u"new"_s});
  }
};

VANTRY_TEST(tst_LogReader);
#include "tst_LogReader.moc"
