// Which task is next, and whether its folders are in order.

#include <exception>
#include <mutex>

#include "engine/UploadThread.h"
#include "engine/UploaderTask.h"
#include "platform/Clock.h"
#include "platform/SafeFile.h"

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr qint64 PauseTicks = 36000;  // 10 minutes

std::mutex mountMutex;  // guards the three below
bool mtriedAutoMount = false;
qint64 lastAutomountAttempt = 0;
UploaderTask::MountOperation mountOperation;
}  // namespace

QString UploaderTask::mountNow(const MountRequest& request, int& errorCode) {
  MountOperation operation;
  {
    const std::lock_guard lock(mountMutex);
    operation = mountOperation;
  }
  errorCode = 0;
  try {
    return operation ? operation(request, errorCode) : mountShare(request, errorCode);
  } catch (const std::exception&) {
    return {};
  }
}

bool UploaderTask::triedAutoMount() {
  const std::lock_guard lock(mountMutex);
  if (Ticks() - lastAutomountAttempt > PauseTicks) {
    lastAutomountAttempt = 0;
    mtriedAutoMount = false;
  }
  return mtriedAutoMount;
}

void UploaderTask::setTriedAutoMount(bool tried) {
  const std::lock_guard lock(mountMutex);
  lastAutomountAttempt = tried ? Ticks() : 0;
  mtriedAutoMount = tried;
}

void UploaderTask::setMountOperation(MountOperation operation) {
  const std::lock_guard lock(mountMutex);
  mountOperation = std::move(operation);
}

void UploaderTask::TryAutoMount(bool input) {
  const QString& path = input ? inputFolderPath : outputFolderPath;
  std::optional<FolderItem>& handle = input ? inputFolder : outputFolder;
  if (input ? path.trimmed().isEmpty() : path.isEmpty()) return;

  if (const auto fresh = FolderItem::fromNativePath(path)) handle = fresh;
  if (handle && handle->Exists()) return;
  if (!(input ? AutoMountInputFolder : autoMountOutputFolder) || triedAutoMount()) return;
  QString url = input ? inputfolderURL : outputFolderUrl;
  if (url.trimmed().isEmpty()) return;

  MountRequest request;
  request.url = url.replace(u' ', u"%20"_s);
  request.userName = input ? InputLogin : outputLogin;
  request.password = input ? inputPassword : outputPassword;
  int errorCode = 0;
  const bool mounted = !mountNow(request, errorCode).trimmed().isEmpty();
  const auto fresh = FolderItem::fromNativePath(path);
  setTriedAutoMount(!mounted || !fresh);
  if (mounted && fresh) handle = fresh;
}

void UploaderTask::updateStatus() {
  TryAutoMount(true);
  TryAutoMount(false);
  const auto usable = [](const std::optional<FolderItem>& folder) {
    return folder && folder->Directory() && folder->IsWriteable();
  };
  Status = usable(inputFolder) && (outputFolderPath.isEmpty() || usable(outputFolder)) ? Ready : Fault;
}

void UploaderTask::updateAllStatus() {
  for (const TaskPointer& task : allTasks()) {
    if (UploadThread::stopping()) return;
    task->updateStatus();
  }
}

TaskPointer UploaderTask::getNextTaskWithFiles() {
  for (const TaskPointer& task : allTasks()) {
    if (UploadThread::stopping()) return nullptr;
    if (task->Status != Fault && !task->Busy && !task->disabled && task->getFileCount() > 0) return task;
  }
  return nullptr;
}

bool UploaderTask::PrepareToUpload() {
  if (!inputFolder || !inputFolder->Exists()) return false;
  if (!m_outputSwept && outputFolder && outputFolder->Exists()) {
    // Copies that an earlier process was killed at lie hidden among the good ones.
    removeLeftovers(*outputFolder);
    removeLeftovers(outputFolder->Child(u"Processing Errors - "_s + Name));
    m_outputSwept = true;
  }
  if (!ErrorFolder && outputFolder && outputFolder->Exists()) {
    if (!outputFolder->IsWriteable()) return false;
    ErrorFolder = outputFolder->Child(u"Processing Errors - "_s + Name);
  }
  if (ErrorFolder && !ErrorFolder->Exists())
    (void)ErrorFolder->CreateAsFolder();  // a copy that can't be kept there tells why, with its file's name
  return true;
}
