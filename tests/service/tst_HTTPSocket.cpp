#include <QElapsedTimer>
#include <QSemaphore>
#include <QTcpServer>
#include <QTcpSocket>
#include <future>

#include "ScriptedServer.h"
#include "service/HTTPSocket.h"
#include "service/SoapReply.h"
#include "service/VantryUtil.h"
#include "storage/Preferences.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;
using Peer = ScriptedServer::Peer;
using Phase = HttpFailure::Phase;

static constexpr int Long = 30'000, Short = 400;  // ms; Short is what the rows about silence wait for

namespace {
/// Gives `pieces` pieces and says that it will give `announced` bytes.
class PiecewiseSource : public RequestSource {
 public:
  PiecewiseSource(int pieces, qint64 announced) : m_left(pieces), m_size(announced) {}
  [[nodiscard]] qint64 size() const override { return m_size; }
  [[nodiscard]] bool read(QByteArray& buffer) override {
    if (m_left-- > 0) buffer.append(QByteArray(1000, 'x'));
    return true;
  }

 private:
  int m_left;
  qint64 m_size;
};

/// A file on a slow share.
class SlowSource : public PiecewiseSource {
 public:
  using PiecewiseSource::PiecewiseSource;
  [[nodiscard]] bool read(QByteArray& buffer) override {
    (void)QSemaphore().tryAcquire(1, 2 * Short);
    return PiecewiseSource::read(buffer);
  }
};

/// Accepts nobody and has a full queue, so that connecting to it hangs.
class HangingPort : public QTcpServer {
 public:
  HangingPort() {
    setListenBacklogSize(0);
    if (!listen(QHostAddress::LocalHost)) qFatal("no port");
    pauseAccepting();
    for (QTcpSocket& socket : m_waiting) socket.connectToHost(serverAddress(), serverPort());
  }

 private:
  QTcpSocket m_waiting[4];
};
}  // namespace

class tst_HTTPSocket : public QObject {
  Q_OBJECT
 private slots:
  void cleanup() {
    VantryUtil::setProxy({});
    VantryUtil::allowServiceCalls();
  }

  void requestBytes() {
    const QByteArray common = " HTTP/1.0\r\nAccept: */*\r\nAccept-Language: en\r\nHost: HOST\r\n";
    const QByteArray xml = "text/xml; charset=utf-8", typed = common + "Content-type: " + xml + "\r\n";
    const QByteArray far = "POST http://far.example:81/x" + QByteArray(common).replace("HOST", "far.example:81");
    // Address, type and content (neither: GET), and what arrives, with HOST for the server part.
    const std::tuple<QString, QByteArray, QByteArray, QByteArray> rows[] = {
        {u"HOST"_s, xml, "a", "POST /" + typed + "Content-length: 1\r\n\r\na"},
        {u"x://HOST/"_s, xml, "", "POST /" + typed + "\r\n"},
        {u"x://HOST/?q"_s, " ", "abc", "POST /?q" + common + "Content-length: 3\r\n\r\nabc"},
        {u"http://HOST/uploader.php"_s, "", "", "GET /uploader.php" + common + "\r\n"},
        {u"http://far.example:81/x"_s, " ", "a", far + "Content-length: 1\r\n\r\na"}  // through a proxy
    };
    for (const auto& [address, type, content, expected] : rows) {
      ScriptedServer server([&, size = content.size()](const Peer& peer) {
        peer.readHead();
        (void)peer.read(size);
        peer.write("HTTP/1.0 200 OK\r\nX-A: b\r\nContent-length: 2\r\n\r\nOK");
      });
      const QString host = u"127.0.0.1:%1"_s.arg(server.port()), url = QString(address).replace(u"HOST"_s, host);
      HTTPSocket socket;
      if (!address.contains(u"HOST"_s)) socket.HTTPProxyAddress = u" 127.0.0.1\t"_s;
      socket.HTTPProxyPort = server.port();
      socket.SetRequestContent(content, type);
      QCOMPARE(type.isEmpty() ? socket.Get(url, Long) : socket.Post(url, Long), QByteArray("OK"));
      QCOMPARE(server.received(), QByteArray(expected).replace("HOST", host.toLatin1()));
      QVERIFY(socket.HTTPStatusCode() == 200 && socket.PageHeaders().value("x-a") == "b" && !socket.failure().failed());
    }
    HTTPSocket smuggling;
    smuggling.requestHeaders.append("X-A", "b\r\nX-C: d");
    QCOMPARE(smuggling.Get(u"http://127.0.0.1:1/"_s, Long), QByteArray());
    QCOMPARE(smuggling.failure().phase, Phase::Request);
  }

