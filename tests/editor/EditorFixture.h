#pragma once
// The task editor on a home of the test's own, with two presses and two instruments in the catalogues.

#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "editor/EditTaskWindow.h"
#include "platform/Problems.h"
#include "service/VTInstrumentTrack.h"
#include "service/VTTrack.h"
#include "storage/Preferences.h"
#include "support/TemporaryHome.h"

/// Presses a button of the next message box, and keeps its text.
class BoxAnswer : public QObject {
 public:
  explicit BoxAnswer(QMessageBox::StandardButton button) : m_button(button) {
    connect(&m_timer, &QTimer::timeout, this, [this] { press(); });
    m_timer.start(5);
  }
  [[nodiscard]] const QString& text() const { return m_text; }

 private:
  void press() {
    auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box || !box->isVisible()) return;
    m_timer.stop();
    m_text = box->text();
    box->button(m_button)->click();
  }
  QMessageBox::StandardButton m_button;
  QTimer m_timer;
  QString m_text;
};

inline VTTrack makeTrack(const char* device, const char* press, const char* name, const char* workflow) {
  VTTrack track;
  track.Device = QString::fromUtf8(device);
  track.PressName = QString::fromUtf8(press);
  track.TrackName = QString::fromUtf8(name);
  track.TrackWorkflowName = QString::fromUtf8(workflow);
  return track;
}

inline VTInstrumentTrack makePair(const char* instrument, const char* serial, const char* target,
                                  const char* workflow) {
  VTInstrumentTrack pair;
  pair.InstrumentName = QString::fromUtf8(instrument);
  pair.InstrumentSerial = QString::fromUtf8(serial);
  pair.TargetName = QString::fromUtf8(target);
  pair.TargetSerial = QStringLiteral("7");
  pair.ITWorkflowName = QString::fromUtf8(workflow);
  return pair;
}

class EditorFixture {
 public:
  EditorFixture() {
    DictionaryFile::setSolutionKey(QStringLiteral("KestrelMoonOVJT"));
    VantryUtil::loadAccountPreferences();
    VTTrack::setTracks({makeTrack("XL", "XL", "Coated", "xl-coated"), makeTrack("XL", "XL", "Plain", "xl-plain"),
                        makeTrack("SM", "Press of another name", "Coated", "sm-coated")});
    VTInstrumentTrack::setTracks({makePair("Spectro", "1", "Tile", "s1-tile"),
                                  makePair("Spectro", "1", "Card", "s1-card"),
                                  makePair("Spectro", "2", "Tile", "s2-tile")});
    home.makeFolder(QStringLiteral("in"));
    home.makeFolder(QStringLiteral("out"));
  }
  ~EditorFixture() {
    m_dialog.reset();
    if (!BackgroundCall::waitForAll(10'000)) qFatal("a call did not end");
    UploaderTask::unload();
    VTTrack::setTracks({});
    VTInstrumentTrack::setTracks({});
    VantryUtil::prefs.reset();
    for (const Problem& problem : Problems::present()) Problems::clear(problem.kind, problem.subject);
    DictionaryFile::setSolutionKey({});
  }

  /// A print task for the folder `in` with the output folder `out`, saved and in the list.
  TaskPointer storedTask(const std::function<void(UploaderTask&)>& change = {}) {
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

  EditTaskWindow& open(const TaskPointer& task) {
    m_dialog = std::make_unique<EditTaskWindow>(task, nullptr);
    m_dialog->show();
    return *m_dialog;
  }
  EditTaskWindow& openNew() {
    m_dialog = std::make_unique<EditTaskWindow>(nullptr);
    m_dialog->show();
    return *m_dialog;
  }
  EditTaskWindow& dialog() { return *m_dialog; }
  void close() { m_dialog.reset(); }

  template <typename T>
  T* control(const char* name) {
    T* const found = m_dialog->findChild<T*>(QString::fromLatin1(name));
    if (!found) qFatal("no control %s", name);
    return found;
  }
  QString text(const char* field) { return control<QLineEdit>(field)->text(); }
  void type(const char* field, const QString& text) { control<QLineEdit>(field)->setText(text); }
  QComboBox* list(const char* name) { return control<QComboBox>(name); }
  void press(const char* button) { control<QPushButton>(button)->click(); }
  bool canSave() { return control<QPushButton>("OkButton")->isEnabled(); }
  bool isRed(const char* label) {
    return control<QLabel>(label)->palette().color(QPalette::WindowText) == QColor(255, 0, 0);
  }
  static QStringList taskFiles() {
    QStringList names;
    for (const FolderItem& item : UploaderTask::TaskDirectory().Items()) names << item.Name();
    return names;
  }

  TemporaryHome home;

 private:
  std::unique_ptr<EditTaskWindow> m_dialog;
};
