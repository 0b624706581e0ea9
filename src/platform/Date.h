#pragma once
// Dates as the system counts them: seconds since 1970-01-01 UTC as a double with its fraction. A value; any thread.

#include <QDateTime>

class Date {
 public:
  /// The present moment.
  Date();
  /// A moment given in nanoseconds since 1970-01-01 UTC, as file systems keep it.
  static Date fromNanoseconds(qint64 nanoseconds);
  static Date fromTotalSeconds(double seconds);

  /// Seconds since 1970-01-01 UTC, with fraction (double: steps of about 0.2 µs in this century).
  [[nodiscard]] double TotalSeconds() const;
  [[nodiscard]] qint64 nanoseconds() const { return m_nanoseconds; }

  /// Parts of the local date and time.
  [[nodiscard]] int Year() const;
  [[nodiscard]] int Month() const;
  [[nodiscard]] int Day() const;
  [[nodiscard]] int Hour() const;
  [[nodiscard]] int Minute() const;
  [[nodiscard]] int Second() const;
  [[nodiscard]] QDateTime local() const;

 private:
  explicit Date(qint64 nanoseconds) : m_nanoseconds(nanoseconds) {}
  qint64 m_nanoseconds;
};

/// Seconds of a file date in nanoseconds, rounded as every comparison with a date limit rounds it.
[[nodiscard]] double secondsOf(qint64 nanoseconds);
