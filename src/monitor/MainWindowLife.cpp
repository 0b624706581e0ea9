// The main window's opening and closing.

#include <QApplication>
#include <QCloseEvent>
#include <QPointer>
#include <QTimer>

#include "monitor/SystemLogWindow.h"
#include "monitor/VTUploaderMainWIndow.h"
#include "platform/Problems.h"
#include "storage/Preferences.h"
#include "text/MainMenuBar.h"
#include "text/Placeholders.h"
#include "text/VTULocalization.h"
#include "widgets/Messages.h"

constexpr int SessionEndMs = 60'000;
// The desktop places the window a moment after it is shown; a dialog that comes before that is centred over a place
// where the window is not.
constexpr int PlacedMs = 150;

static bool loginIsStored() {
  return !VantryUtil::SoapUserName().trimmed().isEmpty() && !VantryUtil::SoapPassword().trimmed().isEmpty();
}

void VTUploaderMainWIndow::showEvent(QShowEvent* event) {
  QMainWindow::showEvent(event);
  if (m_opened) return;
  m_opened = true;
  QTimer::singleShot(loginIsStored() ? 0 : PlacedMs, this, &VTUploaderMainWIndow::Event_Open);
}

void VTUploaderMainWIndow::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() == QEvent::ActivationChange) Event_EnableMenuItems();
}

void VTUploaderMainWIndow::Event_EnableMenuItems() {
  m_menus->FileCheckForUpdates->setEnabled(QApplication::activeWindow() == this);
}

void VTUploaderMainWIndow::Event_Open() {
  if (m_closed) return;
  if (!loginIsStored()) {
    Problems::raise(Problem::Kind::NoLogin, {}, {});
    AdminOutcome outcome;  // dropped: the start-up asks the service and loads the tasks in any case
    showAdminWindow(outcome);
    if (m_closed) return;
  }
  StartItUp();
}

/// Runs `call` on the main thread with the window, if there still is one by then.
static auto onMainThread(const QPointer<VTUploaderMainWIndow>& window, auto call) {
  QMetaObject::invokeMethod(
      qApp,
      [window, call] {
        if (window) call(*window);
      },
      Qt::QueuedConnection);
}

void VTUploaderMainWIndow::StartItUp() {
  const QPointer<VTUploaderMainWIndow> window(this);
  StartUp::Events events;
  events.tasksLoaded = [window] { onMainThread(window, [](VTUploaderMainWIndow& w) { w.tasksLoaded(); }); };
  events.failed = [window](const QString& reason) {
    onMainThread(window, [reason](VTUploaderMainWIndow& w) { w.startFailed(reason); });
  };
  m_startPending = true;
  m_commands.beginStartUp(events);
}

void VTUploaderMainWIndow::tasksLoaded() {
  if (m_closed) return;
  m_startPending = false;
  m_noticeEnd.setRemainingTime(0);  // it may say that the tasks are waited for
  if (m_phase == StartPhase::Connecting) m_phase = StartPhase::Checking;
  ListTasks();
  StripRefresher_Action();
}

void VTUploaderMainWIndow::startFailed(const QString& reason) {
  if (m_closed) return;
  m_startPending = false;
  Messages::tell(this, fillPlaceholders(VTULocalization::klStartFailed(), {reason}));
  quitWithoutAsking();
}

void VTUploaderMainWIndow::quitWithoutAsking() {
  m_quitting = true;
  finish();  // not close(): while its question is open, Qt takes that for done
  hide();
}

void VTUploaderMainWIndow::expectSessionEnd() {
  m_quitting = true;
  QTimer::singleShot(SessionEndMs, this, [this] { m_quitting = m_closed; });
}

bool VTUploaderMainWIndow::Event_CancelClose() {
  if (!Messages::askYesNo(this, VTULocalization::klSureYouWantToQuit())) return true;
  SystemLogWindow* const log = SystemLogWindow::openOne();
  return log && !m_quitting && !log->close();  // which asks while it exports
}

void VTUploaderMainWIndow::closeEvent(QCloseEvent* event) {
  const bool stays = !m_quitting && Event_CancelClose() && !m_quitting;  // the session may end over the question
  event->setAccepted(!stays);
  if (!stays) finish();
}

void VTUploaderMainWIndow::finish() {
  if (m_closed) return;
  m_closed = true;
  Event_Close();
}

void VTUploaderMainWIndow::Event_Close() {
  StatusRefresher->stop();
  StripRefresher->stop();
  UploaderTask::cleanUpDeletedTasks();
  QCoreApplication::exit(0);
}
