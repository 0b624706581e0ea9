// The main window's controls and commands, offscreen, by object name.

#include <QDesktopServices>
#include <QDir>
#include <QHeaderView>
#include <QMenuBar>
#include <QSignalSpy>
#include <QTcpServer>
#include <QTcpSocket>
#include <semaphore>

#include "WindowFixture.h"
#include "build_settings.h"
#include "monitor/MonitorText.h"
#include "text/VTULocalization.h"
#include "widgets/Mnemonics.h"

using namespace Qt::Literals::StringLiterals;

class tst_MainWindow : public QObject {
  Q_OBJECT

  QList<QUrl> m_opened;

 public slots:
  void noteUrl(const QUrl& url) { m_opened << url; }

 private slots:
  void everyControlStandsInItsPlace() {
    // At 650 x 450, at the smallest 600 x 216, and at 1120 x 800, each below the menu bar.
    const std::pair<const char*, QList<QRect>> rows[] = {
        {"Banner", {{20, 20, 610, 70}, {20, 20, 560, 70}, {20, 20, 1080, 70}}},
        {"HelpButton", {{578, 40, 32, 32}, {528, 40, 32, 32}, {1048, 40, 32, 32}}},
        {"VersionLabel", {{92, 72, 530, 18}, {92, 72, 480, 18}, {92, 72, 1000, 18}}},
        {"TaskList", {{20, 102, 610, 282}, {20, 102, 560, 48}, {20, 102, 1080, 632}}},
        {"NewButton", {{20, 396, 80, 20}, {20, 162, 80, 20}, {20, 746, 80, 20}}},
        {"EditButton", {{112, 396, 80, 20}, {112, 162, 80, 20}, {112, 746, 80, 20}}},
        {"DuplicateButton", {{204, 396, 80, 20}, {204, 162, 80, 20}, {204, 746, 80, 20}}},
        {"RemoveButton", {{296, 396, 80, 20}, {296, 162, 80, 20}, {296, 746, 80, 20}}},
        {"AdminButton", {{458, 396, 80, 20}, {408, 162, 80, 20}, {928, 746, 80, 20}}},
        {"ShowLogbutton", {{550, 396, 80, 20}, {500, 162, 80, 20}, {1020, 746, 80, 20}}},
        {"BottomShadingRect", {{0, 428, 650, 22}, {0, 194, 600, 22}, {0, 778, 1120, 22}}}};
    for (const int pixels : {12, 19}) {
      const FontSize font(pixels);
      WindowFixture fixture;
      fixture.window().show();
      fixture.listTasks({u"A"_s});
      const auto* const list = fixture.list();
      const auto widths = [list] { return QList{list->columnWidth(0), list->columnWidth(1), list->columnWidth(3)}; };
      const int description = list->columnWidth(2);
      const QSize sizes[] = {
          fixture.window().size(), {100, 100}, {2000, 800 + fixture.window().menuWidget()->height()}};
      for (int i = 0; i < 3; ++i) {
        fixture.window().resize(sizes[i]);
        for (const auto& [name, places] : rows) {
          const QWidget* const control = fixture.control(name);
          QVERIFY2(control->geometry() == places[i] && !control->accessibleName().isEmpty(), name);
          if (const auto* const button = qobject_cast<const QPushButton*>(control))
            QVERIFY2(button->fontMetrics().horizontalAdvance(withoutMnemonic(button->text())) <= button->width() - 8,
                     name);
        }
        QCOMPARE(widths(), QList({53, 150, 54}));
      }
      QCOMPARE(list->columnWidth(2), description + 1080 - 610);
      QCOMPARE(list->visualRect(list->model()->index(0, 0)).height(), 24);
      QStringList headings;
      for (int i = 0; i < 4; ++i) headings << list->model()->headerData(i, Qt::Horizontal).toString();
      QCOMPARE(headings.join(u'|'), u"Status|Task Name|Task Description|Files"_s);
    }
  }

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
    const QSignalSpy reset(fixture.list()->model(), &QAbstractItemModel::modelReset);
    fixture.window().ListTasks();
    QCOMPARE(reset.size(), 1);
    QCOMPARE(enabled(), u"New Adm Sho"_s);
    QVERIFY(fixture.list()->selectionModel()->selectedRows().isEmpty());

