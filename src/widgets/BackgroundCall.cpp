#include "widgets/BackgroundCall.h"

#include <QCoreApplication>
#include <QPointer>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <exception>
#include <system_error>
#include <thread>

#include "platform/System.h"

namespace {

// More that hang would not get an answer either.
constexpr int MostThreads = 4;

// Never destroyed, as a thread that hangs may outlive main().
struct Alive {
  std::mutex mutex;  // guards threads
  std::condition_variable ended;
  int threads = 0;
};

Alive& alive() {
  static auto* const instance = new Alive;
  return *instance;
}

void count(int difference) {
  const std::lock_guard lock(alive().mutex);
  alive().threads += difference;
  alive().ended.notify_all();
}

// Answers on their way to the main thread. They pass through a guard of ours, not inside Qt's event.
struct Answers {
  std::mutex mutex;  // guards waiting
  std::deque<std::function<void()>> waiting;
};

Answers& answers() {
  static auto* const instance = new Answers;
  return *instance;
}

void handOverNext() {
  std::function<void()> answer;
  {
    const std::lock_guard lock(answers().mutex);
    if (answers().waiting.empty()) return;
    answer = std::move(answers().waiting.front());
    answers().waiting.pop_front();
  }
  answer();
}

void handOver(std::function<void()> answer) {
  {
    const std::lock_guard lock(answers().mutex);
    answers().waiting.push_back(std::move(answer));
  }
  QMetaObject::invokeMethod(
      qApp, [] { handOverNext(); }, Qt::QueuedConnection);
}

}  // namespace

struct BackgroundCall::Job {
  std::atomic<bool> cancelled{false};
};

BackgroundCall::BackgroundCall(const char* threadName, QObject* parent)
    : QObject(parent), m_threadName(threadName), m_threads(std::make_shared<std::atomic<int>>(0)) {
  m_limit.setSingleShot(true);
  connect(&m_limit, &QTimer::timeout, this, &BackgroundCall::tellSlow);
}

BackgroundCall::~BackgroundCall() { cancel(); }

void BackgroundCall::begin(int limitMs, std::function<void(const Cancelled&, const Post&)> work,
                           std::function<bool()> finish, std::function<void()> slow) {
  cancel();
  m_job = std::make_shared<Job>();
  m_finish = std::move(finish);
  m_slow = std::move(slow);
  const auto body = [job = m_job, threads = m_threads, work = std::move(work), name = m_threadName,
                     owner = QPointer<BackgroundCall>(this)]() mutable {
    System::nameThisThread(name);
    const Post post = [owner, job](std::function<void()> call) {
      handOver([owner, job, call = std::move(call)] {
        if (owner && owner->m_job == job) call();
      });
    };
    try {
      work([job] { return job->cancelled.load(); }, post);
    } catch (const std::exception& e) {
      System::DebugLog(QString::fromUtf8(e.what()));  // the owner learns that no answer came
    }
    work = {};
    --*threads;
    if (!job->cancelled)
      handOver([owner, job] {
        if (owner) owner->ended(job);
      });
    count(-1);
  };
  m_limit.stop();
  if (m_threads->load() < MostThreads) {
    try {
      count(1);
      ++*m_threads;
      std::thread(body).detach();
      if (limitMs > 0) m_limit.start(limitMs);
      return;
    } catch (const std::system_error&) {
      --*m_threads;
      count(-1);
    }
  }
  m_job.reset();
  m_limit.start(0);
}

void BackgroundCall::cancel() {
  if (m_job) m_job->cancelled = true;
  m_job.reset();
  m_limit.stop();
  m_finish = {};
  m_slow = {};
}

void BackgroundCall::ended(const std::shared_ptr<Job>& job) {
  if (job != m_job) return;
  const auto finish = std::move(m_finish);
  const auto slow = std::move(m_slow);
  cancel();
  if (!finish() && slow) slow();
}

void BackgroundCall::tellSlow() {
  if (const auto slow = std::exchange(m_slow, {})) slow();
}

bool BackgroundCall::waitForAll(int timeoutMs) {
  std::unique_lock lock(alive().mutex);
  return alive().ended.wait_for(lock, std::chrono::milliseconds(timeoutMs), [] { return alive().threads == 0; });
}
