// The editor's form, offscreen, by object name: its controls, keys, lists and colours.

#include <QDesktopServices>
#include <QTranslator>
#include <stdexcept>

#include "EditorFixture.h"
#include "build_settings.h"
#include "practice/PracticeService.h"
#include "service/VantryUtil.h"
#include "support/TestRunner.h"
#include "widgets/Mnemonics.h"

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

/// The texts of another language.
class German : public QTranslator {
 public:
  [[nodiscard]] bool isEmpty() const override { return false; }
  [[nodiscard]] QString translate(const char*, const char* key, const char*, int) const override {
    if (qstrcmp(key, "VTULocalization.KLPrint") == 0) return u"Druck"_s;
    if (qstrcmp(key, "VTULocalization.klInstrument") == 0) return u"Messgerät"_s;
    if (qstrcmp(key, "VTULocalization.klClearProcessDateStamp") == 0)
      return u"Zeitstempel der letzten Verarbeitung löschen"_s;
    return {};
  }
};

class tst_EditTaskWindow : public QObject {
  Q_OBJECT

  QList<QUrl> m_opened;

  static QString captionOf(const QWidget* control) {
    if (const auto* label = qobject_cast<const QLabel*>(control)) return withoutMnemonic(label->text());
    if (const auto* button = qobject_cast<const QAbstractButton*>(control)) return withoutMnemonic(button->text());
    return {};
  }

 public slots:
  void noteUrl(const QUrl& url) { m_opened << url; }

 private slots:
  void everyControlStandsInItsPlace_data() {
    QTest::addColumn<QRect>("place");
    QTest::addColumn<QString>("caption");
    QTest::addColumn<bool>("enabled");
    const auto row = [](const char* name, QRect place, const char* caption = "", bool enabled = true) {
      QTest::newRow(name) << place << QString::fromUtf8(caption) << enabled;
    };
    row("TaskNameLabel", {20, 20, 228, 20}, "Task Name");
    row("TaskName", {20, 44, 228, 22});
    row("TaskDescriptionLabel", {20, 76, 228, 20}, "Task Description");
    row("TaskDescription", {20, 98, 228, 68});
    row("wardenLabel", {20, 172, 228, 20}, "Warden");
    row("Warden", {20, 196, 228, 20});
    row("Separator5", {13, 239, 235, 4});
    row("FileRecognitionHelpButton", {20, 255, 22, 22}, "?");
    row("FileNameLabel", {47, 255, 201, 20}, "File Name Recognition");
    row("FileName", {20, 279, 228, 22});
    row("ExtensionLabel", {20, 309, 85, 20}, "Extension");
    row("Extension", {20, 333, 85, 20});
    row("FileNameExclusionLabel", {20, 365, 201, 20}, "File Name Exclusion");
    row("FileNameExclusion", {20, 389, 228, 22});
    row("Separator6", {20, 423, 235, 4});
    row("AutoRecognition", {20, 444, 228, 20}, "Auto Recognition");
    row("SelectTrackLabel", {20, 473, 228, 20}, "Select Press");
    row("TrackList1", {20, 496, 228, 20});
    row("SelectTargetLabel", {20, 528, 228, 20}, "Select Track");
    row("TrackList2", {20, 551, 228, 20});
    row("Separator2", {260, 20, 7, 547});
    row("inputFolderLabel", {280, 19, 87, 20}, "Input Folder");
    row("InputFolderSetButton", {424, 20, 49, 20}, "Set");
    row("InputFolder", {280, 44, 194, 22});
    row("ClearInputButton", {485, 46, 49, 20}, "Clear");
    row("AutoMountInput", {279, 78, 106, 20}, "Auto Mount", false);
    row("TestAutoMountInput", {485, 76, 49, 20}, "Test", false);
    row("inputFolderURLLabel", {280, 100, 169, 20}, "Input Folder URL");
    row("inputFolderUrl", {280, 124, 254, 22}, "", false);
    row("inputLoginLabel", {281, 153, 121, 20}, "Input Login");
    row("inputLogin", {281, 176, 121, 22}, "", false);
    row("inputPasswordLabel", {414, 153, 121, 20}, "Input Password");
    row("InputPassword", {414, 175, 121, 22}, "", false);
    row("Separator3", {281, 210, 255, 4});
    row("outputFolderLabel", {281, 224, 87, 20}, "Output Folder");
    row("OutputFOlderSetButton", {429, 224, 49, 20}, "Set");
    row("OutputFolder", {281, 248, 194, 22});
    row("ClearOutPutButton", {486, 249, 49, 20}, "Clear");
    row("autoMountOutput", {280, 282, 100, 20}, "Auto Mount", false);
    row("TestAutoMountOUtput", {486, 280, 49, 20}, "Test", false);
    row("outputfolderURLLabel", {280, 309, 169, 20}, "Output Folder URL");
    row("OutputFolderURL", {280, 333, 254, 22}, "", false);
    row("outputLoginLabel", {280, 365, 121, 20}, "Output Login");
    row("outputLogin", {280, 389, 121, 22}, "", false);
    row("outputPasswordLabel", {413, 365, 121, 20}, "Output Password");
    row("outputPassword", {413, 389, 121, 22}, "", false);
    row("Separator4", {280, 423, 255, 4});
    row("ReplaceName", {280, 439, 250, 20}, "Replace Name");
    row("PrefixLabel", {280, 464, 180, 20}, "Prefix");
    row("Prefix", {280, 488, 218, 22});
    row("AddDateToFileNameCheckBox", {280, 522, 228, 20}, "Add Date to File Name");
    row("DeleteFileAfterCopyCheckBox", {280, 547, 228, 20}, "Delete File After Copy");
    row("Separator1", {20, 594, 494, 8});
    row("DisableTaskButton", {20, 614, 119, 20}, "Disable Task");
    row("ClearProcessDateStampButton", {151, 614, 179, 20}, "Clear Process Date Stamp", false);
    row("CancelDialogButton", {342, 614, 80, 20}, "Cancel");
    row("OkButton", {434, 614, 80, 20}, "OK", false);
  }
  void everyControlStandsInItsPlace() {
    QFETCH(bool, enabled);
    EditorFixture fixture;
    fixture.openNew();
    const auto* const control = fixture.control<QWidget>(QTest::currentDataTag());
    QTEST(control->geometry(), "place");
    QTEST(captionOf(control), "caption");
    QCOMPARE(control->isEnabled(), enabled);
  }

