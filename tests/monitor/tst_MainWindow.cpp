// The main window's controls and commands, offscreen, by object name.

#include <QDesktopServices>
#include <QDir>
#include <QHeaderView>
#include <QSignalSpy>

#include "WindowFixture.h"
#include "build_settings.h"
#include "monitor/MonitorText.h"
#include "support/TestRunner.h"
#include "text/VTULocalization.h"

using namespace Qt::Literals::StringLiterals;

static QStringList taskFiles() {
  return QDir(UploaderTask::TaskDirectory().NativePath()).entryList(QDir::Files, QDir::Name);
}

class tst_MainWindow : public QObject {
  Q_OBJECT

  QList<QUrl> m_opened;

 public slots:
  void noteUrl(const QUrl& url) { m_opened << url; }

 private slots:
  void everyControlStandsInItsPlace_data() {
    QTest::addColumn<QRect>("designed");
    QTest::addColumn<QRect>("smallest");
    QTest::addColumn<QRect>("large");
    const auto row = [](const char* name, QRect designed, QRect smallest, QRect large) {
      QTest::newRow(name) << designed << smallest << large;
    };
    // At 650 x 450, at the smallest 600 x 216, and at 1120 x 800.
    row("Banner", {20, 20, 610, 70}, {20, 20, 560, 70}, {20, 20, 1080, 70});
    row("HelpButton", {578, 40, 32, 32}, {528, 40, 32, 32}, {1048, 40, 32, 32});
    row("VersionLabel", {92, 72, 530, 18}, {92, 72, 480, 18}, {92, 72, 1000, 18});
    row("TaskList", {20, 102, 610, 282}, {20, 102, 560, 48}, {20, 102, 1080, 632});
    row("NewButton", {20, 396, 80, 20}, {20, 162, 80, 20}, {20, 746, 80, 20});
    row("EditButton", {112, 396, 80, 20}, {112, 162, 80, 20}, {112, 746, 80, 20});
    row("DuplicateButton", {204, 396, 80, 20}, {204, 162, 80, 20}, {204, 746, 80, 20});
    row("RemoveButton", {296, 396, 80, 20}, {296, 162, 80, 20}, {296, 746, 80, 20});
    row("AdminButton", {458, 396, 80, 20}, {408, 162, 80, 20}, {928, 746, 80, 20});
    row("ShowLogbutton", {550, 396, 80, 20}, {500, 162, 80, 20}, {1020, 746, 80, 20});
    row("BottomShadingRect", {0, 428, 650, 22}, {0, 194, 600, 22}, {0, 778, 1120, 22});
  }
  void everyControlStandsInItsPlace() {
    WindowFixture fixture;
    auto* const control = fixture.control<QWidget>(QTest::currentDataTag());
    fixture.window().show();
    QTEST(control->geometry(), "designed");
    QVERIFY(!control->accessibleName().isEmpty());
    fixture.window().resize(100, 100);
    QTEST(control->geometry(), "smallest");
    fixture.window().resize(2000, 800);
    QTEST(control->geometry(), "large");
  }

  void theListHasItsColumns() {
    WindowFixture fixture;
    WindowFixture::loadOneTask();
    fixture.window().show();
    fixture.window().ListTasks();
    QTreeView* const list = fixture.list();
    QStringList headings;
    for (int i = 0; i < list->header()->count(); ++i)
      headings << list->model()->headerData(i, Qt::Horizontal).toString();
    QCOMPARE(headings, (QStringList{u"Status"_s, u"Task Name"_s, u"Task Description"_s, u"Files"_s}));
    QCOMPARE(list->visualRect(list->model()->index(0, 0)).height(), 24);
    const auto widths = [list] { return QList<int>{list->columnWidth(0), list->columnWidth(1), list->columnWidth(3)}; };
    const int description = list->columnWidth(2);
    QCOMPARE(widths(), (QList<int>{53, 150, 54}));
    fixture.window().resize(850, 450);
    QCOMPARE(widths(), (QList<int>{53, 150, 54}));
    QCOMPARE(list->columnWidth(2), description + 200);
  }

