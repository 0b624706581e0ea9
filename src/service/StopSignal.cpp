#include "service/StopSignal.h"

#include <sys/eventfd.h>

#include <QtGlobal>
#include <algorithm>
#include <cerrno>
#include <limits>
#include <vector>

StopSignal& StopSignal::process() {
  static StopSignal* const signal = new StopSignal;  // a thread that was left behind may still wait on it at exit
  return *signal;
}

StopSignal::StopSignal() : m_descriptor(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {
  if (m_descriptor < 0) qFatal("no descriptor for the stop signal");
}

void StopSignal::raise() {
  m_raised.store(true, std::memory_order_release);
  eventfd_write(m_descriptor, 1);
}

void StopSignal::lower() {
  eventfd_t count = 0;
  eventfd_read(m_descriptor, &count);
  m_raised.store(false, std::memory_order_release);
}

/// Milliseconds for poll(), rounded up so that the last one is not spent in a busy loop.
static int pollTimeout(Deadline deadline) {
  const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now()).count();
  return static_cast<int>(std::clamp<long long>(left, 0, std::numeric_limits<int>::max()));
}

WaitOutcome waitFor(std::span<pollfd> descriptors, Deadline deadline) {
  const StopSignal& stop = StopSignal::process();
  std::vector<pollfd> all(descriptors.begin(), descriptors.end());
  all.push_back({stop.descriptor(), POLLIN, 0});
  for (;;) {
    if (stop.raised()) return WaitOutcome::Stopped;
    const int ready = poll(all.data(), all.size(), pollTimeout(deadline));
    if (ready < 0 && errno != EINTR) return WaitOutcome::Expired;
    if (ready <= 0) {
      if (std::chrono::steady_clock::now() >= deadline) return WaitOutcome::Expired;
      continue;
    }
    if (all.back().revents != 0) return WaitOutcome::Stopped;
    std::copy(all.begin(), all.end() - 1, descriptors.begin());
    return WaitOutcome::Ready;
  }
}
