// Which names a task takes, and the names under which files go out.

#include <QTest>

#include "engine/UploadThread.h"
#include "engine/UploaderTask.h"
#include "platform/Problems.h"
#include "support/TemporaryHome.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;

class tst_TaskNames : public QObject {
  Q_OBJECT

 private slots:
  void init() { UploadThread::allowAgain(); }  // or an earlier stop would end the look at the folder

  void matching_data() {
    QTest::addColumn<QString>("extension");
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("exclusion");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("matches");
    const auto row = [](const char* label, const char* ext, const char* pattern, const char* exclusion,
                        const char* name, bool matches) {
      QTest::newRow(label) << QString::fromUtf8(ext) << QString::fromUtf8(pattern) << QString::fromUtf8(exclusion)
                           << QString::fromUtf8(name) << matches;
    };
    row("no pattern: the whole ending must be the extension", ".txt", "", "", "scan.TXT", true);
    row("no pattern and an extension without its dot selects nothing", "txt", "", "", "scan.txt", false);
    row("no pattern, longer ending", ".gz", "", "", "scan.tar.gz", true);
    row("no pattern, no extension, no dot in the name", "", "", "", "scan", false);
    row("no pattern and an extension of two parts selects nothing", ".tar.gz", "", "", "scan.tar.gz", false);
    row("no pattern and an ending of blanks", ". ", "", "", "scan. ", false);
    row("no pattern and an extension beyond ASCII", ".\xC3\xA4", "", "", "scan.\xC3\x84", true);
    row("a pattern of blanks is no pattern", ".txt", "  ", "", "scan.txt", true);
    row("without a star the pattern may stand anywhere", ".txt", "foo", "", "xFOOx.txt", true);
    row("the pattern's blanks count", ".txt", " foo", "", "foo.txt", false);
    row("the pattern doesn't reach into the ending", ".txt", "txt", "", "scan.txt", false);
    row("a star is not anchored", ".txt", "a*", "", "bab.txt", true);
    row("pieces come in order", ".txt", "a*b", "", "xaxbx.txt", true);
    row("pieces out of order", ".txt", "b*a", "", "xaxbx.txt", false);
    row("pieces may not overlap", ".txt", "ab*ba", "", "aba.txt", false);
    row("a star alone takes every name", ".txt", "*", "", "anything.txt", true);
    row("blank pieces don't count", ".txt", "* *a", "", "a.txt", true);
    row("a name without a dot has no base", "", "a", "", "aaa", false);
    row("no other character is special", ".txt", "a?c", "", "abc.txt", false);
    row("umlauts fold", ".txt", "\xC3\xBC", "", "\xC3\x9C" "ber.txt", true);
    row("an exclusion keeps back", ".txt", "", "draft", "my DRAFT.txt", false);
    row("an exclusion sees the ending", ".txt", "", "\\.txt$", "scan.txt", false);
    row("an exclusion of blanks is none", ".txt", "", "   ", "scan.txt", true);
    row("an exclusion that matches nothing at all keeps nothing back", ".txt", "", "x*", "scan.txt", true);
    row("an invalid exclusion is none", ".txt", "", "(", "scan.txt", true);
  }
  void matching() {
    QFETCH(QString, extension);
    QFETCH(QString, pattern);
    QFETCH(QString, exclusion);
    QFETCH(QString, name);
    UploaderTask task;
    task.Extension = extension;
    task.FileName = pattern;
    task.setExclusionPattern(exclusion);
    QTEST(task.FileNameMatch(name), "matches");

    // A look at a folder judges most names without this function, and must come to the same.
    const TemporaryHome home;
    home.writeFile(u"in/"_s + name, "patch data");
    task.inputFolder = home.item(u"in"_s);
    const bool taken = task.FileNameMatch(name) && name.endsWith(extension, Qt::CaseInsensitive);
    QCOMPARE(task.EvaluateInputFolder().size(), taken ? 1 : 0);
  }

  void anExplodingExclusionKeepsTheFileBackAndIsNamed() {
    UploaderTask task;
    task.Name = u"Explosive"_s;
    task.Extension = u".txt"_s;
    task.setExclusionPattern(u"(a+)+$"_s);
    const QString name = QString(200, u'a') + u"!.txt"_s;
    QVERIFY(!task.FileNameMatch(name));
    bool named = false;
    for (const Problem& problem : Problems::present())
      named |= problem.kind == Problem::Kind::ExclusionTooCostly && problem.subject == task.Name && problem.detail == name;
    QVERIFY(named);
    Problems::clear(Problem::Kind::ExclusionTooCostly, task.Name);
  }

  void renaming_data() {
    QTest::addColumn<QString>("prefix");
    QTest::addColumn<bool>("replace");
    QTest::addColumn<bool>("date");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("result");
    const auto row = [](const char* label, const char* prefix, bool replace, bool date, const char* name,
                        const char* result) {
      QTest::newRow(label) << QString::fromUtf8(prefix) << replace << date << QString::fromUtf8(name)
                           << QString::fromUtf8(result);
    };
    row("prefix and stamp in place of the name", "P", true, true, "scan.txt", "P_2024-03_09h5m7s_.txt");
    row("prefix, name and stamp", "P", false, true, "scan.txt", "P_scan_2024-03_09h5m7s_.txt");
    row("prefix alone", "P", true, false, "scan.txt", "P_scan.txt");
    row("neither box: the name goes out unchanged", "", false, false, "scan.txt", "scan.txt");
    row("neither box, with a prefix", "P", false, false, "scan.txt", "P_scan.txt");
    row("replace without stamp leaves the name", "", true, false, "scan.txt", "scan.txt");
    row("stamp without prefix", "", true, true, "scan.txt", "2024-03_09h5m7s_.txt");
    row("a prefix that is there already, in another case", "scan", false, false, "Scan7.txt", "Scan7.txt");
    row("only the last ending counts", "", false, true, "a.b.c", "a.b_2024-03_09h5m7s_.c");
    row("no ending", "", true, true, "scan", "2024-03_09h5m7s_.scan");
  }
  void renaming() {
    QFETCH(QString, prefix);
    QFETCH(bool, replace);
    QFETCH(bool, date);
    QFETCH(QString, name);
    UploaderTask task;
    task.Prefix = prefix;
    task.ReplaceName = replace;
    task.AddDateToFilename = date;
    const QDateTime moment(QDate(2024, 3, 11), QTime(9, 5, 7));
    QTEST(task.Rename(name, Date::fromNanoseconds(moment.toMSecsSinceEpoch() * 1'000'000)), "result");
  }
};

VANTRY_TEST(tst_TaskNames);
#include "tst_TaskNames.moc"
