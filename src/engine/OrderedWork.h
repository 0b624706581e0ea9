#pragma once
// Jobs that run one after another, in the order in which they were given, on a thread beside the giver's: what is to be
// done with a file after it was sent, while the next one is being sent. One thread gives jobs; the object ends with
// all of them done.

#include <condition_variable>
#include <deque>
#include <exception>
#include <functional>
#include <mutex>
#include <thread>

class OrderedWork {
 public:
  OrderedWork() = default;
  ~OrderedWork();
  OrderedWork(const OrderedWork&) = delete;
  OrderedWork& operator=(const OrderedWork&) = delete;

  /// Waits while `MostWaiting` jobs wait already.
  void add(std::function<void()> job);
  /// True once a job has thrown; those behind it run all the same.
  [[nodiscard]] bool failed() const;
  /// Waits until all jobs are done.
  void wait();
  /// Throws what the first failing job threw, once.
  void throwFailure();

 private:
  static constexpr size_t MostWaiting = 4;
  void run();

  mutable std::mutex m_mutex;  // guards all below but the thread
  std::condition_variable m_changed;
  std::deque<std::function<void()>> m_waiting;
  std::exception_ptr m_failure;
  bool m_working = false;
  bool m_ending = false;
  std::thread m_thread;
};
