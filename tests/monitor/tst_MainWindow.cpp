// The main window's controls and commands, offscreen, by object name.

#include <QDesktopServices>
#include <QDir>
#include <QSignalSpy>
#include <semaphore>

#include "WindowFixture.h"
#include "build_settings.h"
#include "editor/EditTaskWindow.h"
#include "monitor/MonitorText.h"
#include "practice/PracticeProxy.h"
#include "text/VTULocalization.h"

using namespace Qt::Literals::StringLiterals;

class tst_MainWindow : public QObject {
  Q_OBJECT

  QList<QUrl> m_opened;

 public slots:
  void noteUrl(const QUrl& url) { m_opened << url; }

 private slots:
  void aSelectionEnablesTheCommands() {
    WindowFixture fixture;
    fixture.listTasks({u"A"_s, u"B"_s});
    const auto enabled = [&fixture] {
      QStringList names;
      for (const QPushButton* const button : fixture.window().findChildren<QPushButton*>())
        if (button->isEnabled()) names << button->objectName().first(3);
      return names.join(u' ');
    };
    QCOMPARE(enabled(), u"New Adm Sho"_s);
    fixture.select(0);
    QCOMPARE(enabled(), u"New Edi Dup Rem Adm Sho"_s);
    fixture.window().ListTasks();
    QCOMPARE(enabled(), u"New Adm Sho"_s);
    fixture.select(1);
    const BoxAnswer no(QMessageBox::No);
    fixture.press("RemoveButton");
    QCOMPARE(no.text(), VTULocalization::klDeleteTaskConfirmation());
    QCOMPARE(fixture.taskFiles(), u"a.vnt|b.vnt"_s);
    QVERIFY(QDir(UploaderTask::TaskDirectory().NativePath()).removeRecursively());
    fixture.select(0);
    const BoxAnswer ok(QMessageBox::Ok);
    fixture.press("DuplicateButton");
    QVERIFY(ok.text().startsWith(u"The task could not be duplicated: "_s) && ok.text().size() > 40);
    QCOMPARE(fixture.names(), u"A|B"_s);
  }

  void editingAndTheAdministrationKeepTheUploadAway() {
    WindowFixture fixture;
    bool known = false;
    AdminOutcome outcome;
    QStringList done;
    const auto note = [&done](const QString& what) { done << (UploadThread::Enabled ? u"enabled "_s : what); };
    fixture.commands.editTask = [&](const TaskPointer& task) { return note(task->Name), true; };
    fixture.commands.checkAdminPassword = [&known] { return known; };
    fixture.commands.showAdminWindow = [&] { return note(u"admin"_s), outcome; };
    fixture.commands.refreshConnection = [&](bool otherLogin) { done << (otherLogin ? u"login"_s : u"proxy"_s); };
    fixture.listTasks({u"A"_s});
    UploadThread::Enabled = true;
    fixture.select(0);
    const TaskPointer task = UploaderTask::allTasks().first();
    task->Busy = true;
    fixture.press("EditButton");
    QVERIFY(fixture.list()->selectionModel()->selectedRows().isEmpty());
    for (std::atomic<bool>* const refusing : {&task->disabled, &task->batchHangs}) {
      *refusing = true;
      fixture.select(0);
      const BoxAnswer ok(QMessageBox::Ok);
      fixture.press("EditButton");
      QCOMPARE(ok.text(), VTULocalization::klTaskCurrentlyProcessing());
      *refusing = false;
    }
    fixture.press("AdminButton");
    QCOMPARE(done, QStringList{u"A"_s});
    known = true;
    for (bool* const change : {&outcome.tasksRestored, &outcome.connectionChanged, &outcome.otherLogin}) {
      fixture.press("AdminButton");
      *change = change != &outcome.tasksRestored;
    }
    fixture.press("AdminButton");
    QCOMPARE(done.join(u' '), u"A admin admin admin proxy admin login"_s);
    QVERIFY(UploadThread::Enabled);
    fixture.press("NewButton");
    QCOMPARE(fixture.strip(), u"The task editor is not part of this build yet."_s);
  }

