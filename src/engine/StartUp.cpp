#include "engine/StartUp.h"

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <exception>
#include <memory>
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
  std::mutex mutex;  // guards all below but the conditions
  std::condition_variable wake, ended;
  std::thread thread;
  StartUp::Events events;            // the thread's own while it is alive
  std::unique_ptr<UploadHold> hold;  // until the endpoint of another login has been asked for
  bool alive = false;
  bool stopping = false;
  bool refreshWanted = false;
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

struct Outcome {
  bool answered = false;
  HttpFailure failure;
  QString err;

  /// True if the service answered with an error of its own, by which it is there all the same.
  [[nodiscard]] bool refused() const {
    return !answered && !failure.atProxy && err.startsWith(u'E', Qt::CaseInsensitive) && err != "err"_L1;
  }
};

void report(const Outcome& outcome) {
  if (outcome.answered || outcome.refused())
    Problems::clear(Problem::Kind::ServiceUnreachable, {});
  else if (outcome.failure.failed())
    Problems::raise(Problem::Kind::ServiceUnreachable, {}, outcome.failure.detail);
}

Outcome resolve() {
  Outcome outcome;
  outcome.answered = VantryUtil::ResolveAccountURL(&outcome.failure, &outcome.err);
  report(outcome);
  if (outcome.refused() && hasLogin()) {
    QString words = VantryUtil::errToString(outcome.err);
    if (words.endsWith(u'.')) words.chop(1);
    Problems::raise(Problem::Kind::ServiceRefuses, {}, outcome.err + u" - "_s + words);
  } else {
    Problems::clear(Problem::Kind::ServiceRefuses, {});
  }
  return outcome;
}

void fetch(bool (*list)(HttpFailure*, QString*)) {
  Outcome outcome;
  outcome.answered = list(&outcome.failure, &outcome.err);
  report(outcome);  // that an account has no tracks is no fault
}

bool complete() {
  return !VantryUtil::AccountURL().trimmed().isEmpty() && VTTrack::everFetched() && VTInstrumentTrack::everFetched();
}

/// Lets uploading go on, unless the endpoint is to be asked for once more.
void endHold() {
  const std::lock_guard lock(worker().mutex);
  if (!worker().refreshWanted) worker().hold.reset();
}

/// Makes those calls again that have not succeeded for the present login.
void fetchWhatIsMissing() {
  if (!hasLogin()) Problems::clear(Problem::Kind::ServiceRefuses, {});
  const bool endpointKnown = hasLogin() && (!VantryUtil::AccountURL().trimmed().isEmpty() || resolve().answered);
  endHold();
  if (!endpointKnown) return;
  if (!VTTrack::everFetched()) fetch(&VantryUtil::TrackList);
  if (!VTInstrumentTrack::everFetched()) fetch(&VantryUtil::InstrumentTrackList);
}

void sequence(const StartUp::Events& events) {
  // The order matters: a file must not go to the default endpoint of an account that has one of its own, and the
  // tasks come last because the upload thread works as soon as there are any.
  const Outcome endpoint = resolve();  // a failure is told by the problem it raised, and tried again below
  UploadThread::enable();
  if (!endpoint.failure.failed()) {  // where nobody answers, the tasks needn't wait for two more time-outs
    (void)VantryUtil::TrackList();
    (void)VantryUtil::InstrumentTrackList();
  }
  UploaderTask::Load();
  if (events.tasksLoaded) events.tasksLoaded();
}

/// The thread touches nothing of the worker's after this. With the lock held.
void countAsEnded(Worker& w) {
  w.hold.reset();
  w.alive = false;
  w.ended.notify_all();
}

/// Waits until the service is to be asked again; false, and the thread has ended, if it isn't.
bool waitForTurn(std::chrono::seconds& pause) {
  Worker& w = worker();
  std::unique_lock lock(w.mutex);
  const auto due = [&w] { return w.stopping || w.refreshWanted; };
  if (!due() && !complete()) {
    w.wake.wait_for(lock, pause, due);
    pause = std::min<std::chrono::seconds>(pause * 2, LongestRetry);
  }
  if (w.refreshWanted) pause = FirstRetry;
  const bool again = !w.stopping && (w.refreshWanted || !complete());
  w.refreshWanted = false;
  if (!again) countAsEnded(w);
  return again;
}

void run(bool fromStart) {
  Worker& w = worker();
  System::nameThisThread("start-up");
  try {
    if (fromStart) sequence(w.events);
  } catch (const std::exception& e) {
    if (w.events.failed) w.events.failed(QString::fromUtf8(e.what()));
    const std::lock_guard lock(w.mutex);
    return countAsEnded(w);
  }
  for (std::chrono::seconds pause = FirstRetry; waitForTurn(pause);) {
    try {
      fetchWhatIsMissing();
    } catch (const std::exception& e) {  // the files go on being sent; it is tried again
      System::DebugLog(u"Vantry Uploader - asking the service: "_s + QString::fromUtf8(e.what()));
    }
  }
}

/// With the lock held, and no thread alive.
void launch(Worker& w, bool fromStart) {
  if (w.thread.joinable()) w.thread.join();
  w.alive = true;
  w.thread = std::thread(run, fromStart);
}

}  // namespace

void StartUp::begin(const Events& events) {
  Worker& w = worker();
  const std::lock_guard lock(w.mutex);
  if (w.alive) return;
  w.stopping = false;
  w.refreshWanted = false;
  w.events = events;
  launch(w, true);
}

void StartUp::refresh(bool otherLogin) {
  Worker& w = worker();
  const std::lock_guard lock(w.mutex);
  if (w.stopping) return;
  if (otherLogin) {
    if (!w.hold) w.hold = std::make_unique<UploadHold>();
    VantryUtil::setAccountURL({});
    VTTrack::forget();
    VTInstrumentTrack::forget();
  }
  w.refreshWanted = true;
  w.wake.notify_all();
  if (!w.alive) launch(w, false);
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