  void aNewFormStartsEmpty() {
    EditorFixture fixture;
    EditTaskWindow& dialog = fixture.openNew();
    QCOMPARE(dialog.windowTitle(), u"Edit Task"_s);
    QCOMPARE(dialog.size(), QSize(555, 654));
    QCOMPARE(dialog.minimumSize(), dialog.maximumSize());
    QVERIFY(!dialog.windowFlags().testFlag(Qt::WindowCloseButtonHint));
    for (const QLineEdit* const field : dialog.findChildren<QLineEdit*>())
      QCOMPARE(field->text(), qobject_cast<const folderField*>(field) ? u"n/a"_s : QString());
    for (const QCheckBox* const box : dialog.findChildren<QCheckBox*>()) QVERIFY(!box->isChecked());
    const auto rows = [&fixture](const char* name) {
      QStringList texts{QString::number(fixture.list(name)->currentIndex())};
      for (int i = 0; i < fixture.list(name)->count(); ++i) texts << fixture.list(name)->itemText(i);
      return texts.join(u' ');
    };
    QCOMPARE(rows("Warden"), u"0 Print Instrument"_s);
    QCOMPARE(rows("Extension"), u"0 .txt .xml .it8 .svf .cxf .csv .clf2 .mxf .jxf .pmv .qtx"_s);
    QCOMPARE(rows("TrackList1"), u"-1 XL SM"_s);
    QCOMPARE(rows("TrackList2"), u"-1"_s);
    for (const char* const label : {"TaskNameLabel", "inputFolderLabel", "SelectTrackLabel", "SelectTargetLabel"})
      QVERIFY2(fixture.isRed(label), label);
    for (const char* const label : {"outputFolderLabel", "wardenLabel", "PrefixLabel"})
      QVERIFY2(!fixture.isRed(label), label);
    QCOMPARE(fixture.control<QLineEdit>("FileNameExclusion")->placeholderText(), u"RegEx"_s);
    QCOMPARE(fixture.control<QLineEdit>("InputPassword")->echoMode(), QLineEdit::Password);
    QVERIFY(fixture.control<QLineEdit>("InputFolder")->isReadOnly());
  }