  void restoredTasksJoinTheListOnceNoBatchIsUnderWayAndAfterAFailedLoading() {
    WindowFixture fixture;
    std::atomic<int> loadings = 0;
    std::atomic<bool> failing = true;
    fixture.commands.loadRestoredTasks = [&] {
      ++loadings;
      if (failing) throw std::runtime_error("no memory");
      UploaderTask::Load();
    };
    fixture.commands.showAdminWindow = [] {
      WindowFixture::storeTask(u"Restored"_s, u"restored.vnt"_s);
      return AdminOutcome{.tasksRestored = true};
    };
    fixture.commands.createNewTask = [] { return qFatal("a task was made"), false; };
    fixture.listTasks({u"A"_s, u"B"_s});
    std::binary_semaphore mounted(0);  // holds the run, which first mounts the task's folder
    const QList<TaskPointer> tasks = UploaderTask::allTasks();
    tasks[0]->inputFolderPath = fixture.home.path(u"missing"_s);
    tasks[0]->AutoMountInputFolder = true;
    tasks[0]->inputfolderURL = u"smb://server/share"_s;
    tasks[1]->leftBehind = tasks[1]->batchHangs = true;
    tasks[1]->disabled = true;
    tasks[1]->UploadedCount = 7;
    UploaderTask::setMountOperation([&mounted](const MountRequest&, int&) { return mounted.acquire(), QString(); });
    UploadThread::Enabled = true;
    UploadThread::Start();
    QTRY_VERIFY(UploadThread::ProcessingNow());
    fixture.openWindow();
    fixture.press("AdminButton");
    fixture.press("NewButton");
    QCOMPARE(fixture.strip(), MonitorText::klTasksAboutToLoad());
    QSignalSpy looked(fixture.control<QTimer>("StripRefresher"), &QTimer::timeout);
    for (const bool running : {true, false}) {
      looked.clear();
      QTRY_VERIFY(looked.size() > 1 && UploadThread::ProcessingNow() == running);
      QVERIFY(!UploadThread::Enabled && loadings == 0);
      QCOMPARE(UploaderTask::allTasks(), tasks);
      mounted.release();
    }
    tasks[1]->leftBehind = tasks[1]->batchHangs = false;
    QTRY_VERIFY(loadings > 1);
    QVERIFY(!UploadThread::Enabled && Problems::present().last().kind == Problem::Kind::TaskFolderUnreadable);
    failing = false;
    QTRY_COMPARE(fixture.names(), u"A|B|Restored"_s);
    const TaskPointer kept = UploaderTask::getTaskWIthName(u"B"_s);
    QVERIFY(kept != tasks[1] && kept->disabled && !UploaderTask::getTaskWIthName(u"Restored"_s)->disabled);
    QCOMPARE(kept->UploadedCount, 7);
    QVERIFY(UploadThread::Enabled && UploadThread::stop(60'000));
    UploaderTask::setMountOperation({});
    UploaderTask::setTriedAutoMount(false);
  }

  void theKeyboardReachesTheCommandsAndTheMenusTheFrontmostWindow() {
    WindowFixture fixture;
    int edited = 0;
    fixture.commands.editTask = [&edited](const TaskPointer&) { return ++edited < 0; };
    fixture.openWindow();
    fixture.listTasks({u"A"_s});
    fixture.window().activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&fixture.window()));
    QCOMPARE(QApplication::focusWidget(), fixture.list());
    QTest::keyClick(fixture.list(), Qt::Key_Down);
    QTest::keyClick(fixture.list(), Qt::Key_Return);
    QCOMPARE(edited, 1);
    UploaderTask::allTasks().first()->UploadedCount = 7;
    QTest::keyClick(fixture.list(), Qt::Key_F5);
    QCOMPARE(fixture.list()->model()->index(0, TaskListModel::FilesColumn).data().toString(), u"7"_s);
    const BoxAnswer yes(QMessageBox::Yes);
    QTest::keyClick(fixture.list(), Qt::Key_Delete);
    QCOMPARE(fixture.taskFiles(), u"a.del"_s);

    auto* const check = fixture.control<QAction>("FileCheckForUpdates");
    fixture.window().activateWindow();
    QTRY_VERIFY(check->isEnabled());
    QWidget logViewer;
    logViewer.show();
    logViewer.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&logViewer));
    QVERIFY(!check->isEnabled() && fixture.control<QAction>("FileAbout")->isEnabled());
    const BoxAnswer no(QMessageBox::No);
    QTest::keyClick(&logViewer, Qt::Key_Q, Qt::ControlModifier);
    QCOMPARE(no.text(), VTULocalization::klSureYouWantToQuit());
    QTimer::singleShot(0, [] { QTest::mousePress(QApplication::activeModalWidget(), Qt::LeftButton); });
    fixture.control<QAction>("FileAbout")->trigger();
    QVERIFY(!QApplication::activeModalWidget());
  }

  void anEmptyListSaysWhatToDoOnceTheTasksAreLoaded() {
    WindowFixture fixture;
    const auto* const list = fixture.control<TaskListView>("TaskList");
    fixture.window().ListTasks();
    QVERIFY2(list->note().isEmpty(), "there may be tasks");
    fixture.openWindow();
    QVERIFY(list->note().contains(VTULocalization::klNew()));
    fixture.listTasks({u"A"_s});
    QVERIFY(list->note().isEmpty());
  }

  void whatTheStripCutsIsReadWithoutAPointer() {
    WindowFixture fixture;
    auto* const strip = fixture.control<ShadedStrip>("BottomShadingRect");
    StripLine line{StripLine::Tone::Wrong, u"Short."_s, {}, u"Short."_s};
    strip->setLine(line);
    QCOMPARE(strip->focusPolicy(), Qt::NoFocus);
    line.text = line.details = QString(60, u'W');
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_unknown}) {
      strip->setLine(line);
      QCOMPARE(strip->focusPolicy(), Qt::TabFocus);
      const BoxAnswer ok(QMessageBox::Ok);
      key == Qt::Key_unknown ? QTest::mouseClick(strip, Qt::LeftButton) : QTest::keyClick(strip, key);
      QCOMPARE(ok.text(), line.details);
    }
  }

  void anAnswerOfTheUpdateHostIsTold() {
    for (const auto& scheme : {u"http"_s, u"file"_s}) QDesktopServices::setUrlHandler(scheme, this, "noteUrl");
    // The version and the address that it names, the button, and what is opened.
    for (const auto& [version, url, button, opened] : {std::tuple("0.0.0v1", "http://d/x", QMessageBox::Ok, ""),
                                                       {"9999.0.0v1", " http://d/x ", QMessageBox::Yes, "http://d/x"},
                                                       {"9999.0.0v1", "http://d/x", QMessageBox::No, ""},
                                                       {"9999.0.0v1", " ", QMessageBox::Ok, ""},
                                                       {"9999.0.0v1", "file:///bin/sh", QMessageBox::Yes, ""}}) {
      const QByteArray page = "{\"version\":\"" + QByteArray(version) + "\",\"mac\":\"" + url + "\"}";
      PracticeProxy host;
      QVERIFY(host.start());
      host.setBehaviour({PracticeProxy::Behaviour::Kind::RawReply, 0,
                         "HTTP/1.0 200 OK\r\nContent-length: " + QByteArray::number(page.size()) + "\r\n\r\n" + page});
      m_opened.clear();
      WindowFixture fixture;
      VantryUtil::setProxy({u"127.0.0.1"_s, host.port()});
      fixture.commands.updateEndpoint = u"http://u/uploader.php"_s;
      const QString strip = fixture.strip();
      const BoxAnswer answer(button);
      fixture.control<QAction>("FileCheckForUpdates")->setEnabled(true);  // as while the window is frontmost
      fixture.control<QAction>("FileCheckForUpdates")->trigger();
      QTRY_VERIFY(!answer.text().isEmpty() && !QApplication::activeModalWidget());
      VantryUtil::setProxy({});
      QCOMPARE(answer.text(), button == QMessageBox::Ok ? u"Your software is up to date"_s
                                                        : u"Version 9999.0.0v1 is availble newer and availbale.\n"
                                                          "Would you like to downlownload it now?"_s);
      QCOMPARE(m_opened, *opened ? QList<QUrl>{QUrl(QString::fromLatin1(opened))} : QList<QUrl>());
      QCOMPARE(fixture.strip() != strip, button == QMessageBox::Yes && !*opened);  // it says why it is not opened
    }
    for (const auto& scheme : {u"http"_s, u"file"_s}) QDesktopServices::unsetUrlHandler(scheme);
  }

  void helpOpensTheManual() {
    m_opened.clear();
    WindowFixture fixture;
    QDesktopServices::setUrlHandler(u"https"_s, this, "noteUrl");
    QTest::mouseClick(fixture.control("HelpButton"), Qt::LeftButton);
    QTest::keyClick(fixture.control("HelpButton"), Qt::Key_Space);
    const EditTaskWindow editor(nullptr);
    controlOf<QAbstractButton>(editor, "FileRecognitionHelpButton")->click();
    QDesktopServices::unsetUrlHandler(u"https"_s);
    const QString manual = u"https://"_s + QLatin1String(ManualHost) + u"/other_tools/en/manual/uploader"_s;
    QCOMPARE(m_opened, (QList<QUrl>{QUrl(manual), QUrl(manual), QUrl(manual + u"#autorec"_s)}));
  }
};

VANTRY_TEST(tst_MainWindow);
#include "tst_MainWindow.moc"
