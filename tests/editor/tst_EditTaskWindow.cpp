// The editor's form, offscreen, by object name: its controls, keys, lists and colours.

#include <QDesktopServices>
#include <QTranslator>
#include <stdexcept>

#include "EditorFixture.h"
#include "build_settings.h"
#include "platform/Languages.h"
#include "practice/PracticeService.h"
#include "service/VantryUtil.h"

using namespace Qt::Literals::StringLiterals;

/// Throws once, at the n-th text that is looked up, as a machine without memory would.
class FailingTranslator : public QTranslator {
 public:
  [[nodiscard]] bool isEmpty() const override { return false; }
  [[nodiscard]] QString translate(const char*, const char*, const char*, int) const override {
    if (m_left-- == 0) throw std::runtime_error("planted");
    return {};
  }
  void failAt(int lookUp) { m_left = lookUp; }

 private:
  mutable int m_left = -1;
};

class tst_EditTaskWindow : public QObject {
  Q_OBJECT

  QList<QUrl> m_opened;

 public slots:
  void noteUrl(const QUrl& url) { m_opened << url; }

 private slots:
  void everyControlStandsInItsPlaceAndItsTextFits() {
    const struct {
      const char* name;
      QRect place;
      const char* caption;
    } rows[] = {{"TaskNameLabel", {20, 20, 228, 20}, "Task Name"},
                {"TaskName", {20, 44, 228, 22}, ""},
                {"TaskDescriptionLabel", {20, 76, 228, 20}, "Task Description"},
                {"TaskDescription", {20, 98, 228, 68}, ""},
                {"wardenLabel", {20, 172, 228, 20}, "Warden"},
                {"Warden", {20, 196, 228, 20}, ""},
                {"Separator5", {13, 239, 235, 4}, ""},
                {"FileRecognitionHelpButton", {20, 255, 22, 22}, "?"},
                {"FileNameLabel", {47, 255, 201, 20}, "File Name Recognition"},
                {"FileName", {20, 279, 228, 22}, ""},
                {"ExtensionLabel", {20, 309, 85, 20}, "Extension"},
                {"Extension", {20, 333, 85, 20}, ""},
                {"FileNameExclusionLabel", {20, 365, 201, 20}, "File Name Exclusion"},
                {"FileNameExclusion", {20, 389, 228, 22}, ""},
                {"Separator6", {20, 423, 235, 4}, ""},
                {"AutoRecognition", {20, 444, 228, 20}, "Auto Recognition"},
                {"SelectTrackLabel", {20, 473, 228, 20}, "Select Press"},
                {"TrackList1", {20, 496, 228, 20}, ""},
                {"SelectTargetLabel", {20, 528, 228, 20}, "Select Track"},
                {"TrackList2", {20, 551, 228, 20}, ""},
                {"Separator2", {260, 20, 7, 547}, ""},
                {"inputFolderLabel", {280, 19, 87, 20}, "Input Folder"},
                {"InputFolderSetButton", {424, 20, 49, 20}, "Set"},
                {"InputFolder", {280, 44, 194, 22}, ""},
                {"ClearInputButton", {485, 46, 49, 20}, "Clear"},
                {"AutoMountInput", {279, 78, 106, 20}, "Auto Mount"},
                {"TestAutoMountInput", {485, 76, 49, 20}, "Test"},
                {"inputFolderURLLabel", {280, 100, 169, 20}, "Input Folder URL"},
                {"inputFolderUrl", {280, 124, 254, 22}, ""},
                {"inputLoginLabel", {281, 153, 121, 20}, "Input Login"},
                {"inputLogin", {281, 176, 121, 22}, ""},
                {"inputPasswordLabel", {414, 153, 121, 20}, "Input Password"},
                {"InputPassword", {414, 175, 121, 22}, ""},
                {"Separator3", {281, 210, 255, 4}, ""},
                {"outputFolderLabel", {281, 224, 87, 20}, "Output Folder"},
                {"OutputFOlderSetButton", {429, 224, 49, 20}, "Set"},
                {"OutputFolder", {281, 248, 194, 22}, ""},
                {"ClearOutPutButton", {486, 249, 49, 20}, "Clear"},
                {"autoMountOutput", {280, 282, 100, 20}, "Auto Mount"},
                {"TestAutoMountOUtput", {486, 280, 49, 20}, "Test"},
                {"outputfolderURLLabel", {280, 309, 169, 20}, "Output Folder URL"},
                {"OutputFolderURL", {280, 333, 254, 22}, ""},
                {"outputLoginLabel", {280, 365, 121, 20}, "Output Login"},
                {"outputLogin", {280, 389, 121, 22}, ""},
                {"outputPasswordLabel", {413, 365, 121, 20}, "Output Password"},
                {"outputPassword", {413, 389, 121, 22}, ""},
                {"Separator4", {280, 423, 255, 4}, ""},
                {"ReplaceName", {280, 439, 250, 20}, "Replace Name"},
                {"PrefixLabel", {280, 464, 180, 20}, "Prefix"},
                {"Prefix", {280, 488, 218, 22}, ""},
                {"AddDateToFileNameCheckBox", {280, 522, 228, 20}, "Add Date to File Name"},
                {"DeleteFileAfterCopyCheckBox", {280, 547, 228, 20}, "Delete File After Copy"},
                {"Separator1", {20, 594, 494, 8}, ""},
                {"DisableTaskButton", {20, 614, 119, 20}, "Disable Task"},
                {"ClearProcessDateStampButton", {151, 614, 179, 20}, "Clear Process Date Stamp"},
                {"CancelDialogButton", {342, 614, 80, 20}, "Cancel"},
                {"OkButton", {434, 614, 80, 20}, "OK"}};
    for (const int pixels : {12, 22}) {
      const FontSize font(pixels);
      EditorFixture fixture;
      QCOMPARE(fixture.openNew().size(), QSize(555, 654));
      for (const auto& row : rows) {
        const QWidget* const control = fixture.control(row.name);
        QVERIFY2(control->geometry() == row.place && captionOf(*control) == QLatin1String(row.caption), row.name);
        if (!*row.caption) continue;
        const QFontMetrics metrics = control->fontMetrics();
        const int beside = qobject_cast<const QCheckBox*>(control) ? 20 : 0;
        QVERIFY2(metrics.horizontalAdvance(captionOf(*control)) + beside <= control->width(), row.name);
        QVERIFY2(metrics.height() <= control->height(), row.name);
      }
    }
  }

