// The main window's opening, its ticks, and its closing.

#include <QSignalSpy>
#include <thread>

#include "WindowFixture.h"
#include "text/VTULocalization.h"

using namespace Qt::Literals::StringLiterals;

class tst_MainWindowLife : public QObject {
  Q_OBJECT
 private slots:
  void theStartUpBeginsOnceAfterTheWindowIsShown() {
    WindowFixture fixture;
    fixture.window().show();
    QVERIFY(!fixture.startUp);
    QTRY_VERIFY(fixture.startUp);
    QTRY_COMPARE(fixture.strip(), VTULocalization::klStripNoLogin());
    fixture.startUp.reset();
    fixture.window().hide();
    fixture.window().show();
    QCoreApplication::processEvents();
    QVERIFY(!fixture.startUp);

    WindowFixture ending;  // a session that ends over the first admin window
    bool shown = false;
    ending.commands.showAdminWindow = [&] {
      ending.window().quitWithoutAsking();
      return shown = true, AdminOutcome{};
    };
    ending.window().show();
    QTRY_VERIFY(shown);
    QVERIFY(!ending.startUp);
  }

  void theTasksAppearAndMayBeChangedOnceTheyAreLoadedAndNotInAClosedWindow() {
    WindowFixture fixture;
    int changed = 0;
    fixture.commands.createNewTask = [&changed] { return ++changed > 0; };
    fixture.commands.editTask = [&changed](const TaskPointer&) { return ++changed > 0; };
    fixture.listTasks({u"A"_s});
    fixture.window().StartItUp();
    UploadThread::Enabled = true;
    fixture.select(0);
    for (const char* const command : {"NewButton", "EditButton", "DuplicateButton", "RemoveButton"}) {
      fixture.press(command);
      QCOMPARE(fixture.strip(), VTULocalization::klStripConnecting());
    }
    QVERIFY(changed == 0 && UploaderTask::allTasks().size() == 1);
    WindowFixture::storeTask(u"B"_s, u"b.vnt"_s);
    UploaderTask::Load();
    std::thread(fixture.startUp->tasksLoaded).join();
    QCOMPARE(fixture.names(), u"A"_s);
    QTRY_COMPARE(fixture.names(), u"A|B"_s);
    QCOMPARE(fixture.strip(), VTULocalization::klStripChecking());
    for (const TaskPointer& task : UploaderTask::allTasks()) task->Status = UploaderTask::Ready;
    fixture.window().updateTaskStatusAndCount();
    QTRY_VERIFY(fixture.strip().startsWith(u"All is well since "_s));
    {
      const UploadHold hold;
      QTRY_COMPARE(fixture.strip(), VTULocalization::klUploadingHeld());
    }
    fixture.press("NewButton");
    QCOMPARE(changed, 1);
    std::thread(fixture.startUp->tasksLoaded).join();
    fixture.destroyWindow();
    std::thread([&fixture] { fixture.startUp->failed(u"late"_s); }).join();
    QCoreApplication::processEvents();

    WindowFixture failing;
    failing.window().StartItUp();
    const BoxAnswer ok(QMessageBox::Ok);
    std::thread([&failing] { failing.startUp->failed(u"the reason"_s); }).join();
    QCOMPARE(QApplication::exec(), 0);
    QVERIFY(ok.text().contains(u"the reason"_s));
  }

  void aTickBeginsARunOnlyWhileUploadingIsOn() {
    WindowFixture fixture;
    fixture.listTasks({u"A"_s});
    auto* const ticks = fixture.control<QTimer>("StatusRefresher");
    QCOMPARE(ticks->interval(), 4000);
    const QSignalSpy ticked(ticks, &QTimer::timeout);
    ticks->setInterval(1);
    QTRY_VERIFY(ticked.size() > 3);
    QVERIFY(!UploadThread::ProcessingNow());
    QCOMPARE(UploaderTask::allTasks().first()->Status.load(), UploaderTask::NotEvaluated);
    UploadThread::Enabled = true;
    const auto picture = [&] { return fixture.list()->model()->index(0, 0).data(TaskListModel::CellTagRole).toInt(); };
    QTRY_COMPARE(picture(), UploaderTask::Fault);  // the run found that the task has no input folder
  }

  void closingAsksButNotAtTheEndOfTheSession() {
    WindowFixture fixture;
    (void)UploaderTask::TaskDirectory();  // makes the folder
    const QString marked = fixture.home.writeFile(u"data/vantry-uploader/Uploader Tasks/x.del"_s, "x");
    fixture.window().show();
    const BoxAnswer no(QMessageBox::No);
    QVERIFY(!fixture.window().close());
    QCOMPARE(no.text(), VTULocalization::klSureYouWantToQuit());
    QVERIFY(fixture.window().isVisible() && fixture.control<QTimer>("StatusRefresher")->isActive());
    QVERIFY(QFile::exists(marked));
    const BoxAnswer yes(QMessageBox::Yes);
    QTimer::singleShot(0, &fixture.window(), &QWidget::close);
    QCOMPARE(QApplication::exec(), 0);
    QVERIFY(!fixture.window().isVisible() && !QFile::exists(marked));

    WindowFixture ending;
    ending.window().show();
    QTimer::singleShot(0, &ending.window(), &QWidget::close);
    const Inside<QMessageBox> over([&](QMessageBox&) { ending.window().quitWithoutAsking(); });
    QCOMPARE(QApplication::exec(), 0);
    QVERIFY(over.done() && !ending.window().isVisible());
  }
};

VANTRY_TEST(tst_MainWindowLife);
#include "tst_MainWindowLife.moc"
