#include <QElapsedTimer>
#include <QTest>
#include <future>

#include "ScriptedServer.h"
#include "service/HTTPSocket.h"
#include "service/VantryUtil.h"
#include "storage/Preferences.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;
using Peer = ScriptedServer::Peer;
using Phase = HttpFailure::Phase;
Q_DECLARE_METATYPE(ScriptedServer::Script)
Q_DECLARE_METATYPE(HttpFailure::Phase)

static constexpr int Long = 30'000, Short = 400;  // ms; Short is what the rows about silence wait for

namespace {
/// Gives `pieces` pieces and says that it will give `announced` bytes; fails where it is told to.
class PiecewiseSource : public RequestSource {
 public:
  PiecewiseSource(int pieces, qint64 announced, int failsAt) : m_left(pieces), m_size(announced), m_failsAt(failsAt) {}
  [[nodiscard]] qint64 size() const override { return m_size; }
  [[nodiscard]] bool read(QByteArray& buffer) override {
    if (m_failsAt-- == 0) return false;
    if (m_left-- > 0) buffer.append(QByteArray(1000, 'x'));
    return true;
  }

 private:
  int m_left;
  qint64 m_size;
  int m_failsAt;
};
}  // namespace

class tst_HTTPSocket : public QObject {
  Q_OBJECT
 private slots:
  void cleanup() {
    VantryUtil::setProxy({});
    VantryUtil::allowServiceCalls();
  }

  void requestBytes_data() {
    QTest::addColumn<QString>("url");
    QTest::addColumn<QByteArray>("type");  // empty, with no content: GET
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("throughProxy");
    QTest::addColumn<QByteArray>("expected");  // HOST stands for the server part
    const QByteArray common = " HTTP/1.0\r\nAccept: */*\r\nAccept-Language: en\r\nHost: HOST\r\n";
    const QByteArray typed = common + "Content-type: text/xml; charset=utf-8\r\n";
    const auto row = [](const char* label, const QString& url, const QByteArray& type, const QByteArray& content,
                        const QByteArray& expected, bool throughProxy = false) {
      QTest::newRow(label) << url << type << content << throughProxy << expected;
    };
    row("a post", u"https://HOST/api/v1"_s, "text/xml; charset=utf-8", "<a/>\n",
        "POST /api/v1" + typed + "Content-length: 5\r\n\r\n<a/>\n");
    row("a post without a path", u"HOST"_s, "text/xml; charset=utf-8", "a",
        "POST /" + typed + "Content-length: 1\r\n\r\na");
    row("an empty content has no length", u"x://HOST/"_s, "text/xml; charset=utf-8", "", "POST /" + typed + "\r\n");
    row("a blank type is not sent", u"x://HOST/?q"_s, " ", "abc", "POST /?q" + common + "Content-length: 3\r\n\r\nabc");
    row("a get", u"http://HOST/uploader.php"_s, "", "", "GET /uploader.php" + common + "\r\n");
    row("through a proxy the whole address is named", u"http://far.example:81/x"_s, " ", "a",
        "POST http://far.example:81/x" + QByteArray(common).replace("HOST", "far.example:81") +
            "Content-length: 1\r\n\r\na",
        true);
  }
  void requestBytes() {
    QFETCH(QString, url);
    QFETCH(QByteArray, type);
    QFETCH(QByteArray, content);
    QFETCH(bool, throughProxy);
    QFETCH(QByteArray, expected);
    ScriptedServer server([&](Peer& peer) {
      (void)peer.readTo("\r\n\r\n");
      (void)peer.readCount(content.size());
      peer.write("HTTP/1.0 200 OK\r\nX-A: b\r\nContent-length: 2\r\n\r\nOK");
    });
    const QString host = u"127.0.0.1:%1"_s.arg(server.port());
    HTTPSocket socket;
    if (throughProxy) {
      socket.HTTPProxyAddress = u" 127.0.0.1\t"_s;
      socket.HTTPProxyPort = server.port();
    }
    socket.SetRequestContent(content, type);
    url.replace(u"HOST"_s, host);
    QCOMPARE(type.isEmpty() ? socket.Get(url, Long) : socket.Post(url, Long), QByteArray("OK"));
    QCOMPARE(server.received(), expected.replace("HOST", host.toLatin1()));
    QCOMPARE(socket.HTTPStatusCode(), 200);
    QCOMPARE(socket.PageHeaders().value("x-a"), QByteArray("b"));
    QVERIFY(!socket.failure().failed());
  }

