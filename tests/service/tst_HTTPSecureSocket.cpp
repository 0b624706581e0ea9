#include "practice/PracticeProxy.h"
#include "practice/PracticeService.h"
#include "service/HTTPSocket.h"
#include "service/SpareConnection.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;
using Phase = HttpFailure::Phase;
using Flaw = Certificates::Flaw;
using Proxy = PracticeProxy::Behaviour;

static constexpr int Long = 30'000, Short = 500;  // ms

/// A call that the practice service understands, though it refuses the login.
static const QByteArray Call =
    "<?xml version=\"1.0\"?><e:Envelope xmlns:e=\"http://schemas.xmlsoap.org/soap/envelope/\"><e:Header><Authenticate>"
    "<Username>nobody</Username><Password>secret-of-the-envelope</Password></Authenticate></e:Header><e:Body>"
    "<TrackList/></e:Body></e:Envelope>";

class tst_HTTPSecureSocket : public QObject {
  Q_OBJECT
  static QByteArray post(HTTPSecureSocket& socket, const QString& url, int timeoutMs = Long,
                         const QByteArray& content = Call) {
    socket.SetRequestContent(content, "text/xml; charset=utf-8");
    return socket.Post(url, timeoutMs);
  }
  static void start(PracticeService& service) {
    QVERIFY2(service.start(), qPrintable(service.errorString()));
    VantryUtil::setExtraCaFile(service.caFile());
  }

 private slots:
  void cleanup() { VantryUtil::setExtraCaFile({}); }

  void certificates() {
    const QString name = u"localhost"_s, address = u"127.0.0.1"_s;
    const std::tuple<Flaw, QString, QString, QString> rows[] = {
        // The flaw, the host that is asked for, another file of authorities, the words of the failure.
        {Flaw::None, name, {}, {}},     // a service of TLS 1.2 alone
        {Flaw::None, address, {}, {}},  // of TLS 1.3 alone
        {Flaw::None, name, u"none"_s, u"unable to get local issuer certificate"_s},
        {Flaw::None, name, u"/nowhere/ca.pem"_s, u"/nowhere/ca.pem"_s},
        {Flaw::Expired, name, {}, u"certificate has expired"_s},
        {Flaw::NotYetValid, name, {}, u"not yet valid"_s},
        {Flaw::WrongHost, name, {}, u"hostname mismatch"_s},
        {Flaw::WrongHost, address, {}, u"IP address mismatch"_s},
        {Flaw::SelfSigned, name, {}, u"self-signed"_s},
        {Flaw::UnknownAuthority, name, {}, u"certificate"_s}};
    for (const auto& [flaw, host, authorities, words] : rows) {
      PracticeService::Options options;
      options.certificateFlaw = flaw;
      if (words.isEmpty()) options.onlyTls = {host == name ? 12 : 13};
      PracticeService service(options);
      start(service);
      if (!authorities.isEmpty()) VantryUtil::setExtraCaFile(authorities == u"none"_s ? QString() : authorities);
      HTTPSecureSocket socket;
      const QByteArray page = post(socket, u"https://%1:%2/api"_s.arg(host).arg(service.port()));
      const HttpFailure& failure = socket.failure();
      QVERIFY2(words.isEmpty() == page.contains("E009"), page + qPrintable(failure.detail));
      if (words.isEmpty()) continue;
      QVERIFY2(failure.phase == Phase::Tls && failure.detail.contains(words), qPrintable(failure.detail));
      QVERIFY(page.isEmpty() && service.requests().isEmpty());  // not a byte of the envelope
      if (authorities == u"/nowhere/ca.pem"_s) continue;
      QTRY_COMPARE_WITH_TIMEOUT(service.failedHandshakes(), 1, Long);
      QVERIFY(service.bytesBeforeFailedHandshakes() < 1500);
    }
  }

  void aConnectionMadeAheadServesTheNextExchangeUnlessTheServerEndedIt() {
    for (const bool restarted : {false, true}) {
      PracticeService service;
      start(service);
      SpareConnection spare;
      for (const bool anotherFollows : {true, false}) {
        HTTPSecureSocket socket;
        socket.spare = &spare;
        socket.anotherFollows = anotherFollows;
        QVERIFY2(post(socket, service.url()).contains("E009"), qPrintable(socket.failure().detail));
        QCOMPARE(spare.get() != nullptr, anotherFollows);
        const quint16 port = service.port();
        if (!restarted || !anotherFollows) continue;
        service.stop();
        QVERIFY(service.start(port));
      }
      QVERIFY(service.requests().size() == 2 && service.connections() <= (restarted ? 3 : 2));
    }
  }

