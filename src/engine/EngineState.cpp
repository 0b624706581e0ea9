#include <atomic>
#include <mutex>

#include "engine/EngineActivity.h"
#include "engine/EngineClock.h"

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

void setEngineActivity(const EngineActivity& activity) {
  const std::lock_guard lock(activityMutex);
  current = activity;
}

void clearEngineActivity(const QString& task) {
  const std::lock_guard lock(activityMutex);
  if (current.task == task) current = {};
}

void setEngineProgress(qint64 sentBytes, qint64 totalBytes) {
  const std::lock_guard lock(activityMutex);
  current.sentBytes = sentBytes;
  current.totalBytes = totalBytes;
}
