#include "engine/FolderWork.h"

#include <chrono>
#include <condition_variable>
#include <exception>
#include <thread>

#include "platform/Problems.h"
#include "platform/System.h"

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr qint64 LaterLimitMs = 1000;

struct Job {
  TaskPointer task;
  std::function<void()> work;
  std::exception_ptr failure;
  bool ended = false;
  bool leftBehind = false;
};
using JobPointer = std::shared_ptr<Job>;

// Never destroyed: a thread that hangs in the kernel on a dead share may outlive main().
struct Crew {
  std::mutex mutex;  // guards all below, and the jobs
  std::condition_variable changed;
  JobPointer next;
  int threads = 0;
  bool waiting = false;  // a thread waits for work
  bool ending = false;
  qint64 limitMs = 20'000;
  bool lostTime = false;  // in this run
  FolderWork::LateFailure lateFailure;
};

Crew& crew() {
  static auto* const instance = new Crew;
  return *instance;
}

std::exception_ptr perform(const Job& job) {
  try {
    const HeldUpCalls::Count counted(job.task->folderCalls);
    job.work();
  } catch (...) {
    return std::current_exception();
  }
  return nullptr;
}

void tellLateFailure(const JobPointer& job, const FolderWork::LateFailure& tell) {
  try {
    if (job->failure) std::rethrow_exception(job->failure);
  } catch (const std::exception& e) {
    if (tell) tell(job->task, QString::fromUtf8(e.what()));
  }
}

void work() {
  System::nameThisThread("upload-folders");
  Crew& c = crew();
  std::unique_lock lock(c.mutex);
  bool leftBehind = false;
  while (!leftBehind) {
    c.waiting = true;
    c.changed.wait(lock, [&c] { return c.next || c.ending; });
    c.waiting = false;
    if (!c.next) break;
    const JobPointer job = std::exchange(c.next, nullptr);
    lock.unlock();
    const std::exception_ptr failure = perform(*job);
    job->work = {};
    lock.lock();
    job->failure = failure;
    job->ended = true;
    leftBehind = job->leftBehind;
    if (leftBehind) {
      const FolderWork::LateFailure tell = c.lateFailure;
      lock.unlock();
      tellLateFailure(job, tell);
      UploaderTask::workEnded(job->task);
      job->task->batchHangs = false;
      job->task->leftBehind = false;
      lock.lock();
    }
    c.changed.notify_all();
  }
  --c.threads;
  c.changed.notify_all();
}

qint64 heldUpMs(const UploaderTask& task) {
  return std::max(task.folderCalls.heldUpMs(), task.keepingCalls.heldUpMs());
}

}  // namespace

void FolderWork::beginRun() {
  const std::lock_guard lock(crew().mutex);
  crew().lostTime = false;
}

bool FolderWork::run(const TaskPointer& task, Kind kind, std::function<void()> work) {
  Crew& c = crew();
  const auto job = std::make_shared<Job>();
  job->task = task;
  job->work = std::move(work);
  std::unique_lock lock(c.mutex);
  c.next = job;
  if (!c.waiting) {
    std::thread(::work).detach();
    ++c.threads;
  }
  c.changed.notify_all();
  // A disk in order may take longer than that for a flush.
  const qint64 limit = c.lostTime && kind == Kind::Look ? std::min(c.limitMs, LaterLimitMs) : c.limitMs;
  while (!c.changed.wait_for(lock, 100ms, [&] { return job->ended; })) {
    if (heldUpMs(*task) < limit) continue;
    job->leftBehind = true;
    task->batchHangs = kind == Kind::Batch;
    task->leftBehind = true;
    c.lostTime = true;
    Problems::raise(Problem::Kind::FolderSilent, task->Name, {});
    System::DebugLog(u"Vantry Uploader - a folder does not answer: "_s + task->Name);
    return false;
  }
  if (job->failure) std::rethrow_exception(job->failure);
  return true;
}

void FolderWork::setLimit(int milliseconds) {
  const std::lock_guard lock(crew().mutex);
  crew().limitMs = milliseconds;
}

void FolderWork::setLateFailure(LateFailure failure) {
  const std::lock_guard lock(crew().mutex);
  crew().lateFailure = std::move(failure);
}

bool FolderWork::stop(int timeoutMs) {
  Crew& c = crew();
  std::unique_lock lock(c.mutex);
  c.ending = true;
  c.changed.notify_all();
  const bool ended = c.changed.wait_for(lock, std::chrono::milliseconds(timeoutMs), [&c] { return c.threads == 0; });
  c.ending = false;
  return ended;
}
