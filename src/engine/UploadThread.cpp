#include "engine/UploadThread.h"

#include <chrono>
#include <condition_variable>
#include <exception>
#include <mutex>
#include <thread>
#include <utility>

#include "engine/EngineActivity.h"
#include "engine/FolderWork.h"
#include "engine/UploaderTask.h"
#include "platform/Problems.h"
#include "platform/System.h"
#include "service/VantryUtil.h"
#include "storage/LogEntry.h"
#include "text/Placeholders.h"
#include "text/VTULocalization.h"

using namespace Qt::Literals::StringLiterals;

std::atomic<bool> UploadThread::Enabled{false};

static std::mutex holdMutex;  // guards holds, and Enabled with it
static int holds = 0;

void UploadThread::enable() {
  const std::lock_guard lock(holdMutex);
  if (holds == 0) Enabled = true;
}

UploadHold::UploadHold() {
  const std::lock_guard lock(holdMutex);
  ++holds;
  UploadThread::Enabled = false;
}

UploadHold::~UploadHold() {
  const std::lock_guard lock(holdMutex);
  if (--holds == 0) UploadThread::Enabled = true;
}

namespace {

// Never destroyed: a thread that hangs in the kernel on a dead share may outlive main().
struct Worker {
  std::mutex mutex;  // guards wanted, alive and thread
  std::condition_variable wake, ended;
  std::thread thread;
  bool wanted = false;
  bool alive = false;
  std::atomic<bool> busy{false};
  std::atomic<bool> stopping{false};
  QString recorded;  // of the upload thread: task and words of what ended the last run; empty if nothing did
};

Worker& worker() {
  static auto* const instance = new Worker;
  return *instance;
}

/// Processes tasks until none has work. `task` is the one under way, for whoever catches an exception.
void processTasks(TaskPointer& task) {
  FolderWork::beginRun();
  UploaderTask::updateAllStatus();
  while (!UploadThread::stopping()) {
    task.reset();
    // Asked before the switch, which is off while the login changes: a batch never begins with one that is not settled.
    const quint64 loginNumber = VantryUtil::account().loginNumber;
    task = UploaderTask::getNextTaskWithFiles();
    if (!task || !UploadThread::Enabled) return;
    const auto prepared = std::make_shared<bool>(false);
    const bool answered = FolderWork::run(task, FolderWork::Kind::Batch, [task, prepared, loginNumber] {
      *prepared = task->PrepareToUpload();
      if (!*prepared) return;
      task->Status = UploaderTask::Processing;
      task->ProcessFiles(loginNumber);
      // Its files stay due: it would be taken again at once, and for ever.
      if (!task->inputIsThere() || !task->outputIsThere()) task->Status = UploaderTask::Fault;
    });
    if (answered && !*prepared) {
      if (task->Status != UploaderTask::Fault) return;
      continue;
    }
    if (answered) {
      Problems::clear(Problem::Kind::RunFailed, task->Name);
      UploaderTask::workEnded(task);
    } else {
      task->Status = UploaderTask::Fault;
      clearEngineActivity();
    }
    if (!UploadThread::Enabled) return;
  }
}

}  // namespace

void UploadThread::recordFailure(const TaskPointer& task, const QString& reason) {
  System::DebugLog(u"Vantry Uploader - a run stopped: "_s + reason);
  Problems::raise(Problem::Kind::RunFailed, task ? task->Name : QString(), reason);
  VantryUtil::LogEntry entry;
  if (task) {
    entry.setValue(u"InputFolder"_s, task->inputFolderPath);
    if (!task->outputFolderPath.isEmpty()) entry.setValue(u"OutputFolder"_s, task->outputFolderPath);
    entry.setValue(u"Track"_s, task->Track);
  }
  entry.setValue(u"Notes"_s, fillPlaceholders(VTULocalization::klRunFailedNote(), {reason}));
  try {
    entry.WriteToLog();
  } catch (const std::exception&) {
    // The problem raised above tells it all the same.
  }
}

void UploadThread::Event_Run() {
  Worker& w = worker();
  FolderWork::setLateFailure(&recordFailure);
  if (!Enabled) {
    w.busy = false;
    return;
  }
  w.busy = true;
  TaskPointer task;
  try {
    processTasks(task);
    Problems::clear(Problem::Kind::RunFailed, {});
    w.recorded.clear();
  } catch (const std::exception& e) {
    const QString name = task ? task->Name : QString(), reason = QString::fromUtf8(e.what());
    const QString told = name + u'\n' + reason;
    if (std::exchange(w.recorded, told) != told)
      recordFailure(task, reason);
    else
      Problems::raise(Problem::Kind::RunFailed, name, reason);  // a row every four seconds would bury all others
  }
  w.busy = false;
}

bool UploadThread::ProcessingNow() { return worker().busy; }

bool UploadThread::stopping() { return worker().stopping; }

void UploadThread::Start() {
  Worker& w = worker();
  const std::lock_guard lock(w.mutex);
  if (w.busy || w.stopping) return;
  w.wanted = true;
  if (!w.alive) {
    w.alive = true;
    w.thread = std::thread([&w] {
      System::nameThisThread("upload");
      std::unique_lock inner(w.mutex);
      while (!w.stopping) {
        w.wake.wait(inner, [&w] { return w.wanted || w.stopping; });
        w.wanted = false;
        if (w.stopping) break;
        inner.unlock();
        Event_Run();
        inner.lock();
      }
      w.alive = false;
      w.ended.notify_all();
    });
  }
  w.wake.notify_all();
}

bool UploadThread::stop(int timeoutMs) {
  Worker& w = worker();
  std::unique_lock lock(w.mutex);
  w.stopping = true;
  w.wake.notify_all();
  VantryUtil::stopServiceCalls();
  if (!w.ended.wait_for(lock, std::chrono::milliseconds(timeoutMs), [&w] { return !w.alive; })) return false;
  lock.unlock();
  if (w.thread.joinable()) w.thread.join();
  return FolderWork::stop(timeoutMs);
}

void UploadThread::allowAgain() {
  worker().stopping = false;
  VantryUtil::allowServiceCalls();
}
