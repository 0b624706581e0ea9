// The races between a folder, its clock and ours, played with a scripted clock and folder.

#include <QMap>
#include <QRandomGenerator>
#include <QTest>
#include <cmath>
#include <functional>

#include "engine/BatchLedger.h"
#include "support/ManualClock.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// A folder on a machine whose clock is `skew` seconds ahead of ours and keeps dates in steps of `step` seconds.
class ScriptedFolder {
 public:
  explicit ScriptedFolder(ManualClock& clock, double skew = 0, double step = 0) : m_clock(clock), m_skew(skew), m_step(step) {}

  /// Writes a file anew; gives the number of this content.
  int write(const QByteArray& name, qint64 size = 100) {
    double date = m_clock.now().TotalSeconds() + m_skew;
    if (m_step > 0) date = std::floor(date / m_step) * m_step;
    return place(name, size, date);
  }
  int place(const QByteArray& name, qint64 size, double date) {
    m_files[name] = {{name, {size, static_cast<qint64>(std::floor(date * 1e6)) * 1000}}, ++m_contents};
    return m_contents;
  }
  void remove(const QByteArray& name) { m_files.remove(name); }
  [[nodiscard]] int content(const QByteArray& name) const { return m_files[name].content; }
  [[nodiscard]] std::vector<ScannedFile> list(double above) const {
    std::vector<ScannedFile> listing;
    for (const auto& file : m_files)
      if (secondsOf(file.scanned.version.mtimeNs) > above) listing.push_back(file.scanned);
    return listing;
  }

 private:
  struct File {
    ScannedFile scanned;
    int content = 0;
  };
  ManualClock& m_clock;
  double m_skew, m_step;
  QMap<QByteArray, File> m_files;
  int m_contents = 0;
};

/// The way a batch uses its ledger, with the sending replaced by a note of what would have gone out.
class Agent {
 public:
  Agent(ManualClock& clock, ScriptedFolder& folder) : m_clock(clock), m_folder(folder) {}

  BatchLedger ledger;
  double limit = 0;
  QList<int> sent;
  std::function<void(const QByteArray& name)> whileSending;

  void pass() {
    if (look().due.empty()) return;  // the look that chooses the task
    auto began = m_clock.now();
    auto selection = look();
    while (!selection.due.empty()) {
      for (const ScannedFile& file : selection.due) {
        sent << m_folder.content(file.name);
        m_clock.advance(0.05);
        if (whileSending) whileSending(file.name);
        ledger.dealtWith(file);
      }
      began = m_clock.now();
      selection = look();
    }
    limit = ledger.close(began);
  }
  void passes(int count) {
    for (int i = 0; i < count; ++i) {
      m_clock.advance(4);
      pass();
    }
  }
  void restart() {
    const QString memory = ledger.toText();
    ledger = BatchLedger();
    ledger.fromText(memory);
  }

 private:
  BatchLedger::Selection look() {
    const Date now = m_clock.now();
    return ledger.look(m_folder.list(BatchLedger::cutoff(limit, now)), limit, now, m_clock.monotonicMs());
  }
  ManualClock& m_clock;
  ScriptedFolder& m_folder;
};

}  // namespace

class tst_BatchLedger : public QObject {
  Q_OBJECT

 private slots:
  void aFileAtRestGoesOutInThePassThatFirstSeesIt() {
    ManualClock clock;
    ScriptedFolder folder(clock);
    Agent agent(clock, folder);
    const int content = folder.write("scan.txt");
    clock.advance(2.5);
    agent.pass();
    QCOMPARE(agent.sent, QList<int>{content});
    QCOMPARE(agent.limit, clock.now().TotalSeconds());
    agent.passes(3);
    QCOMPARE(agent.sent.size(), 1);
  }

  void aFileBeingWrittenWaitsWithoutHoldingTheBatchOpen() {
    ManualClock clock;
    ScriptedFolder folder(clock);
    Agent agent(clock, folder);
    const int whole = folder.write("a.txt");
    clock.advance(3);
    folder.write("growing.txt", 10);
    clock.advance(1);
    agent.pass();
    QCOMPARE(agent.sent, QList<int>{whole});
    QVERIFY2(agent.limit < clock.now().TotalSeconds() - 0.9, "the limit must stay below the file that waits");
    clock.advance(0.5);
    folder.write("growing.txt", 20);
    agent.pass();
    QCOMPARE(agent.sent.size(), 1);
    clock.advance(1.9);
    agent.pass();
    QCOMPARE(agent.sent.size(), 1);
    clock.advance(0.2);
    agent.pass();
    QCOMPARE(agent.sent.size(), 2);
    QCOMPARE(agent.sent.last(), folder.content("growing.txt"));
  }

  void whatLandsDuringABatchJoinsItOrTheNext() {
    ManualClock clock;
    ScriptedFolder folder(clock);
    Agent agent(clock, folder);
    folder.write("a.txt");
    clock.advance(3);
    agent.whileSending = [&](const QByteArray& name) {
      if (name == "a.txt") folder.write("b.txt");
      clock.advance(5);
    };
    agent.pass();
    QCOMPARE(agent.sent, (QList<int>{1, 2}));
    agent.passes(2);
    QCOMPARE(agent.sent.size(), 2);
  }

  void aFileRewrittenWhileItWasSentGoesOutAgainInItsNewVersion() {
    ManualClock clock;
    ScriptedFolder folder(clock);
    Agent agent(clock, folder);
    folder.write("a.txt");
    clock.advance(3);
    agent.whileSending = [&, done = false](const QByteArray&) mutable {
      if (!done) folder.write("a.txt");
      done = true;
    };
    agent.passes(3);
    QCOMPARE(agent.sent, (QList<int>{1, 2}));
  }

