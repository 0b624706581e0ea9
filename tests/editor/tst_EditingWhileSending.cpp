// The editor is used from the main window while the upload thread works: a batch is held open at the service.

#include <QTreeView>

#include "editor/EditTaskWindow.h"
#include "engine/DueMemory.h"
#include "engine/UploadThread.h"
#include "monitor/VTUploaderMainWIndow.h"
#include "service/VTTrack.h"
#include "support/EngineBench.h"
#include "support/ProgramHome.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;

class Bench {
 public:
  Bench() {
    VTTrack track;
    track.Device = track.PressName = u"XL"_s;
    track.TrackName = u"Coated"_s;
    track.TrackWorkflowName = PracticeService::knownPrintTrack();
    VTTrack::setTracks({track});
    if (!task->save(UploaderTask::TaskDirectory().Child(u"press.VNT"_s))) qFatal("cannot store a task");
    UploaderTask::addTask(task);
    MainWindowCommands commands;
    bool begun = false;
    commands.beginStartUp = [&begun](const StartUp::Events& events) {
      events.tasksLoaded();
      begun = true;
    };
    commands.editTask = [this](const TaskPointer& edited) { return EditTaskWindow::EditTask(edited, window.get()); };
    window = std::make_unique<VTUploaderMainWIndow>(commands);
    window->show();
    if (!QTest::qWaitFor([&begun] { return begun; }, 60'000)) qFatal("the start-up did not begin");
    QCoreApplication::processEvents();  // the window hears that the tasks are loaded
    window->ListTasks();
  }
  ~Bench() {
    engine.service.release();
    window.reset();
    if (!BackgroundCall::waitForAll(60'000)) qFatal("a call did not end");
    VTTrack::setTracks({});
  }

  /// Begins a batch of one file that the service holds.
  void beginBatch() {
    engine.drop(u"a.txt"_s);
    engine.service.hold();
    UploadThread::Start();
    if (!engine.service.waitForHeld(1, 60'000)) qFatal("the batch did not begin");
  }
  void endBatch() {
    engine.service.release();
    QTRY_VERIFY_WITH_TIMEOUT(!UploadThread::ProcessingNow(), 60'000);
  }
  /// Presses Edit, and does that while the dialog is open.
  void edit(const std::function<void(EditTaskWindow&)>& whileOpen) {
    const Inside<EditTaskWindow> dialog([&](EditTaskWindow& open) {
      whileOpen(open);
      open.reject();
    });
    auto* const list = controlOf<QTreeView>(*window, "TaskList");
    list->setCurrentIndex(list->model()->index(0, 0));
    press(*window, "EditButton");
  }
  static void press(QWidget& in, const char* button) { controlOf<QPushButton>(in, button)->click(); }
  /// Runs the upload thread until these files have arrived in all, in that order.
  void runUntil(const QStringList& received) {
    const auto arrived = [this] {
      UploadThread::Start();  // again and again, as the main window's timer does
      return engine.received();
    };
    QTRY_COMPARE(arrived(), received);
    endBatch();
  }

  EngineBench engine;
  TaskPointer task = engine.makeTask(u"Press"_s);
  std::unique_ptr<VTUploaderMainWIndow> window;
};

class tst_EditingWhileSending : public QObject {
  Q_OBJECT
 private slots:
  void aTaskReplacedDuringItsBatchSendsNothingTwiceAndNoRunBeginsWhileTheEditorIsOpen() {
    Bench bench;
    bench.beginBatch();
    QVERIFY(bench.task->Busy);
    bench.edit([&](EditTaskWindow& dialog) {
      QVERIFY(!UploadThread::Enabled);
      QTRY_VERIFY(controlOf<QPushButton>(dialog, "OkButton")->isEnabled());
      Bench::press(dialog, "OkButton");
    });
    const TaskPointer replaced = UploaderTask::allTasks().first();
    QVERIFY(UploadThread::Enabled && replaced != bench.task);
    bench.edit([&](EditTaskWindow&) {
      bench.endBatch();
      bench.engine.clock.advance(100);
      bench.engine.drop(u"b.txt"_s);
      UploadThread::Start();
      QTRY_VERIFY(!UploadThread::ProcessingNow());
      QCOMPARE(bench.engine.received(), QStringList{u"a.txt"_s});
    });
    QVERIFY(UploadThread::Enabled && !replaced->Busy);
    bench.runUntil({u"a.txt"_s, u"b.txt"_s});
    QVERIFY(bench.task->UploadedCount == 1 && replaced->UploadedCount == 1);
  }

  void aDateClearedDuringABatchStaysCleared() {
    Bench bench;
    bench.engine.drop(u"earlier.txt"_s);
    bench.runUntil({u"earlier.txt"_s});
    bench.engine.clock.advance(100);
    bench.beginBatch();
    bench.edit([&](EditTaskWindow& dialog) {
      const BoxAnswer yes(QMessageBox::Yes);
      Bench::press(dialog, "ClearProcessDateStampButton");
      QTRY_COMPARE(storedDateLimit(u"Press"_s), 0.0);
      bench.endBatch();
    });
    QCOMPARE(storedDateLimit(u"Press"_s), 0.0);
    bench.runUntil({u"earlier.txt"_s, u"a.txt"_s, u"a.txt"_s, u"earlier.txt"_s});
    QTRY_VERIFY(storedDateLimit(u"Press"_s) > 0);
  }
};

VANTRY_TEST(tst_EditingWhileSending);
#include "tst_EditingWhileSending.moc"
