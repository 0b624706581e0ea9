#include <openssl/pem.h>
#include <openssl/ssl.h>

#include <QTemporaryFile>
#include <QTest>
#include <memory>

#include "ScriptedServer.h"
#include "practice/PracticeProxy.h"
#include "practice/PracticeService.h"
#include "practice/PracticeSink.h"
#include "service/HTTPSocket.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;
using Phase = HttpFailure::Phase;
using Flaw = Certificates::Flaw;
using Proxy = PracticeProxy::Behaviour;
Q_DECLARE_METATYPE(HttpFailure::Phase)
Q_DECLARE_METATYPE(Certificates::Flaw)
Q_DECLARE_METATYPE(Misbehaviour)
Q_DECLARE_METATYPE(PracticeProxy::Behaviour)

static constexpr int Long = 30'000, Short = 500;  // ms

/// A call that the practice service understands, though it refuses the login.
static const QByteArray Call =
    "<?xml version=\"1.0\"?><e:Envelope xmlns:e=\"http://schemas.xmlsoap.org/soap/envelope/\"><e:Header><Authenticate>"
    "<Username>nobody</Username><Password>secret-of-the-envelope</Password></Authenticate></e:Header><e:Body>"
    "<TrackList/></e:Body></e:Envelope>";

namespace {
/// The server's end of TLS on a connection, which it leaves without a goodbye.
class TlsServerSide {
 public:
  TlsServerSide(const Certificates::ServerIdentity& identity, int socket)
      : m_context(SSL_CTX_new(TLS_server_method()), SSL_CTX_free), m_ssl(nullptr, SSL_free) {
    BIO* bio = BIO_new_mem_buf(identity.certificatePem.constData(), -1);
    X509* certificate = PEM_read_bio_X509(bio, nullptr, nullptr, nullptr);
    BIO_free(bio);
    bio = BIO_new_mem_buf(identity.keyPem.constData(), -1);
    EVP_PKEY* key = PEM_read_bio_PrivateKey(bio, nullptr, nullptr, nullptr);
    BIO_free(bio);
    SSL_CTX_use_certificate(m_context.get(), certificate);
    SSL_CTX_use_PrivateKey(m_context.get(), key);
    X509_free(certificate);
    EVP_PKEY_free(key);
    m_ssl.reset(SSL_new(m_context.get()));
    SSL_set_fd(m_ssl.get(), socket);
    SSL_accept(m_ssl.get());
  }
  void answer(const QByteArray& reply) const {
    char request[4096];
    SSL_read(m_ssl.get(), request, sizeof request);
    SSL_write(m_ssl.get(), reply.constData(), static_cast<int>(reply.size()));
  }

 private:
  std::unique_ptr<SSL_CTX, void (*)(SSL_CTX*)> m_context;
  std::unique_ptr<SSL, void (*)(SSL*)> m_ssl;
};
}  // namespace

class tst_HTTPSecureSocket : public QObject {
  Q_OBJECT
 private:
  static QByteArray post(HTTPSecureSocket& socket, const QString& url, int timeoutMs,
                         const QByteArray& content = Call) {
    socket.SetRequestContent(content, "text/xml; charset=utf-8");
    return socket.Post(url, timeoutMs);
  }

  static Misbehaviour misbehaviour(Misbehaviour::Kind kind, qint64 bytes = 0) {
    Misbehaviour result;
    result.kind = kind;
    result.bytes = bytes;
    return result;
  }

 private slots:
  void cleanup() { VantryUtil::setExtraCaFile({}); }

  void certificates_data() {
    QTest::addColumn<Certificates::Flaw>("flaw");
    QTest::addColumn<QString>("host");
    QTest::addColumn<bool>("authorityKnown");
    QTest::addColumn<QString>("words");  // of the failure; empty: accepted
    QTest::newRow("a good one for the name") << Flaw::None << u"localhost"_s << true << QString();
    QTest::newRow("a good one for the IPv4 address") << Flaw::None << u"127.0.0.1"_s << true << QString();
    QTest::newRow("of an authority that isn't trusted")
        << Flaw::None << u"localhost"_s << false << u"unable to get local issuer certificate"_s;
    QTest::newRow("expired") << Flaw::Expired << u"localhost"_s << true << u"certificate has expired"_s;
    QTest::newRow("not yet valid") << Flaw::NotYetValid << u"localhost"_s << true << u"not yet valid"_s;
    QTest::newRow("for another name") << Flaw::WrongHost << u"localhost"_s << true << u"hostname mismatch"_s;
    QTest::newRow("for another address") << Flaw::WrongHost << u"127.0.0.1"_s << true << u"IP address mismatch"_s;
    QTest::newRow("signed by itself") << Flaw::SelfSigned << u"localhost"_s << true << u"self-signed"_s;
    QTest::newRow("of an unknown authority") << Flaw::UnknownAuthority << u"localhost"_s << true << u"certificate"_s;
  }
  void certificates() {
    QFETCH(Flaw, flaw);
    QFETCH(QString, host);
    QFETCH(bool, authorityKnown);
    QFETCH(QString, words);
    PracticeService::Options options;
    options.certificateFlaw = flaw;
    PracticeService service(options);
    QVERIFY2(service.start(), qPrintable(service.errorString()));
    VantryUtil::setExtraCaFile(authorityKnown ? service.caFile() : QString());
    HTTPSecureSocket socket;
    const QByteArray page = post(socket, u"https://%1:%2/api"_s.arg(host).arg(service.port()), Long);
    QVERIFY2(words.isEmpty() == page.contains("E009"), page + qPrintable(socket.failure().detail));
    QCOMPARE(socket.failure().phase, words.isEmpty() ? Phase::None : Phase::Tls);
    if (words.isEmpty()) return;
    QVERIFY2(socket.failure().detail.contains(words), qPrintable(socket.failure().detail));
    QVERIFY(socket.failure().detail.contains(host));
    QVERIFY(page.isEmpty() && service.requests().isEmpty());  // not a byte of the envelope
    QTRY_COMPARE(service.failedHandshakes(), 1);
    QVERIFY(service.bytesBeforeFailedHandshakes() < 1500);
  }

