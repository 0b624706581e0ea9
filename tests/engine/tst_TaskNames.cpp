// Which names a task takes, and the names under which files go out.

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

  void whichNamesATaskTakes() {
    const TemporaryHome home;
    const std::tuple<const char*, const char*, const char*, const char*, bool> rows[] = {
        // Extension, pattern, exclusion, name. Without a pattern the whole ending must be the extension.
        {".txt", "", "", "scan.TXT", true},
        {"txt", "", "", "scan.txt", false},
        {".gz", "", "", "scan.tar.gz", true},
        {"", "", "", "scan", false},
        {".tar.gz", "", "", "scan.tar.gz", false},
        {". ", "", "", "scan. ", false},
        {".\xC3\xA4", "", "", "scan.\xC3\x84", true},
        {".txt", "  ", "", "scan.txt", true},
        // A pattern may stand anywhere in the name before the ending, blanks included.
        {".txt", "foo", "", "xFOOx.txt", true},
        {".txt", " foo", "", "foo.txt", false},
        {".txt", "txt", "", "scan.txt", false},
        {"", "a", "", "aaa", false},
        {".txt", "a?c", "", "abc.txt", false},
        {".txt", "\u00FC", "", "\u00DCber.txt", true},
        // Pieces between stars come in order and do not overlap; blank ones don't count.
        {".txt", "a*", "", "bab.txt", true},
        {".txt", "a*b", "", "xaxbx.txt", true},
        {".txt", "b*a", "", "xaxbx.txt", false},
        {".txt", "ab*ba", "", "aba.txt", false},
        {".txt", "*", "", "anything.txt", true},
        {".txt", "* *a", "", "a.txt", true},
        // An exclusion sees the whole name; a blank, an empty match and an invalid one keep nothing back.
        {".txt", "", "draft", "my DRAFT.txt", false},
        {".txt", "", "\\.txt$", "scan.txt", false},
        {".txt", "", "   ", "scan.txt", true},
        {".txt", "", "x*", "scan.txt", true},
        {".txt", "", "(", "scan.txt", true}};
    int number = 0;
    for (const auto& [extension, pattern, exclusion, bytes, matches] : rows) {
      const QString name = QString::fromUtf8(bytes), folder = u"in %1"_s.arg(++number);
      UploaderTask task;
      task.Extension = QString::fromUtf8(extension);
      task.FileName = QString::fromUtf8(pattern);
      task.setExclusionPattern(QString::fromUtf8(exclusion));
      QVERIFY2(task.FileNameMatch(name) == matches, bytes);
      // A look at a folder judges most names without this function, and must come to the same.
      home.writeFile(folder + u'/' + name, "patch data");
      task.inputFolder = home.item(folder);
      const bool taken = matches && name.endsWith(task.Extension, Qt::CaseInsensitive);
      QVERIFY2(task.EvaluateInputFolder().size() == (taken ? 1 : 0), bytes);
    }
  }

  void anExplodingExclusionKeepsTheFileBackAndIsNamed() {
    UploaderTask task;
    task.Name = u"Explosive"_s;
    task.Extension = u".txt"_s;
    task.setExclusionPattern(u"(a+)+$"_s);
    const QString name = QString(200, u'a') + u"!.txt"_s;
    QVERIFY(!task.FileNameMatch(name));
    const Problem problem = Problems::present().value(0);
    QVERIFY(problem.kind == Problem::Kind::ExclusionTooCostly && problem.subject == task.Name &&
            problem.detail == name);
    Problems::clear(Problem::Kind::ExclusionTooCostly, task.Name);
  }

  void underWhichNameAFileGoesOut() {
    const QDateTime moment(QDate(2024, 3, 11), QTime(9, 5, 7));
    const std::tuple<QString, bool, bool, QString, QString> rows[] = {
        // Prefix, replace the name, add the date, the name and what it becomes.
        {u"P"_s, true, true, u"scan.txt"_s, u"P_2024-03_09h5m7s_.txt"_s},
        {u"P"_s, false, true, u"scan.txt"_s, u"P_scan_2024-03_09h5m7s_.txt"_s},
        {u"P"_s, true, false, u"scan.txt"_s, u"P_scan.txt"_s},
        {u""_s, false, false, u"scan.txt"_s, u"scan.txt"_s},
        {u"P"_s, false, false, u"scan.txt"_s, u"P_scan.txt"_s},
        {u""_s, true, false, u"scan.txt"_s, u"scan.txt"_s},
        {u""_s, true, true, u"scan.txt"_s, u"2024-03_09h5m7s_.txt"_s},
        {u"scan"_s, false, false, u"Scan7.txt"_s, u"Scan7.txt"_s},
        {u""_s, false, true, u"a.b.c"_s, u"a.b_2024-03_09h5m7s_.c"_s},
        {u""_s, true, true, u"scan"_s, u"2024-03_09h5m7s_.scan"_s}};
    for (const auto& [prefix, replace, date, name, result] : rows) {
      UploaderTask task;
      task.Prefix = prefix;
      task.ReplaceName = replace;
      task.AddDateToFilename = date;
      QCOMPARE(task.Rename(name, Date::fromNanoseconds(moment.toMSecsSinceEpoch() * 1'000'000)), result);
    }
  }

  void theFirstFreeNumberComesBeforeANameThatIsTakenOften() {
    const TemporaryHome home;
    const auto distinct = [&home] {
      FolderItem item = home.item(u"scan.txt"_s);
      UploaderTask::DistinctName(item);
      return item.Name();
    };
    home.writeFile(u"scan.txt"_s, "x");
    for (int number = 1; number <= 60; ++number)
      if (number != 20 && number != 50) home.writeFile(u"%1 scan.txt"_s.arg(number), "x");
    // Of 50 none is there: not another's, not one of other digits, and none that only ends in the name.
    for (const QString& other : {u"50 scan.txt.txt"_s, u"050 scan.txt"_s, u"+50 scan.txt"_s, u"50 a scan.txt"_s})
      home.writeFile(other, "x");
    QCOMPARE(distinct(), u"20 scan.txt"_s);
    home.writeFile(u"20 scan.txt"_s, "x");
    QCOMPARE(distinct(), u"50 scan.txt"_s);
    home.makeFolder(u"50 scan.txt"_s);
    QCOMPARE(distinct(), u"61 scan.txt"_s);
  }
};

VANTRY_TEST(tst_TaskNames);
#include "tst_TaskNames.moc"
