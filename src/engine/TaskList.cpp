// The shared list of tasks and what is done to whole tasks.

#include <QSet>
#include <algorithm>
#include <mutex>

#include "engine/AppFileTypes.h"
#include "engine/UploaderTask.h"
#include "platform/FolderScan.h"
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

/// An instrument that always writes the same name has left as many numbers in a folder: from here on one listing is
/// cheaper than asking for each, on a share by far.
constexpr qint64 mostNamesAsked = 32;

/// The numbers that stand before `name` in a folder.
QSet<qint64> numbersTaken(const FolderItem& folder, const QByteArray& name) {
  QSet<qint64> taken;
  const QByteArray ending = ' ' + name;
  FolderScanRules rules;
  rules.nameWanted = [&](QByteArrayView found) {
    if (!found.endsWith(ending)) return false;
    const QByteArray digits = found.chopped(ending.size()).toByteArray();
    const qint64 number = digits.toLongLong();
    if (QByteArray::number(number) == digits) taken.insert(number);
    return false;
  };
  (void)scanFolder(folder, rules);  // what it fails to list is asked for by name
  return taken;
}

QString cutToBytes(QString stem, qsizetype bytes) {
  while (stem.toUtf8().size() > bytes) stem.chop(stem.back().isLowSurrogate() ? 2 : 1);
  return stem;
}

/// True if the task has that share mounted, by the address in which its problem is stated.
bool wants(const UploaderTask& task, const QString& share) {
  return (task.AutoMountInputFolder && shareForDisplay(task.inputfolderURL) == share) ||
         (task.autoMountOutputFolder && shareForDisplay(task.outputFolderUrl) == share);
}

/// Of a task that is off the list; what another task still suffers from stays.
void clearProblemsOf(const UploaderTask& task) {
  for (const auto kind :
       {Problem::Kind::ExclusionInvalid, Problem::Kind::ExclusionTooCostly, Problem::Kind::InputFolderUnreadable,
        Problem::Kind::FolderSilent, Problem::Kind::NothingMounted, Problem::Kind::CopyFailed,
        Problem::Kind::DeleteFailed, Problem::Kind::UploadFailed, Problem::Kind::FileWaits, Problem::Kind::RunFailed})
    Problems::clear(kind, task.Name);
  const QList<TaskPointer> listed = UploaderTask::allTasks();
  for (const QString& url : {task.inputfolderURL, task.outputFolderUrl}) {
    const QString share = shareForDisplay(url);
    if (std::none_of(listed.begin(), listed.end(), [&](const TaskPointer& other) { return wants(*other, share); }))
      Problems::clear(Problem::Kind::ShareNotMounted, share);
  }
}

bool ofSameFile(const UploaderTask& a, const UploaderTask& b) {
  return a.file && b.file && a.file->NativePath() == b.file->NativePath();
}

/// Gives tasks that were read anew what no file holds of the listed ones: a task that was switched off stays so. With
/// the lock held.
void carryOver(const QList<TaskPointer>& listed, const QList<TaskPointer>& loaded) {
  for (const TaskPointer& task : loaded)
    for (const TaskPointer& old : listed) {
      if (!ofSameFile(*task, *old)) continue;
      task->disabled = old->disabled.load();
      task->UploadedCount = old->UploadedCount.load();
    }
}

/// Takes a task off the list and returns it: the very object or, once the list was loaded anew, the one that was read
/// from the same file. With the lock held.
TaskPointer takeOff(const TaskPointer& task) {
  const auto same = [&task](const TaskPointer& listed) { return listed == task || ofSameFile(*listed, *task); };
  const auto found = std::find_if(list.begin(), list.end(), same);
  if (found == list.end()) return nullptr;
  TaskPointer taken = *found;
  list.erase(found);
  taken->retired = true;
  return taken;
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

  const QLatin1String ending(AppFileTypes::VantryTask.extension);
  QList<TaskPointer> loaded;
  for (const FolderItem& item : directory.Items()) {
    // What other systems keep beside a file, under its name with these in front, is no task.
    if (item.nameBytes().startsWith("._")) continue;
    if (item.Directory() || !item.Name().endsWith(ending, Qt::CaseInsensitive)) continue;
    auto task = std::make_shared<UploaderTask>();
    const IoResult read = task->open(item);
    if (read.ok())
      loaded.append(task);
    else
      Problems::raise(Problem::Kind::TaskFileSkipped, item.Name(), read.message());
  }
  std::stable_sort(loaded.begin(), loaded.end(), before);
  QList<TaskPointer> earlier = loaded;
  {
    const std::lock_guard lock(listMutex);
    carryOver(list, loaded);
    list.swap(earlier);
  }
  for (const TaskPointer& task : earlier)
    if (!getTaskWIthName(task->Name))
      clearProblemsOf(*task);
    else if (task->leftBehind)
      Problems::clear(Problem::Kind::FolderSilent, task->Name);  // its successor raises its own
}

void UploaderTask::workEnded(const TaskPointer& task) {
  if (allTasks().contains(task)) return Problems::clear(Problem::Kind::FolderSilent, task->Name);
  if (!getTaskWIthName(task->Name)) clearProblemsOf(*task);
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
  TaskPointer taken;
  {
    const std::lock_guard lock(listMutex);
    taken = takeOff(task);
  }
  if (!taken) return {};
  clearProblemsOf(*taken);
  return taken->MarkToDelete();
}

IoResult UploaderTask::replaceTask(const TaskPointer& old, const TaskPointer& replacement) {
  TaskPointer replaced;
  {
    const std::lock_guard lock(listMutex);
    replaced = takeOff(old);
    list.append(replacement);
    std::stable_sort(list.begin(), list.end(), before);
  }
  if (!replaced) return {};
  clearProblemsOf(*replaced);
  return replaced->MarkToDelete();
}

TaskPointer UploaderTask::renewed(const TaskPointer& task) {
  const auto heir = std::make_shared<UploaderTask>();
  heir->copySettings(*task);
  heir->disabled = task->disabled.load();
  heir->UploadedCount = task->UploadedCount.load();
  heir->Status = Fault;
  heir->m_outputSwept = true;  // what seems to be left over may be the other's copy
  {
    const std::lock_guard lock(listMutex);
    const qsizetype place = list.indexOf(task);
    if (place < 0) return task;
    list[place] = heir;
  }
  {
    const std::scoped_lock lock(task->m_ledgerMutex, task->m_mountMutex);
    task->m_heir = heir;
    heir->m_ledger = task->m_ledger;
    heir->m_ledgerRead = task->m_ledgerRead;
    heir->m_ledgerClearings = task->m_ledgerClearings;
  }
  Problems::clear(Problem::Kind::FolderSilent, task->Name);
  System::DebugLog(u"Vantry Uploader - a folder was mounted anew: "_s + task->Name);
  return heir;
}

TaskPointer UploaderTask::heir() const {
  const std::lock_guard lock(m_mountMutex);  // the ledger's may be held for a whole listing
  return m_heir;
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
  const QByteArray wanted = candidate.nameBytes();
  QSet<qint64> taken;
  for (qint64 n = 1; candidate.Exists(); ++n) {
    if (n == mostNamesAsked) taken = numbersTaken(folder, wanted);
    while (taken.contains(n)) ++n;
    candidate = folder.Child(QString::number(n) + u' ' + name);
  }
  item = candidate;
}

FolderItem UploaderTask::newTaskFile(const FolderItem& folder, const QString& name) {
  QString stem = cutToBytes(name, longestFileName - 40);
  if (stem.startsWith(u'.')) stem[0] = u'_';  // a file that file managers hide is easily left out of a backup
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
