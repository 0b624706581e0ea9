#include <QTest>
#include <future>
#include <semaphore>

#include "service/NameLookup.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;
using Phase = HttpFailure::Phase;

static Deadline in(std::chrono::milliseconds time) { return std::chrono::steady_clock::now() + time; }

class tst_NameLookup : public QObject {
  Q_OBJECT
 private slots:
  void numericAddressesNeedNoResolver() {
    const Resolver none = [](const QByteArray&, int) -> ResolverAnswer { return {{}, -1, u"asked"_s}; };
    QCOMPARE(lookUpName(u"127.0.0.1"_s, 80, u"peer"_s, in(10s), none).addresses.size(), size_t{1});
    QCOMPARE(lookUpName(u"::1"_s, 80, u"peer"_s, in(10s), none).addresses.size(), size_t{1});
    QCOMPARE(lookUpName(u"localhost"_s, 80, u"peer"_s, in(10s), none).failure.phase, Phase::Name);
  }
  void internationalNamesAreAskedForInTheirAsciiForm() {
    std::promise<QByteArray> asked;
    const Resolver resolver = [&](const QByteArray& host, int) -> ResolverAnswer {
      asked.set_value(host);
      return {};
    };
    (void)lookUpName(u"m\u00fcller.example"_s, 80, u"peer"_s, in(10s), resolver);
    QCOMPARE(asked.get_future().get(), QByteArray("xn--mller-kva.example"));
  }
  void addressesAreRememberedForAWhileUntilTheyFail() {
    NameMemory memory;
    const NameMemory::Moment start{};
    const QString host = u"a.example"_s;
    memory.remember(host, 443, {SocketAddress{}}, start);
    QCOMPARE(memory.recall(host, 443, start + NameMemory::Life - 1ms).size(), size_t{1});
    QVERIFY(memory.recall(host, 443, start + NameMemory::Life).empty());
    QVERIFY(memory.recall(host, 80, start).empty());
    memory.forget(host, 443);
    QVERIFY(memory.recall(host, 443, start).empty());
  }
  void aLookupThatHangsIsLeftToItself() {
    const auto finished = std::make_shared<std::counting_semaphore<>>(0);
    std::promise<void> letGo;
    const Resolver hanging = [finished, goOn = letGo.get_future().share()](const QByteArray&, int) -> ResolverAnswer {
      goOn.wait();
      finished->release();
      return {{SocketAddress{}}, 0, {}};
    };
    const NameLookupResult result = lookUpName(u"a.example"_s, 80, u"the peer"_s, in(50ms), hanging);
    QCOMPARE(result.failure.phase, Phase::TimedOut);
    QCOMPARE(result.failure.code, -1);
    QVERIFY(result.failure.detail.contains("the peer"_L1));
    StopSignal::process().raise();
    QCOMPARE(lookUpName(u"a.example"_s, 80, u"the peer"_s, in(30s), hanging).failure.phase, Phase::Stopped);
    StopSignal::process().lower();
    letGo.set_value();
    for (int i = 0; i < 2; ++i) QVERIFY(finished->try_acquire_for(10s));
  }
};

VANTRY_TEST(tst_NameLookup);
#include "tst_NameLookup.moc"
