// Work of a window on a thread of its own.

#include <QSemaphore>
#include <QTest>
#include <QThread>

#include "support/TestRunner.h"
#include "widgets/BackgroundCall.h"

using namespace Qt::Literals::StringLiterals;

/// Lets hanging work go when the test ends, whatever way that is.
class Gate {
 public:
  ~Gate() {
    m_open.release(100);
    if (!BackgroundCall::waitForAll(10'000)) qFatal("a call did not end");
  }
  void wait() { m_open.acquire(); }
  void open() { m_open.release(); }

 private:
  QSemaphore m_open;
};

class tst_BackgroundCall : public QObject {
  Q_OBJECT

 private slots:
  void theResultComesBackOnTheMainThread() {
    Gate gate;
    BackgroundCall call("test", nullptr);
    const Qt::HANDLE self = QThread::currentThreadId();
    Qt::HANDLE worker = self, answered = nullptr;
    QString result;
    call.run<QString>(
        0,
        [&worker](const auto&) {
          worker = QThread::currentThreadId();
          return u"done"_s;
        },
        [&](const QString& text) {
          answered = QThread::currentThreadId();
          result = text;
        });
    QVERIFY(call.running());
    QTRY_COMPARE(result, u"done"_s);
    QVERIFY(worker != self && answered == self);
    QVERIFY(!call.running());
  }

  void aSlowCallIsToldOnceAndItsResultStillCounts() {
    Gate gate;
    BackgroundCall call("test", nullptr);
    int slow = 0, result = 0;
    call.run<int>(
        20,
        [&gate](const auto&) {
          gate.wait();
          return 7;
        },
        [&result](int value) { result = value; }, [&slow] { ++slow; });
    QTRY_COMPARE(slow, 1);
    gate.open();
    QTRY_COMPARE(result, 7);
    QCOMPARE(slow, 1);
  }

  void anAnswerThatNobodyWaitsForIsDropped_data() {
    QTest::addColumn<int>("how");
    QTest::newRow("cancelled") << 0;
    QTest::newRow("begun anew") << 1;
    QTest::newRow("its owner is gone") << 2;
  }
  void anAnswerThatNobodyWaitsForIsDropped() {
    QFETCH(int, how);
    Gate gate;
    auto call = std::make_unique<BackgroundCall>("test", nullptr);
    QStringList answers;
    std::atomic<bool> toldToStop{false};
    call->run<QString>(
        0,
        [&](const BackgroundCall::Cancelled& cancelled) {
          gate.wait();
          toldToStop = cancelled();
          return u"old"_s;
        },
        [&](const QString& text) { answers << text; });
    if (how == 0) call->cancel();
    if (how == 1)
      call->run<QString>(
          0, [](const auto&) { return u"new"_s; }, [&](const QString& text) { answers << text; });
    if (how == 2) call.reset();
    gate.open();
    QVERIFY(BackgroundCall::waitForAll(10'000));
    QVERIFY(toldToStop);
    if (how == 1) QTRY_COMPARE(answers, QStringList{u"new"_s});
    QCoreApplication::processEvents();
    QCOMPARE(answers.size(), how == 1 ? 1 : 0);
  }

  void workThatThrowsIsNoAnswer() {
    Gate gate;
    BackgroundCall call("test", nullptr);
    int slow = 0, done = 0;
    call.run<int>(
        0, [](const auto&) -> int { throw std::runtime_error("planted"); }, [&](int) { ++done; }, [&] { ++slow; });
    QTRY_COMPARE(slow, 1);
    QCOMPARE(done, 0);
    QVERIFY(!call.running());
  }

  void threadsThatHangDoNotPileUp() {
    Gate gate;
    BackgroundCall call("test", nullptr);
    std::atomic<int> begun{0};
    int slow = 0;
    for (int i = 0; i < 20; ++i)
      call.run<int>(
          60'000,
          [&](const auto&) {
            ++begun;
            gate.wait();
            return 0;
          },
          {}, [&slow] { ++slow; });
    QTRY_COMPARE(slow, 1);
    QVERIFY2(begun <= 4, qPrintable(QString::number(begun)));
    QVERIFY(!call.running());
    QVERIFY(!BackgroundCall::waitForAll(0));
  }
};

VANTRY_TEST(tst_BackgroundCall);
#include "tst_BackgroundCall.moc"
