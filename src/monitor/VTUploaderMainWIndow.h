#pragma once
// The one document window: the task list, what the background work is doing, and the commands. Its timer begins each
// run of the upload thread. Lives from start to end of the program; its closing ends the program. Main thread.

#include <QDeadlineTimer>
#include <QLabel>
#include <QMainWindow>
#include <QPushButton>
#include <QTimer>
#include <functional>

#include "admin/AdminWindow.h"
#include "admin/TaskBackup.h"
#include "engine/StartUp.h"
#include "engine/UploadThread.h"
#include "engine/UploaderTask.h"
#include "monitor/HeaderPicture.h"
#include "monitor/ShadedStrip.h"
#include "monitor/TaskListModel.h"
#include "monitor/TaskListView.h"
#include "service/VersionCheckerClass.h"
#include "widgets/BackgroundCall.h"

/// What the window's commands open; whoever wires the program sets them. Where the editor's or the log viewer's is
/// empty, its button says in the foot strip that the window is not there.
struct MainWindowCommands {
  std::function<bool()> createNewTask;               ///< true: a task was added
  std::function<bool(const TaskPointer&)> editTask;  ///< true: the task was changed
  std::function<bool()> checkAdminPassword;          ///< empty: none is asked for
  std::function<AdminOutcome()> showAdminWindow;     ///< returns when it is closed
  std::function<void(const StartUp::Events&)> beginStartUp = &StartUp::begin;
  std::function<void(bool otherLogin)> refreshConnection = &StartUp::refresh;
  std::function<void()> loadRestoredTasks = &::loadRestoredTasks;
  QString updateEndpoint = UpdateEndpoint();
};

class MainMenuBar;

class VTUploaderMainWIndow : public QMainWindow {
  Q_OBJECT
 public:
  explicit VTUploaderMainWIndow(MainWindowCommands commands = {}, QWidget* parent = nullptr);

  /// Rebuilds the list from allTasks as one change on screen, with no row selected, and brings it up to date.
  void ListTasks();
  /// Brings the present rows up to date with their tasks.
  void updateTaskStatusAndCount();
  /// Begins the start-up calls; their answers come from another thread and are dropped once the window is closed.
  void StartItUp();
  /// Says something in the foot strip for some seconds.
  void say(const QString& notice);
  /// Closes without the question, also while a message box is open; for the end of the session.
  void quitWithoutAsking();
  /// For a minute the window closes without asking. The session may yet go on: another program may keep it, or it
  /// only wants everything saved, and the work goes on meanwhile.
  void expectSessionEnd();

 protected:
  void showEvent(QShowEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void buildControls();
  void buildMenus();
  void buildKeys();
  void connectControls();

  void Event_Open();
  /// True keeps the window open.
  [[nodiscard]] bool Event_CancelClose();
  void Event_Close();
  void Event_EnableMenuItems();
  bool _FileCheckForUpdates_Action();
  void VersionChecker_NewVersionAvailable(const QString& version, const QString& url);
  void StatusRefresher_Action();
  void StripRefresher_Action();
  void TaskList_Change();
  void NewButton_Action();
  void EditButton_Action();
  void DuplicateButton_Action();
  void RemoveButton_Action();
  void AdminButton_Action();
  void ShowLogbutton_Action();
  void HelpButton_MouseUp();
  void BottomShadingRect_DetailsWanted();

  [[nodiscard]] VersionCheckerClass::Exchange updateExchange();
  /// What every way of closing ends in; does its work once.
  void finish();
  void tasksLoaded();
  void startFailed(const QString& reason);
  void showAdminWindow(AdminOutcome& outcome);
  /// Loads the restored tasks as soon as no batch is under way, also none left behind that may still end; uploading is
  /// held until they are there. A loading that fails is told, and tried again at the next call.
  void loadRestoredTasksWhenIdle();
  /// True, and says so, while the tasks of the list are about to be replaced.
  [[nodiscard]] bool tasksAboutToChange();
  [[nodiscard]] StripInput stripInput();
  [[nodiscard]] TaskPointer selectedTask() const;

  MainMenuBar* m_menus = nullptr;
  HeaderPicture* Banner = nullptr;
  PictureButton* HelpButton = nullptr;
  QLabel* VersionLabel = nullptr;
  TaskListView* TaskList = nullptr;
  QPushButton* NewButton = nullptr;
  QPushButton* EditButton = nullptr;
  QPushButton* DuplicateButton = nullptr;
  QPushButton* RemoveButton = nullptr;
  QPushButton* AdminButton = nullptr;
  QPushButton* ShowLogbutton = nullptr;
  ShadedStrip* BottomShadingRect = nullptr;
  QTimer* StatusRefresher = nullptr;
  QTimer* StripRefresher = nullptr;
  VersionCheckerClass VersionChecker;

  MainWindowCommands m_commands;
  BackgroundCall m_updateCheck;
  TaskListModel* m_model;
  StartPhase m_phase = StartPhase::Connecting;
  WellSince m_wellSince;
  QString m_notice;
  QDeadlineTimer m_noticeEnd{0};
  BackgroundCall m_reload;
  QDeadlineTimer m_reloadLimit;              // for batches that were left behind
  std::unique_ptr<UploadHold> m_reloadHold;  // from the closing of the admin window to the end of the loading
  bool m_startPending = false;               // the start-up calls are made, and their tasks have not come
  bool m_opened = false;
  bool m_quitting = false;
  bool m_closed = false;
};