  void aFileOfAuthoritiesThatCantBeReadIsNamed() {
    VantryUtil::setExtraCaFile(u"/nowhere/ca.pem"_s);
    PracticeService service;
    QVERIFY(service.start());
    HTTPSecureSocket socket;
    QCOMPARE(post(socket, service.url(), Long), QByteArray());
    QCOMPARE(socket.failure().phase, Phase::Tls);
    QVERIFY(socket.failure().detail.contains("/nowhere/ca.pem"_L1));
  }

  void bothVersionsOfTls_data() {
    QTest::addColumn<int>("version");
    QTest::newRow("TLS 1.2") << 12;
    QTest::newRow("TLS 1.3") << 13;
  }
  void bothVersionsOfTls() {
    QFETCH(int, version);
    PracticeService::Options options;
    options.onlyTls = {version};
    PracticeService service(options);
    QVERIFY(service.start());
    VantryUtil::setExtraCaFile(service.caFile());
    for (int i = 0; i < 3; ++i) {
      HTTPSecureSocket socket;
      QVERIFY(post(socket, service.url(), Long).contains("E009"));
      QVERIFY2(!socket.failure().failed(), qPrintable(socket.failure().detail));
    }
    QCOMPARE(service.requests().value(0).body, Call);
  }

  void laterConnectionsTakeTheSessionUpAgain() {
    PracticeSink sink;
    QVERIFY2(sink.start(), qPrintable(sink.errorString()));
    VantryUtil::setExtraCaFile(sink.caFile());
    for (int i = 0; i < 3; ++i) {
      HTTPSecureSocket socket;
      QVERIFY(!post(socket, sink.url(), Long).isEmpty());
    }
    QCOMPARE(sink.resumedSessions(), 2);
  }

  void misbehaviours_data() {
    QTest::addColumn<Misbehaviour>("misbehaviour");
    QTest::addColumn<HttpFailure::Phase>("phase");
    using Kind = Misbehaviour::Kind;
    QTest::newRow("silence in the handshake") << misbehaviour(Kind::SilentHandshake) << Phase::TimedOut;
    QTest::newRow("an end within the handshake") << misbehaviour(Kind::CutHandshake) << Phase::Tls;
    QTest::newRow("no reply") << misbehaviour(Kind::NoReply) << Phase::TimedOut;
    QTest::newRow("a reply cut without goodbye") << misbehaviour(Kind::CutReply, 200) << Phase::Reply;
    QTest::newRow("a reply without length, ended well") << misbehaviour(Kind::NoLength) << Phase::None;
    QTest::newRow("a chunked reply") << misbehaviour(Kind::Chunked) << Phase::None;
  }
  void misbehaviours() {
    QFETCH(Misbehaviour, misbehaviour);
    QFETCH(Phase, phase);
    PracticeService service;
    QVERIFY(service.start());
    VantryUtil::setExtraCaFile(service.caFile());
    service.misbehave(misbehaviour);
    HTTPSecureSocket socket;
    const QByteArray page = post(socket, service.url(), phase == Phase::TimedOut ? Short : Long);
    QVERIFY2(socket.failure().phase == phase, qPrintable(socket.failure().detail));
    QCOMPARE(page.contains("E009"), phase == Phase::None);
  }

  void anEndWithoutGoodbyeIsNoEndOfAReply() {
    const Certificates::Authority authority(u"test"_s);
    const Certificates::ServerIdentity identity = authority.issue();
    QTemporaryFile ca;
    QVERIFY(ca.open() && ca.write(authority.certificatePem()) > 0 && ca.flush());
    VantryUtil::setExtraCaFile(ca.fileName());
    ScriptedServer server([&](ScriptedServer::Peer& peer) {
      const TlsServerSide tls(identity, peer.descriptor());
      tls.answer("HTTP/1.0 200 OK\r\n\r\n<return>all of it?");
    });
    HTTPSecureSocket socket;
    QCOMPARE(post(socket, u"https://localhost:%1/"_s.arg(server.port()), Long), QByteArray("<return>all of it?"));
    QCOMPARE(socket.failure().phase, Phase::Reply);
  }