  void theProxyInForce_data() {
    QTest::addColumn<QString>("address");
    QTest::addColumn<int>("port");
    QTest::addColumn<QString>("taken");  // address and port of the socket
    QTest::newRow("is taken as it stands") << u" proxy.example "_s << 3128 << u" proxy.example :3128"_s;
    QTest::newRow("is none without a port") << u"proxy.example"_s << 0 << u":0"_s;
    QTest::newRow("is none with a blank address") << u" \t"_s << 3128 << u":0"_s;
  }
  void theProxyInForce() {
    QFETCH(QString, address);
    QFETCH(int, port);
    VantryUtil::setProxy({address, port});
    HTTPSecureSocket socket;
    VantryUtil::ConfigureProxy(socket);
    QTEST(u"%1:%2"_s.arg(socket.HTTPProxyAddress).arg(socket.HTTPProxyPort), "taken");
  }

  void replies_data() {
    QTest::addColumn<ScriptedServer::Script>("script");
    QTest::addColumn<QByteArray>("page");
    QTest::addColumn<HttpFailure::Phase>("phase");
    const auto answer = ScriptedServer::answer;
    const auto row = [](const char* label, const ScriptedServer::Script& script, const QByteArray& page, Phase phase) {
      QTest::newRow(label) << script << page << phase;
    };
    row("an error page is a page", answer("HTTP/1.1 500 No\r\n\r\n<html>"), "<html>", Phase::None);
    row("no answer at all", answer(""), "", Phase::Reply);
    row("an end within the head", answer("HTTP/1.0 200 OK\r\n"), "", Phase::Reply);
    row("an end before the announced length", answer("HTTP/1.0 200 OK\r\nContent-length: 9\r\n\r\nabc"), "abc",
        Phase::Reply);
    row("an impossible length", answer("HTTP/1.0 200 OK\r\nContent-length: -1\r\n\r\nabc"), "", Phase::Reply);
    row("a head of 100 KB", answer("HTTP/1.0 200 OK\r\nX: " + QByteArray(100 << 10, 'x') + "\r\n\r\nabc"), "",
        Phase::TooLarge);
    row("a body beyond the limit", answer("HTTP/1.0 200 OK\r\n\r\n" + QByteArray(1001, 'x')), "", Phase::TooLarge);
    row(
        "a reset within the body",
        [](Peer& peer) {
          (void)peer.readTo("\r\n\r\n");
          peer.write("HTTP/1.0 200 OK\r\n\r\nabc");
          (void)peer.wait(100);  // or the reset might overtake the bytes
          peer.reset();
        },
        "abc", Phase::Reply);
    row(
        "silence from the start", [](Peer& peer) { peer.holdUntilItLeaves(); }, "", Phase::TimedOut);
    row(
        "silence within the head",
        [](Peer& peer) {
          peer.write("HTTP/1.0 200 OK\r\n");
          peer.holdUntilItLeaves();
        },
        "", Phase::TimedOut);
    row(
        "silence within the body",
        [](Peer& peer) {
          peer.write("HTTP/1.0 200 OK\r\nContent-length: 9\r\n\r\nabc");
          peer.holdUntilItLeaves();
        },
        "abc", Phase::TimedOut);
    row(
        "a trickle of the body keeps the exchange alive",
        [](Peer& peer) {
          (void)peer.readTo("\r\n\r\n");
          peer.write("HTTP/1.0 200 OK\r\n\r\n");
          for (int i = 0; i < 8 && peer.wait(Short / 4); ++i) peer.write("x");
        },
        "xxxxxxxx", Phase::None);
    row(
        "a trickle of the head doesn't",
        [](Peer& peer) {
          for (int i = 0; i < 12 && peer.wait(Short / 4); ++i) peer.write(QByteArray("HTTP/1.0 200 OK").mid(i, 1));
        },
        "", Phase::TimedOut);
  }
  void replies() {
    QFETCH(ScriptedServer::Script, script);
    QFETCH(HttpFailure::Phase, phase);
    ScriptedServer server(script);
    HTTPSocket socket;
    socket.limits.maxReplyBytes = 1000;
    QTEST(socket.Get(server.url(), Short), "page");
    QCOMPARE(socket.failure().phase, phase);
    if (phase == Phase::TimedOut) QCOMPARE(socket.failure().code, -1);
    if (phase != Phase::None) QVERIFY(socket.failure().detail.contains(u"127.0.0.1:%1"_s.arg(server.port())));
  }