  void theProxyInForceNeedsAnAddressAndAPort() {
    for (const auto& [address, port] :
         {std::pair(u" proxy.example "_s, 3128), {u"proxy.example"_s, 0}, {u" \t"_s, 9}}) {
      VantryUtil::setProxy({address, port});
      HTTPSecureSocket socket;
      VantryUtil::ConfigureProxy(socket);
      QCOMPARE(socket.HTTPProxyAddress, port == 3128 ? address : QString());
      QCOMPARE(socket.HTTPProxyPort, port == 3128 ? port : 0);
    }
  }

  void repliesThatAreNoneAndConnectionsThatCantBe() {
    const QByteArray ok = "HTTP/1.0 200 OK\r\n";
    const auto answer = ScriptedServer::answer;
    const std::tuple<ScriptedServer::Script, QByteArray, Phase> rows[] = {
        {answer(""), "", Phase::Reply},
        {answer(ok + "Content-length: -1\r\n\r\nabc"), "", Phase::Reply},
        {answer(ok + "X: " + QByteArray(100 << 10, 'x') + "\r\n\r\nabc"), "", Phase::TooLarge},
        {answer(ok + "\r\n" + QByteArray(1001, 'x')), "", Phase::TooLarge},
        {[ok](const Peer& peer) {
           peer.readHead();
           peer.write(ok + "\r\nabc");
           (void)peer.wait(Short / 4);  // or the reset might overtake the bytes
           const linger now{1, 0};
           setsockopt(peer.socket, SOL_SOCKET, SO_LINGER, &now, sizeof now);
         },
         "abc", Phase::Reply},
        {[ok](const Peer& peer) {  // a trickle of the head keeps nothing alive
           for (int i = 0; i < 12 && peer.wait(Short / 4); ++i) peer.write(ok.mid(i, 1));
         },
         "", Phase::TimedOut}};
    for (const auto& [script, page, phase] : rows) {
      ScriptedServer server(script);
      HTTPSocket socket;
      socket.limits.maxReplyBytes = 1000;
      QCOMPARE(socket.Get(server.url(), phase == Phase::TimedOut ? Short : Long), page);
      QCOMPARE(socket.failure().phase, phase);
      QVERIFY(socket.failure().detail.contains(server.url().section(u'/', 2, 2)));
    }
    const HangingPort hanging;
    for (const auto& [url, phase] : {std::pair(u"127.0.0.1:1"_s, Phase::Connect),
                                     {u"127.0.0.1:%1"_s.arg(hanging.serverPort()), Phase::TimedOut},
                                     {u"http://a..b/"_s, Phase::Name}}) {
      HTTPSocket socket;
      QCOMPARE(socket.Get(url, phase == Phase::TimedOut ? Short : Long), QByteArray());
      QCOMPARE(socket.failure().phase, phase);
      QVERIFY(!socket.failure().detail.isEmpty());
    }
  }

