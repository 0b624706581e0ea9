// The editor is used from the main window while the upload thread works: a batch is held open at the service.

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QTreeView>

#include "editor/EditTaskWindow.h"
#include "engine/DueMemory.h"
#include "engine/UploadThread.h"
#include "monitor/VTUploaderMainWIndow.h"
#include "service/VTTrack.h"
#include "support/EngineBench.h"
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
    task = engine.makeTask(u"Press"_s);
    if (!task->save(UploaderTask::TaskDirectory().Child(u"press.VNT"_s))) qFatal("cannot store a task");
    UploaderTask::addTask(task);
    MainWindowCommands commands;
    commands.beginStartUp = [](const StartUp::Events&) {};
    commands.editTask = [this](const TaskPointer& edited) {
      ++opened;
      return EditTaskWindow::EditTask(edited, window.get());
    };
    window = std::make_unique<VTUploaderMainWIndow>(commands);
    window->show();
    window->ListTasks();
  }
  ~Bench() {
    engine.service.release();
    window.reset();
    if (!BackgroundCall::waitForAll(10'000)) qFatal("a call did not end");
    VTTrack::setTracks({});
  }

  /// Begins a batch of one file that the service holds.
  void beginBatch() {
    engine.drop(u"a.txt"_s);
    engine.service.hold();
    UploadThread::Start();
    if (!engine.service.waitForHeld(1, 10'000)) qFatal("the batch did not begin");
  }
  /// Presses Edit, and does that while the dialog is open; it must close the dialog.
  void edit(const std::function<void(EditTaskWindow&)>& whileOpen) {
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, window.get(), [&] {
      auto* const dialog = qobject_cast<EditTaskWindow*>(QApplication::activeModalWidget());
      if (!dialog) return;
      poll.stop();
      whileOpen(*dialog);
      dialog->reject();
    });
    poll.start(5);
    auto* const list = window->findChild<QTreeView*>(u"TaskList"_s);
    list->setCurrentIndex(list->model()->index(0, 0));
    press(*window, "EditButton");
  }
  static void press(QWidget& in, const char* button) {
    in.findChild<QPushButton*>(QString::fromLatin1(button))->click();
  }
  static bool canSave(const QWidget& dialog) { return dialog.findChild<QPushButton*>(u"OkButton"_s)->isEnabled(); }
  /// Runs the upload thread until these files have arrived in all, in that order.
  void runUntil(const QStringList& received) {
    UploadThread::Start();
    QTRY_COMPARE_WITH_TIMEOUT(engine.received(), received, 20'000);
    QTRY_VERIFY_WITH_TIMEOUT(!UploadThread::ProcessingNow(), 20'000);
  }

  EngineBench engine;
  TaskPointer task;
  std::unique_ptr<VTUploaderMainWIndow> window;
  int opened = 0;
};

class tst_EditingWhileSending : public QObject {
  Q_OBJECT

 private slots:
  void noRunBeginsWhileTheEditorIsOpen() {
    Bench bench;
    bench.beginBatch();
    QVERIFY(bench.task->Busy);
    bench.edit([&](EditTaskWindow& dialog) {
      QVERIFY(!UploadThread::Enabled);
      bench.engine.service.release();
      QTRY_VERIFY(!UploadThread::ProcessingNow());
      QCOMPARE(bench.engine.received(), QStringList{u"a.txt"_s});
      bench.engine.clock.advance(100);
      bench.engine.drop(u"b.txt"_s);
      UploadThread::Start();
      QTRY_VERIFY(!UploadThread::ProcessingNow());
      QCOMPARE(bench.engine.received().size(), 1);
      Bench::press(dialog, "CancelDialogButton");
    });
    QCOMPARE(bench.opened, 1);
    QVERIFY(UploadThread::Enabled && !bench.task->Busy);
    bench.runUntil((QStringList{u"a.txt"_s, u"b.txt"_s}));
  }

  void aTaskReplacedDuringItsBatchSendsNothingTwice() {
    Bench bench;
    bench.beginBatch();
    bench.edit([&](EditTaskWindow& dialog) {
      QTRY_VERIFY(Bench::canSave(dialog));
      Bench::press(dialog, "OkButton");
    });
    QVERIFY(UploadThread::Enabled);
    const TaskPointer replaced = UploaderTask::allTasks().first();
    QVERIFY(replaced != bench.task);
    bench.engine.service.release();
    QTRY_VERIFY(!UploadThread::ProcessingNow());
    QCOMPARE(bench.task->UploadedCount.load(), 1);
    bench.engine.clock.advance(100);
    bench.engine.drop(u"b.txt"_s);
    bench.runUntil((QStringList{u"a.txt"_s, u"b.txt"_s}));
    QCOMPARE(replaced->UploadedCount.load(), 1);
  }

  void aDateClearedDuringABatchStaysCleared() {
    Bench bench;
    bench.engine.drop(u"earlier.txt"_s);
    bench.runUntil({u"earlier.txt"_s});
    bench.engine.clock.advance(100);
    bench.beginBatch();
    bench.edit([&](EditTaskWindow& dialog) {
      QTimer yes;
      connect(&yes, &QTimer::timeout, this, [] {
        if (auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
          box->button(QMessageBox::Yes)->click();
      });
      yes.start(5);
      Bench::press(dialog, "ClearProcessDateStampButton");
      QTRY_COMPARE(storedDateLimit(u"Press"_s), 0.0);
      bench.engine.service.release();
      QTRY_VERIFY(!UploadThread::ProcessingNow());
      Bench::press(dialog, "CancelDialogButton");
    });
    QCOMPARE(storedDateLimit(u"Press"_s), 0.0);
    bench.runUntil((QStringList{u"earlier.txt"_s, u"a.txt"_s, u"a.txt"_s, u"earlier.txt"_s}));
    QTRY_VERIFY(storedDateLimit(u"Press"_s) > 0);
  }

  void aBusyTaskThatIsDisabledIsRefused() {
    Bench bench;
    bench.beginBatch();
    bench.task->disabled = true;
    QString told;
    QTimer ok;
    connect(&ok, &QTimer::timeout, this, [&] {
      auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (!box) return;
      told = box->text();
      box->button(QMessageBox::Ok)->click();
    });
    ok.start(5);
    auto* const list = bench.window->findChild<QTreeView*>(u"TaskList"_s);
    list->setCurrentIndex(list->model()->index(0, 0));
    Bench::press(*bench.window, "EditButton");
    QCOMPARE(told, u"This task is currently processing. Please try again in a moment"_s);
    QCOMPARE(bench.opened, 0);
    QVERIFY(UploadThread::Enabled);
  }
};

VANTRY_TEST(tst_EditingWhileSending);
#include "tst_EditingWhileSending.moc"