  void aNewFormStartsEmpty() {
    EditorFixture fixture;
    EditTaskWindow& dialog = fixture.openNew();
    QCOMPARE(dialog.minimumSize(), dialog.maximumSize());
    QVERIFY(!dialog.windowFlags().testFlag(Qt::WindowCloseButtonHint));
    for (const QLineEdit* const field : dialog.findChildren<QLineEdit*>())
      QCOMPARE(field->text(), qobject_cast<const folderField*>(field) ? u"n/a"_s : QString());
    const auto rows = [&fixture](const char* name) {
      QStringList texts{QString::number(fixture.list(name)->currentIndex())};
      for (int i = 0; i < fixture.list(name)->count(); ++i) texts << fixture.list(name)->itemText(i);
      return texts.join(u' ');
    };
    QCOMPARE(rows("Warden"), u"0 Print Instrument"_s);
    QCOMPARE(rows("Extension"), u"0 .txt .xml .it8 .svf .cxf .csv .clf2 .mxf .jxf .pmv .qtx"_s);
    QCOMPARE(rows("TrackList1") + rows("TrackList2"), u"-1 XL SM-1"_s);
    for (const char* const label : {"TaskNameLabel", "inputFolderLabel", "SelectTrackLabel", "SelectTargetLabel"})
      QVERIFY2(fixture.isRed(label), label);
    for (const char* const label : {"outputFolderLabel", "wardenLabel"}) QVERIFY2(!fixture.isRed(label), label);
    QCOMPARE(fixture.control<QLineEdit>("InputPassword")->echoMode(), QLineEdit::Password);
  }