  void tabWalksTheFormInItsOrder() {
    EditorFixture fixture;
    EditTaskWindow& dialog = fixture.openNew();
    QStringList order;
    QSet<const QWidget*> seen;
    for (const QWidget* w = fixture.control<QWidget>("TaskName"); !seen.contains(w); w = w->nextInFocusChain()) {
      seen.insert(w);
      if (w->parentWidget() == &dialog && w->focusPolicy() & Qt::TabFocus) order << w->objectName();
    }
    QCOMPARE(order.join(u' '),
             u"TaskName TaskDescription Warden FileName Extension FileNameExclusion AutoRecognition TrackList1 "
             "InputFolder InputFolderSetButton OutputFolder OutputFOlderSetButton Prefix AddDateToFileNameCheckBox "
             "DeleteFileAfterCopyCheckBox OkButton CancelDialogButton FileRecognitionHelpButton TrackList2 "
             "ClearInputButton AutoMountInput TestAutoMountInput inputFolderUrl inputLogin InputPassword "
             "ClearOutPutButton autoMountOutput TestAutoMountOUtput OutputFolderURL outputLogin outputPassword "
             "ReplaceName DisableTaskButton ClearProcessDateStampButton"_s);
    QTest::keyClick(fixture.control<QWidget>("TaskDescription"), Qt::Key_Tab);
    QVERIFY(fixture.control<QPlainTextEdit>("TaskDescription")->toPlainText().isEmpty());
  }

  void everyControlHasANameAndEveryFieldALabel() {
    EditorFixture fixture;
    EditTaskWindow& dialog = fixture.openNew();
    QSet<QWidget*> labelled;
    for (const QLabel* const label : dialog.findChildren<QLabel*>()) labelled.insert(label->buddy());
    for (QWidget* const control : dialog.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
      if (control->focusPolicy() == Qt::NoFocus) continue;
      QVERIFY2(!control->accessibleName().isEmpty(), qPrintable(control->objectName()));
      if (!qobject_cast<QAbstractButton*>(control))
        QVERIFY2(labelled.contains(control), qPrintable(control->objectName()));
    }
    QVERIFY(!fixture.control<QWidget>("Sample")->accessibleName().isEmpty());
  }

  void eachLetterLeadsToOneControl() {
    EditorFixture fixture;
    EditTaskWindow& dialog = fixture.openNew();
    QSet<QString> letters;
    const auto take = [&letters](const QString& text) {
      const QString key = QKeySequence::mnemonic(text).toString();
      if (key.isEmpty()) return;
      QVERIFY2(!letters.contains(key), qPrintable(text));
      letters.insert(key);
    };
    for (int warden : {0, 1, 0}) {
      fixture.list("Warden")->setCurrentIndex(warden);
      letters.clear();
      for (const QLabel* const label : dialog.findChildren<QLabel*>()) take(label->text());
      for (const QAbstractButton* const button : dialog.findChildren<QAbstractButton*>()) take(button->text());
      QVERIFY(letters.size() >= 16);
    }
  }

  void textFitsItsControl_data() {
    QTest::addColumn<int>("pixels");
    QTest::newRow("the usual font") << 12;
    QTest::newRow("a large font of the system") << 22;
  }
  void textFitsItsControl() {
    QFETCH(int, pixels);
    const QFont usual = QApplication::font();
    QFont font = usual;
    font.setPixelSize(pixels);
    QApplication::setFont(font);
    EditorFixture fixture;
    for (const QWidget* const control :
         fixture.openNew().findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
      const QString caption = captionOf(control);
      const QFontMetrics metrics = control->fontMetrics();
      const int beside = qobject_cast<const QCheckBox*>(control) ? 20 : 0;
      QVERIFY2(metrics.horizontalAdvance(caption) + beside <= control->width(), qPrintable(caption));
      if (!caption.isEmpty()) QVERIFY2(metrics.height() <= control->height(), qPrintable(caption));
    }
    QApplication::setFont(usual);
  }

  void aCaptionTooLongForItsButtonStandsInTheHelpTag() {
    German german;
    QVERIFY(QCoreApplication::installTranslator(&german));
    EditorFixture fixture;
    fixture.openNew();
    const auto* const button = fixture.control<QPushButton>("ClearProcessDateStampButton");
    QVERIFY(button->toolTip().contains(u"Zeitstempel der letzten Verarbeitung löschen"_s));
    QCoreApplication::removeTranslator(&german);
  }

