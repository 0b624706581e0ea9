#include "engine/StartUp.h"

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <exception>
#include <mutex>
#include <thread>

#include "engine/UploadThread.h"
#include "engine/UploaderTask.h"
#include "platform/Problems.h"
#include "platform/System.h"
#include "service/VTInstrumentTrack.h"
#include "service/VTTrack.h"
#include "service/VantryUtil.h"
#include "storage/Preferences.h"

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto FirstRetry = 5s;
constexpr auto LongestRetry = 300s;

// Never destroyed, as a thread that hangs in a name look-up may outlive main().
struct Worker {
  std::mutex mutex;  // guards alive, stopping and thread
  std::condition_variable wake, ended;
  std::thread thread;
  bool alive = false;
  bool stopping = false;
};

Worker& worker() {
  static auto* const instance = new Worker;
  return *instance;
}

bool hasLogin() {
  const auto& prefs = VantryUtil::prefs;
  return prefs && !prefs->StringValue(u"SoapLogin"_s).trimmed().isEmpty() &&
         !prefs->StringValue(u"SoapPassword"_s).trimmed().isEmpty();
}

void report(bool answered, const HttpFailure& failure) {
  if (failure.failed()) Problems::raise(Problem::Kind::ServiceUnreachable, {}, failure.detail);
  else if (answered) Problems::clear(Problem::Kind::ServiceUnreachable, {});
}

bool resolve(HttpFailure* failure) {
  const bool answered = VantryUtil::ResolveAccountURL(failure);
  report(answered, *failure);
  return answered;
}

bool complete() {
  return !VantryUtil::AccountURL().trimmed().isEmpty() && VTTrack::everFetched() && VTInstrumentTrack::everFetched();
}

/// Makes those calls again that never succeeded.
void fetchWhatIsMissing() {
  if (!hasLogin()) return;
  HttpFailure failure;
  if (VantryUtil::AccountURL().trimmed().isEmpty() && !resolve(&failure)) return;
  if (!VTTrack::everFetched()) report(VantryUtil::TrackList(&failure), failure);
  if (!VTInstrumentTrack::everFetched()) report(VantryUtil::InstrumentTrackList(&failure), failure);
}

/// Waits for `pause`; false when the thread is to end.
bool pauseFor(std::chrono::seconds pause) {
  Worker& w = worker();
  std::unique_lock lock(w.mutex);
  return !w.wake.wait_for(lock, pause, [&w] { return w.stopping; });
}

void sequence(const StartUp::Events& events) {
  // The order matters: a file must not go to the default endpoint of an account that has one of its own, and the
  // tasks come last because the upload thread works as soon as there are any.
  HttpFailure unreachable;
  (void)resolve(&unreachable);  // a failure is told by the problem it raised, and tried again below
  UploadThread::Enabled = true;
  if (!unreachable.failed()) {  // where nobody answers, the tasks needn't wait for two more time-outs
    (void)VantryUtil::TrackList();
    (void)VantryUtil::InstrumentTrackList();
  }
  UploaderTask::Load();
  if (events.tasksLoaded) events.tasksLoaded();

  for (std::chrono::seconds pause = FirstRetry; !complete() && pauseFor(pause);
       pause = std::min<std::chrono::seconds>(pause * 2, LongestRetry))
    fetchWhatIsMissing();
}

}  // namespace

void StartUp::begin(const Events& events) {
  Worker& w = worker();
  const std::lock_guard lock(w.mutex);
  if (w.alive) return;
  w.alive = true;
  w.stopping = false;
  w.thread = std::thread([&w, events] {
    System::nameThisThread("start-up");
    try {
      sequence(events);
    } catch (const std::exception& e) {
      if (events.failed) events.failed(QString::fromUtf8(e.what()));
    }
    const std::lock_guard inner(w.mutex);
    w.alive = false;
    w.ended.notify_all();
  });
}

bool StartUp::stop(int timeoutMs) {
  Worker& w = worker();
  std::unique_lock lock(w.mutex);
  w.stopping = true;
  w.wake.notify_all();
  VantryUtil::stopServiceCalls();
  if (!w.ended.wait_for(lock, std::chrono::milliseconds(timeoutMs), [&w] { return !w.alive; })) return false;
  lock.unlock();
  if (w.thread.joinable()) w.thread.join();
  return true;
}