  void theKeyboardReachesEveryControlByNameTabAndLetter() {
    EditorFixture fixture;
    EditTaskWindow& dialog = fixture.openNew();
    QCOMPARE(controlsWithoutName(dialog), QStringList());
    QStringList order, off;
    QSet<const QWidget*> seen;
    for (const QWidget* w = fixture.control("TaskName"); !seen.contains(w); w = w->nextInFocusChain()) {
      seen.insert(w);
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
    for (const int warden : {0, 1, 0}) {
      fixture.list("Warden")->setCurrentIndex(warden);
      QStringList letters;
      for (const QLabel* const label : dialog.findChildren<QLabel*>()) letters << label->text();
      for (const QAbstractButton* const button : dialog.findChildren<QAbstractButton*>()) letters << button->text();
      for (QString& text : letters) text = QKeySequence::mnemonic(text).toString();
      letters.removeAll(QString());
      QVERIFY(letters.removeDuplicates() == 0 && letters.size() >= 18);
    }
  }

  void redStaysReadableOnADarkGround() {
    EditorFixture fixture;
    QPalette dark(QColor(50, 50, 50), QColor(40, 40, 40));
    dark.setColor(QPalette::WindowText, Qt::white);
    fixture.openNew().setPalette(dark);
    const auto colour = [&] { return fixture.control("TaskNameLabel")->palette().color(QPalette::WindowText); };
    QVERIFY(colour().red() == 255 && colour().lightness() > 150);
    fixture.type("TaskName", u"Press"_s);
    QCOMPARE(colour(), QColor(Qt::white));
    fixture.dialog().setPalette(QApplication::palette());
    fixture.type("TaskName", {});
    QVERIFY(fixture.isRed("TaskNameLabel"));
  }

  void returnIsOkAndEscapeIsCancel() {
    EditorFixture fixture;
    EditTaskWindow& dialog = fixture.open(fixture.storedTask());
    fixture.type("TaskName", u" "_s);
    QTest::keyClick(fixture.control("TaskName"), Qt::Key_Return);
    QVERIFY2(dialog.isVisible(), "a disabled OK answers no key");
    fixture.type("TaskName", u"Renamed"_s);
    QTRY_VERIFY(fixture.canSave());
    QTest::keyClick(fixture.control("TaskDescription"), Qt::Key_Return);
    QCOMPARE(fixture.control<QPlainTextEdit>("TaskDescription")->toPlainText(), u"\n"_s);
    QTest::keyClick(fixture.control("InputFolderSetButton"), Qt::Key_Return);
    QVERIFY(!dialog.isVisible() && dialog.Result);
    QCOMPARE(UploaderTask::allTasks().first()->Name, u"Renamed"_s);
    EditTaskWindow& second = fixture.open(UploaderTask::allTasks().first());
    QTest::keyClick(fixture.control("Prefix"), Qt::Key_Escape);
    QVERIFY(!second.isVisible() && !second.Result);
  }

  void openingShowsTheTask() {
    EditorFixture fixture;
    const TaskPointer task = fixture.storedTask([](UploaderTask& t) {
      t.Name = u" Press 1 "_s;
      t.Description = u"two\nlines"_s;
      t.FileName = u" scan*"_s;
      t.Extension = u".CSV"_s;
      t.setExclusionPattern(u" draft "_s);
      t.Prefix = u" P"_s;
      t.ReplaceName = t.DeleteAfterSave = t.disabled = true;
    });
    fixture.open(task);
    QVERIFY(task->Busy);
    QStringList shown{fixture.control<QPlainTextEdit>("TaskDescription")->toPlainText()};
    for (const char* const field : {"TaskName", "FileName", "FileNameExclusion", "Prefix"})
      shown << fixture.text(field);
    for (const char* const list : {"Extension", "TrackList1", "TrackList2"}) shown << fixture.list(list)->currentText();
    for (const QCheckBox* const box : fixture.dialog().findChildren<QCheckBox*>())
      if (box->isChecked()) shown << box->objectName();
    QCOMPARE(shown.join(u'|'),
             u"two\nlines| Press 1 | scan*| draft | P|.csv|XL|Plain|ReplaceName|DeleteFileAfterCopyCheckBox|"
             "DisableTaskButton"_s);
    QTRY_VERIFY(fixture.canSave());
    fixture.press("CancelDialogButton");
    QVERIFY(!task->Busy);
  }

  void theListsFollowTheKind() {
    EditorFixture fixture;
    fixture.open(fixture.storedTask());
    fixture.list("Warden")->setCurrentIndex(1);
    QCOMPARE(captionOf(*fixture.control("SelectTrackLabel")), u"Select Instrument"_s);
    QCOMPARE(captionOf(*fixture.control("SelectTargetLabel")), u"Select Target"_s);
    QCOMPARE(fixture.list("TrackList1")->itemText(1), u"Spectro 2"_s);
    QVERIFY(fixture.list("TrackList1")->currentIndex() == -1 && fixture.list("TrackList2")->count() == 0);
    QVERIFY(fixture.isRed("SelectTrackLabel") && fixture.isRed("SelectTargetLabel") && !fixture.canSave());
    fixture.list("TrackList1")->setCurrentIndex(0);
    QVERIFY(!fixture.isRed("SelectTrackLabel") && fixture.isRed("SelectTargetLabel"));
    fixture.list("TrackList2")->setCurrentIndex(1);
    QCOMPARE(fixture.list("TrackList2")->currentData().toString(), u"s1-card"_s);
    QTRY_VERIFY(fixture.canSave());
    fixture.list("Warden")->setCurrentIndex(0);
    QCOMPARE(fixture.list("TrackList2")->currentText(), u"Plain"_s);
  }

  void autoRecognitionNeedsNoTrackAndAWorkflowThatIsGoneLeavesTheListsRed() {
    EditorFixture fixture;
    const TaskPointer task = fixture.storedTask([](UploaderTask& t) {
      t.AutoRecognition = true;
      t.Track = u"sm-coated"_s;
    });
    fixture.open(task);
    QVERIFY(!fixture.enabled("TrackList1") && !fixture.enabled("TrackList2"));
    QCOMPARE(fixture.list("TrackList1")->currentText() + fixture.list("TrackList2")->currentText(), u"SMCoated"_s);
    fixture.list("Warden")->setCurrentIndex(1);
    QTRY_VERIFY(fixture.canSave());
    fixture.tick("AutoRecognition", false);
    QVERIFY(fixture.enabled("TrackList1") && !fixture.canSave());
    fixture.tick("AutoRecognition");
    QVERIFY2(fixture.save()->Track.isEmpty(), "auto recognition stores no track");

    fixture.open(fixture.storedTask([](UploaderTask& t) { t.Track = u"gone"_s; }));
    QCOMPARE(fixture.list("TrackList1")->currentIndex(), -1);
    QVERIFY(fixture.isRed("SelectTrackLabel") && !fixture.canSave());
  }

  void anEmptyCatalogueSaysWhyAndIsFetched() {
    EditorFixture fixture;
    VTTrack::setTracks({});
    const auto reason = [&](const char* list = "TrackList1") { return fixture.list(list)->toolTip(); };
    fixture.openNew();
    QVERIFY(reason().contains(u"no login is stored"_s));
    PracticeService service;
    QVERIFY(service.start());
    VantryUtil::setExtraCaFile(service.caFile());
    VantryUtil::setAccountURL(u"https://localhost:1/api"_s);
    VantryUtil::prefs->setStringValue(u"SoapLogin"_s, PracticeService::Options().login);
    VantryUtil::prefs->setStringValue(u"SoapPassword"_s, PracticeService::Options().password);
    const TaskPointer task = fixture.storedTask([](UploaderTask& t) { t.Track = PracticeService::knownPrintTrack(); });
    fixture.open(task);
    QVERIFY(reason().contains(u"being fetched"_s));
    QTRY_VERIFY_WITH_TIMEOUT(reason().contains(u"could not be fetched"_s), 20'000);
    QVERIFY(reason("TrackList2").contains(u"localhost"_s));
    VantryUtil::setAccountURL(service.url());
    fixture.open(task);
    QTRY_VERIFY_WITH_TIMEOUT(fixture.list("TrackList1")->count() > 0, 20'000);
    QVERIFY(reason().isEmpty());
    QCOMPARE(fixture.list("TrackList2")->currentData().toString(), PracticeService::knownPrintTrack());
    QTRY_VERIFY(fixture.canSave());
    VantryUtil::setAccountURL({});
    VantryUtil::setExtraCaFile({});
  }

  void whatIsStoredDoesNotDependOnTheLanguage() {
    Languages::install(u"de"_s);
    EditorFixture fixture;
    fixture.open(fixture.storedTask([](UploaderTask& t) {
      t.Warden = u"Instrument"_s;
      t.Track = u"s2-tile"_s;
    }));
    QVERIFY(fixture.list("Warden")->currentText() != u"Instrument"_s);
    QCOMPARE(fixture.save()->Warden, u"Instrument"_s);
    Languages::install({});
  }

  void theTaskIsNeverLeftBusy() {
    EditorFixture fixture;
    const TaskPointer task = fixture.storedTask();
    FailingTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    bool failed = true;
    int lookUps = 0;
    for (; failed; ++lookUps) {
      translator.failAt(lookUps);
      failed = false;
      try {
        const EditTaskWindow dialog(task, nullptr);
        QVERIFY(task->Busy);
      } catch (const std::runtime_error&) {
        failed = true;
      }
      QVERIFY2(!task->Busy, qPrintable(QString::number(lookUps)));
    }
    QVERIFY(lookUps > 40);
    translator.failAt(30);
    const BoxAnswer told(QMessageBox::Ok);
    QVERIFY(!EditTaskWindow::EditTask(task, nullptr));
    QCOMPARE(told.text(), u"The task editor could not be opened: planted"_s);
    QCoreApplication::removeTranslator(&translator);
    QVERIFY(!task->Busy);
  }

  void theHelpButtonOpensTheManual() {
    EditorFixture fixture;
    fixture.openNew();
    QDesktopServices::setUrlHandler(u"https"_s, this, "noteUrl");
    fixture.press("FileRecognitionHelpButton");
    QDesktopServices::unsetUrlHandler(u"https"_s);
    const QString host = QString::fromUtf8(ManualHost);
    QCOMPARE(m_opened, QList<QUrl>{QUrl(u"https://%1/other_tools/en/manual/uploader#autorec"_s.arg(host))});
  }

  void labelsAreBlackOnALightGroundAndTheCueCanBeReadOnADarkOne() {
    EditorFixture fixture;
    QPalette palette = QApplication::palette();
    palette.setColor(QPalette::WindowText, QColor(35, 38, 41));
    fixture.openNew().setPalette(palette);
    QCOMPARE(fixture.control("outputFolderLabel")->palette().color(QPalette::WindowText), QColor(Qt::black));
    palette = QPalette(QColor(50, 50, 50), QColor(40, 40, 40));
    palette.setColor(QPalette::Text, Qt::white);
    palette.setColor(QPalette::PlaceholderText, QColor(0, 0, 0, 128));
    fixture.dialog().setPalette(palette);
    const QPalette field = fixture.control("FileNameExclusion")->palette();
    QCOMPARE(field.color(QPalette::PlaceholderText), QColor(255, 255, 255, 128));
  }
};

VANTRY_TEST(tst_EditTaskWindow);
#include "tst_EditTaskWindow.moc"