  void everyVersionGoesOutOnceWhateverTheFoldersClock_data() {
    QTest::addColumn<double>("skew");
    QTest::addColumn<double>("step");
    for (const double skew : {-300.0, -61.0, -2.5, -0.3, 0.0, 0.3, 2.5, 61.0, 300.0})
      for (const double step : {0.0, 0.004, 1.0, 2.0})
        QTest::addRow("folder's clock %+.1f s, dates in steps of %.3f s", skew, step) << skew << step;
  }
  void everyVersionGoesOutOnceWhateverTheFoldersClock() {
    QFETCH(double, skew);
    QFETCH(double, step);
    QRandomGenerator random(7);
    ManualClock clock;
    ScriptedFolder folder(clock, skew, step);
    Agent agent(clock, folder);
    agent.pass();
    QList<int> whole;  // contents that stood long enough to be meant
    const auto writeInPieces = [&](const QByteArray& name) {
      folder.write(name, 40);
      clock.advance(random.bounded(1.5));
      agent.pass();  // a look in the middle of the writing
      clock.advance(random.bounded(1.0));
      whole << folder.write(name, random.bounded(2) ? 40 : 80);
    };
    for (int round = 0; round < 40; ++round) {
      writeInPieces("file" + QByteArray::number(random.bounded(12)) + ".txt");
      const int passes = random.bounded(4);
      // A content replaced before it had rested was never meant to go out.
      if (passes < 3) agent.passes(passes), whole.removeLast();
      else agent.passes(4);
      if (random.bounded(8) == 0) agent.restart();
    }
    for (int file = 0; file < 12; ++file) {
      const QByteArray name = "file" + QByteArray::number(file) + ".txt";
      if (!folder.list(0).empty() && folder.content(name) != 0 && !whole.contains(folder.content(name)))
        whole << folder.content(name);
    }
    agent.passes(6);
    for (const int content : whole) QVERIFY2(agent.sent.contains(content), qPrintable(u"missed content %1"_s.arg(content)));
    for (const int content : agent.sent) {
      QCOMPARE(agent.sent.count(content), 1);
      // The first of two pieces lasted at most 1 s after the look that met it: it must never have gone out. A clock
      // that lags by less than the time between two looks can't be told from a file that has rested so long.
      if (skew > -0.5 || skew < -4) QVERIFY2(content % 2 == 0, qPrintable(u"a half-written file went out: content %1"_s.arg(content)));
    }
  }

  void aFileDatedFarAheadGoesOutOnceAndDoesNotBlockOthers() {
    ManualClock clock;
    ScriptedFolder folder(clock);
    Agent agent(clock, folder);
    folder.place("future.txt", 5, clock.now().TotalSeconds() + 4e8);
    agent.passes(3);
    QCOMPARE(agent.sent, QList<int>{1});
    QVERIFY(agent.limit <= clock.now().TotalSeconds());
    agent.restart();
    folder.write("today.txt");
    agent.passes(5);
    QCOMPARE(agent.sent, (QList<int>{1, 2}));
  }

  void aLimitSetBackByTheUserMakesEverythingDueAgain() {
    ManualClock clock;
    ScriptedFolder folder(clock);
    Agent agent(clock, folder);
    folder.write("a.txt");
    folder.place("future.txt", 5, clock.now().TotalSeconds() + 1e6);
    agent.passes(3);
    QCOMPARE(agent.sent.size(), 2);
    agent.limit = 0;
    agent.passes(3);
    QCOMPARE(agent.sent.size(), 4);
  }

  void withoutAMemoryTheLimitAloneHolds() {
    ManualClock clock;
    ScriptedFolder folder(clock);
    Agent agent(clock, folder);
    agent.limit = clock.now().TotalSeconds();
    folder.place("at the limit.txt", 5, agent.limit);
    folder.place("below.txt", 5, agent.limit - 30);
    const int later = folder.place("later.txt", 5, agent.limit + 1);
    agent.passes(4);
    QCOMPARE(agent.sent, QList<int>{later});
  }

  void ourClockSetBackLosesNothing() {
    ManualClock clock;
    ScriptedFolder folder(clock);
    Agent agent(clock, folder);
    clock.jump(86400.0 * 400);
    folder.write("dated wrongly.txt");
    agent.passes(2);
    clock.jump(-86400.0 * 400);
    const int content = folder.write("after.txt");
    agent.passes(4);
    QCOMPARE(agent.sent.count(content), 1);
    QCOMPARE(agent.sent.size(), 2);
  }

  void theMemoryStaysSmall() {
    ManualClock clock;
    ScriptedFolder folder(clock);
    Agent agent(clock, folder);
    for (int i = 0; i < 500; ++i) folder.place("old" + QByteArray::number(i), 1, clock.now().TotalSeconds() - 5000);
    agent.passes(1);
    QCOMPARE(agent.sent.size(), 500);
    QVERIFY(agent.ledger.toText().isEmpty());
    for (int i = 0; i < 50; ++i) {
      folder.write("f" + QByteArray::number(i));
      clock.advance(100);
      agent.pass();
    }
    // Six versions fall into the window of ten minutes; each takes 16 bytes.
    QVERIFY2(agent.ledger.toText().size() <= 8 * 24, qPrintable(agent.ledger.toText()));
  }

  void aDamagedMemoryReadsAsNone_data() {
    QTest::addColumn<QString>("text");
    QTest::newRow("not Base64") << u"*&^%"_s;
    QTest::newRow("cut") << u"AAAA"_s;
  }
  void aDamagedMemoryReadsAsNone() {
    QFETCH(QString, text);
    BatchLedger ledger;
    ledger.fromText(text);
    QVERIFY(ledger.toText().isEmpty());
  }
};

VANTRY_TEST(tst_BatchLedger);
#include "tst_BatchLedger.moc"
