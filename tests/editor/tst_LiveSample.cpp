// The live sample of the editor: its words, and that it follows the form.

#include "EditorFixture.h"
#include "editor/SampleText.h"

using namespace Qt::Literals::StringLiterals;

class tst_LiveSample : public QObject {
  Q_OBJECT
 private slots:
  void wordsOfASample() {
    const std::tuple<int, int, QString> rows[] = {{0, 0, u"There are no files in the input folder"_s},
                                                  {0, 30, u"None of the 30 files matches"_s},
                                                  {3, 38, u"3 of 41 files match: 0.txt, 1.txt, 2.txt"_s}};
    for (const auto& [matching, others, line] : rows) {
      FolderSample sample;
      sample.files = matching + others;
      sample.matching = matching;
      for (int i = 0; i < qMin(matching, FolderSample::MostMatching); ++i) sample.firstMatching << u"%1.txt"_s.arg(i);
      for (int i = 0; i < qMin(others, FolderSample::MostOthers); ++i)
        sample.others.push_back({QByteArray::number(i), Verdict::Ending});
      QCOMPARE(sampleLine(sample), line);
      QCOMPARE(sampleDetails(sample).isEmpty(), others == 0);
      QCOMPARE(sampleDetails(sample).contains(u"and 10 more"_s), others == 30);
      sample.firstMatching = {u"a\n\u202Etxt.b"_s + QString(300, u'x')};  // a name that dresses up as text
      const QString dressed = sampleLine(sample);
      QVERIFY(!dressed.contains(u'\n') && !dressed.contains(QChar(0x202E)) && dressed.size() < 120);
    }
  }

  void theSampleFollowsWhatIsTyped() {
    EditorFixture fixture;
    for (const QString& name : {u"a.txt"_s, u"b.txt"_s, u"draft.txt"_s, u"c.csv"_s, u".hidden.txt"_s})
      fixture.home.writeFile(u"in/"_s + name, "x", name == u"b.txt"_s ? 5000 : 100);
    fixture.home.writeFile(u"in/empty.txt"_s, "");
    fixture.home.makeFolder(u"in/folder.txt"_s);
    const TaskPointer task = fixture.storedTask();
    task->updateDateLimit(false, Date().TotalSeconds() - 1000);
    fixture.open(task);
    const auto reasons = [&fixture] { return fixture.control("Sample")->toolTip(); };
    QTRY_COMPARE(fixture.sample(), u"2 of 6 files match: a.txt, draft.txt"_s);
    for (const QString& reason : {u"c.csv – another ending"_s, u".hidden.txt – hidden"_s, u"empty.txt – empty"_s,
                                  u"b.txt – not changed since"_s})
      QVERIFY2(reasons().contains(reason), qPrintable(reasons()));
    fixture.type("FileNameExclusion", u"^draft"_s);
    QTRY_COMPARE(fixture.sample(), u"1 of 6 files match: a.txt"_s);
    QVERIFY(reasons().contains(u"draft.txt – excluded"_s));
    const BoxAnswer yes(QMessageBox::Yes);
    fixture.press("ClearProcessDateStampButton");
    QTRY_COMPARE(fixture.sample(), u"2 of 6 files match: a.txt, b.txt"_s);
    fixture.type("FileName", u"b"_s);
    QTRY_COMPARE(fixture.sample(), u"1 of 6 files match: b.txt"_s);
    fixture.list("Extension")->setCurrentIndex(5);
    QTRY_COMPARE(fixture.sample(), u"None of the 6 files matches"_s);
    fixture.press("ClearInputButton");
    QCOMPARE(fixture.sample(), QString());
  }
};

VANTRY_TEST(tst_LiveSample);
#include "tst_LiveSample.moc"