  void sendingIsNoSignOfLife() {
    for (const int pause : {0, Short / 8}) {
      ScriptedServer server([&](const Peer& peer) {
        while (peer.wait(pause) && !peer.read(100'000).isEmpty()) continue;
      });
      HTTPSocket socket;
      constexpr int Endless = 1'000'000'000;
      socket.SetRequestSource(std::make_unique<PiecewiseSource>(Endless, 1000LL * Endless), "text/plain");
      QElapsedTimer timer;
      timer.start();
      (void)socket.Post(server.url(), Short);
      QVERIFY(socket.failure().phase == Phase::TimedOut && socket.failure().detail.contains("whole request"_L1));
      QVERIFY(timer.elapsed() < 4 * Short);
    }
  }

  void theTimeOfTheFileIsNotThatOfTheService() {
    const ScriptedServer server([](const Peer& peer) {
      peer.readHead();
      (void)peer.read(1000);
      peer.write("HTTP/1.0 200 OK\r\n\r\nyes");
    });
    HTTPSocket socket;
    socket.SetRequestSource(std::make_unique<SlowSource>(1, 1000), "text/plain");
    QCOMPARE(socket.Post(server.url(), Short), "yes");
    QVERIFY(!socket.failure().failed());
  }

  void aSuccessIsBelievedOnlyOfAServiceThatGotTheRequest() {
    const QByteArray page = "\r\n\r\n<a><return>OK</return></a>";  // and no word on where it ends
    const auto stays = [&](const QByteArray& status) {
      return [reply = "HTTP/1.0 " + status + page](const Peer& peer) {
        peer.readHead();
        peer.write(reply);
        (void)peer.wait(3'600'000);
      };
    };
    const struct {
      QByteArray status;
      int pieces;
      bool throughProxy, believed;
    } rows[] = {{"200 OK", 1, false, true}, {"200 OK", 1'000'000, false, false}, {"407 No", 1, true, false}};
    for (const auto& row : rows) {
      ScriptedServer server(stays(row.status));
      HTTPSecureSocket secure;
      secure.HTTPProxyAddress = u"127.0.0.1"_s;
      secure.HTTPProxyPort = server.port();
      HTTPSocket open;
      HTTPSocket& socket = row.throughProxy ? secure : open;
      socket.SetRequestSource(std::make_unique<PiecewiseSource>(row.pieces, 1000LL * row.pieces), "text/xml");
      const QByteArray reply = socket.Post(row.throughProxy ? u"https://localhost/"_s : server.url(), Short);
      QVERIFY(reply.contains("OK") && socket.failure().phase == Phase::TimedOut);
      QString err;
      QCOMPARE(readSoapReply(reply, socket.failure(), u"M"_s, {std::nullopt, {}}, err).has_value(), row.believed);
    }
  }

  void aStopEndsEveryPhaseWithinASecond_data() {
    addColumns<QString>("phase");
    for (const char* phase : {"connect", "proxy", "TLS", "request", "reply"})
      QTest::newRow(phase) << QString::fromLatin1(phase);
  }
  void aStopEndsEveryPhaseWithinASecond() {
    QFETCH(QString, phase);
    const HangingPort hanging;
    ScriptedServer server([&](const Peer& peer) {
      (void)peer.read(1);
      (void)peer.wait(Long);
    });
    const bool secure = phase == u"proxy"_s || phase == u"TLS"_s;
    const std::unique_ptr<HTTPSocket> socket(secure ? new HTTPSecureSocket : new HTTPSocket);
    if (phase == u"proxy"_s) socket->HTTPProxyAddress = u"127.0.0.1"_s;
    socket->HTTPProxyPort = server.port();
    if (phase == u"request"_s) socket->SetRequestContent(QByteArray(64 << 20, 'x'), "text/plain");
    const QString url = phase == u"connect"_s ? u"http://127.0.0.1:%1/"_s.arg(hanging.serverPort()) : server.url();
    auto page = std::async(std::launch::async, [&] { return socket->Post(url, Long); });
    if (phase != u"connect"_s) QTRY_VERIFY_WITH_TIMEOUT(!server.received().isEmpty(), Long);
    VantryUtil::stopServiceCalls();
    for (int call = 0; call < 2; ++call) {  // the one under way, and the next
      QVERIFY(page.wait_for(10s) == std::future_status::ready);
      QCOMPARE(socket->failure().phase, Phase::Stopped);
      page = std::async(std::launch::async, [&] { return socket->Post(url, Long); });
    }
  }
};

VANTRY_TEST(tst_HTTPSocket);
#include "tst_HTTPSocket.moc"
