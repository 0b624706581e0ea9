#include <algorithm>
#include <atomic>
#include <numeric>
#include <vector>

#include "engine/OrderedWork.h"
#include "support/TestRunner.h"

class tst_OrderedWork : public QObject {
  Q_OBJECT

 private slots:
  void itemsKeepTheirOrderAndFewWait() {
    constexpr int items = 500;
    std::vector<int> order, expected(items);
    std::iota(expected.begin(), expected.end(), 0);
    std::atomic<int> given{0};
    int mostAhead = 0;
    {
      OrderedWork<int> work("test-work", [&](std::vector<int>& group) {
        mostAhead = std::max(mostAhead, given.load() - group.front());
        order.insert(order.end(), group.begin(), group.end());
      });
      for (int i = 0; i < items; ++i) {
        work.add(i);
        ++given;
      }
    }
    QCOMPARE(order, expected);                                         // its end waits for what was given
    QVERIFY2(mostAhead <= 8, qPrintable(QString::number(mostAhead)));  // four wait beside four in work
  }
};

VANTRY_TEST(tst_OrderedWork);
#include "tst_OrderedWork.moc"
