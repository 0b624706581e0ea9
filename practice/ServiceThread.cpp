#include "practice/ServiceThread.h"

#include <openssl/crypto.h>
#include <pthread.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <QEventLoop>
#include <QSocketNotifier>
#include <QtGlobal>
#include <cstdint>

void ServiceThread::start(const std::function<void()>& begin, std::function<void()> end) {
  stop();
  m_end = std::move(end);
  m_wake = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
  if (m_wake < 0) qFatal("no descriptor is left for a practice thread");
  {
    const std::lock_guard lock(m_mutex);
    m_accepts = true;
  }
  std::promise<void> promise;
  const std::future<void> begun = promise.get_future();
  m_thread = std::thread([this, &begin, kept = std::move(promise)]() mutable { run(begin, std::move(kept)); });
  begun.wait();
}

void ServiceThread::run(const std::function<void()>& begin, std::promise<void> begun) {
  pthread_setname_np(pthread_self(), m_name);
  {
    QEventLoop loop;
    QSocketNotifier notifier(m_wake, QSocketNotifier::Read);
    QObject::connect(&notifier, &QSocketNotifier::activated, &loop, [this, &loop] {
      workOff();
      const std::lock_guard lock(m_mutex);
      if (!m_accepts) loop.quit();
    });
    begin();
    begun.set_value();
    loop.exec();
    m_end();
  }
  OPENSSL_thread_stop();
}

void ServiceThread::workOff() {
  std::uint64_t count = 0;
  (void)!::read(m_wake, &count, sizeof count);  // only the waking counts
  std::vector<std::function<void()>> work;
  {
    const std::lock_guard lock(m_mutex);
    work.swap(m_work);
  }
  for (const auto& piece : work) piece();
}

void ServiceThread::call(std::function<void()> work) {
  const std::lock_guard lock(m_mutex);
  if (!m_accepts) return;
  m_work.push_back(std::move(work));
  const std::uint64_t one = 1;
  (void)!::write(m_wake, &one, sizeof one);  // a full counter wakes as well
}

void ServiceThread::stop() {
  if (!m_thread.joinable()) return;
  {
    const std::lock_guard lock(m_mutex);
    m_accepts = false;
    const std::uint64_t one = 1;
    (void)!::write(m_wake, &one, sizeof one);
  }
  m_thread.join();
  ::close(m_wake);
  m_wake = -1;
  m_work.clear();
}
