#pragma once
// Work on items in the order in which they were given, on a thread beside the giver's: what is to be done with files
// after they were sent, while the next one is being sent. What came while the thread was at work is handed to it
// together. One thread gives items; the object ends with all of them worked on.

#include <condition_variable>
#include <exception>
#include <functional>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

#include "platform/System.h"

template <typename Item>
class OrderedWork {
 public:
  using Work = std::function<void(std::vector<Item>& group)>;
  /// `threadName` in at most 15 bytes, a literal.
  OrderedWork(const char* threadName, Work work) : m_threadName(threadName), m_work(std::move(work)) {}
  ~OrderedWork();
  OrderedWork(const OrderedWork&) = delete;
  OrderedWork& operator=(const OrderedWork&) = delete;

  /// Starts the thread, as add() does where it doesn't run. Throws std::system_error if the system gives none.
  void start();
  /// Waits while `MostWaiting` items wait already.
  void add(Item item);
  /// True once the work has thrown; what comes behind is worked on all the same.
  [[nodiscard]] bool failed() const;
  /// Waits until all items are worked on.
  void wait();
  /// Throws what the work threw first, once.
  void throwFailure();

  static constexpr size_t MostWaiting = 4;

 private:
  void run();

  const char* m_threadName;
  const Work m_work;
  mutable std::mutex m_mutex;  // guards all below but the thread
  std::condition_variable m_changed;
  std::vector<Item> m_waiting;
  std::exception_ptr m_failure;
  bool m_working = false;
  bool m_ending = false;
  std::thread m_thread;
};

template <typename Item>
OrderedWork<Item>::~OrderedWork() {
  if (!m_thread.joinable()) return;
  {
    const std::lock_guard lock(m_mutex);
    m_ending = true;
  }
  m_changed.notify_all();
  m_thread.join();
}

template <typename Item>
void OrderedWork<Item>::start() {
  if (!m_thread.joinable()) m_thread = std::thread([this] { run(); });
}

template <typename Item>
void OrderedWork<Item>::add(Item item) {
  std::unique_lock lock(m_mutex);
  m_changed.wait(lock, [this] { return m_waiting.size() < MostWaiting; });
  start();
  m_waiting.push_back(std::move(item));
  m_changed.notify_all();
}

template <typename Item>
bool OrderedWork<Item>::failed() const {
  const std::lock_guard lock(m_mutex);
  return m_failure != nullptr;
}

template <typename Item>
void OrderedWork<Item>::wait() {
  std::unique_lock lock(m_mutex);
  m_changed.wait(lock, [this] { return m_waiting.empty() && !m_working; });
}

template <typename Item>
void OrderedWork<Item>::throwFailure() {
  std::exception_ptr failure;
  {
    const std::lock_guard lock(m_mutex);
    failure = std::exchange(m_failure, nullptr);
  }
  if (failure) std::rethrow_exception(failure);
}

template <typename Item>
void OrderedWork<Item>::run() {
  System::nameThisThread(m_threadName);
  std::unique_lock lock(m_mutex);
  for (;;) {
    m_changed.wait(lock, [this] { return !m_waiting.empty() || m_ending; });
    if (m_waiting.empty()) return;
    std::vector<Item> group = std::exchange(m_waiting, {});
    m_working = true;
    m_changed.notify_all();
    lock.unlock();
    std::exception_ptr failure;
    try {
      m_work(group);
    } catch (...) {
      failure = std::current_exception();
    }
    lock.lock();
    if (failure && !m_failure) m_failure = failure;
    m_working = false;
    m_changed.notify_all();
  }
}
