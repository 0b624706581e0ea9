// The main window's opening, its ticks, and its closing.

#include <QDir>
#include <QSignalSpy>
#include <thread>

#include "WindowFixture.h"
#include "support/TestRunner.h"
#include "text/VTULocalization.h"

using namespace Qt::Literals::StringLiterals;

static void fromAnotherThread(const std::function<void()>& call) {
  std::thread thread(call);
  thread.join();
}

class tst_MainWindowLife : public QObject {
  Q_OBJECT
 private slots:
  void theStartUpBeginsOnceAfterTheWindowIsShown() {
    WindowFixture fixture;
    fixture.window().show();
    QVERIFY(!fixture.startUp);
    QTRY_VERIFY(fixture.startUp);
    fixture.startUp.reset();
    fixture.window().hide();
    fixture.window().show();
    QCoreApplication::processEvents();
    QVERIFY(!fixture.startUp);
  }

  void withoutALoginTheStripSaysSo() {
    WindowFixture fixture;
    fixture.window().show();
    QTRY_COMPARE(fixture.strip(), VTULocalization::klStripNoLogin());
  }

  void theTasksAppearWhenTheyAreLoaded() {
    WindowFixture fixture;
    WindowFixture::storeTask(u"A"_s, u"a.vnt"_s);
    fixture.window().StartItUp();
    QCOMPARE(fixture.strip(), VTULocalization::klStripConnecting());
    UploaderTask::Load();
    UploadThread::Enabled = true;
    fromAnotherThread(fixture.startUp->tasksLoaded);
    QVERIFY(fixture.names().isEmpty());
    QTRY_COMPARE(fixture.names(), QStringList{u"A"_s});
    QCOMPARE(fixture.strip(), VTULocalization::klStripChecking());
    UploaderTask::allTasks().first()->Status = UploaderTask::Ready;
    QTRY_VERIFY(fixture.strip().startsWith(u"All is well since "_s));
  }

  void aLateAnswerToAClosedWindowIsDropped() {
    WindowFixture fixture;
    fixture.window().StartItUp();
    fromAnotherThread(fixture.startUp->tasksLoaded);
    fixture.destroyWindow();
    QCoreApplication::processEvents();
    fromAnotherThread([&fixture] { fixture.startUp->failed(u"late"_s); });
    QCoreApplication::processEvents();
    QVERIFY(!QApplication::activeModalWidget());
  }

  void aFailedStartIsToldAndEndsTheProgram() {
    WindowFixture fixture;
    fixture.window().StartItUp();
    const Answer ok(QMessageBox::Ok);
    fromAnotherThread([&fixture] { fixture.startUp->failed(u"the reason"_s); });
    QCOMPARE(QApplication::exec(), 0);
    QVERIFY(ok.question().contains(u"the reason"_s));
  }

  void aTickBeginsARunOnlyWhileUploadingIsOn() {
    WindowFixture fixture;
    auto* const ticks = fixture.control<QTimer>("StatusRefresher");
    QCOMPARE(ticks->interval(), 4000);
    WindowFixture::loadOneTask();
    fixture.window().ListTasks();
    const auto picture = [&fixture] {
      return fixture.list()->model()->index(0, 0).data(TaskListModel::CellTagRole).toInt();
    };
    const TaskPointer task = UploaderTask::allTasks().first();
    const QSignalSpy ticked(ticks, &QTimer::timeout);
    ticks->setInterval(1);
    QTRY_VERIFY(ticked.size() > 3);
    QVERIFY(!UploadThread::ProcessingNow());
    QCOMPARE(task->Status.load(), UploaderTask::NotEvaluated);
    UploadThread::Enabled = true;
    QTRY_COMPARE(picture(), UploaderTask::Fault);  // the run found that the task has no input folder
    QVERIFY(UploadThread::stop(5000));
    UploadThread::allowAgain();
  }

  void closingAsks() {
    WindowFixture fixture;
    (void)UploaderTask::TaskDirectory();  // makes the folder
    const QString marked = fixture.home.writeFile(u"data/vantry-uploader/Uploader Tasks/x.del"_s, "x");
    fixture.window().show();
    const Answer no(QMessageBox::No);
    QVERIFY(!fixture.window().close());
    QCOMPARE(no.question(), VTULocalization::klSureYouWantToQuit());
    QVERIFY(fixture.window().isVisible());
    QVERIFY(fixture.control<QTimer>("StatusRefresher")->isActive());
    QVERIFY(QFile::exists(marked));

    const Answer yes(QMessageBox::Yes);
    QTimer::singleShot(0, &fixture.window(), &QWidget::close);
    QCOMPARE(QApplication::exec(), 0);
    QVERIFY(!fixture.window().isVisible());
    QVERIFY(!QFile::exists(marked));
  }

  void theEndOfTheSessionClosesOverAnOpenQuestion() {
    WindowFixture fixture;
    fixture.window().show();
    QTimer::singleShot(0, &fixture.window(), &QWidget::close);
    QTimer watch;
    connect(&watch, &QTimer::timeout, &fixture.window(), [&fixture] {
      if (QApplication::activeModalWidget()) fixture.window().quitWithoutAsking();
    });
    watch.start(10);
    QCOMPARE(QApplication::exec(), 0);
    QVERIFY(!fixture.window().isVisible());
  }
};

VANTRY_TEST(tst_MainWindowLife);
#include "tst_MainWindowLife.moc"
