// The main window's buttons.

#include <QDesktopServices>
#include <QUrl>

#include "build_settings.h"
#include "engine/UploadThread.h"
#include "monitor/MonitorText.h"
#include "monitor/VTUploaderMainWIndow.h"
#include "text/Placeholders.h"
#include "text/VTULocalization.h"
#include "widgets/Messages.h"

using namespace Qt::Literals::StringLiterals;

static QString notInBuild(const QString& what) {
  return fillPlaceholders(VTULocalization::klWindowNotInBuild(), {what});
}

void VTUploaderMainWIndow::NewButton_Action() {
  if (!m_commands.createNewTask) return say(notInBuild(MonitorText::klTaskEditor()));
  if (m_commands.createNewTask()) ListTasks();
}

void VTUploaderMainWIndow::EditButton_Action() {
  const TaskPointer task = selectedTask();
  if (!task) return;
  if (!m_commands.editTask) return say(notInBuild(MonitorText::klTaskEditor()));
  if (task->Busy.load() && task->disabled.load())
    return Messages::tell(this, VTULocalization::klTaskCurrentlyProcessing(), false);
  UploadThread::Enabled = false;
  if (m_commands.editTask(task)) ListTasks();
  UploadThread::Enabled = true;
}

void VTUploaderMainWIndow::DuplicateButton_Action() {
  const TaskPointer task = selectedTask();
  if (!task) return;
  IoResult failure;
  const bool done = UploaderTask::duplicateTask(task, &failure);
  ListTasks();
  if (!done) Messages::tell(this, fillPlaceholders(MonitorText::klTaskNotDuplicated(), {failure.message()}));
}

void VTUploaderMainWIndow::RemoveButton_Action() {
  const TaskPointer task = selectedTask();
  if (!task || !Messages::askYesNo(this, VTULocalization::klDeleteTaskConfirmation())) return;
  const IoResult removed = UploaderTask::RemoveTask(task);
  ListTasks();
  if (!removed.ok()) Messages::tell(this, fillPlaceholders(MonitorText::klTaskNotRemoved(), {removed.message()}));
}

void VTUploaderMainWIndow::AdminButton_Action() {
  if (!m_commands.showAdminWindow) return say(notInBuild(MonitorText::klAdminWindow()));
  if (m_commands.checkAdminPassword && !m_commands.checkAdminPassword()) return;
  UploadThread::Enabled = false;
  m_commands.showAdminWindow();
  UploadThread::Enabled = true;
}

void VTUploaderMainWIndow::ShowLogbutton_Action() {
  if (!m_commands.showLogWindow) return say(notInBuild(MonitorText::klLogViewer()));
  m_commands.showLogWindow();
}

void VTUploaderMainWIndow::HelpButton_MouseUp() {
  const QString address = u"https://%1/other_tools/en/manual/uploader"_s.arg(QString::fromUtf8(ManualHost));
  if (!QDesktopServices::openUrl(QUrl(address))) say(fillPlaceholders(MonitorText::klManualNotOpened(), {address}));
}
