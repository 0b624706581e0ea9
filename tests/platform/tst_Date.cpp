#include <QTest>
#include <cmath>

#include "platform/Date.h"
#include "support/TestRunner.h"

class tst_Date : public QObject {
  Q_OBJECT
 private slots:
  // A date limit is stored as seconds and compared with file dates in nanoseconds; it must not move on the way.
  void secondsReadBackAsTheSameMoment() {
    for (int i = 0; i < 10'000; ++i) {
      const qint64 ns = 1'700'000'000'000'000'000 + i * 7'919'993'311'777;
      const double seconds = secondsOf(ns);
      QCOMPARE(Date::fromTotalSeconds(seconds).TotalSeconds(), seconds);
      QVERIFY(std::abs(Date::fromTotalSeconds(seconds).nanoseconds() - ns) <= 120);
    }
  }

  void laterNanosecondsAreNeverEarlierSeconds() {
    for (qint64 ns = 1'699'999'999'999'999'000; ns < 1'700'000'000'000'001'000; ++ns)
      QVERIFY(secondsOf(ns) <= secondsOf(ns + 1));
  }

  void aDamagedNumberGivesADate() {
    QCOMPARE(Date::fromTotalSeconds(std::nan("")).nanoseconds(), 0);
    QCOMPARE(Date::fromTotalSeconds(1e300).nanoseconds(), 9'200'000'000'000'000'000);
    QCOMPARE(Date::fromTotalSeconds(-1.5).nanoseconds(), -1'500'000'000);
  }
};

VANTRY_TEST(tst_Date);
#include "tst_Date.moc"
