// The editor's form, offscreen, by object name: its colours, lists and catalogues, and the live sample.

#include <semaphore>

#include "EditorFixture.h"
#include "practice/PracticeService.h"
#include "service/VantryUtil.h"

using namespace Qt::Literals::StringLiterals;

class tst_EditTaskWindow : public QObject {
  Q_OBJECT
 private slots:
  void whatIsRedAndTheCuesCanBeReadOnADarkGround() {
    EditorFixture fixture;
    QPalette dark(QColor(50, 50, 50), QColor(40, 40, 40));
    dark.setColor(QPalette::Text, Qt::white);
    fixture.openNew().setPalette(dark);
    QVERIFY(fixture.control("TaskNameLabel")->palette().color(QPalette::WindowText).lightness() > 150);
    const QPalette field = fixture.control("FileNameExclusion")->palette();
    QCOMPARE(field.color(QPalette::PlaceholderText), QColor(255, 255, 255, 128));
  }

  void theListsFollowTheKindAndAutoRecognitionNeedsNone() {
    EditorFixture fixture;
    fixture.open(fixture.storedTask([](UploaderTask& t) { t.Track = u"sm-coated"_s; }));
    QCOMPARE(fixture.list("TrackList1")->currentText() + fixture.list("TrackList2")->currentText(), u"SMCoated"_s);
    fixture.tick("AutoRecognition");
    QVERIFY(!fixture.enabled("TrackList1") && !fixture.enabled("TrackList2"));
    QVERIFY2(fixture.save()->Track.isEmpty(), "auto recognition stores no track");

    auto* const devices = fixture.open(fixture.storedTask()).findChild<QComboBox*>(u"TrackList1"_s);
    auto* const targets = fixture.list("TrackList2");
    fixture.list("Warden")->setCurrentIndex(1);
    QCOMPARE(devices->itemText(1), u"Spectro 2"_s);
    QVERIFY(devices->currentIndex() == -1 && targets->count() == 0);
    QVERIFY(fixture.isRed("SelectTrackLabel") && fixture.isRed("SelectTargetLabel") && !fixture.canSave());
    devices->setCurrentIndex(0);
    QVERIFY(!fixture.isRed("SelectTrackLabel") && fixture.isRed("SelectTargetLabel"));
    targets->setCurrentIndex(1);
    QCOMPARE(targets->currentData().toString(), u"s1-card"_s);
    QTRY_VERIFY(fixture.canSave());
    fixture.list("Warden")->setCurrentIndex(0);
    QCOMPARE(targets->currentText(), u"Plain"_s);

    fixture.open(fixture.storedTask([](UploaderTask& t) {
      t.Track = u"gone"_s;
      t.Extension = u".QTX"_s;
    }));
    QVERIFY(fixture.list("TrackList1")->currentIndex() == -1 && fixture.list("Extension")->currentText() == u".qtx"_s);
    QVERIFY(fixture.isRed("SelectTrackLabel") && !fixture.canSave());
  }

  void ofRowsThatDifferInCaseTheFirstStands() {
    EditorFixture fixture;
    QList<VTTrack> tracks;
    for (const char* const name : {"Plain", "straße", "É", "pLAIN", "STRASSE", "é", "plain", "Last", ""}) {
      tracks << VTTrack();
      tracks.last().Device = tracks.size() % 2 ? u"Press"_s : u"pRESS"_s;
      tracks.last().TrackName = QString::fromUtf8(name);
      tracks.last().TrackWorkflowName = QString::number(tracks.size());
    }
    tracks << tracks.first();
    tracks.last().Device = u"Another"_s;
    VTTrack::setTracks(tracks);
    QStringList rows;
    for (const auto& row : TrackChoices::targets(TrackChoices::Kind::Print, u"PRESS"_s))
      rows << row.text + u'=' + row.workflowName;
    QCOMPARE(rows.join(u' '), u"Plain=1 straße=2 É=3 STRASSE=5 Last=8 =9"_s);
  }

  void anEmptyCatalogueSaysWhyAndIsFetched() {
    EditorFixture fixture;
    VTTrack::setTracks({});
    const auto reason = [&](const char* list = "TrackList1") { return fixture.list(list)->toolTip(); };
    fixture.openNew();
    QVERIFY(reason().contains(u"no login is stored"_s) && !fixture.enabled("ClearProcessDateStampButton"));
    std::atomic<bool> asked = false;
    std::binary_semaphore answer(0);
    PracticeService service;
    QVERIFY(service.start());
    VantryUtil::setExtraCaFile(service.caFile());
    VantryUtil::setAccountURL(u"https://localhost:1/api"_s);
    VantryUtil::prefs->setStringValue(u"SoapLogin"_s, PracticeService::Options().login);
    VantryUtil::prefs->setStringValue(u"SoapPassword"_s, PracticeService::Options().password);
    const TaskPointer task = fixture.storedTask([](UploaderTask& t) { t.Track = PracticeService::knownPrintTrack(); });
    fixture.open(task);
    QVERIFY(reason().contains(u"being fetched"_s));
    QTRY_VERIFY_WITH_TIMEOUT(reason().contains(u"could not be fetched"_s), 60'000);
    QVERIFY(reason("TrackList2").contains(u"localhost"_s));
    VantryUtil::setAccountURL(service.url());
    fixture.open(task);
    QTRY_VERIFY_WITH_TIMEOUT(fixture.list("TrackList1")->count() > 0, 60'000);
    QVERIFY(reason().isEmpty());
    QCOMPARE(fixture.list("TrackList2")->currentData().toString(), PracticeService::knownPrintTrack());
    QTRY_VERIFY(fixture.canSave());

    // A track that is chosen before the editor's own fetch ends stays.
    const QList<VTTrack> known = VTTrack::Tracks();
    service.whenBodyReaches(
        1, [&] { asked = true, (void)answer.try_acquire_for(std::chrono::minutes(2)); }, "TrackList");
    VTTrack::setTracks({});
    fixture.open(task);
    QTRY_VERIFY(asked);
    VTTrack::setTracks(known);
    for (const int kind : {1, 0}) fixture.list("Warden")->setCurrentIndex(kind);
    const int other = fixture.list("TrackList1")->currentIndex() == 0 ? 1 : 0;
    fixture.list("TrackList1")->setCurrentIndex(other);
    answer.release();
    QVERIFY(BackgroundCall::waitForAll(60'000));
    QCoreApplication::processEvents();
    QCOMPARE(fixture.list("TrackList1")->currentIndex(), other);
    QVERIFY(VTTrack::everFetched());
    VantryUtil::setAccountURL({});
    VantryUtil::setExtraCaFile({});
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

VANTRY_TEST(tst_EditTaskWindow);
#include "tst_EditTaskWindow.moc"