  void everyMisbehaviourOfTheService() {
    using Kind = Misbehaviour::Kind;
    const std::tuple<Misbehaviour, Phase, QByteArray> rows[] = {
        {{Kind::Redirect, "https://localhost:1/"}, Phase::None, "<html>"},
        {{Kind::EmptyReply}, Phase::None, {}},
        {{Kind::LongReply, {}, 1 << 20}, Phase::None, QByteArray(1 << 20, 'a')},
        {{Kind::RawReply, "HTTP/0.9 whatever"}, Phase::Reply, {}},
        // Without a length and without a goodbye nobody knows whether that was all.
        {{Kind::RawReply, "HTTP/1.0 200 OK\r\n\r\n<return>all?", 0, 0, true}, Phase::Reply, "<return>all?"},
        {{Kind::NoReply}, Phase::TimedOut, {}},
        {{Kind::StallReply, {}, 20}, Phase::TimedOut, {}},
        {{Kind::StallReply, {}, 200}, Phase::TimedOut, "<?xml"},
        {{Kind::CutReply, {}, 200}, Phase::Reply, "<?xml"},
        {{Kind::TrickleReply, {}, 100, 20}, Phase::None, "E009"},
        {{Kind::Chunked}, Phase::None, "E009"},
        {{Kind::NoLength}, Phase::None, "E009"},
        {{Kind::StopReading, {}, 2000}, Phase::TimedOut, {}},
        {{Kind::CutRequest, {}, 2000}, Phase::Request, {}},
        {{Kind::EarlyError, "E104", 100'000}, Phase::Request, "E104"},
        {{Kind::EarlyError, "E104", 100'000, 0, true}, Phase::Request, "E104"},
        {{Kind::SilentHandshake}, Phase::TimedOut, {}},
        {{Kind::CutHandshake}, Phase::Tls, {}}};
    PracticeService service;
    start(service);
    for (int row = 0; row < int(std::size(rows)) * 10; ++row) {  // often, since an early answer may lose a race
      const auto& [misbehaviour, phase, part] = rows[row % std::size(rows)];
      if (row >= int(std::size(rows)) && misbehaviour.kind != Kind::EarlyError) continue;
      service.misbehave(misbehaviour);
      // What stops within a request needs one that no buffer holds.
      const bool large = misbehaviour.kind >= Kind::StopReading && misbehaviour.kind <= Kind::EarlyError;
      const QByteArray content = QByteArray(Call).replace("<TrackList/>", "<TrackList>" + QByteArray(8 << 20, ' '));
      HTTPSecureSocket socket;
      const QByteArray page =
          post(socket, service.url(), phase == Phase::TimedOut ? Short : Long, large ? content : Call);
      const QByteArray words = "kind " + QByteArray::number(int(misbehaviour.kind)) + ": " + page.left(200);
      QVERIFY2(socket.failure().phase == phase, words + qPrintable(socket.failure().detail));
      QVERIFY2(part.isEmpty() ? page.isEmpty() : page.contains(part), words);
    }
  }

  void proxies() {
    using Kind = Proxy::Kind;
    const QByteArray head = "HTTP/1.0 407 No\r\n";
    const std::tuple<Proxy, Phase, QByteArray> rows[] = {
        {{}, Phase::None, "E009"},
        {{Kind::Tunnel, 0, {}, 1}, Phase::None, "E009"},  // its head comes byte by byte
        {{Kind::Refuse}, Phase::Proxy, "<html"},
        {{Kind::Refuse, 502, {}, 1}, Phase::Proxy, "<html"},
        {{Kind::RawReply, 0, head + "Content-length: 3\r\n\r\nabc"}, Phase::Proxy, "abc"},
        {{Kind::RawReply, 0, head + "\r\nabc"}, Phase::TimedOut, "abc"},
        {{Kind::Html}, Phase::Tls, {}},
        {{Kind::ExtraBytes, 0, "hello"}, Phase::Tls, {}},
        {{Kind::Stall}, Phase::TimedOut, {}},
        {{Kind::HalfReply}, Phase::TimedOut, {}},
        {{Kind::Close}, Phase::Proxy, {}},
        {{Kind::RawReply, 0, head + "A: " + QByteArray(100 << 10, 'a')}, Phase::TooLarge, {}}};
    for (const auto& [behaviour, phase, part] : rows) {
      PracticeService service;
      start(service);
      PracticeProxy proxy;
      QVERIFY(proxy.start());
      proxy.setBehaviour(behaviour);
      HTTPSecureSocket socket;
      socket.HTTPProxyAddress = u" localhost "_s;
      socket.HTTPProxyPort = proxy.port();
      const QByteArray page = post(socket, service.url(), phase == Phase::TimedOut ? Short : Long);
      QVERIFY2(socket.failure().phase == phase, qPrintable(socket.failure().detail));
      QVERIFY2(part.isEmpty() ? page.isEmpty() : page.contains(part), page);
      const QByteArray server = "localhost:" + QByteArray::number(service.port());
      QCOMPARE(proxy.heads(), QList<QByteArray>{"CONNECT " + server + " HTTP/1.0\r\nHost: " + server + "\r\n\r\n"});
      if (phase != Phase::None && phase != Phase::Tls)
        QVERIFY(socket.failure().detail.contains(u"the proxy localhost"_s));
      QCOMPARE(service.requests().size(), phase == Phase::None ? 1 : 0);
    }
  }
};

VANTRY_TEST(tst_HTTPSecureSocket);
#include "tst_HTTPSecureSocket.moc"
