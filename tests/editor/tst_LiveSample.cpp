// The live sample: what the rules select in a folder now, and its words.

#include "EditorFixture.h"
#include "HangingShare.h"
#include "editor/SampleText.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;

class tst_LiveSample : public QObject {
  Q_OBJECT

  static FolderSample sampleOf(int matching, int others) {
    FolderSample sample;
    sample.files = matching + others;
    sample.matching = matching;
    for (int i = 0; i < qMin(matching, FolderSample::MostMatching); ++i) sample.firstMatching << u"%1.txt"_s.arg(i);
    for (int i = 0; i < qMin(others, FolderSample::MostOthers); ++i)
      sample.others.push_back({QByteArray::number(i), Verdict::Ending});
    return sample;
  }

 private slots:
  void words_data() {
    QTest::addColumn<int>("matching");
    QTest::addColumn<int>("others");
    QTest::addColumn<QString>("line");
    QTest::newRow("an empty folder") << 0 << 0 << u"There are no files in the input folder"_s;
    QTest::newRow("none of one") << 0 << 1 << u"The only file doesn't match"_s;
    QTest::newRow("one of one") << 1 << 0 << u"The only file matches: 0.txt"_s;
    QTest::newRow("none of many") << 0 << 30 << u"None of the 30 files matches"_s;
    QTest::newRow("three of many") << 3 << 38 << u"3 of 41 files match: 0.txt, 1.txt, 2.txt"_s;
    QTest::newRow("more than are named") << 4 << 0 << u"4 of 4 files match: 0.txt, 1.txt, 2.txt, …"_s;
  }
  void words() {
    QFETCH(int, matching);
    QFETCH(int, others);
    const FolderSample sample = sampleOf(matching, others);
    QTEST(sampleLine(sample), "line");
    const QString details = sampleDetails(sample);
    QCOMPARE(details.isEmpty(), others == 0);
    QCOMPARE(details.contains(u"and 10 more"_s), others == 30);
  }

  void namesCannotDressUpAsText() {
    FolderSample sample = sampleOf(1, 0);
    sample.firstMatching = {u"a\n\u202Etxt.b"_s + QString(300, u'x')};
    const QString line = sampleLine(sample);
    QVERIFY(!line.contains(u'\n') && !line.contains(QChar(0x202E)) && line.size() < 120);
  }

  void theLineFollowsWhatIsTyped() {
    EditorFixture fixture;
    for (const QString& name : {u"a.txt"_s, u"b.txt"_s, u"draft.txt"_s, u"c.csv"_s, u".hidden.txt"_s})
      fixture.home.writeFile(u"in/"_s + name, "x", 100);
    fixture.home.writeFile(u"in/empty.txt"_s, "");
    fixture.home.makeFolder(u"in/folder.txt"_s);
    fixture.open(fixture.storedTask());
    const auto* const sample = fixture.control<LiveSample>("Sample");
    QTRY_COMPARE(sample->line(), u"3 of 6 files match: a.txt, b.txt, draft.txt"_s);
    for (const QString& reason : {u"c.csv – another ending"_s, u".hidden.txt – hidden"_s, u"empty.txt – empty"_s})
      QVERIFY2(sample->toolTip().contains(reason), qPrintable(sample->toolTip()));
    fixture.type("FileNameExclusion", u"^draft"_s);
    QTRY_COMPARE(sample->line(), u"2 of 6 files match: a.txt, b.txt"_s);
    QVERIFY(sample->toolTip().contains(u"draft.txt – excluded"_s));
    fixture.type("FileName", u"b"_s);
    QTRY_COMPARE(sample->line(), u"1 of 6 files match: b.txt"_s);
    fixture.list("Extension")->setCurrentIndex(5);
    QTRY_COMPARE(sample->line(), u"None of the 6 files matches"_s);
    fixture.press("ClearInputButton");
    QCOMPARE(sample->line(), QString());
    QVERIFY(sample->geometry().bottom() < 594 && sample->geometry().top() > 571);
  }

  void theDateLimitOfTheNameCounts() {
    EditorFixture fixture;
    fixture.home.writeFile(u"in/old.txt"_s, "x", 5000);
    fixture.home.writeFile(u"in/new.txt"_s, "x", 100);
    const TaskPointer task = fixture.storedTask();
    task->updateDateLimit(false, Date().TotalSeconds() - 1000);
    fixture.open(task);
    const auto* const sample = fixture.control<LiveSample>("Sample");
    QTRY_COMPARE(sample->line(), u"1 of 2 files match: new.txt"_s);
    QVERIFY(sample->toolTip().contains(u"old.txt – not changed since"_s));
    fixture.type("TaskName", u"Press 2"_s);
    QTRY_COMPARE(sample->line(), u"2 of 2 files match: new.txt, old.txt"_s);
    fixture.type("TaskName", u"Press 1"_s);
    QTRY_COMPARE(sample->line(), u"1 of 2 files match: new.txt"_s);
    const BoxAnswer yes(QMessageBox::Yes);
    fixture.press("ClearProcessDateStampButton");
    QTRY_COMPARE(sample->line(), u"2 of 2 files match: new.txt, old.txt"_s);
  }
};

VANTRY_TEST(tst_LiveSample);
#include "tst_LiveSample.moc"
