#include <QSemaphore>
#include <QTcpServer>
#include <QTcpSocket>
#include <future>

#include "practice/PracticeProxy.h"
#include "service/HTTPSocket.h"
#include "service/SoapReply.h"
#include "service/VantryUtil.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;
using Kind = PracticeProxy::Behaviour::Kind;
using Phase = HttpFailure::Phase;

static constexpr int Long = 30'000, Short = 400;  // ms; Short is what the rows about silence wait for

namespace {
/// Pieces of 1000 bytes, each after a pause, as of a file on a slow share.
class PiecewiseSource : public RequestSource {
 public:
  explicit PiecewiseSource(int pieces, int pauseMs = 0) : m_pieces(pieces), m_pauseMs(pauseMs) {}
  [[nodiscard]] qint64 size() const override { return 1000LL * m_pieces; }
  [[nodiscard]] bool read(QByteArray& buffer) override {
    (void)QSemaphore().tryAcquire(1, m_pauseMs);
    buffer.append(QByteArray(1000, 'x'));
    return true;
  }

 private:
  const int m_pieces, m_pauseMs;
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

/// A server in the clear that answers each head with these bytes and then stays, or behaves otherwise.
class Answers : public PracticeProxy {
 public:
  explicit Answers(const QByteArray& reply, int pieceBytes = 0) : Answers({Kind::RawReply, 0, reply, pieceBytes}) {}
  explicit Answers(const Behaviour& behaviour) {
    if (!start()) qFatal("no port");
    setBehaviour(behaviour);
  }
  [[nodiscard]] QString host() const { return u"127.0.0.1:%1"_s.arg(port()); }
};
}  // namespace

class tst_HTTPSocket : public QObject {
  Q_OBJECT
 private slots:
  void cleanup() { VantryUtil::allowServiceCalls(); }

  void requestBytes() {
    const QByteArray common = " HTTP/1.0\r\nAccept: */*\r\nAccept-Language: en\r\nHost: HOST\r\n";
    const QByteArray xml = "text/xml; charset=utf-8", typed = common + "Content-type: " + xml + "\r\n";
    const QByteArray far = "POST http://far.example:81/x" + QByteArray(common).replace("HOST", "far.example:81");
    // Address, type and content (neither: GET), and what arrives before the content, with HOST for the server part.
    const std::tuple<QString, QByteArray, QByteArray, QByteArray> rows[] = {
        {u"HOST"_s, xml, "a", "POST /" + typed + "Content-length: 1\r\n\r\n"},
        {u"x://HOST/"_s, xml, "", "POST /" + typed + "\r\n"},
        {u"x://HOST/?q"_s, " ", "abc", "POST /?q" + common + "Content-length: 3\r\n\r\n"},
        {u"http://HOST/uploader.php"_s, "", "", "GET /uploader.php" + common + "\r\n"},
        {u"http://far.example:81/x"_s, " ", "a", far + "Content-length: 1\r\n\r\n"}  // through a proxy
    };
    const Answers server("HTTP/1.0 200 OK\r\nX-A: b\r\nContent-length: 2\r\n\r\nOK");
    for (const auto& [address, type, content, expected] : rows) {
      const QString url = QString(address).replace(u"HOST"_s, server.host());
      HTTPSocket socket;
      if (!address.contains(u"HOST"_s)) socket.HTTPProxyAddress = u" 127.0.0.1\t"_s;
      socket.HTTPProxyPort = server.port();
      socket.SetRequestContent(content, type);
      QCOMPARE(type.isEmpty() ? socket.Get(url, Long) : socket.Post(url, Long), QByteArray("OK"));
      QCOMPARE(server.heads().last(), QByteArray(expected).replace("HOST", server.host().toLatin1()));
      QVERIFY(socket.HTTPStatusCode() == 200 && socket.PageHeaders().value("x-a") == "b" && !socket.failure().failed());
    }
    HTTPSocket smuggling;
    smuggling.requestHeaders.append("X-A", "b\r\nX-C: d");
    QCOMPARE(smuggling.Get(server.host(), Long), QByteArray());
    QCOMPARE(smuggling.failure().phase, Phase::Request);
  }

