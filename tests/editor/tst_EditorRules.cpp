// The editor's rules, without a window: what may be saved, and the rows of the dependent lists.

#include "EditorFixture.h"
#include "editor/EditorRules.h"
#include "editor/SampleText.h"
#include "editor/TrackChoices.h"

using namespace Qt::Literals::StringLiterals;
using TrackChoices::Kind;
constexpr Kind Print = Kind::Print, Instrument = Kind::Instrument;

class tst_EditorRules : public QObject {
  Q_OBJECT
 private slots:
  void whatBlocksSaving() {
    using enum FolderState;
    const QString name = u"Press"_s;
    const struct {
      const char* label;
      FormState form;
      SaveCheck check;
    } rows[] = {
        {"all is there", {name, There, false, true, true}, {false, false, false, false, true}},
        {"a name of blanks", {u" \t\n"_s, There, false, true, true}, {true, false, false, false, false}},
        {"no input folder", {name, None, false, true, true}, {false, true, false, false, false}},
        {"it is gone", {name, Missing, false, true, true}, {false, true, false, false, false}},
        {"it doesn't answer", {name, NoAnswer, false, true, true}, {false, true, false, false, false}},
        {"not known yet: no red, no OK", {name, Asking, false, true, true}, {false, false, false, false, false}},
        {"no press", {name, There, false, false, true}, {false, false, true, false, false}},
        {"no track", {name, There, false, true, false}, {false, false, false, true, false}},
        {"auto recognition needs neither", {name, There, true, false, false}, {false, false, false, false, true}},
        {"nothing at all", {}, {true, true, true, true, false}}};
    for (const auto& row : rows) QVERIFY2(checkCanSave(row.form) == row.check, row.label);
  }

  void storedTextsFoldersAndPatterns() {
    const std::tuple<QString, int, int> texts[] = {{u"PRINT"_s, 0, 0}, {u"Instrument"_s, 1, 0}, {u"Druck"_s, 1, 0},
                                                   {u""_s, 1, 0},      {u".QTX"_s, 1, 10},      {u"xml"_s, 1, 0}};
    for (const auto& [stored, warden, extension] : texts)
      QVERIFY2(wardenRow(stored) == warden && extensionRow(stored) == extension, qPrintable(stored));
    const std::pair<QString, bool> folders[] = {
        {u"/data/in"_s, true}, {u"/Data/IN"_s, true}, {u"/data/in/out"_s, false}, {u""_s, false}};
    for (const auto& [other, same] : folders)
      QCOMPARE(isSameFolder(*FolderItem::fromNativePath(u"/data/in"_s), FolderItem::fromNativePath(other)), same);
    const std::pair<QString, int> patterns[] = {
        {u"   "_s, 0}, {u"^draft|\\.tmp$"_s, 0}, {u"ab(c"_s, 5}, {u"  *a"_s, 3}};  // the place of the error, from 1
    for (const auto& [pattern, place] : patterns) {
      const auto error = exclusionError(pattern);
      QCOMPARE(error ? static_cast<int>(error->at) + 1 : 0, place);
      if (error) QVERIFY2(error->message.endsWith(u"at character %1"_s.arg(place)), qPrintable(error->message));
    }
  }

  void rowsOfADevice() {
    const EditorFixture fixture;
    const std::tuple<Kind, QString, QString> rows[] = {{Print, u"xl"_s, u"Coated=xl-coated Plain=xl-plain"_s},
                                                       {Print, u"SM"_s, u"Coated=sm-coated"_s},
                                                       {Print, u"GTO"_s, {}},
                                                       {Print, u" "_s, {}},
                                                       {Instrument, u"Spectro 2"_s, u"Tile 7=s2-tile"_s},
                                                       {Instrument, u"XL"_s, {}}};
    for (const auto& [kind, device, wanted] : rows) {
      QStringList shown;
      for (const TrackChoices::Target& target : TrackChoices::targets(kind, device))
        shown << target.text + u'=' + target.workflowName;
      QCOMPARE(shown.join(u' '), wanted);
    }
  }

