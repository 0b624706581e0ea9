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
  [[nodiscard]] static QString logPath() {
    return SpecialFolder::ApplicationData().Child(u"VantryUploader.db"_s).NativePath();
  }
 private slots:
  void cleanup() {
    logDB.reset();
    LogEntry::setRowObserver({});
    for (const Problem& problem : Problems::present()) Problems::clearKind(problem.kind);
  }

  void whatWasNotStoredStandsAsNA_data() {
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("row");
    QTest::newRow("no key at all") << u""_s << u"1|n/a|n/a|n/a|n/a|n/a|n/a"_s;
    QTest::newRow("notes alone") << u"Notes"_s << u"1|n/a|n/a|n/a|n/a|n/a|<Notes>"_s;
    QTest::newRow("all six, in any order, and others that are ignored")
        << u"Track Notes NewName _rowid OutputFolder EventTime InputFolder OriginalName"_s
        << u"1|<OriginalName>|<NewName>|<InputFolder>|<OutputFolder>|<Track>|<Notes>"_s;
  }
  void whatWasNotStoredStandsAsNA() {
    const TemporaryHome home;
    ConnectToLogDatabase();
    QFETCH(QString, stored);
    LogEntry entry;
    for (const QString& key : stored.split(u' ')) entry.setValue(key, u'<' + key + u'>');
    const auto now = [] { return QDateTime::currentDateTime().toString(u"yyyy-MM-dd HH:mm:ss"); };
    const QString before = now();
    entry.WriteToLog();
    Sql viewer(logPath());
    QTEST(viewer
              .run("select _rowid || '|' || OriginalName || '|' || NewName || '|' || InputFolder || '|' || "
                   "OutputFolder || '|' || Track || '|' || Notes from log")
              .join(u'+'),
          "row");
    const QString written = viewer.run("select EventTime from log").join(u'+');
    QVERIFY2(before <= written && written <= now(), qPrintable(written));
  }

  void aLostRowIsToldUntilOneIsWrittenAgain() {
    const TemporaryHome home;
    ConnectToLogDatabase();
    QList<qint64> heard;
    LogEntry::setRowObserver([&heard](qint64 rowid) { heard << rowid; });
    LogEntry().WriteToLog();
    Sql stranger(logPath());
    stranger.run("alter table log rename to elsewhere");
    LogEntry().WriteToLog();
    LogEntry().WriteToLog();
    const auto problems = Problems::present();
    QVERIFY(problems.size() == 1 && problems[0].kind == Problem::Kind::LogRowLost);
    QVERIFY2(problems[0].detail.contains(u"no such table"), qPrintable(problems[0].detail));
    stranger.run("alter table elsewhere rename to log");
    LogEntry().WriteToLog();
    QVERIFY(Problems::present().isEmpty());
    QCOMPARE(heard, (QList<qint64>{1, 2}));
  }

  void aDamagedOrUnusableLogIsTold_data() {
    QTest::addColumn<QString>("file");
    QTest::addColumn<Problem::Kind>("kind");
    QTest::newRow("the folder is a file: nothing is logged") << u"data"_s << Problem::Kind::LogUnavailable;
    QTest::newRow("the log is text: a new one begins")
        << u"data/vantry-uploader/VantryUploader.db"_s << Problem::Kind::LogSetAside;
  }
  void aDamagedOrUnusableLogIsTold() {
    const TemporaryHome home;
    QFETCH(QString, file);
    home.writeFile(file, "not what should be here");
    ConnectToLogDatabase();
    LogEntry().WriteToLog();
    QCOMPARE(Problems::present().size(), 1);
    QTEST(Problems::present()[0].kind, "kind");
    QCOMPARE(logDB == nullptr, Problems::present()[0].subject.isEmpty());
  }
};

VANTRY_TEST(tst_LogEntry);
#include "tst_LogEntry.moc"
