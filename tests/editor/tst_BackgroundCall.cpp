// Work of a window on a thread of its own.

#include <QSemaphore>
#include <QTest>
#include <QThread>

#include "support/TestRunner.h"
#include "widgets/BackgroundCall.h"

using namespace Qt::Literals::StringLiterals;

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
  void piecesComeInOrderBeforeTheResultAndNoneAfterACancel() {
    Gate gate;
    QList<int> taken;
    for (const bool cancelAtThree : {false, true}) {
      taken.clear();
      const auto work = [](const auto&, const std::function<void(int)>& hand) {
        for (int i = 1; i <= 5; ++i) hand(i);
        return 6;
      };
      const auto piece = [&](int value) {
        taken << value;
        if (cancelAtThree && value == 3) gate.call->cancel();
      };
      gate.call->runInPieces<int, int>(0, work, piece, [&](int result) { taken << result; });
      QTRY_COMPARE(taken.size(), cancelAtThree ? 3 : 6);
      QVERIFY(BackgroundCall::waitForAll(60'000));
      QCoreApplication::processEvents();
      QCOMPARE(taken, QList<int>({1, 2, 3, 4, 5, 6}).first(cancelAtThree ? 3 : 6));
    }
  }

  void anAnswerThatNobodyWaitsForIsDropped() {
    enum Way { Cancelled, BegunAnew, OwnerGone };
    for (const Way way : {Cancelled, BegunAnew, OwnerGone}) {
      Gate gate;
      QStringList answers;
      std::atomic<bool> toldToStop{false};
      const auto done = [&](const QString& text) {
        QCOMPARE(QThread::currentThread(), thread());
        answers << text;
      };
      const auto work = [&](const BackgroundCall::Cancelled& cancelled) {
        gate.wait();
        toldToStop = cancelled();
        return u"old"_s;
      };
      gate.call->run<QString>(0, work, done);
      if (way == Cancelled) gate.call->cancel();
      if (way == BegunAnew)
        gate.call->run<QString>(
            0, [](const auto&) { return u"new"_s; }, done);
      if (way == OwnerGone) gate.call.reset();
      gate.open();
      QVERIFY(BackgroundCall::waitForAll(60'000));
      QVERIFY(toldToStop);
      if (way == BegunAnew) QTRY_COMPARE(answers, QStringList{u"new"_s});
      QCoreApplication::processEvents();
      QCOMPARE(answers.size(), way == BegunAnew ? 1 : 0);
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