  void selectionsOfAWorkflow() {
    const EditorFixture fixture;
    const struct {
      Kind kind;
      QString workflow, filling, opened;  // rows of device and target
    } rows[] = {{Print, u"XL-PLAIN"_s, u"0 1"_s, u"0 1"_s},
                {Print, u"sm-coated"_s, u"-1 -1"_s, u"1 0"_s},  // its press has another name than its device
                {Instrument, u"s2-tile"_s, u"1 0"_s, u"1 0"_s},
                {Instrument, u"xl-plain"_s, u"-1 -1"_s, u"-1 -1"_s},
                {Print, u"old"_s, u"-1 -1"_s, u"-1 -1"_s},
                {Print, u""_s, u"-1 -1"_s, u"-1 -1"_s}};
    for (const auto& row : rows) {
      const QStringList devices = TrackChoices::devices(row.kind);
      const int filling = TrackChoices::deviceWhileFilling(row.kind, devices, row.workflow);
      const int opened = TrackChoices::deviceOfTask(row.kind, devices, row.workflow);
      const auto targets = [&](int device) { return TrackChoices::targets(row.kind, devices.value(device)); };
      const auto both = [](int device, int target) { return u"%1 %2"_s.arg(device).arg(target); };
      QCOMPARE(both(filling,
                    TrackChoices::targetWhileFilling(row.kind, devices.value(filling), targets(filling), row.workflow)),
               row.filling);
      QCOMPARE(both(opened, TrackChoices::targetOfTask(row.kind, targets(opened), row.workflow)), row.opened);
    }
    // Of rows that match twice the last wins while the lists fill, and the first as a task is opened.
    const QList<TrackChoices::Target> twice{{u"a"_s, u"xl-plain"_s}, {u"b"_s, u"xl-plain"_s}};
    QCOMPARE(TrackChoices::targetWhileFilling(Print, u"XL"_s, twice, u"xl-plain"_s), 1);
    QCOMPARE(TrackChoices::targetOfTask(Print, twice, u"xl-plain"_s), 0);
    QCOMPARE(TrackChoices::deviceWhileFilling(Print, {u"XL"_s, u"xl"_s}, u"xl-plain"_s), 1);
    QCOMPARE(TrackChoices::deviceOfTask(Print, {u"XL"_s, u"xl"_s}, u"xl-plain"_s), 0);
  }

  void wordsOfASample() {
    const std::tuple<int, int, QString> rows[] = {{0, 0, u"There are no files in the input folder"_s},
                                                  {0, 1, u"The only file doesn't match"_s},
                                                  {1, 0, u"The only file matches: 0.txt"_s},
                                                  {0, 30, u"None of the 30 files matches"_s},
                                                  {3, 38, u"3 of 41 files match: 0.txt, 1.txt, 2.txt"_s},
                                                  {4, 0, u"4 of 4 files match: 0.txt, 1.txt, 2.txt, …"_s}};
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
    fixture.type("TaskName", u"Press 2"_s);
    QTRY_COMPARE(fixture.sample(), u"3 of 6 files match: a.txt, b.txt, draft.txt"_s);
    fixture.type("FileNameExclusion", u"^draft"_s);
    QTRY_COMPARE(fixture.sample(), u"2 of 6 files match: a.txt, b.txt"_s);
    QVERIFY(reasons().contains(u"draft.txt – excluded"_s));
    fixture.type("TaskName", u"Press 1"_s);
    QTRY_COMPARE(fixture.sample(), u"1 of 6 files match: a.txt"_s);
    const BoxAnswer yes(QMessageBox::Yes);
    fixture.press("ClearProcessDateStampButton");
    QTRY_COMPARE(fixture.sample(), u"2 of 6 files match: a.txt, b.txt"_s);
    fixture.type("FileName", u"b"_s);
    QTRY_COMPARE(fixture.sample(), u"1 of 6 files match: b.txt"_s);
    fixture.list("Extension")->setCurrentIndex(5);
    QTRY_COMPARE(fixture.sample(), u"None of the 6 files matches"_s);
    fixture.press("ClearInputButton");
    QCOMPARE(fixture.sample(), QString());
    QVERIFY(!fixture.control("Sample")->accessibleName().isEmpty());
    QVERIFY(fixture.control("Sample")->geometry().bottom() < 594 && fixture.control("Sample")->y() > 571);
  }
};

VANTRY_TEST(tst_EditorRules);
#include "tst_EditorRules.moc"
