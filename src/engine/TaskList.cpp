// The shared list of tasks and what is done to whole tasks.

#include <algorithm>
#include <mutex>

#include "engine/UploaderTask.h"
#include "platform/Problems.h"
#include "platform/SafeFile.h"
#include "platform/SpecialFolder.h"

using namespace Qt::Literals::StringLiterals;

namespace {
std::mutex listMutex;  // guards the one below
QList<TaskPointer> list;

// Without regard to case; names that differ in nothing else stand in the order of their exact text.
bool before(const TaskPointer& a, const TaskPointer& b) {
  const int order = a->Name.compare(b->Name, Qt::CaseInsensitive);
  return order != 0 ? order < 0 : a->Name < b->Name;
}

constexpr int longestFileName = 255;  // bytes, on every file system we meet

QString cutToBytes(QString stem, qsizetype bytes) {
  while (stem.toUtf8().size() > bytes) stem.chop(stem.back().isLowSurrogate() ? 2 : 1);
  return stem;
}

void clearProblemsOf(const QString& name) {
  for (const auto kind : {Problem::Kind::ExclusionInvalid, Problem::Kind::ExclusionTooCostly,
                          Problem::Kind::InputFolderUnreadable, Problem::Kind::CopyFailed, Problem::Kind::UploadFailed,
                          Problem::Kind::RunFailed})
    Problems::clear(kind, name);
}
}  // namespace

QList<TaskPointer> UploaderTask::allTasks() {
  const std::lock_guard lock(listMutex);
  return list;
}

FolderItem UploaderTask::TaskDirectory() {
  const FolderItem directory = SpecialFolder::ApplicationData().Child(u"Uploader Tasks"_s);
  const IoResult made = SpecialFolder::createPrivate(directory);
  if (!made.ok()) Problems::raise(Problem::Kind::TaskFolderUnreadable, {}, made.message());
  return directory;
}

void UploaderTask::Load() {
  Problems::clearKind(Problem::Kind::TaskFileSkipped);
  Problems::clearKind(Problem::Kind::TaskFolderUnreadable);
  const FolderItem directory = TaskDirectory();
  if (directory.Exists() && !(directory.Directory() && directory.IsReadable()))
    Problems::raise(Problem::Kind::TaskFolderUnreadable, {}, directory.NativePath());
  removeLeftovers(directory);

  QList<TaskPointer> loaded;
  for (const FolderItem& item : directory.Items()) {
    if (!item.Visible() || item.Directory() || !item.Name().endsWith(u".vnt"_s, Qt::CaseInsensitive)) continue;
    auto task = std::make_shared<UploaderTask>();
    const IoResult read = task->open(item);
    if (read.ok()) loaded.append(task);
    else Problems::raise(Problem::Kind::TaskFileSkipped, item.Name(), read.message());
  }
  std::stable_sort(loaded.begin(), loaded.end(), before);
  const std::lock_guard lock(listMutex);
  list = loaded;
}

void UploaderTask::unload() {
  const std::lock_guard lock(listMutex);
  list.clear();
}

void UploaderTask::addTask(const TaskPointer& task) {
  const std::lock_guard lock(listMutex);
  list.append(task);
  std::stable_sort(list.begin(), list.end(), before);
}

IoResult UploaderTask::RemoveTask(const TaskPointer& task) {
  {
    const std::lock_guard lock(listMutex);
    if (!list.removeOne(task)) return {};
  }
  clearProblemsOf(task->Name);
  return task->MarkToDelete();
}

IoResult UploaderTask::replaceTask(const TaskPointer& old, const TaskPointer& replacement) {
  bool replaced = false;
  {
    const std::lock_guard lock(listMutex);
    replaced = list.removeOne(old);
    list.append(replacement);
    std::stable_sort(list.begin(), list.end(), before);
  }
  if (!replaced) return {};
  clearProblemsOf(old->Name);
  return old->MarkToDelete();
}

IoResult UploaderTask::MarkToDelete() {
  if (!file) return {};
  FolderItem marked = file->Parent().Child(file->Name().chopped(4) + u".del"_s);
  DistinctName(marked);
  return file->setName(marked.Name());
}

void UploaderTask::cleanUpDeletedTasks() {
  for (const FolderItem& item : TaskDirectory().Items())
    if (!item.Directory() && item.Name().endsWith(u".del"_s, Qt::CaseInsensitive))
      (void)item.Delete();  // what stays is never loaded, and is tried again at the next close
}

TaskPointer UploaderTask::getTaskWIthName(const QString& name) {
  for (const TaskPointer& task : allTasks())
    if (task->Name.compare(name.trimmed(), Qt::CaseInsensitive) == 0) return task;
  return nullptr;
}

void UploaderTask::DistinctName(FolderItem& item) {
  const QString name = item.Name();
  const FolderItem folder = item.Parent();
  FolderItem candidate = folder.Child(name);
  for (qint64 n = 1; candidate.Exists(); ++n) candidate = folder.Child(QString::number(n) + u' ' + name);
  item = candidate;
}

FolderItem UploaderTask::newTaskFile(const FolderItem& folder, const QString& name) {
  QString stem = cutToBytes(name, longestFileName - 40);
  if (stem.startsWith(u'.')) stem[0] = u'_';  // a hidden file would not be loaded again
  const QString seconds = QString::number(static_cast<qint64>(Date().TotalSeconds()));
  FolderItem item = folder.Child(stem + u' ' + seconds + u".VNT"_s);
  DistinctName(item);
  return item;
}

bool UploaderTask::duplicateTask(const TaskPointer& task, IoResult* failure) {
  const auto copy = std::make_shared<UploaderTask>();
  IoResult result = task->file ? copy->open(*task->file) : IoResult::failure(ENOENT, task->Name);
  if (result.ok()) {
    const FolderItem copyFile = newTaskFile(task->file->Parent(), task->Name + u" Copy"_s);
    copy->disabled = true;
    copy->Name += u" Copy"_s;
    if (copy->save(copyFile, &result)) {
      addTask(copy);
      return true;
    }
  }
  if (failure) *failure = result;
  return false;
}
