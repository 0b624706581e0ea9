#pragma once
// The task editor on a home of the test's own, with two presses and two instruments in the catalogues.

#include "editor/EditTaskWindow.h"
#include "service/VTInstrumentTrack.h"
#include "service/VTTrack.h"
#include "support/ProgramHome.h"
#include "support/TestRunner.h"

class EditorFixture : public WindowControls {
 public:
  EditorFixture() {
    const auto track = [](const char* device, const char* press, const char* name, const char* workflow) {
      VTTrack made;
      made.Device = QString::fromUtf8(device);
      made.PressName = QString::fromUtf8(press);
      made.TrackName = QString::fromUtf8(name);
      made.TrackWorkflowName = QString::fromUtf8(workflow);
      return made;
    };
    const auto pair = [](const char* serial, const char* target, const char* workflow) {
      VTInstrumentTrack made;
      made.InstrumentName = QStringLiteral("Spectro");
      made.InstrumentSerial = QString::fromUtf8(serial);
      made.TargetName = QString::fromUtf8(target);
      made.TargetSerial = QStringLiteral("7");
      made.ITWorkflowName = QString::fromUtf8(workflow);
      return made;
    };
    VTTrack::setTracks({track("XL", "XL", "Coated", "xl-coated"), track("XL", "XL", "Plain", "xl-plain"),
                        track("SM", "Press of another name", "Coated", "sm-coated")});
    VTInstrumentTrack::setTracks(
        {pair("1", "Tile", "s1-tile"), pair("1", "Card", "s1-card"), pair("2", "Tile", "s2-tile")});
    home.makeFolder(QStringLiteral("in"));
    home.makeFolder(QStringLiteral("out"));
  }
  ~EditorFixture() override {
    close();
    VTTrack::setTracks({});
    VTInstrumentTrack::setTracks({});
  }

  /// A print task for the folder `in` with the output folder `out`, saved and in the list.
  TaskPointer storedTask(const std::function<void(UploaderTask&)>& change = {}) const {
    auto task = std::make_shared<UploaderTask>();
    task->Name = QStringLiteral("Press 1");
    task->Warden = QStringLiteral("Print");
    task->Track = QStringLiteral("xl-plain");
    task->Extension = QStringLiteral(".txt");
    task->inputFolderPath = home.path(QStringLiteral("in"));
    task->outputFolderPath = home.path(QStringLiteral("out"));
    if (change) change(*task);
    if (!task->save(UploaderTask::TaskDirectory().Child(QStringLiteral("stored.VNT")))) qFatal("cannot store a task");
    UploaderTask::addTask(task);
    return task;
  }

  /// Opens the editor on a task, or on a new one.
  EditTaskWindow& open(const TaskPointer& task) {
    close();
    m_dialog = task ? std::make_unique<EditTaskWindow>(task, nullptr) : std::make_unique<EditTaskWindow>(nullptr);
    m_dialog->show();
    return *m_dialog;
  }
  EditTaskWindow& openNew() { return open(nullptr); }
  EditTaskWindow& dialog() { return *m_dialog; }
  void close() { m_dialog.reset(); }
  /// Presses OK as soon as it is enabled; the task that is first in the list afterwards.
  TaskPointer save() {
    [&] { QTRY_VERIFY(canSave()); }();
    press("OkButton");
    return UploaderTask::allTasks().value(0);
  }

  QComboBox* list(const char* name) { return control<QComboBox>(name); }
  QString sample() { return control<LiveSample>("Sample")->line(); }
  bool canSave() { return enabled("OkButton"); }
  bool isRed(const char* label) { return control(label)->palette().color(QPalette::WindowText) == QColor(255, 0, 0); }

  ProgramHome home;

 protected:
  QWidget& shownWindow() override { return *m_dialog; }

 private:
  std::unique_ptr<EditTaskWindow> m_dialog;
};
