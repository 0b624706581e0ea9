#include "engine/SendAgain.h"

#include <QSet>
#include <cerrno>

#include "engine/EngineClock.h"
#include "engine/UploaderTask.h"
#include "platform/Placeholders.h"
#include "platform/Reasons.h"
#include "platform/SafeFile.h"

static bool taskTakes(const FolderItem& file) {
  for (const TaskPointer& task : UploaderTask::allTasks()) {
    const auto input = FolderItem::fromNativePath(task->inputFolderPath);
    if (input && input->bytes() == file.Parent().bytes() && !task->disabled &&
        task->dueRules().judgeName(file.nameBytes()) == Verdict::Due)
      return true;
  }
  return false;
}

QList<RepeatableFile> filesToSendAgain(const QList<LoggedFile>& rows, const std::function<bool()>& cancelled) {
  QList<RepeatableFile> found;
  QSet<QByteArray> seen;
  for (const LoggedFile& row : rows) {
    if (cancelled()) break;
    const auto folder = FolderItem::fromNativePath(row.inputFolder);
    // A row without a file has "n/a" in place of both.
    if (!folder || row.originalName.isEmpty()) continue;
    const FolderItem file = folder->Child(row.originalName);
    if (seen.contains(file.bytes())) continue;
    seen.insert(file.bytes());
    if (versionOf(file)) found.append({file, taskTakes(file)});
  }
  return found;
}

IoResult makeDueAgain(const FolderItem& file) {
  const auto before = versionOf(file);
  if (!before) return IoResult::failure(ENOENT, fillPlaceholders(Reasons::klSettingDate(), {file.NativePath()}));
  if (const IoResult set = file.setModifiedNow(engineClock().now()); !set.ok()) return set;
  if (versionOf(file) == before)
    return IoResult::failure(ENOTSUP, fillPlaceholders(Reasons::klSettingDate(), {file.NativePath()}));
  return {};
}
