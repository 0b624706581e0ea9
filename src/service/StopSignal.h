#pragma once
// The wish that all exchanges end, as a descriptor that poll() can wait on beside a socket, and the one wait that all
// phases of an exchange use. One signal for the whole process, never destroyed. Any thread.

#include <poll.h>

#include <atomic>
#include <chrono>
#include <span>

using Deadline = std::chrono::steady_clock::time_point;

class StopSignal {
 public:
  static StopSignal& process();

  void raise();
  void lower();
  [[nodiscard]] bool raised() const { return m_raised.load(std::memory_order_acquire); }
  [[nodiscard]] int descriptor() const { return m_descriptor; }

 private:
  StopSignal();
  int m_descriptor;  ///< an eventfd, readable while the signal is raised
  std::atomic<bool> m_raised{false};
};

enum class WaitOutcome { Ready, Expired, Stopped };

/// Waits until one of `descriptors` has something to tell (in its `revents`), the deadline passes or the process's
/// stop signal is raised.
[[nodiscard]] WaitOutcome waitFor(std::span<pollfd> descriptors, Deadline deadline);
