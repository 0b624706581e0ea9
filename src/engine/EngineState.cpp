#include <atomic>
#include <mutex>

#include "engine/EngineActivity.h"
#include "engine/EngineClock.h"
#include "engine/UploaderTask.h"

namespace {
std::atomic<const Clock*> testClock{nullptr};
std::mutex activityMutex;  // guards the one below
EngineActivity current;
}  // namespace

const Clock& engineClock() {
  const Clock* clock = testClock.load();
  return clock ? *clock : Clock::system();
}

void setEngineClock(const Clock* clock) { testClock = clock; }

EngineActivity engineActivity() {
  const std::lock_guard lock(activityMutex);
  return current;
}

// Asked under the guard: whoever leaves a task behind does so first, and clears then.
static bool mayTell(const UploaderTask& task) { return !task.leftBehind; }

void tellSending(const UploaderTask& task, const QString& file, qint64 totalBytes) {
  const std::lock_guard lock(activityMutex);
  if (mayTell(task)) current = {true, task.Name, file, 0, totalBytes};
}

void tellProgress(const UploaderTask& task, qint64 sentBytes, qint64 totalBytes) {
  const std::lock_guard lock(activityMutex);
  if (!mayTell(task)) return;
  current.sentBytes = sentBytes;
  current.totalBytes = totalBytes;
}

void tellBatchEnded(const UploaderTask& task) {
  const std::lock_guard lock(activityMutex);
  if (mayTell(task)) current = {};
}

void clearEngineActivity() {
  const std::lock_guard lock(activityMutex);
  current = {};
}
