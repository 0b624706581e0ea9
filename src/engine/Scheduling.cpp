// Which task is next, and whether its folders are in order.

#include <atomic>
#include <exception>
#include <mutex>
#include <utility>

#include "engine/FolderWork.h"
#include "engine/MountMemory.h"
#include "engine/UploadThread.h"
#include "engine/UploaderTask.h"
#include "platform/Clock.h"
#include "platform/Problems.h"
#include "platform/SafeFile.h"
#include "text/VTULocalization.h"

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr qint64 PauseTicks = 36000;  // 10 minutes

std::mutex mountMutex;  // guards the three below
bool mtriedAutoMount = false;
qint64 lastAutomountAttempt = 0;
UploaderTask::MountOperation mountOperation;

/// True for the one that mounts at the moment: after a failure nobody else is to try.
class MountTurn {
 public:
  MountTurn() : m_mine(!s_taken.exchange(true)) {}
  ~MountTurn() {
    if (m_mine) s_taken = false;
  }
  MountTurn(const MountTurn&) = delete;
  MountTurn& operator=(const MountTurn&) = delete;
  [[nodiscard]] bool mine() const { return m_mine; }

 private:
  static inline std::atomic<bool> s_taken{false};
  bool m_mine;
};
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
  const QString& url = input ? inputfolderURL : outputFolderUrl;
  const bool wanted = input ? AutoMountInputFolder : autoMountOutputFolder;
  if (handle && handle->Exists()) {
    if (wanted) Problems::clear(Problem::Kind::ShareNotMounted, shareForDisplay(url));
    return;
  }
  if (!wanted || url.trimmed().isEmpty()) return;
  const MountTurn turn;
  if (!turn.mine() || triedAutoMount()) return;

  MountRequest request;
  request.url = QString(url).replace(u' ', u"%20"_s);
  request.userName = input ? InputLogin : outputLogin;
  request.password = input ? inputPassword : outputPassword;
  request.cancelled = &UploadThread::stopping;
  int errorCode = 0;
  const FolderCall call;
  const bool mounted = !mountNow(request, errorCode).trimmed().isEmpty();
  if (!mounted && errorCode == MountError::Cancelled) return;  // the program ends
  const auto fresh = FolderItem::fromNativePath(path);
  setTriedAutoMount(!mounted || !fresh);
  if (mounted && fresh) handle = fresh;
  if (mounted)
    Problems::clear(Problem::Kind::ShareNotMounted, shareForDisplay(url));
  else
    Problems::raise(Problem::Kind::ShareNotMounted, shareForDisplay(url), VTULocalization::mountFailureText(errorCode));
}

UploaderTask::StatusValue UploaderTask::lookAtFolders() {
  noteMounts();
  TryAutoMount(true);
  TryAutoMount(false);
  QString bare;
  QByteArray input, output;
  const auto usable = [&bare](const std::optional<FolderItem>& folder, QByteArray& path) {
    if (!folder || !folder->Directory()) return false;
    // Comes first: an automounter's trap may be writable by nobody, and is gone once the share is there.
    const QString missing = missingMountPoint(*folder, path);
    if (!missing.isEmpty()) bare = missing;
    return missing.isEmpty() && folder->IsWriteable();
  };
  const bool ready = usable(inputFolder, input) && (outputFolderPath.isEmpty() || usable(outputFolder, output));
  if (bare.isEmpty())
    Problems::clear(Problem::Kind::NothingMounted, Name);
  else
    Problems::raise(Problem::Kind::NothingMounted, Name, bare);
  if (!ready) return Fault;
  {
    const std::lock_guard lock(m_mountMutex);
    m_inputPath = input, m_outputPath = output;
  }
  noteMounts();  // what was mounted only now, and by these paths
  m_inputDevice = inputFolder->Device();
  m_outputDevice = outputFolder ? outputFolder->Device() : std::nullopt;
  return Ready;
}

/// A batch that no look preceded has nothing to compare with.
static bool isThere(const std::optional<FolderItem>& folder, const std::optional<quint64>& device) {
  const auto present = folder ? folder->Device() : std::nullopt;
  return present && (!device || present == device);
}

bool UploaderTask::inputIsThere() const { return isThere(inputFolder, m_inputDevice); }

bool UploaderTask::outputIsThere() const { return outputFolderPath.isEmpty() || isThere(outputFolder, m_outputDevice); }

bool UploaderTask::lookAt(const TaskPointer& task, std::function<void()> look) {
  try {
    if (FolderWork::run(task, FolderWork::Kind::Look, std::move(look))) return true;
  } catch (const std::exception& e) {
    const QString reason = QString::fromUtf8(e.what());
    if (std::exchange(task->m_lookFailure, reason) != reason) UploadThread::recordFailure(task, reason);
  }
  task->Status = Fault;
  return false;
}

void UploaderTask::updateAllStatus() {
  for (TaskPointer task : allTasks()) {
    if (UploadThread::stopping()) return;
    if (task->leftBehind && task->mountedAnew()) task = renewed(task);
    if (task->leftBehind) {
      task->Status = Fault;
      continue;
    }
    evaluate(task);
  }
}

void UploaderTask::evaluate(const TaskPointer& task) {
  const auto status = std::make_shared<StatusValue>(Fault);
  if (lookAt(task, [task, status] { *status = task->lookAtFolders(); })) task->Status = *status;
}

TaskPointer UploaderTask::getNextTaskWithFiles() {
  for (const TaskPointer& task : allTasks()) {
    if (UploadThread::stopping()) return nullptr;
    if (task->Busy || task->disabled || task->leftBehind) continue;
    if (task->Status == NotEvaluated) evaluate(task);  // it came in the middle of the run
    if (task->Status == Fault) continue;
    const auto count = std::make_shared<qint64>(0);
    if (!lookAt(task, [task, count] { *count = task->getFileCount(); })) continue;
    if (!std::exchange(task->m_lookFailure, {}).isEmpty()) Problems::clear(Problem::Kind::RunFailed, task->Name);
    if (*count > 0) return task;
  }
  return nullptr;
}

bool UploaderTask::PrepareToUpload() {
  if (!inputFolder || !inputFolder->Exists()) return false;
  if (!inputIsThere() || !outputIsThere()) {
    Status = Fault;
    return false;
  }
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