    fixture.select(1);
    const BoxAnswer no(QMessageBox::No);
    fixture.press("RemoveButton");
    QCOMPARE(no.text(), VTULocalization::klDeleteTaskConfirmation());
    QCOMPARE(fixture.taskFiles(), u"a.vnt|b.vnt"_s);
    const BoxAnswer yes(QMessageBox::Yes);
    fixture.press("RemoveButton");
    QCOMPARE(fixture.taskFiles(), u"a.vnt|b.del"_s);
    fixture.select(0);
    fixture.press("DuplicateButton");
    QCOMPARE(fixture.names(), u"A|A Copy"_s);
    QCOMPARE(fixture.taskFiles().count(u'|'), 2);
    QVERIFY(QDir(UploaderTask::TaskDirectory().NativePath()).removeRecursively());
    fixture.select(0);
    const BoxAnswer ok(QMessageBox::Ok);
    fixture.press("DuplicateButton");
    QVERIFY2(ok.text().startsWith(u"The task could not be duplicated. "_s) && ok.text().size() > 40,
             qPrintable(ok.text()));
    QCOMPARE(fixture.names(), u"A|A Copy"_s);
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
    for (std::atomic<bool>* const refusing : {&task->disabled, &task->leftBehind}) {
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

  void restoredTasksJoinTheListOnceNoBatchIsUnderWay() {
    WindowFixture fixture;
    fixture.commands.showAdminWindow = [] {
      WindowFixture::storeTask(u"Restored"_s, u"restored.vnt"_s);
      return AdminOutcome{.tasksRestored = true};
    };
    fixture.commands.createNewTask = [] { return qFatal("a task was made"), false; };
    fixture.listTasks({u"A"_s, u"Off"_s});
    std::binary_semaphore mounted(0);  // holds the run, which first mounts the task's folder
    const TaskPointer task = UploaderTask::allTasks().first(), off = UploaderTask::allTasks().last();
    off->disabled = true;
    off->UploadedCount = 7;
    task->inputFolderPath = fixture.home.path(u"missing"_s);
    task->AutoMountInputFolder = true;
    task->inputfolderURL = u"smb://server/share"_s;
    UploaderTask::setMountOperation([&mounted](const MountRequest&, int&) { return mounted.acquire(), QString(); });
    UploadThread::Enabled = true;
    UploadThread::Start();
    QTRY_VERIFY(UploadThread::ProcessingNow());
    fixture.openWindow();
    fixture.press("AdminButton");
    fixture.press("NewButton");
    QCOMPARE(fixture.strip(), MonitorText::klTasksAboutToLoad());
    const QSignalSpy looked(fixture.control<QTimer>("StripRefresher"), &QTimer::timeout);
    QTRY_VERIFY(looked.size() > 1);
    QVERIFY(!UploadThread::Enabled);
    QCOMPARE(UploaderTask::allTasks(), (QList<TaskPointer>{task, off}));
    mounted.release();
    QTRY_COMPARE(fixture.names(), u"A|Off|Restored"_s);
    const TaskPointer kept = UploaderTask::getTaskWIthName(u"Off"_s);
    QVERIFY(kept != off && kept->disabled && !UploaderTask::getTaskWIthName(u"Restored"_s)->disabled);
    QCOMPARE(kept->UploadedCount, 7);
    QVERIFY(UploadThread::Enabled && UploadThread::stop(5000));
    UploaderTask::setMountOperation({});
    UploaderTask::setTriedAutoMount(false);
  }

  void aRestoreWaitsForABatchLeftBehindAndSurvivesAFailedLoading() {
    WindowFixture fixture;
    WindowFixture::storeTask(u"A"_s, u"a.vnt"_s);
    UploaderTask::Load();
    const TaskPointer task = UploaderTask::allTasks().first();
    task->Busy = task->leftBehind = true;
    std::atomic<int> loadings = 0;
    std::atomic<bool> failing = true;
    fixture.commands.loadRestoredTasks = [&] {
      ++loadings;
      if (failing) throw std::runtime_error("no memory");
      UploaderTask::Load();
    };
    fixture.commands.showAdminWindow = [] { return AdminOutcome{.tasksRestored = true}; };
    UploadThread::Enabled = true;
    fixture.openWindow();
    fixture.press("AdminButton");
    const QSignalSpy looked(fixture.control<QTimer>("StripRefresher"), &QTimer::timeout);
    QTRY_VERIFY(looked.size() > 1);
    QCOMPARE(loadings, 0);
    task->leftBehind = false;
    QTRY_VERIFY(loadings > 1);
    QVERIFY(!UploadThread::Enabled && Problems::present().last().kind == Problem::Kind::TaskFolderUnreadable);
    failing = false;
    QTRY_VERIFY(UploadThread::Enabled);
    QVERIFY(UploaderTask::allTasks().first() != task);
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
    QTest::keyClick(fixture.list(), Qt::Key_Return);
    QCOMPARE(edited, 0);
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

  void anAnswerOfTheUpdateHostIsTold_data() {
    addColumns<QString, QString, QMessageBox::StandardButton, QString>("version", "url", "button", "opened");
    QTest::newRow("up to date") << u"0.0.0v1"_s << u"http://d/x"_s << QMessageBox::Ok << u""_s;
    QTest::newRow("newer, yes") << u"9999.0.0v1"_s << u" http://d/x "_s << QMessageBox::Yes << u"http://d/x"_s;
    QTest::newRow("newer, no") << u"9999.0.0v1"_s << u"http://d/x"_s << QMessageBox::No << u""_s;
    QTest::newRow("newer, at no address") << u"9999.0.0v1"_s << u" "_s << QMessageBox::Ok << u""_s;
    QTest::newRow("newer, a local file") << u"9999.0.0v1"_s << u"file:///bin/sh"_s << QMessageBox::Yes << u""_s;
  }
  void anAnswerOfTheUpdateHostIsTold() {
    QFETCH(QString, version);
    QFETCH(QString, url);
    QFETCH(QMessageBox::StandardButton, button);
    QFETCH(QString, opened);
    const QByteArray page = "{\"version\":\"" + version.toUtf8() + "\",\"mac\":\"" + url.toUtf8() + "\"}";
    QTcpServer host;
    QVERIFY(host.listen(QHostAddress::LocalHost));
    connect(&host, &QTcpServer::newConnection, &host, [&] {
      QTcpSocket* const client = host.nextPendingConnection();
      connect(client, &QTcpSocket::readyRead, client, [client, page] {
        client->write("HTTP/1.0 200 OK\r\n\r\n" + page);
        client->disconnectFromHost();
      });
    });
    m_opened.clear();
    for (const auto& scheme : {u"http"_s, u"file"_s}) QDesktopServices::setUrlHandler(scheme, this, "noteUrl");
    WindowFixture fixture;
    fixture.commands.updateEndpoint = u"http://127.0.0.1:%1/uploader.php"_s.arg(host.serverPort());
    const QString strip = fixture.strip();
    const BoxAnswer answer(button);
    fixture.control<QAction>("FileCheckForUpdates")->setEnabled(true);  // as while the window is frontmost
    fixture.control<QAction>("FileCheckForUpdates")->trigger();
    QTRY_VERIFY(!answer.text().isEmpty() && !QApplication::activeModalWidget());
    for (const auto& scheme : {u"http"_s, u"file"_s}) QDesktopServices::unsetUrlHandler(scheme);
    QCOMPARE(answer.text(), button == QMessageBox::Ok ? u"Your software is up to date"_s
                                                      : u"Version 9999.0.0v1 is availble newer and availbale.\nWould "
                                                        "you like to downlownload it now?"_s);
    QCOMPARE(m_opened, opened.isEmpty() ? QList<QUrl>() : QList<QUrl>{QUrl(opened)});
    QCOMPARE(fixture.strip() != strip, button == QMessageBox::Yes && opened.isEmpty());  // it says why it is not opened
  }

  void helpOpensTheManual() {
    m_opened.clear();
    WindowFixture fixture;
    fixture.window().show();
    QDesktopServices::setUrlHandler(u"https"_s, this, "noteUrl");
    auto* const help = fixture.control("HelpButton");
    QTest::mousePress(help, Qt::LeftButton);
    QTest::mouseRelease(help, Qt::LeftButton, {}, QPoint(-50, 80));
    QTest::keyClick(help, Qt::Key_Space);
    QDesktopServices::unsetUrlHandler(u"https"_s);
    const QUrl manual(u"https://"_s + QLatin1String(ManualHost) + u"/other_tools/en/manual/uploader"_s);
    QCOMPARE(m_opened, (QList<QUrl>{manual, manual}));
  }

  void eachButtonAndMenuHasALetterOfItsOwn() {
    WindowFixture fixture;
    QStringList captions;
    for (const QAction* const menu : fixture.window().menuBar()->actions()) captions << menu->text();
    for (const QPushButton* const button : fixture.window().findChildren<QPushButton*>()) captions << button->text();
    QStringList letters;
    for (const QString& caption : captions) letters << QKeySequence::mnemonic(caption).toString();
    QVERIFY2(letters.size() == 8 && !letters.contains(QString()), qPrintable(captions.join(u' ')));
    QVERIFY2(letters.removeDuplicates() == 0, qPrintable(captions.join(u' ')));
  }
};

VANTRY_TEST(tst_MainWindow);
#include "tst_MainWindow.moc"
