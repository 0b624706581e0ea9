#pragma once
// A clock that stands still until a test moves it.

#include <atomic>

#include "platform/Clock.h"

class ManualClock : public Clock {
 public:
  explicit ManualClock(double seconds = 1'700'000'000.123) : m_ns(static_cast<qint64>(seconds * 1e9)) {}
  [[nodiscard]] Date now() const override { return Date::fromNanoseconds(m_ns.load()); }
  [[nodiscard]] qint64 monotonicMs() const override { return m_ms.load(); }
  void advance(double seconds) {
    m_ns += static_cast<qint64>(seconds * 1e9);
    m_ms += static_cast<qint64>(seconds * 1e3);
  }
  /// The wall clock alone, as when somebody sets it.
  void jump(double seconds) { m_ns += static_cast<qint64>(seconds * 1e9); }

 private:
  std::atomic<qint64> m_ns;
  std::atomic<qint64> m_ms{0};
};
