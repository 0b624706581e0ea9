#include <QTest>
#include <QTimeZone>
#include <cmath>
#include <limits>

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

  void anyNumberGivesADate_data() {
    QTest::addColumn<double>("seconds");
    QTest::addColumn<qint64>("nanoseconds");
    QTest::newRow("before 1970") << -1.5 << qint64{-1'500'000'000};
    QTest::newRow("no number") << std::nan("") << qint64{0};
    QTest::newRow("far ahead") << 1e300 << qint64{9'200'000'000'000'000'000};
    QTest::newRow("infinitely long ago") << -std::numeric_limits<double>::infinity()
                                         << qint64{-9'200'000'000'000'000'000};
  }
  void anyNumberGivesADate() {
    QFETCH(double, seconds);
    QTEST(Date::fromTotalSeconds(seconds).nanoseconds(), "nanoseconds");
  }

  void partsAreLocal_data() {
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<QList<int>>("parts");
    QTest::newRow("UTC") << QByteArray("UTC0") << QList{2023, 12, 31, 23, 30, 59};
    QTest::newRow("an hour east, next year") << QByteArray("XST-1") << QList{2024, 1, 1, 0, 30, 59};
    QTest::newRow("five hours west") << QByteArray("XST5") << QList{2023, 12, 31, 18, 30, 59};
  }
  void partsAreLocal() {
    QFETCH(QByteArray, zone);
    const QByteArray before = qgetenv("TZ");
    const bool wasSet = qEnvironmentVariableIsSet("TZ");
    qputenv("TZ", zone);
    tzset();
    const Date date = Date::fromNanoseconds(1'704'065'459'999'999'999);
    const QList<int> parts{date.Year(), date.Month(), date.Day(), date.Hour(), date.Minute(), date.Second()};
    if (wasSet)
      qputenv("TZ", before);
    else
      qunsetenv("TZ");
    tzset();
    QTEST(parts, "parts");
  }
};

VANTRY_TEST(tst_Date);
#include "tst_Date.moc"