  void anEarlyAnswerIsReadThoughTheServerThenDropsTheConnection() {
    PracticeService service;
    QVERIFY(service.start());
    VantryUtil::setExtraCaFile(service.caFile());
    service.misbehave({Misbehaviour::Kind::EarlyError, "E104", 100'000, 0, true, 0, {}});
    const QByteArray content = QByteArray(Call).replace("<TrackList/>", "<TrackList>" + QByteArray(8 << 20, ' '));
    for (int round = 0; round < 20; ++round) {
      HTTPSecureSocket socket;
      const QByteArray page = post(socket, service.url(), Long, content);
      QVERIFY2(page.contains("E104"), qPrintable(socket.failure().detail));
      QCOMPARE(socket.failure().phase, Phase::Request);
    }
  }

  void proxies_data() {
    QTest::addColumn<PracticeProxy::Behaviour>("behaviour");
    QTest::addColumn<HttpFailure::Phase>("phase");
    QTest::addColumn<QByteArray>("page");  // what is found in it
    using Kind = Proxy::Kind;
    const QByteArray head = "HTTP/1.0 407 No\r\n";
    QTest::newRow("a tunnel") << Proxy{} << Phase::None << QByteArray("E009");
    QTest::newRow("a tunnel whose answer is split at every byte")
        << Proxy{Kind::Tunnel, 0, {}, 1} << Phase::None << QByteArray("E009");
    QTest::newRow("a refusal is the page") << Proxy{Kind::Refuse, 407, {}, 0} << Phase::Proxy << QByteArray("<html");
    QTest::newRow("a refusal split at every byte")
        << Proxy{Kind::Refuse, 502, {}, 1} << Phase::Proxy << QByteArray("<html");
    QTest::newRow("a refusal of an announced length on an open connection")
        << Proxy{Kind::RawReply, 0, head + "Content-length: 3\r\n\r\nabc", 0} << Phase::Proxy << QByteArray("abc");
    QTest::newRow("a refusal that stalls")
        << Proxy{Kind::RawReply, 0, head + "\r\nabc", 0} << Phase::TimedOut << QByteArray("abc");
    QTest::newRow("HTML in the place of a tunnel") << Proxy{Kind::Html, 0, {}, 0} << Phase::Tls << QByteArray();
    QTest::newRow("bytes of its own behind the head")
        << Proxy{Kind::ExtraBytes, 0, "hello", 0} << Phase::Tls << QByteArray();
    QTest::newRow("silence") << Proxy{Kind::Stall, 0, {}, 0} << Phase::TimedOut << QByteArray();
    QTest::newRow("half a head") << Proxy{Kind::HalfReply, 0, {}, 0} << Phase::TimedOut << QByteArray();
    QTest::newRow("an end") << Proxy{Kind::Close, 0, {}, 0} << Phase::Proxy << QByteArray();
    QTest::newRow("a head of 100 KB") << Proxy{Kind::RawReply, 0, head + "A: " + QByteArray(100 << 10, 'a'), 0}
                                      << Phase::TooLarge << QByteArray();
  }
  void proxies() {
    QFETCH(PracticeProxy::Behaviour, behaviour);
    QFETCH(Phase, phase);
    QFETCH(QByteArray, page);
    PracticeService service;
    QVERIFY(service.start());
    VantryUtil::setExtraCaFile(service.caFile());
    PracticeProxy proxy;
    QVERIFY(proxy.start());
    proxy.setBehaviour(behaviour);
    HTTPSecureSocket socket;
    socket.HTTPProxyAddress = u" localhost "_s;
    socket.HTTPProxyPort = proxy.port();
    const QByteArray found = post(socket, service.url(), phase == Phase::TimedOut ? Short : Long);
    QVERIFY2(socket.failure().phase == phase, qPrintable(socket.failure().detail));
    QVERIFY2(page.isEmpty() ? found.isEmpty() : found.contains(page), found);
    const QByteArray server = "localhost:" + QByteArray::number(service.port());
    QCOMPARE(proxy.heads(), QList<QByteArray>{"CONNECT " + server + " HTTP/1.0\r\nHost: " + server + "\r\n\r\n"});
    if (phase != Phase::None && phase != Phase::Tls)
      QVERIFY2(socket.failure().detail.contains(u"the proxy localhost"_s), qPrintable(socket.failure().detail));
    QCOMPARE(service.requests().size(), phase == Phase::None ? 1 : 0);
  }
};

VANTRY_TEST(tst_HTTPSecureSocket);
#include "tst_HTTPSecureSocket.moc"
