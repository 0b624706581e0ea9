// The admin window's backup and restore of the task files.

#include <exception>

#include "admin/AdminWindow.h"
#include "engine/UploaderTask.h"
#include "text/VTULocalization.h"
#include "widgets/Messages.h"

using namespace VTULocalization;

constexpr int SlowMs = 3000;

void AdminWindow::saveConfigurationButton_Action() {
  if (m_copying.running() || m_job) return;
  BackupLine->say({});
  const auto offer = [this](const QList<FolderItem>& files) {
    if (files.isEmpty()) return Messages::tell(this, klNoTasksToSave(), false);
    m_chooser.choose(PathChooser::What::Folder,
                     {klSelectBackupDirectory(), klSave(), klCancel(), klBackupDescription()}, {},
                     [this, files](const std::optional<FolderItem>& chosen) {
                       if (!chosen) return;
                       beginCopying(
                           false, [files, into = *chosen](CopyJob& job) { backUpTasks(files, into, job); },
                           [this](const CopyJob& job) {
                             copyingEnded(job.copies() > 0 && job.failures().isEmpty() ? klBackupDone() : QString());
                             if (!job.failures().isEmpty())
                               Messages::tell(this, messageNaming(klBackupFailed(), job.failures()));
                           });
                     });
  };
  m_copying.run<QList<FolderItem>>(
      0, [](const auto&) { return taskFilesIn(UploaderTask::TaskDirectory()); }, offer,
      [this] { BackupLine->say(klNotBegun()); });
}

void AdminWindow::LoadConfigurationButton_Action() {
  if (m_copying.running() || m_job) return;
  BackupLine->say({});
  m_chooser.choose(PathChooser::What::Folder,
                   {klSelectBackupDirectory(), klLoad(), klCancel(), klLoadConfigurationDescription()}, {},
                   [this](const std::optional<FolderItem>& chosen) {
                     if (!chosen) return;
                     beginCopying(
                         true, [from = *chosen](CopyJob& job) { restoreTasks(from, job); },
                         [this](const CopyJob& job) {
                           copyingEnded(job.copies() > 0 && job.failures().isEmpty() ? klRestoreDone() : QString());
                           m_outcome.tasksRestored = m_outcome.tasksRestored || job.copies() > 0;
                           if (!job.failures().isEmpty())
                             Messages::tell(this, messageNaming(klRestoreFailed(), job.failures()));
                         });
                   });
}

void AdminWindow::beginCopying(bool restoring, std::function<void(CopyJob&)> copy,
                               std::function<void(const CopyJob&)> end) {
  m_job = std::make_shared<CopyJob>();
  m_restoring = restoring;
  saveConfigurationButton->setEnabled(false);
  LoadConfigurationButton->setEnabled(false);
  BackupLine->say(restoring ? klRestoreUnderWay() : klBackupUnderWay());
  m_copying.run<bool>(
      SlowMs,
      [job = m_job, copy = std::move(copy)](const auto&) {
        try {
          copy(*job);
        } catch (const std::exception& e) {
          job->failed(klBackupLineName(), QString::fromUtf8(e.what()));
        }
        return true;
      },
      [job = m_job, end = std::move(end)](bool) { end(*job); },
      [this] {
        if (m_copying.running()) return BackupLine->say(klBackupSlow());
        copyingEnded(klNotBegun());
      });
}

void AdminWindow::copyingEnded(const QString& line) {
  m_job.reset();
  saveConfigurationButton->setEnabled(true);
  LoadConfigurationButton->setEnabled(true);
  BackupLine->say(line);
}

void AdminWindow::stopCopying() {
  const std::shared_ptr<CopyJob> job = std::exchange(m_job, nullptr);
  if (!job) return;
  job->stop();
  m_copying.cancel();
  if (m_restoring) m_outcome.tasksRestored = true;
  const QStringList missing = job->waiting() + job->failures();
  if (!missing.isEmpty()) Messages::tell(this, messageNaming(klCopyingStopped(), missing));
}
