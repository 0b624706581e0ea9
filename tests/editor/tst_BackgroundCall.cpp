// Work of a window on a thread of its own.

#include <QSemaphore>
#include <QTest>
#include <QThread>

#include "support/TestRunner.h"
#include "widgets/BackgroundCall.h"

/// A call whose work waits until it is let go, at the latest when the test ends.
class Gate {
 public:
  ~Gate() {
    m_open.release(100);
    if (!BackgroundCall::waitForAll(60'000)) qFatal("a call did not end");
  }
  void wait() { m_open.acquire(); }
  void open() { m_open.release(); }
  std::unique_ptr<BackgroundCall> call = std::make_unique<BackgroundCall>("test", nullptr);

 private:
  QSemaphore m_open;
};

class tst_BackgroundCall : public QObject {
  Q_OBJECT
 private slots:
  void piecesAndAnswersComeInOrderUnlessNobodyWaitsForThem() {
    enum Way { Awaited, Cancelled, BegunAnew, OwnerGone };
    for (const auto& [way, late] : {std::pair(Awaited, false),  // late: when pieces and answer are on their way
                                    {Cancelled, false},
                                    {Cancelled, true},
                                    {BegunAnew, false},
                                    {BegunAnew, true},
                                    {OwnerGone, false},
                                    {OwnerGone, true}}) {
      Gate gate;
      QList<int> taken;
      std::atomic<bool> toldToStop{false};
      const auto take = [&](int value) {
        QCOMPARE(QThread::currentThread(), thread());
        taken << value;
      };
      const auto work = [&](const BackgroundCall::Cancelled& cancelled, const std::function<void(int)>& hand) {
        gate.wait();
        for (int i = 1; i <= 3; ++i) hand(i);
        toldToStop = cancelled();
        return 4;
      };
      gate.call->runInPieces<int, int>(0, work, take, take);
      if (late) gate.open();
      if (late) QVERIFY(BackgroundCall::waitForAll(60'000));
      if (way == Cancelled) gate.call->cancel();
      if (way == BegunAnew)
        gate.call->runInPieces<int, int>(
            0, [](auto&&...) { return 5; }, take, take);
      if (way == OwnerGone) gate.call.reset();
      gate.open();
      QVERIFY(BackgroundCall::waitForAll(60'000) && toldToStop == (way != Awaited && !late));
      QCoreApplication::processEvents();
      QTRY_COMPARE(taken, way == Awaited ? QList<int>({1, 2, 3, 4}) : QList<int>(way == BegunAnew ? 1 : 0, 5));
    }
  }

  void workThatThrowsIsNoAnswerAndThreadsThatHangDoNotPileUp() {
    Gate gate;
    int slow = 0, done = 0;
    const auto tellSlow = [&slow] { ++slow; };
    const auto fail = [](const auto&) -> int { throw std::runtime_error("planted"); };
    gate.call->run<int>(
        0, fail, [&](int) { ++done; }, tellSlow);
    QTRY_COMPARE(slow, 1);
    QVERIFY(done == 0 && !gate.call->running());
    std::atomic<int> begun{0};
    const auto hang = [&](const auto&) {
      ++begun;
      gate.wait();
      return 0;
    };
    for (int i = 0; i < 20; ++i) gate.call->run<int>(60'000, hang, {}, tellSlow);
    QTRY_COMPARE(slow, 2);
    QVERIFY2(begun <= 4, qPrintable(QString::number(begun)));
    QVERIFY(!gate.call->running() && !BackgroundCall::waitForAll(0));
  }
};

VANTRY_TEST(tst_BackgroundCall);
#include "tst_BackgroundCall.moc"
