#pragma once
// A thread with an event loop for what listens on sockets. All handing over goes through the standard library, whose
// order the thread sanitizer can follow, and OpenSSL's memory for the thread is given back before stop() returns: left
// to OpenSSL, that happens later, and a process that ends in between leaks it. One owner calls start() and stop().

#include <functional>
#include <future>
#include <mutex>
#include <thread>
#include <vector>

class ServiceThread {
 public:
  explicit ServiceThread(const char* name) : m_name(name) {}
  ~ServiceThread() { stop(); }
  ServiceThread(const ServiceThread&) = delete;
  ServiceThread& operator=(const ServiceThread&) = delete;

  /// Runs `begin` on a new thread and returns when that has returned; the thread's event loop runs from then on.
  /// `end` is run by stop(), on the thread, behind the loop.
  void start(const std::function<void()>& begin, std::function<void()> end);
  /// Has `work` run on the thread, soon; does nothing on a thread that doesn't run. Any thread.
  void call(std::function<void()> work);
  /// Ends the loop and the thread.
  void stop();
  [[nodiscard]] bool running() const { return m_thread.joinable(); }

 private:
  void run(const std::function<void()>& begin, std::promise<void> begun);
  void workOff();

  const char* m_name;
  std::thread m_thread;
  std::function<void()> m_end;
  int m_wake = -1;     // an eventfd, written to when there is work
  std::mutex m_mutex;  // guards the two below
  std::vector<std::function<void()>> m_work;
  bool m_accepts = false;
};
