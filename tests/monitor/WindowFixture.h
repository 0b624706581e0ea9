#pragma once
// A main window on a home of the test's own, with a scripted start-up.

#include <QTreeView>
#include <optional>

#include "engine/UploadThread.h"
#include "monitor/VTUploaderMainWIndow.h"
#include "support/ProgramHome.h"
#include "support/TestRunner.h"

class WindowFixture : public WindowControls {
 public:
  WindowFixture() { UploadThread::allowAgain(); }
  ~WindowFixture() override {
    destroyWindow();
    UploadThread::Enabled = false;
    if (!UploadThread::stop(60'000)) qFatal("the run did not end");
    UploadThread::allowAgain();
  }

  /// Stores a task under that file name; Load() brings it into the list.
  static void storeTask(const QString& name, const QString& fileName) {
    UploaderTask task;
    task.Name = name;
    if (!task.save(UploaderTask::TaskDirectory().Child(fileName))) qFatal("cannot store a task");
  }
  /// Tasks named so, in the list of the window.
  void listTasks(const QStringList& tasks) {
    for (const QString& name : tasks) storeTask(name, name.toLower() + QStringLiteral(".vnt"));
    UploaderTask::Load();
    window().ListTasks();
  }

  /// The window, made at the first call; its start-up calls are kept in `startUp`.
  VTUploaderMainWIndow& window() {
    if (m_window) return *m_window;
    commands.beginStartUp = [this](const StartUp::Events& events) { startUp = events; };
    m_window = std::make_unique<VTUploaderMainWIndow>(commands);
    return *m_window;
  }
  /// Shows the window and lets its start-up end.
  void openWindow() {
    window().show();
    QTRY_VERIFY(startUp);
    startUp->tasksLoaded();
    QCoreApplication::processEvents();
  }
  void destroyWindow() { m_window.reset(); }

  QTreeView* list() { return control<QTreeView>("TaskList"); }
  void select(int row) { list()->setCurrentIndex(list()->model()->index(row, 0)); }
  QString strip() { return control<QLabel>("BottomShadingRect")->text(); }
  QString names() {
    QStringList shown;
    for (int row = 0; row < list()->model()->rowCount(); ++row)
      shown << list()->model()->index(row, TaskListModel::NameColumn).data().toString();
    return shown.join(u'|');
  }
  static QString taskFiles() {
    return QDir(UploaderTask::TaskDirectory().NativePath()).entryList(QDir::Files, QDir::Name).join(u'|');
  }

  ProgramHome home;
  MainWindowCommands commands;
  std::optional<StartUp::Events> startUp;

 protected:
  QWidget& shownWindow() override { return window(); }

 private:
  std::unique_ptr<VTUploaderMainWIndow> m_window;
};