  void noCaptionIsCut_data() {
    QTest::addColumn<int>("pixels");
    QTest::newRow("the usual font") << 12;
    QTest::newRow("a large font of the system") << 19;
  }
  void noCaptionIsCut() {
    QFETCH(int, pixels);
    const QFont usual = QApplication::font();
    QFont font = usual;
    font.setPixelSize(pixels);
    QApplication::setFont(font);
    WindowFixture fixture;
    for (const QPushButton* const button : fixture.window().findChildren<QPushButton*>())
      QVERIFY2(button->fontMetrics().horizontalAdvance(button->text()) <= button->width() - 8,
               qPrintable(button->text()));
    QApplication::setFont(usual);
  }

  void aSelectionEnablesTheCommandsAndARebuildTakesItAway() {
    WindowFixture fixture;
    WindowFixture::loadOneTask();
    const auto enabled = [&fixture] {
      QStringList names;
      for (const QPushButton* const button : fixture.window().findChildren<QPushButton*>())
        if (button->isEnabled()) names << button->objectName();
      names.sort();
      return names;
    };
    const QStringList always{u"AdminButton"_s, u"NewButton"_s, u"ShowLogbutton"_s};
    fixture.window().ListTasks();
    QCOMPARE(enabled(), always);
    fixture.select(0);
    QCOMPARE(enabled().size(), 6);
    QSignalSpy reset(fixture.list()->model(), &QAbstractItemModel::modelReset);
    fixture.window().ListTasks();
    QCOMPARE(reset.size(), 1);
    QCOMPARE(enabled(), always);
    QVERIFY(fixture.list()->selectionModel()->selectedRows().isEmpty());
  }

  void removingAsksAndMarksTheFile() {
    WindowFixture fixture;
    WindowFixture::storeTask(u"A"_s, u"a.vnt"_s);
    WindowFixture::storeTask(u"B"_s, u"b.vnt"_s);
    UploaderTask::Load();
    fixture.window().ListTasks();
    fixture.select(1);
    const Answer no(QMessageBox::No);
    fixture.press("RemoveButton");
    QCOMPARE(no.question(), VTULocalization::klDeleteTaskConfirmation());
    QCOMPARE(taskFiles(), (QStringList{u"a.vnt"_s, u"b.vnt"_s}));
    const Answer yes(QMessageBox::Yes);
    fixture.press("RemoveButton");
    QCOMPARE(taskFiles(), (QStringList{u"a.vnt"_s, u"b.del"_s}));
    QCOMPARE(fixture.names(), QStringList{u"A"_s});
  }

  void duplicatingAddsARowOrTellsWhyNot() {
    WindowFixture fixture;
    WindowFixture::loadOneTask();
    fixture.window().ListTasks();
    fixture.select(0);
    fixture.press("DuplicateButton");
    QCOMPARE(fixture.names(), (QStringList{u"A"_s, u"A Copy"_s}));
    QCOMPARE(taskFiles().size(), 2);

    QVERIFY(QDir(UploaderTask::TaskDirectory().NativePath()).removeRecursively());
    fixture.select(0);
    const Answer ok(QMessageBox::Ok);
    fixture.press("DuplicateButton");
    QVERIFY2(ok.question().startsWith(u"The task could not be duplicated. "_s), qPrintable(ok.question()));
    QVERIFY(ok.question().size() > 40);
    QCOMPARE(fixture.names().size(), 2);
  }

  void aWindowThatIsNotThereIsSaidInTheStrip_data() {
    QTest::addColumn<QString>("what");
    QTest::newRow("NewButton") << u"The task editor is not part of this build yet."_s;
    QTest::newRow("EditButton") << u"The task editor is not part of this build yet."_s;
    QTest::newRow("AdminButton") << u"The admin window is not part of this build yet."_s;
    QTest::newRow("ShowLogbutton") << u"The log viewer is not part of this build yet."_s;
  }
  void aWindowThatIsNotThereIsSaidInTheStrip() {
    QFETCH(QString, what);
    WindowFixture fixture;
    WindowFixture::loadOneTask();
    UploadThread::Enabled = true;
    fixture.window().ListTasks();
    fixture.select(0);
    fixture.press(QTest::currentDataTag());
    QCOMPARE(fixture.strip(), what);
    QVERIFY(UploadThread::Enabled);
  }