  void redStaysReadableOnADarkGround() {
    const QPalette usual = QApplication::palette();
    EditorFixture fixture;
    fixture.openNew();
    QPalette dark(QColor(50, 50, 50), QColor(40, 40, 40));
    dark.setColor(QPalette::WindowText, Qt::white);
    fixture.dialog().setPalette(dark);
    const auto colour = [&](const char* label) {
      return fixture.control<QLabel>(label)->palette().color(QPalette::WindowText);
    };
    QVERIFY(colour("TaskNameLabel").red() == 255 && colour("TaskNameLabel").lightness() > 150);
    fixture.type("TaskName", u"Press"_s);
    QCOMPARE(colour("TaskNameLabel"), QColor(Qt::white));
    fixture.dialog().setPalette(usual);
    fixture.type("TaskName", u""_s);
    QVERIFY(fixture.isRed("TaskNameLabel"));
  }

  void returnIsOkAndEscapeIsCancel() {
    EditorFixture fixture;
    fixture.home.writeFile(u"in/a.txt"_s, "x");
    const TaskPointer task = fixture.storedTask();
    EditTaskWindow& dialog = fixture.open(task);
    fixture.type("TaskName", u" "_s);
    QTest::keyClick(fixture.control<QWidget>("TaskName"), Qt::Key_Return);
    QVERIFY2(dialog.isVisible(), "a disabled OK answers no key");
    fixture.type("TaskName", u"Renamed"_s);
    QTRY_VERIFY(fixture.canSave());
    auto* const description = fixture.control<QPlainTextEdit>("TaskDescription");
    description->setFocus();
    QTest::keyClick(description, Qt::Key_Return);
    QCOMPARE(description->toPlainText(), u"\n"_s);
    QTest::keyClick(fixture.control<QWidget>("InputFolderSetButton"), Qt::Key_Return);
    QVERIFY(!dialog.isVisible());
    QVERIFY(dialog.Result);
    QCOMPARE(UploaderTask::allTasks().first()->Name, u"Renamed"_s);

    EditTaskWindow& second = fixture.open(UploaderTask::allTasks().first());
    QTest::keyClick(fixture.control<QWidget>("Prefix"), Qt::Key_Escape);
    QVERIFY(!second.isVisible());
    QVERIFY(!second.Result);
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
      t.ReplaceName = t.DeleteAfterSave = true;
      t.disabled = true;
    });
    fixture.open(task);
    QVERIFY(task->Busy);
    QCOMPARE(fixture.text("TaskName"), u" Press 1 "_s);
    QCOMPARE(fixture.control<QPlainTextEdit>("TaskDescription")->toPlainText(), u"two\nlines"_s);
    QCOMPARE(fixture.text("FileName"), u" scan*"_s);
    QCOMPARE(fixture.list("Extension")->currentText(), u".csv"_s);
    QCOMPARE(fixture.text("FileNameExclusion"), u" draft "_s);
    QCOMPARE(fixture.text("Prefix"), u" P"_s);
    QStringList on;
    for (const QCheckBox* const box : fixture.dialog().findChildren<QCheckBox*>())
      if (box->isChecked()) on << box->objectName();
    on.sort();
    QCOMPARE(on.join(u' '), u"DeleteFileAfterCopyCheckBox DisableTaskButton ReplaceName"_s);
    QCOMPARE(fixture.list("TrackList1")->currentText(), u"XL"_s);
    QCOMPARE(fixture.list("TrackList2")->currentText(), u"Plain"_s);
    QTRY_VERIFY(fixture.canSave());
    fixture.press("CancelDialogButton");
    QVERIFY(!task->Busy);
  }

  void theListsFollowTheKind() {
    EditorFixture fixture;
    fixture.open(fixture.storedTask());
    fixture.list("Warden")->setCurrentIndex(1);
    QCOMPARE(captionOf(fixture.control<QLabel>("SelectTrackLabel")), u"Select Instrument"_s);
    QCOMPARE(captionOf(fixture.control<QLabel>("SelectTargetLabel")), u"Select Target"_s);
    QCOMPARE(fixture.list("TrackList1")->itemText(1), u"Spectro 2"_s);
    QCOMPARE(fixture.list("TrackList1")->currentIndex(), -1);
    QCOMPARE(fixture.list("TrackList2")->count(), 0);
    QVERIFY(fixture.isRed("SelectTrackLabel") && fixture.isRed("SelectTargetLabel") && !fixture.canSave());
    fixture.list("TrackList1")->setCurrentIndex(0);
    QVERIFY(!fixture.isRed("SelectTrackLabel") && fixture.isRed("SelectTargetLabel"));
    QCOMPARE(fixture.list("TrackList2")->currentIndex(), -1);
    fixture.list("TrackList2")->setCurrentIndex(1);
    QCOMPARE(fixture.list("TrackList2")->currentData().toString(), u"s1-card"_s);
    QTRY_VERIFY(fixture.canSave());
    fixture.list("Warden")->setCurrentIndex(0);
    QCOMPARE(fixture.list("TrackList2")->currentText(), u"Plain"_s);
  }

  void autoRecognitionNeedsNoTrack() {
    EditorFixture fixture;
    const TaskPointer task = fixture.storedTask([](UploaderTask& t) {
      t.AutoRecognition = true;
      t.Track = u"sm-coated"_s;
    });
    fixture.open(task);
    QVERIFY(!fixture.list("TrackList1")->isEnabled() && !fixture.list("TrackList2")->isEnabled());
    QCOMPARE(fixture.list("TrackList1")->currentText(), u"SM"_s);
    QCOMPARE(fixture.list("TrackList2")->currentText(), u"Coated"_s);
    fixture.list("Warden")->setCurrentIndex(1);
    QTRY_VERIFY(fixture.canSave());
    fixture.control<QCheckBox>("AutoRecognition")->setChecked(false);
    QVERIFY(fixture.list("TrackList1")->isEnabled());
    QVERIFY(!fixture.canSave());
  }

  void aWorkflowThatIsGoneLeavesTheListsRed() {
    EditorFixture fixture;
    fixture.open(fixture.storedTask([](UploaderTask& t) { t.Track = u"gone"_s; }));
    QCOMPARE(fixture.list("TrackList1")->currentIndex(), -1);
    QVERIFY(fixture.isRed("SelectTrackLabel") && !fixture.canSave());
  }

  void anEmptyCatalogueSaysWhyAndIsFetched() {
    EditorFixture fixture;
    VTTrack::setTracks({});
    fixture.openNew();
    QVERIFY(fixture.list("TrackList1")->toolTip().contains(u"no login is stored"_s));
    fixture.close();

    PracticeService service;
    QVERIFY(service.start());
    VantryUtil::setExtraCaFile(service.caFile());
    VantryUtil::setAccountURL(u"https://localhost:1/api"_s);
    VantryUtil::prefs->setStringValue(u"SoapLogin"_s, PracticeService::Options().login);
    VantryUtil::prefs->setStringValue(u"SoapPassword"_s, PracticeService::Options().password);
    const TaskPointer task = fixture.storedTask([](UploaderTask& t) { t.Track = PracticeService::knownPrintTrack(); });
    fixture.open(task);
    QVERIFY(fixture.list("TrackList1")->toolTip().contains(u"being fetched"_s));
    QTRY_VERIFY_WITH_TIMEOUT(fixture.list("TrackList1")->toolTip().contains(u"could not be fetched"_s), 20'000);
    QVERIFY(fixture.list("TrackList2")->toolTip().contains(u"localhost"_s));
    fixture.close();

    VantryUtil::setAccountURL(service.url());
    fixture.open(task);
    QTRY_VERIFY_WITH_TIMEOUT(fixture.list("TrackList1")->count() > 0, 20'000);
    QVERIFY(fixture.list("TrackList1")->toolTip().isEmpty());
    QCOMPARE(fixture.list("TrackList2")->currentData().toString(), PracticeService::knownPrintTrack());
    QTRY_VERIFY(fixture.canSave());
    VantryUtil::setAccountURL({});
    VantryUtil::setExtraCaFile({});
  }

  void whatIsStoredDoesNotDependOnTheLanguage() {
    German german;
    QVERIFY(QCoreApplication::installTranslator(&german));
    EditorFixture fixture;
    fixture.open(fixture.storedTask([](UploaderTask& t) {
      t.Warden = u"Instrument"_s;
      t.Track = u"s2-tile"_s;
    }));
    QCOMPARE(fixture.list("Warden")->currentText(), u"Messgerät"_s);
    QTRY_VERIFY(fixture.canSave());
    fixture.press("OkButton");
    QCOMPARE(UploaderTask::allTasks().first()->Warden, u"Instrument"_s);
    QCoreApplication::removeTranslator(&german);
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
    fixture.control<QToolButton>("FileRecognitionHelpButton")->click();
    QDesktopServices::unsetUrlHandler(u"https"_s);
    const QString host = QString::fromUtf8(ManualHost);
    QCOMPARE(m_opened, QList<QUrl>{QUrl(u"https://%1/other_tools/en/manual/uploader#autorec"_s.arg(host))});
  }
};

VANTRY_TEST(tst_EditTaskWindow);
#include "tst_EditTaskWindow.moc"
