// The races between a folder, its clock and ours, played with a scripted clock and folder.

#include <QMap>
#include <QRandomGenerator>
#include <cmath>

#include "engine/BatchLedger.h"
#include "support/ManualClock.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// A folder on a machine whose clock is `skew` seconds ahead of ours and keeps dates in steps of `step` seconds, and a
/// batch's way of using its ledger, with the sending replaced by a note of the content that would have gone out.
class Scene {
 public:
  explicit Scene(double skew = 0, double step = 0) : m_skew(skew), m_step(step) {}

  ManualClock clock;
  BatchLedger ledger;
  double limit = 0;
  QList<int> sent;

  /// Writes a file anew; gives the number of this content.
  int write(const QByteArray& name, qint64 size = 100) {
    const double date = clock.now().TotalSeconds() + m_skew;
    return place(name, size, m_step > 0 ? std::floor(date / m_step) * m_step : date);
  }
  int place(const QByteArray& name, qint64 size, double date) {
    m_files[name] = {{name, {size, static_cast<qint64>(std::floor(date * 1e6)) * 1000}}, ++m_contents};
    return m_contents;
  }
  [[nodiscard]] int content(const QByteArray& name) const { return m_files.value(name).second; }

  void pass() {
    if (look().due.empty()) return;  // the look that chooses the task
    auto began = clock.now();
    for (auto selection = look(); !selection.due.empty(); selection = look()) {
      for (const ScannedFile& file : selection.due) {
        sent << content(file.name);
        clock.advance(0.05);
        ledger.dealtWith(file);
      }
      began = clock.now();
    }
    limit = ledger.close(began);
  }
  void passes(int count) {
    for (int i = 0; i < count; ++i) clock.advance(4), pass();
  }
  void restart() {
    const QString memory = ledger.toText();
    ledger = BatchLedger();
    ledger.fromText(memory);
  }

 private:
  BatchLedger::Selection look() {
    std::vector<ScannedFile> listing;
    for (const auto& [file, content] : m_files)
      if (secondsOf(file.version.mtimeNs) > BatchLedger::cutoff(limit, clock.now())) listing.push_back(file);
    return ledger.look(listing, limit, clock.now(), clock.monotonicMs());
  }
  const double m_skew, m_step;
  QMap<QByteArray, std::pair<ScannedFile, int>> m_files;
  int m_contents = 0;
};

}  // namespace

class tst_BatchLedger : public QObject {
  Q_OBJECT

 private slots:
  void aFileAtRestGoesOutAtOnceAndOneBeingWrittenWaitsWithoutHoldingTheBatchOpen() {
    Scene scene;
    scene.write("a.txt");
    scene.clock.advance(3);
    scene.write("growing.txt", 10);
    scene.clock.advance(1);
    scene.pass();
    QCOMPARE(scene.sent, QList<int>{1});
    QVERIFY2(scene.limit < scene.clock.now().TotalSeconds() - 0.9, "the limit must stay below the file that waits");
    scene.clock.advance(0.5);
    scene.write("growing.txt", 20);
    scene.pass();
    scene.clock.advance(1.9);
    scene.pass();
    QCOMPARE(scene.sent.size(), 1);
    scene.clock.advance(0.2);
    scene.pass();
    QCOMPARE(scene.sent, (QList<int>{1, 3}));
    scene.passes(3);
    QCOMPARE(scene.sent.size(), 2);
  }