  void repliesThatAreNoneAndConnectionsThatCantBe() {
    const QByteArray ok = "HTTP/1.0 200 OK\r\n";
    const Answers closes({Kind::Close}), badLength(ok + "Content-length: -1\r\n\r\nabc");
    const Answers largeHead(ok + "X: " + QByteArray(100 << 10, 'x') + "\r\n\r\nabc");
    const Answers largeBody(ok + "\r\n" + QByteArray(1001, 'x'));
    const Answers trickle(ok + "X: " + QByteArray(50'000, 'x'), 1);  // of a head, which keeps nothing alive
    const HangingPort hanging;
    for (const auto& [url, phase] : {std::pair(closes.host(), Phase::Reply),
                                     {badLength.host(), Phase::Reply},
                                     {largeHead.host(), Phase::TooLarge},
                                     {largeBody.host(), Phase::TooLarge},
                                     {trickle.host(), Phase::TimedOut},
                                     {u"127.0.0.1:1"_s, Phase::Connect},
                                     {u"127.0.0.1:%1"_s.arg(hanging.serverPort()), Phase::TimedOut},
                                     {u"a..b"_s, Phase::Name}}) {
      HTTPSocket socket;
      socket.limits.maxReplyBytes = 1000;
      QCOMPARE(socket.Get(url, phase == Phase::TimedOut ? Short : Long), QByteArray());
      QCOMPARE(socket.failure().phase, phase);
      QVERIFY2(socket.failure().detail.contains(url), qPrintable(socket.failure().detail));
    }
  }

  void sendingIsNoSignOfLifeAndAResetNoEndOfAReply() {
    for (const bool resets : {false, true}) {
      QTcpServer server;
      QVERIFY(server.listen(QHostAddress::LocalHost));
      connect(&server, &QTcpServer::newConnection, &server, [&] {
        QTcpSocket* const peer = server.nextPendingConnection();
        if (!resets) return void(connect(peer, &QTcpSocket::readyRead, peer, &QTcpSocket::readAll));
        peer->setReadBufferSize(1);  // what is left unread makes the end a reset
        connect(peer, &QTcpSocket::readyRead, peer, [peer] {
          peer->write("HTTP/1.0 200 OK\r\n\r\nabc");
          peer->flush();
          peer->abort();
        });
      });
      HTTPSocket socket;
      socket.SetRequestSource(std::make_unique<PiecewiseSource>(resets ? 1 : 1'000'000'000), "text/plain");
      const QString url = u"127.0.0.1:%1"_s.arg(server.serverPort());
      auto page = std::async(std::launch::async, [&] { return socket.Post(url, resets ? Long : Short); });
      QTRY_VERIFY(page.wait_for(0s) == std::future_status::ready);
      QCOMPARE(socket.failure().phase, resets ? Phase::Reply : Phase::TimedOut);
      QVERIFY(resets || socket.failure().detail.contains("whole request"_L1));
    }
  }

  void aSuccessIsBelievedOnlyOfAServiceThatGotTheRequest() {
    const QByteArray page = "\r\n\r\n<a><return>OK</return></a>";  // and no word on where it ends
    const Answers service("HTTP/1.0 200 OK" + page), proxy("HTTP/1.0 407 No" + page);
    const struct {
      int pieces, pauseMs;  // of the file, whose time is not that of the service
      bool throughProxy, believed;
    } rows[] = {{1, 0, false, true}, {1, 2 * Short, false, true}, {1'000'000, 0, false, false}, {1, 0, true, false}};
    for (const auto& row : rows) {
      HTTPSecureSocket secure;
      secure.HTTPProxyAddress = u"127.0.0.1"_s;
      secure.HTTPProxyPort = proxy.port();
      HTTPSocket open;
      HTTPSocket& socket = row.throughProxy ? secure : open;
      socket.SetRequestSource(std::make_unique<PiecewiseSource>(row.pieces, row.pauseMs), "text/xml");
      const QByteArray reply = socket.Post(row.throughProxy ? u"localhost"_s : service.host(), Short);
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
    QTcpServer server;
    QVERIFY(server.listen(QHostAddress::LocalHost));
    const bool secure = phase == u"proxy"_s || phase == u"TLS"_s;
    const std::unique_ptr<HTTPSocket> socket(secure ? new HTTPSecureSocket : new HTTPSocket);
    if (phase == u"proxy"_s) socket->HTTPProxyAddress = u"127.0.0.1"_s;
    socket->HTTPProxyPort = server.serverPort();
    if (phase == u"request"_s) socket->SetRequestContent(QByteArray(64 << 20, 'x'), "text/plain");
    const quint16 port = phase == u"connect"_s ? hanging.serverPort() : server.serverPort();
    const auto call = [&] { return socket->Post(u"127.0.0.1:%1"_s.arg(port), Long); };
    auto page = std::async(std::launch::async, call);
    QTcpSocket* peer = nullptr;
    const auto heard = [&] {
      if (!peer && (peer = server.nextPendingConnection())) peer->setReadBufferSize(1);
      return peer && peer->bytesAvailable() > 0;
    };
    if (phase != u"connect"_s) QTRY_VERIFY_WITH_TIMEOUT(heard(), Long);
    VantryUtil::stopServiceCalls();
    for (const char* const which : {"the call under way", "the next"}) {
      QVERIFY2(page.wait_for(10s) == std::future_status::ready, which);
      QCOMPARE(socket->failure().phase, Phase::Stopped);
      page = std::async(std::launch::async, call);
    }
  }
};

VANTRY_TEST(tst_HTTPSocket);
#include "tst_HTTPSocket.moc"
