#include "platform/Clock.h"

#include <ctime>

namespace {

qint64 readClock(clockid_t id, qint64 unitsPerSecond) {
  timespec t{};
  clock_gettime(id, &t);
  return static_cast<qint64>(t.tv_sec) * unitsPerSecond + t.tv_nsec * unitsPerSecond / 1'000'000'000;
}

class SystemClock : public Clock {
 public:
  [[nodiscard]] Date now() const override { return Date(); }
  // Stands still while the machine sleeps, as whoever writes into our folders does.
  [[nodiscard]] qint64 monotonicMs() const override { return readClock(CLOCK_MONOTONIC, 1000); }
};

}  // namespace

const Clock& Clock::system() {
  static const SystemClock clock;
  return clock;
}

qint64 Ticks() { return readClock(CLOCK_BOOTTIME, 60); }