  void connectionsThatCantBe_data() {
    QTest::addColumn<QString>("url");
    QTest::addColumn<HttpFailure::Phase>("phase");
    QTest::newRow("nobody listens") << u"http://127.0.0.1:%1/"_s.arg(closedPort()) << Phase::Connect;
    QTest::newRow("an address without a host") << u"http:///"_s << Phase::Name;
    QTest::newRow("a name that no host can have") << u"http://a..b/"_s << Phase::Name;
  }
  void connectionsThatCantBe() {
    QFETCH(QString, url);
    HTTPSocket socket;
    QCOMPARE(socket.Get(url, Long), QByteArray());
    QTEST(socket.failure().phase, "phase");
    QVERIFY(!socket.failure().detail.isEmpty());
  }
  void aConnectionThatHangsEndsWithTheTimeOut() {
    const HangingPort hanging;
    HTTPSocket socket;
    (void)socket.Get(u"http://127.0.0.1:%1/"_s.arg(hanging.port()), Short);
    QCOMPARE(socket.failure().phase, Phase::TimedOut);
  }

  void sendingIsNoSignOfLife_data() {
    QTest::addColumn<ScriptedServer::Script>("script");
    QTest::newRow("the server reads slowly") << ScriptedServer::Script([](Peer& peer) {
      while (peer.wait(Short / 8) && !peer.readCount(100'000).isEmpty()) continue;
    });
    QTest::newRow("the server reads without a pause")
        << ScriptedServer::Script([](Peer& peer) { peer.holdUntilItLeaves(); });
  }
  void sendingIsNoSignOfLife() {
    QFETCH(ScriptedServer::Script, script);
    ScriptedServer server(script);
    HTTPSocket socket;
    constexpr int EndlessPieces = 1'000'000'000;
    socket.SetRequestSource(std::make_unique<PiecewiseSource>(EndlessPieces, 1000LL * EndlessPieces, -1), "text/plain");
    QElapsedTimer timer;
    timer.start();
    (void)socket.Post(server.url(), Short);
    QCOMPARE(socket.failure().phase, Phase::TimedOut);
    QVERIFY(socket.failure().detail.contains("whole request"_L1));
    QVERIFY(timer.elapsed() < 4 * Short);
  }

  void anEarlyAnswerEndsTheSending_data() {
    QTest::addColumn<bool>("withLength");
    QTest::addColumn<bool>("reset");
    QTest::newRow("with a length, the connection stays") << true << false;
    QTest::newRow("with a length, the connection is dropped with bytes unread") << true << true;
    QTest::newRow("without a length, the connection is dropped with bytes unread") << false << true;
  }
  void anEarlyAnswerEndsTheSending() {
    QFETCH(bool, withLength);
    QFETCH(bool, reset);
    ScriptedServer server([&](Peer& peer) {
      (void)peer.readCount(100'000);
      peer.write(withLength ? "HTTP/1.0 413 No\r\nContent-length: 4\r\n\r\nE104" : "HTTP/1.0 413 No\r\n\r\nE104");
      if (!reset) (void)peer.wait(Long);
    });
    for (int round = 0; round < 20; ++round) {
      HTTPSocket socket;
      socket.SetRequestContent(QByteArray(8 << 20, 'x'), "text/plain");
      QCOMPARE(socket.Post(server.url(), Long), QByteArray("E104"));
      QCOMPARE(socket.HTTPStatusCode(), 413);
      QCOMPARE(socket.failure().phase, Phase::Request);
      if (!reset) break;
    }
  }

  void aContentIsNeverTakenForWholeWhenItIsNot_data() {
    QTest::addColumn<int>("announced");
    QTest::addColumn<int>("failsAt");
    QTest::newRow("it can't be read at all") << 5000 << 0;
    QTest::newRow("it can't be read to its end") << 5000 << 4;
    QTest::newRow("it is shorter than announced") << 5001 << -1;
    QTest::newRow("it is longer than announced") << 4999 << -1;
  }
  void aContentIsNeverTakenForWholeWhenItIsNot() {
    QFETCH(int, announced);
    QFETCH(int, failsAt);
    std::promise<qsizetype> arrived;
    ScriptedServer server([&](Peer& peer) {
      (void)peer.readTo("\r\n\r\n");
      arrived.set_value(peer.readCount(announced).size());
    });
    HTTPSocket socket;
    socket.SetRequestSource(std::make_unique<PiecewiseSource>(5, announced, failsAt), "text/plain");
    QCOMPARE(socket.Post(server.url(), Long), QByteArray());
    QCOMPARE(socket.failure().phase, Phase::Source);
    QVERIFY(arrived.get_future().get() < announced);
  }

  void aHeaderFieldCantSmuggleInAnother() {
    HTTPSocket socket;
    socket.requestHeaders.append("X-A", "b\r\nX-C: d");
    QCOMPARE(socket.Get(u"http://127.0.0.1:1/"_s, Long), QByteArray());
    QCOMPARE(socket.failure().phase, Phase::Request);
  }

  void aStopEndsEveryPhaseWithinASecond_data() {
    QTest::addColumn<QString>("phase");
    for (const char* phase : {"connect", "proxy", "TLS handshake", "request", "reply"}) {
      QTest::newRow(phase) << QString::fromLatin1(phase);
    }
  }
  void aStopEndsEveryPhaseWithinASecond() {
    QFETCH(QString, phase);
    const HangingPort hanging;
    ScriptedServer server([&](Peer& peer) {
      if (phase == "request"_L1) {
        (void)peer.readCount(1);
        (void)peer.wait(Long);
      }
      peer.holdUntilItLeaves();
    });
    const bool secure = phase == "proxy"_L1 || phase == "TLS handshake"_L1;
    const std::unique_ptr<HTTPSocket> socket(secure ? new HTTPSecureSocket : new HTTPSocket);
    if (phase == "proxy"_L1) {
      socket->HTTPProxyAddress = u"127.0.0.1"_s;
      socket->HTTPProxyPort = server.port();
    }
    if (phase == "request"_L1) socket->SetRequestContent(QByteArray(64 << 20, 'x'), "text/plain");
    const QString url = phase == "connect"_L1 ? u"http://127.0.0.1:%1/"_s.arg(hanging.port()) : server.url();
    auto page = std::async(std::launch::async, [&] { return socket->Post(url, Long); });
    if (phase != "connect"_L1) QTRY_VERIFY(!server.received().isEmpty());
    VantryUtil::stopServiceCalls();
    QVERIFY(page.wait_for(1s) == std::future_status::ready);
    QCOMPARE(socket->failure().phase, Phase::Stopped);
    QElapsedTimer timer;
    timer.start();
    (void)socket->Post(url, Long);
    QVERIFY(timer.elapsed() < 1000);
    QCOMPARE(socket->failure().phase, Phase::Stopped);
  }
};

VANTRY_TEST(tst_HTTPSocket);
#include "tst_HTTPSocket.moc"
