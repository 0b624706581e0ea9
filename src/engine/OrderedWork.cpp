#include "engine/OrderedWork.h"

#include <utility>

#include "platform/System.h"

OrderedWork::~OrderedWork() {
  if (!m_thread.joinable()) return;
  {
    const std::lock_guard lock(m_mutex);
    m_ending = true;
  }
  m_changed.notify_all();
  m_thread.join();
}

void OrderedWork::add(std::function<void()> job) {
  std::unique_lock lock(m_mutex);
  m_changed.wait(lock, [this] { return m_waiting.size() < MostWaiting; });
  if (!m_thread.joinable()) m_thread = std::thread([this] { run(); });
  m_waiting.push_back(std::move(job));
  m_changed.notify_all();
}

bool OrderedWork::failed() const {
  const std::lock_guard lock(m_mutex);
  return m_failure != nullptr;
}

void OrderedWork::wait() {
  std::unique_lock lock(m_mutex);
  m_changed.wait(lock, [this] { return m_waiting.empty() && !m_working; });
}

void OrderedWork::throwFailure() {
  std::exception_ptr failure;
  {
    const std::lock_guard lock(m_mutex);
    failure = std::exchange(m_failure, nullptr);
  }
  if (failure) std::rethrow_exception(failure);
}

void OrderedWork::run() {
  System::nameThisThread("upload-keep");
  std::unique_lock lock(m_mutex);
  for (;;) {
    m_changed.wait(lock, [this] { return !m_waiting.empty() || m_ending; });
    if (m_waiting.empty()) return;
    const std::function<void()> job = std::move(m_waiting.front());
    m_waiting.pop_front();
    m_working = true;
    m_changed.notify_all();
    lock.unlock();
    std::exception_ptr failure;
    try {
      job();
    } catch (...) {
      failure = std::current_exception();
    }
    lock.lock();
    if (failure && !m_failure) m_failure = failure;
    m_working = false;
    m_changed.notify_all();
  }
}
