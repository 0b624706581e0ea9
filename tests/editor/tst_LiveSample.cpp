// The live sample of the editor: its words, and that it follows the form.

#include "EditorFixture.h"

using namespace Qt::Literals::StringLiterals;

class tst_LiveSample : public QObject {
  Q_OBJECT
 private slots:
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
    QTRY_COMPARE(fixture.sample(), u"1 of 6 files matches: a.txt"_s);
    QVERIFY(reasons().contains(u"draft.txt – excluded"_s));
    const BoxAnswer yes(QMessageBox::Yes);
    fixture.press("ClearProcessDateStampButton");
    QTRY_COMPARE(fixture.sample(), u"2 of 6 files match: a.txt, b.txt"_s);
    fixture.type("FileName", u"b"_s);
    QTRY_COMPARE(fixture.sample(), u"1 of 6 files matches: b.txt"_s);
    fixture.list("Extension")->setCurrentIndex(5);
    QTRY_COMPARE(fixture.sample(), u"None of the 6 files matches"_s);
    fixture.list("Extension")->setCurrentIndex(0);
    fixture.home.writeFile(u"in/b\n\u202Etxt.b"_s + QString(200, u'x') + u".txt"_s, "x");  // dresses up as text
    fixture.type("FileName", u"b*"_s);
    QTRY_VERIFY(fixture.sample().startsWith(u"2 of 7 files match: b"_s));
    QVERIFY(!fixture.sample().contains(u'\n') && !fixture.sample().contains(QChar(0x202E)));
    fixture.press("ClearInputButton");
    QCOMPARE(fixture.sample(), QString());
  }
};

VANTRY_TEST(tst_LiveSample);
#include "tst_LiveSample.moc"
