#include "platform/Date.h"

#include <algorithm>
#include <cmath>
#include <ctime>

namespace {

constexpr qint64 kPerSecond = 1'000'000'000;

qint64 wallClockNs() {
  timespec t{};
  clock_gettime(CLOCK_REALTIME, &t);
  return static_cast<qint64>(t.tv_sec) * kPerSecond + t.tv_nsec;
}

}  // namespace

double secondsOf(qint64 nanoseconds) {
  // The whole seconds are exact in a double, so this rounds once; nanoseconds / 1e9 would round twice, and a stored
  // limit would not read back as the date it was made from.
  const qint64 whole = nanoseconds / kPerSecond;
  return static_cast<double>(whole) + static_cast<double>(nanoseconds % kPerSecond) / 1e9;
}

Date::Date() : m_nanoseconds(wallClockNs()) {}

Date Date::fromNanoseconds(qint64 nanoseconds) { return Date(nanoseconds); }

Date Date::fromTotalSeconds(double seconds) {
  // What nanoseconds can hold (years 1678 to 2262); a damaged settings file may bring any number.
  constexpr double kBound = 9.2e9;
  if (std::isnan(seconds)) return Date(0);
  seconds = std::clamp(seconds, -kBound, kBound);
  const double whole = std::floor(seconds);
  return Date(static_cast<qint64>(whole) * kPerSecond + std::llround((seconds - whole) * 1e9));
}

double Date::TotalSeconds() const { return secondsOf(m_nanoseconds); }

QDateTime Date::local() const {
  qint64 milliseconds = m_nanoseconds / 1'000'000;
  if (m_nanoseconds % 1'000'000 < 0) --milliseconds;
  return QDateTime::fromMSecsSinceEpoch(milliseconds);
}

int Date::Year() const { return local().date().year(); }
int Date::Month() const { return local().date().month(); }
int Date::Day() const { return local().date().day(); }
int Date::Hour() const { return local().time().hour(); }
int Date::Minute() const { return local().time().minute(); }
int Date::Second() const { return local().time().second(); }
