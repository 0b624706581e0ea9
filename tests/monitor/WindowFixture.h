#pragma once
// A main window on a home of the test's own, with a scripted start-up, and what answers its message boxes.

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QTreeView>
#include <optional>

#include "engine/UploadThread.h"
#include "monitor/VTUploaderMainWIndow.h"
#include "platform/Problems.h"
#include "storage/DictionaryFile.h"
#include "support/TemporaryHome.h"

/// Presses a button of the next message box, and keeps its text.
class Answer : public QObject {
 public:
  explicit Answer(QMessageBox::StandardButton button) : m_button(button) {
    QObject::connect(&m_timer, &QTimer::timeout, this, [this] { press(); });
    m_timer.start(10);
  }
  [[nodiscard]] const QString& question() const { return m_question; }

 private:
  void press() {
    auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box || !box->isVisible()) return;
    m_timer.stop();
    m_question = box->text();
    box->button(m_button)->click();
  }

  QMessageBox::StandardButton m_button;
  QTimer m_timer;
  QString m_question;
};

class WindowFixture {
 public:
  WindowFixture() { DictionaryFile::setSolutionKey(QStringLiteral("KestrelMoonOVJT")); }
  ~WindowFixture() {
    m_window.reset();
    UploadThread::Enabled = false;
    UploaderTask::unload();
    for (const Problem& problem : Problems::present()) Problems::clear(problem.kind, problem.subject);
    DictionaryFile::setSolutionKey({});
  }

  /// Stores a task under that file name; Load() brings it into the list.
  static void storeTask(const QString& name, const QString& fileName) {
    UploaderTask task;
    task.Name = name;
    if (!task.save(UploaderTask::TaskDirectory().Child(fileName))) qFatal("cannot store a task");
  }
  static void loadOneTask() {
    storeTask(QStringLiteral("A"), QStringLiteral("a.vnt"));
    UploaderTask::Load();
  }

  /// The window, made at the first call; its start-up calls are kept in `startUp`.
  VTUploaderMainWIndow& window() {
    if (m_window) return *m_window;
    commands.beginStartUp = [this](const StartUp::Events& events) { startUp = events; };
    m_window = std::make_unique<VTUploaderMainWIndow>(commands);
    return *m_window;
  }
  void destroyWindow() { m_window.reset(); }

  template <typename T>
  T* control(const char* name) {
    T* const found = window().findChild<T*>(QString::fromLatin1(name));
    if (!found) qFatal("no control %s", name);
    return found;
  }
  QTreeView* list() { return control<QTreeView>("TaskList"); }
  void select(int row) { list()->setCurrentIndex(list()->model()->index(row, 0)); }
  void press(const char* button) { control<QPushButton>(button)->click(); }
  QString strip() { return control<QLabel>("BottomShadingRect")->text(); }
  QStringList names() {
    QStringList shown;
    for (int row = 0; row < list()->model()->rowCount(); ++row)
      shown << list()->model()->index(row, TaskListModel::NameColumn).data().toString();
    return shown;
  }

  TemporaryHome home;
  MainWindowCommands commands;
  std::optional<StartUp::Events> startUp;

 private:
  std::unique_ptr<VTUploaderMainWIndow> m_window;
};