  void editingKeepsTheUploadAway() {
    WindowFixture fixture;
    WindowFixture::loadOneTask();
    QStringList edited;
    bool enabledMeanwhile = true;
    fixture.commands.editTask = [&](const TaskPointer& task) {
      edited << task->Name;
      enabledMeanwhile = UploadThread::Enabled;
      return true;
    };
    UploadThread::Enabled = true;
    fixture.window().ListTasks();
    fixture.select(0);
    const TaskPointer task = UploaderTask::allTasks().first();
    task->Busy = true;
    fixture.press("EditButton");
    QCOMPARE(edited, QStringList{u"A"_s});
    QVERIFY(!enabledMeanwhile && UploadThread::Enabled);
    QVERIFY(fixture.list()->selectionModel()->selectedRows().isEmpty());

    task->disabled = true;
    fixture.select(0);
    const Answer ok(QMessageBox::Ok);
    fixture.press("EditButton");
    QCOMPARE(ok.question(), VTULocalization::klTaskCurrentlyProcessing());
    QCOMPARE(edited.size(), 1);
  }

  void theAdminWindowNeedsItsPassword() {
    WindowFixture fixture;
    bool known = false;
    int shown = 0;
    fixture.commands.checkAdminPassword = [&known] { return known; };
    fixture.commands.showAdminWindow = [&shown] { shown += UploadThread::Enabled ? 100 : 1; };
    UploadThread::Enabled = true;
    fixture.press("AdminButton");
    QCOMPARE(shown, 0);
    QVERIFY(UploadThread::Enabled);
    known = true;
    fixture.press("AdminButton");
    QCOMPARE(shown, 1);
    QVERIFY(UploadThread::Enabled);
  }

  void theKeyboardReachesTheCommands() {
    WindowFixture fixture;
    WindowFixture::loadOneTask();
    int edited = 0;
    fixture.commands.editTask = [&edited](const TaskPointer&) { return ++edited < 0; };
    fixture.window().show();
    fixture.window().activateWindow();
    fixture.window().ListTasks();
    QVERIFY(QTest::qWaitForWindowActive(&fixture.window()));
    QCOMPARE(QApplication::focusWidget(), fixture.list());
    QTest::keyClick(fixture.list(), Qt::Key_Return);
    QCOMPARE(edited, 0);
    QTest::keyClick(fixture.list(), Qt::Key_Down);
    QTest::keyClick(fixture.list(), Qt::Key_Return);
    QCOMPARE(edited, 1);
    UploaderTask::allTasks().first()->UploadedCount = 7;
    QTest::keyClick(fixture.list(), Qt::Key_F5);
    QCOMPARE(fixture.list()->model()->index(0, TaskListModel::FilesColumn).data().toString(), u"7"_s);
    const Answer yes(QMessageBox::Yes);
    QTest::keyClick(fixture.list(), Qt::Key_Delete);
    QCOMPARE(taskFiles(), QStringList{u"a.del"_s});
  }

  void helpOpensTheManual() {
    WindowFixture fixture;
    fixture.window().show();
    QDesktopServices::setUrlHandler(u"https"_s, this, "noteUrl");
    auto* const help = fixture.control<QWidget>("HelpButton");
    QTest::mousePress(help, Qt::LeftButton);
    QTest::mouseRelease(help, Qt::LeftButton, {}, QPoint(-50, 80));
    QTest::keyClick(help, Qt::Key_Space);
    QDesktopServices::unsetUrlHandler(u"https"_s);
    const QUrl manual(u"https://"_s + QLatin1String(ManualHost) + u"/other_tools/en/manual/uploader"_s);
    QCOMPARE(m_opened, (QList<QUrl>{manual, manual}));
  }
};

VANTRY_TEST(tst_MainWindow);
#include "tst_MainWindow.moc"
