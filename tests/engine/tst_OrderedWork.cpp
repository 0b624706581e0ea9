#include <QTest>
#include <algorithm>
#include <atomic>
#include <numeric>
#include <stdexcept>
#include <vector>

#include "engine/OrderedWork.h"
#include "support/TestRunner.h"

class tst_OrderedWork : public QObject {
  Q_OBJECT

 private slots:
  void jobsRunInTheirOrderAndFewWait() {
    constexpr int jobs = 500;
    std::vector<int> order, expected(jobs);
    std::iota(expected.begin(), expected.end(), 0);
    std::atomic<int> given{0};
    int mostAhead = 0;
    OrderedWork work;
    for (int i = 0; i < jobs; ++i) {
      work.add([&, i] {
        mostAhead = std::max(mostAhead, given.load() - i);
        order.push_back(i);
      });
      ++given;
    }
    work.wait();
    QCOMPARE(order, expected);
    QVERIFY2(mostAhead <= 5, qPrintable(QString::number(mostAhead)));  // four wait beside the one that runs
  }

  void aJobThatThrowsDoesNotTakeTheOthersWithIt() {
    int done = 0;
    OrderedWork work;
    for (int i = 0; i < 4; ++i)
      work.add([&done, i] {
        if (i == 1) throw std::runtime_error("first");
        if (i == 2) throw std::runtime_error("second");
        ++done;
      });
    work.wait();
    QCOMPARE(done, 2);
    QVERIFY(work.failed());
    try {
      work.throwFailure();
      QFAIL("nothing was thrown");
    } catch (const std::runtime_error& e) {
      QCOMPARE(e.what(), "first");
    }
    QVERIFY(!work.failed());
    work.throwFailure();  // told once
  }

  void theEndWaitsForWhatWasGiven() {
    int done = 0;
    {
      OrderedWork work;
      for (int i = 0; i < 4; ++i) work.add([&done] { ++done; });
    }
    QCOMPARE(done, 4);
  }
};

VANTRY_TEST(tst_OrderedWork);
#include "tst_OrderedWork.moc"