  void everyVersionGoesOutOnceWhateverTheFoldersClock_data() {
    addColumns<double, double>("skew", "step");
    for (const double skew : {-300.0, -61.0, -2.5, -0.3, 0.0, 0.3, 2.5, 61.0, 300.0})
      for (const double step : {0.0, 0.004, 1.0, 2.0})
        QTest::addRow("folder's clock %+.1f s, dates in steps of %.3f s", skew, step) << skew << step;
  }
  void everyVersionGoesOutOnceWhateverTheFoldersClock() {
    QFETCH(double, skew);
    QFETCH(double, step);
    QRandomGenerator random(7);
    Scene scene(skew, step);
    scene.pass();
    QList<int> whole;  // contents that stood long enough to be meant
    for (int round = 0; round < 40; ++round) {
      const QByteArray name = "file" + QByteArray::number(random.bounded(12)) + ".txt";
      scene.write(name, 40);
      scene.clock.advance(random.bounded(1.5));
      scene.pass();  // a look in the middle of the writing
      scene.clock.advance(random.bounded(1.0));
      whole << scene.write(name, random.bounded(2) ? 40 : 80);
      const int passes = random.bounded(4);
      scene.passes(passes < 3 ? passes : 4);
      if (passes < 3) whole.removeLast();  // if it is replaced now, it was never meant to go out
      if (random.bounded(8) == 0) scene.restart();
    }
    for (int file = 0; file < 12; ++file) whole << scene.content("file" + QByteArray::number(file) + ".txt");
    whole.removeAll(0);
    scene.passes(6);
    for (const int content : whole)
      QVERIFY2(scene.sent.contains(content), qPrintable(u"missed content %1"_s.arg(content)));
    for (const int content : scene.sent) {
      QCOMPARE(scene.sent.count(content), 1);
      // The first of two pieces lasted at most 1 s after the look that met it: it must never have gone out. A clock
      // that lags by less than the time between two looks can't be told from a file that has rested so long.
      if (skew > -0.5 || skew < -4) QVERIFY2(content % 2 == 0, qPrintable(u"half-written content %1"_s.arg(content)));
    }
  }

  void withoutAMemoryTheLimitAloneHoldsAndOneSetBackMakesAllDueAgain() {
    Scene scene;
    for (const char* damaged : {"*&^%", "AAAA"}) {
      scene.ledger.fromText(QString::fromLatin1(damaged));
      QVERIFY(scene.ledger.toText().isEmpty());
    }
    scene.limit = scene.clock.now().TotalSeconds();
    scene.place("at the limit.txt", 5, scene.limit);
    scene.place("below.txt", 5, scene.limit - 30);
    scene.place("later.txt", 5, scene.limit + 1);
    scene.passes(4);
    QCOMPARE(scene.sent, QList<int>{3});
    scene.limit = 0;
    scene.passes(3);
    QCOMPARE(scene.sent.size(), 4);
  }

  void ourClockSetRightSendsEachFileOnce() {
    // Local files, a restart between, and a share whose clock was right.
    for (const auto& [shareSkew, restarts] : {std::pair(0.0, false), {0.0, true}, {-3600.0, false}}) {
      Scene scene;
      QList<int> written;
      const auto write = [&](double skew) {
        const QByteArray name = "f" + QByteArray::number(written.size()) + ".txt";
        written << scene.place(name, 100, scene.clock.now().TotalSeconds() + skew);
      };
      write(0);
      scene.passes(2);
      scene.clock.jump(3600);
      // Where the share's clock is right, only the first of these is seen before ours is set right.
      const double step = shareSkew == 0 ? 180 : 15;
      for (int i = 0; i < 20; ++i) write(shareSkew), scene.clock.advance(step), scene.passes(1);
      scene.clock.jump(-3600);
      if (restarts) scene.restart();
      scene.passes(2);
      for (int i = 0; i < 20; ++i) write(0), scene.passes(3), scene.clock.advance(120);
      scene.passes(2);
      std::sort(scene.sent.begin(), scene.sent.end());
      QCOMPARE(scene.sent, written);
    }
  }

  void aClockThatIsFarBehindForAWhileRepeatsNothing() {
    Scene scene;
    for (int i = 0; i < 1500; ++i)
      scene.place("old" + QByteArray::number(i), 1, scene.clock.now().TotalSeconds() - 5000 - i);
    scene.passes(1);
    scene.clock.jump(-1e8);
    scene.write("meanwhile");
    scene.passes(3);
    scene.clock.jump(1e8);
    scene.write("behind it");
    scene.passes(3);
    QCOMPARE(scene.sent.size(), 1502);
  }

  void theMemoryStaysSmall() {
    Scene scene;
    for (int i = 0; i < 1500; ++i)
      scene.place("old" + QByteArray::number(i), 1, scene.clock.now().TotalSeconds() - 5000);
    scene.passes(1);
    QCOMPARE(scene.sent.size(), 1500);
    for (int i = 0; i < 50; ++i) {
      scene.write("f" + QByteArray::number(i));
      scene.clock.advance(100);
      scene.pass();
    }
    // Six versions fall into the window of ten minutes, a thousand are kept below it; each takes 16 bytes.
    QVERIFY(scene.ledger.toText().size() <= 1008 * 24);
  }
};

VANTRY_TEST(tst_BatchLedger);
#include "tst_BatchLedger.moc"
