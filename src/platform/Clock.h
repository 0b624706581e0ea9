#pragma once
// Where the engine reads the time, so that tests can move it. Implementations are safe from any thread.

#include "platform/Date.h"

class Clock {
 public:
  virtual ~Clock() = default;
  /// The wall clock: what file dates are compared with. It may jump.
  [[nodiscard]] virtual Date now() const = 0;
  /// Milliseconds that never run backward, for measuring how long something has lasted.
  [[nodiscard]] virtual qint64 monotonicMs() const = 0;

  static const Clock& system();
};

/// 1/60 s since the system's start.
[[nodiscard]] qint64 Ticks();
