// The main window's buttons and menu commands.

#include <QDesktopServices>
#include <QUrl>
#include <algorithm>
#include <cerrno>

#include "build_settings.h"
#include "engine/UploadThread.h"
#include "monitor/MonitorText.h"
#include "monitor/SystemLogWindow.h"
#include "monitor/VTUploaderMainWIndow.h"
#include "platform/Problems.h"
#include "platform/System.h"
#include "storage/Preferences.h"
#include "text/Placeholders.h"
#include "text/VTULocalization.h"
#include "widgets/Captions.h"
#include "widgets/Messages.h"

using namespace Qt::Literals::StringLiterals;

static constexpr int UpdateLimitMs = 30'000;
static constexpr int LeftBehindLimitMs = 60'000;  // a dead share may never answer, and the other tasks have work
static constexpr qsizetype LongestVersion = 100;

static QString notInBuild(const QString& what) {
  return fillPlaceholders(VTULocalization::klWindowNotInBuild(), {what});
}

void VTUploaderMainWIndow::NewButton_Action() {
  if (!m_commands.createNewTask) return say(notInBuild(MonitorText::klTaskEditor()));
  if (tasksAboutToChange()) return;
  if (m_commands.createNewTask()) ListTasks();
}

void VTUploaderMainWIndow::EditButton_Action() {
  const TaskPointer task = selectedTask();
  if (!task) return;
  if (!m_commands.editTask) return say(notInBuild(MonitorText::klTaskEditor()));
  if ((task->Busy.load() && task->disabled.load()) || task->batchHangs)
    return Messages::tell(this, VTULocalization::klTaskCurrentlyProcessing(), false);
  if (tasksAboutToChange()) return;
  const UploadHold hold;
  if (m_commands.editTask(task)) ListTasks();
}

void VTUploaderMainWIndow::DuplicateButton_Action() {
  const TaskPointer task = selectedTask();
  if (!task || tasksAboutToChange()) return;
  IoResult failure;
  const bool done = UploaderTask::duplicateTask(task, &failure);
  ListTasks();
  if (!done) Messages::tell(this, fillPlaceholders(MonitorText::klTaskNotDuplicated(), {failure.message()}));
}

void VTUploaderMainWIndow::RemoveButton_Action() {
  const TaskPointer task = selectedTask();
  if (!task || tasksAboutToChange() || !Messages::askYesNo(this, VTULocalization::klDeleteTaskConfirmation())) return;
  const IoResult removed = UploaderTask::RemoveTask(task);
  ListTasks();
  if (!removed.ok()) Messages::tell(this, fillPlaceholders(MonitorText::klTaskNotRemoved(), {removed.message()}));
}

void VTUploaderMainWIndow::AdminButton_Action() {
  if (m_reloadHold) return say(MonitorText::klTasksAboutToLoad());  // not at start-up: a proxy may have to be set first
  if (m_commands.checkAdminPassword && !m_commands.checkAdminPassword()) return;
  auto hold = std::make_unique<UploadHold>();
  AdminOutcome outcome;
  showAdminWindow(outcome);
  if (m_closed) return;
  if (outcome.connectionChanged) m_commands.refreshConnection(outcome.otherLogin);
  if (!outcome.tasksRestored) return;
  m_reloadHold = std::move(hold);
  m_reloadLimit.setRemainingTime(LeftBehindLimitMs);
  say(MonitorText::klTasksAboutToLoad());
  loadRestoredTasksWhenIdle();
}

void VTUploaderMainWIndow::showAdminWindow(AdminOutcome& outcome) {
  if (m_commands.showAdminWindow) outcome = m_commands.showAdminWindow();
  const auto& prefs = VantryUtil::prefs;
  const auto stored = [&prefs](const QString& key) { return prefs && !prefs->StringValue(key).trimmed().isEmpty(); };
  if (stored(u"SoapLogin"_s) && stored(u"SoapPassword"_s)) Problems::clear(Problem::Kind::NoLogin, {});
}

void VTUploaderMainWIndow::loadRestoredTasksWhenIdle() {
  if (!m_reloadHold || m_startPending || m_reload.running() || UploadThread::ProcessingNow()) return;
  const QList<TaskPointer> tasks = UploaderTask::allTasks();
  const auto hangs = [](const TaskPointer& task) { return task->batchHangs.load(); };
  if (!m_reloadLimit.hasExpired() && std::any_of(tasks.begin(), tasks.end(), hangs)) return;
  m_reload.run<bool>(
      0,
      [load = m_commands.loadRestoredTasks](const auto&) {
        load();
        return true;
      },
      [this](bool) {
        m_reloadHold.reset();
        ListTasks();
      },
      [] {
        // Stands in the strip, whose timer tries again, until a loading begins.
        const QString folder = UploaderTask::TaskDirectory().NativePath();
        Problems::raise(Problem::Kind::TaskFolderUnreadable, {}, IoResult::failure(EAGAIN, folder).message());
      });
}

bool VTUploaderMainWIndow::tasksAboutToChange() {
  if (m_startPending) say(VTULocalization::klStripConnecting());
  if (m_reloadHold) say(MonitorText::klTasksAboutToLoad());
  return m_startPending || m_reloadHold;
}

void VTUploaderMainWIndow::ShowLogbutton_Action() { SystemLogWindow::bringUp(); }

VersionCheckerClass::Exchange VTUploaderMainWIndow::updateExchange() {
  using Page = VersionCheckerClass::Page;
  return [this](const std::function<Page()>& get, const std::function<void(const Page&)>& received) {
    const auto giveUp = [this] {
      System::DebugLog(u"Update check: given up"_s);
      m_updateCheck.cancel();
    };
    m_updateCheck.run<Page>(
        UpdateLimitMs, [get](const auto&) { return get(); }, received, giveUp);
  };
}

bool VTUploaderMainWIndow::_FileCheckForUpdates_Action() {
  VersionChecker.CheckVersion();
  return true;
}

void VTUploaderMainWIndow::VersionChecker_NewVersionAvailable(const QString& version, const QString& url) {
  if (m_closed) return;
  const QString address = url.trimmed();
  if (address.isEmpty()) return Messages::tell(this, VTULocalization::klSoftwareUpToDate(), false);
  const QString shown = onOneLine(version, LongestVersion);
  if (!Messages::askYesNo(this, fillPlaceholders(MonitorText::klNewVersion(), {shown}))) return;
  // The reply came over plain HTTP: whoever sits on the line may name a local file or another program's address.
  const QUrl download(address, QUrl::StrictMode);
  const bool ofTheWeb =
      (download.scheme() == "http"_L1 || download.scheme() == "https"_L1) && !download.host().isEmpty();
  if (!ofTheWeb || !QDesktopServices::openUrl(download))
    say(fillPlaceholders(MonitorText::klDownloadNotOpened(), {onOneLine(address)}));
}

void VTUploaderMainWIndow::BottomShadingRect_DetailsWanted() {
  const StripLine& line = BottomShadingRect->line();
  Messages::tell(this, QString(line.details).replace(u'\n', u"\n\n"_s), line.tone == StripLine::Tone::Wrong);
}

void VTUploaderMainWIndow::HelpButton_MouseUp() {
  const QString address = u"https://%1/other_tools/en/manual/uploader"_s.arg(QString::fromUtf8(ManualHost));
  if (!QDesktopServices::openUrl(QUrl(address))) say(fillPlaceholders(MonitorText::klManualNotOpened(), {address}));
}
