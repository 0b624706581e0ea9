#include <QTest>

#include "Sql.h"
#include "platform/Problems.h"
#include "platform/SpecialFolder.h"
#include "storage/LogDatabase.h"
#include "storage/LogEntry.h"
#include "support/TemporaryHome.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;
using namespace VantryUtil;

class tst_LogEntry : public QObject {
  Q_OBJECT
 private slots:
  void cleanup();

  void whatWasNotStoredStandsAsNA_data();
  void whatWasNotStoredStandsAsNA();
  void theRowTellsTheLocalTimeOfWriting();
  void observersHearOfRowsThatWereWritten();
  void aLostRowIsToldUntilOneIsWrittenAgain();
  void withoutALogNothingHappens();
  void anUnusableFolderIsToldAndNothingIsLogged();

 private:
  [[nodiscard]] static QString logPath() {
    return SpecialFolder::ApplicationData().Child(u"VantryUploader.db"_s).NativePath();
  }
};

void tst_LogEntry::cleanup() {
  logDB.reset();
  LogEntry::setRowObserver({});
  for (const Problem& problem : Problems::present()) Problems::clearKind(problem.kind);
}

void tst_LogEntry::whatWasNotStoredStandsAsNA_data() {
  QTest::addColumn<QStringList>("stored");
  QTest::addColumn<QString>("row");
  QTest::newRow("no key at all") << QStringList{} << u"1|n/a|n/a|n/a|n/a|n/a|n/a"_s;
  QTest::newRow("notes alone") << QStringList{u"Notes"_s} << u"1|n/a|n/a|n/a|n/a|n/a|<Notes>"_s;
  QTest::newRow("all six, in any order, and others that are ignored")
      << QStringList{u"Track"_s,        u"Notes"_s,     u"NewName"_s,     u"_rowid"_s,
                     u"OutputFolder"_s, u"EventTime"_s, u"InputFolder"_s, u"OriginalName"_s}
      << u"1|<OriginalName>|<NewName>|<InputFolder>|<OutputFolder>|<Track>|<Notes>"_s;
}

void tst_LogEntry::whatWasNotStoredStandsAsNA() {
  const TemporaryHome home;
  ConnectToLogDatabase();
  QFETCH(QStringList, stored);
  LogEntry entry;
  for (const QString& key : stored) entry.setValue(key, u'<' + key + u'>');
  entry.WriteToLog();
  const QStringList rows = Sql(logPath()).run(
      "select _rowid || '|' || OriginalName || '|' || NewName || '|' || InputFolder || '|' || OutputFolder || '|' || "
      "Track || '|' || Notes from log where EventTime glob '2[0-9]*'");
  QFETCH(QString, row);
  QCOMPARE(rows, QStringList{row});
}

void tst_LogEntry::theRowTellsTheLocalTimeOfWriting() {
  const TemporaryHome home;
  ConnectToLogDatabase();
  const auto now = [] { return QDateTime::currentDateTime().toString(u"yyyy-MM-dd HH:mm:ss"); };
  const QString before = now();
  LogEntry().WriteToLog();
  const QString written = Sql(logPath()).run("select EventTime from log").value(0);
  QVERIFY2(before <= written && written <= now(), qPrintable(written));
}

void tst_LogEntry::observersHearOfRowsThatWereWritten() {
  const TemporaryHome home;
  ConnectToLogDatabase();
  QList<qint64> heard;
  LogEntry::setRowObserver([&heard](qint64 rowid) { heard << rowid; });
  LogEntry().WriteToLog();
  LogEntry().WriteToLog();
  Sql(logPath()).run("drop table log");
  LogEntry().WriteToLog();
  QCOMPARE(heard, (QList<qint64>{1, 2}));
}

void tst_LogEntry::aLostRowIsToldUntilOneIsWrittenAgain() {
  const TemporaryHome home;
  ConnectToLogDatabase();
  Sql stranger(logPath());
  stranger.run("alter table log rename to elsewhere");
  LogEntry().WriteToLog();
  LogEntry().WriteToLog();
  const auto problems = Problems::present();
  QCOMPARE(problems.size(), 1);
  QVERIFY(problems[0].kind == Problem::Kind::LogRowLost);
  QVERIFY2(problems[0].detail.contains(u"no such table"), qPrintable(problems[0].detail));
  stranger.run("alter table elsewhere rename to log");
  LogEntry().WriteToLog();
  QVERIFY(Problems::present().isEmpty());
}

void tst_LogEntry::withoutALogNothingHappens() {
  LogEntry::setRowObserver([](qint64) { QFAIL("a row that nobody wrote"); });
  LogEntry().WriteToLog();
  QVERIFY(Problems::present().isEmpty());
}

void tst_LogEntry::anUnusableFolderIsToldAndNothingIsLogged() {
  const TemporaryHome home;
  home.writeFile(u"data"_s, "a file where the folder should be");
  ConnectToLogDatabase();
  QVERIFY(!logDB);
  QCOMPARE(Problems::present().size(), 1);
  QVERIFY(Problems::present()[0].kind == Problem::Kind::LogUnavailable);
  QVERIFY(Problems::present()[0].detail.contains(u"folder"));
}

VANTRY_TEST(tst_LogEntry);
#include "tst_LogEntry.moc"
