// The editor's form, offscreen, by object name: its controls, keys, lists and colours.

#include <semaphore>

#include "EditorFixture.h"
#include "practice/PracticeService.h"
#include "service/VantryUtil.h"

using namespace Qt::Literals::StringLiterals;

class tst_EditTaskWindow : public QObject {
  Q_OBJECT
 private slots:
  void theKeyboardReachesEveryControlByNameAndTab() {
    EditorFixture fixture;
    const EditTaskWindow& dialog = fixture.openNew();
    QCOMPARE(controlsWithoutName(dialog), QStringList());
    QStringList order, off;
    for (const QWidget* w = fixture.control("TaskName"); !order.contains(w->objectName()); w = w->nextInFocusChain()) {
      if (w->parentWidget() != &dialog || !(w->focusPolicy() & Qt::TabFocus)) continue;
      order << w->objectName();
      if (!w->isEnabled()) off << w->objectName();
    }
    QCOMPARE(order.join(u' '),
             u"TaskName TaskDescription Warden FileName Extension FileNameExclusion AutoRecognition TrackList1 "
             "InputFolder InputFolderSetButton OutputFolder OutputFOlderSetButton Prefix AddDateToFileNameCheckBox "
             "DeleteFileAfterCopyCheckBox OkButton CancelDialogButton FileRecognitionHelpButton TrackList2 "
             "ClearInputButton AutoMountInput TestAutoMountInput inputFolderUrl inputLogin InputPassword "
             "ClearOutPutButton autoMountOutput TestAutoMountOUtput OutputFolderURL outputLogin outputPassword "
             "ReplaceName DisableTaskButton ClearProcessDateStampButton"_s);
    QCOMPARE(off.join(u' '),
             u"OkButton TestAutoMountInput inputFolderUrl inputLogin InputPassword TestAutoMountOUtput "
             "OutputFolderURL outputLogin outputPassword ClearProcessDateStampButton"_s);
    QTest::keyClick(fixture.control("TaskDescription"), Qt::Key_Tab);
    QVERIFY(fixture.control<QPlainTextEdit>("TaskDescription")->toPlainText().isEmpty());
    for (const char* const field : {"InputPassword", "outputPassword"})
      QCOMPARE(fixture.control<QLineEdit>(field)->echoMode(), QLineEdit::Password);
  }

  void whatIsRedAndTheCuesCanBeReadOnADarkGround() {
    EditorFixture fixture;
    QPalette dark(QColor(50, 50, 50), QColor(40, 40, 40));
    for (const auto role : {QPalette::Text, QPalette::WindowText}) dark.setColor(role, Qt::white);
    dark.setColor(QPalette::PlaceholderText, QColor(0, 0, 0, 128));
    fixture.openNew().setPalette(dark);
    const auto colour = [&] { return fixture.control("TaskNameLabel")->palette().color(QPalette::WindowText); };
    QVERIFY(colour().red() == 255 && colour().lightness() > 150);
    fixture.type("TaskName", u"Press"_s);
    QCOMPARE(colour(), QColor(Qt::white));
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
    QVERIFY(reason().contains(u"no login is stored"_s));
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
};

VANTRY_TEST(tst_EditTaskWindow);
#include "tst_EditTaskWindow.moc"
