#include <QElapsedTimer>
#include <QTest>

#include "PracticeClient.h"
#include "practice/PracticeService.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;
using Kind = Misbehaviour::Kind;

class tst_Misbehaviour : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void cleanup();
  void saysSomethingElse_data();
  void saysSomethingElse();
  void givesTheRawReplyAndNothingElse();
  void deliversTheProperReplyOtherwise_data();
  void deliversTheProperReplyOtherwise();
  void staysSilent_data();
  void staysSilent();
  void cutsTheReplyWithoutGoodbye();
  void tricklesTheReply();
  void readsNoFurther();
  void cutsTheRequest();
  void answersBeforeTheBodyIsRead_data();
  void answersBeforeTheBodyIsRead();
  void neverSpeaksTls_data();
  void neverSpeaksTls();
  void befallsOnlyWhatItIsMeantFor();

 private:
  QByteArray send(const Misbehaviour& misbehaviour);
  std::unique_ptr<PracticeService> service;
};

static const QByteArray File =
    PracticeClient::file("SendFile", "a.txt", "CX102-Uncoated120", QByteArray(30000, 'x').toBase64());

void tst_Misbehaviour::init() {
  service = std::make_unique<PracticeService>();
  QVERIFY2(service->start(), qPrintable(service->errorString()));
}

void tst_Misbehaviour::cleanup() { service.reset(); }

QByteArray tst_Misbehaviour::send(const Misbehaviour& misbehaviour) {
  service->misbehave(misbehaviour);
  return exchange(*service, File);
}

void tst_Misbehaviour::saysSomethingElse_data() {
  QTest::addColumn<Misbehaviour>("misbehaviour");
  QTest::addColumn<QByteArray>("startsWith");
  QTest::addColumn<QByteArray>("contains");
  const auto row = [](const char* label, const Misbehaviour& misbehaviour, const QByteArray& start,
                      const QByteArray& contains) { QTest::newRow(label) << misbehaviour << start << contains; };
  row("an error code", {.kind = Kind::ErrorCode, .text = "E004"}, "HTTP/1.1 200", "<return>E004</return>");
  row("a page of HTML", {.kind = Kind::HtmlError}, "HTTP/1.1 500", "<br></body>");
  row("a redirect", {.kind = Kind::Redirect, .text = "https://localhost:1/"},
      "HTTP/1.1 302 Found\r\nLocation: https://localhost:1/\r\n", "<html>");
  row("an empty reply", {.kind = Kind::EmptyReply}, "HTTP/1.1 200", "Content-Length: 0\r\n\r\n");
  row("an empty return", {.kind = Kind::EmptyReturn}, "HTTP/1.1 200", "<return></return>");
  row("no return", {.kind = Kind::NoReturn}, "HTTP/1.1 200", "<result>done</result>");
  row("several returns", {.kind = Kind::SeveralReturns, .text = "one & two"}, "HTTP/1.1 200",
      "<return/><return>one &amp; two</return><return>");
  row("JSON that isn't", {.kind = Kind::NotJson}, "HTTP/1.1 200",
      "<return>{&quot;status&quot;:&quot;ok&quot;,,}</return>");
  row("deep JSON", {.kind = Kind::DeepJson, .bytes = 65}, "HTTP/1.1 200",
      "{&quot;a&quot;:" + QByteArray(65, '[') + ']');
  row("XML that isn't", {.kind = Kind::NotXml}, "HTTP/1.1 200", "</b></return>");
  row("nested entities", {.kind = Kind::NestedEntities}, "HTTP/1.1 200",
      "<!ENTITY e9 \"&e8;&e8;&e8;&e8;&e8;&e8;&e8;&e8;&e8;&e8;\">");
  row("a long reply", {.kind = Kind::LongReply, .bytes = 1 << 20}, "HTTP/1.1 200", QByteArray(1 << 20, 'a'));
}

void tst_Misbehaviour::saysSomethingElse() {
  QFETCH(Misbehaviour, misbehaviour);
  QFETCH(QByteArray, startsWith);
  QFETCH(QByteArray, contains);
  const QByteArray reply = send(misbehaviour);
  QVERIFY2(reply.startsWith(startsWith), reply.left(200));
  QVERIFY2(reply.contains(contains), reply.left(2000));
  QCOMPARE(service->receipts().size(), 0);
  QVERIFY(service->requests().first().complete);
}

void tst_Misbehaviour::givesTheRawReplyAndNothingElse() {
  const QByteArray raw("HTTP/0.9\0whatever\n\n", 19);
  QCOMPARE(send({.kind = Kind::RawReply, .text = raw}), raw);
}

void tst_Misbehaviour::deliversTheProperReplyOtherwise_data() {
  QTest::addColumn<Kind>("kind");
  QTest::addColumn<QByteArray>("headEnd");
  QTest::newRow("the head ends in LF LF") << Kind::HeadEndsLf << QByteArray("\n\n<?xml");
  QTest::newRow("the head ends in CR CR") << Kind::HeadEndsCr << QByteArray("\r\r<?xml");
  QTest::newRow("no length is told") << Kind::NoLength << QByteArray("\r\n\r\n<?xml");
  QTest::newRow("the body is chunked") << Kind::Chunked
                                       << QByteArray("\r\nTransfer-Encoding: chunked\r\n\r\n64\r\n<?xml");
}

void tst_Misbehaviour::deliversTheProperReplyOtherwise() {
  QFETCH(Kind, kind);
  QFETCH(QByteArray, headEnd);
  const QByteArray reply = send({.kind = kind});
  QVERIFY2(reply.contains(headEnd), reply);
  const bool withLength = kind == Kind::HeadEndsLf || kind == Kind::HeadEndsCr;
  QCOMPARE(reply.contains("Content-Length"), withLength);
  QCOMPARE(reply.contains("\r\n"), !withLength);
  QCOMPARE(reply.endsWith("\r\n0\r\n\r\n"), kind == Kind::Chunked);
  QCOMPARE(service->receipts().size(), 1);
}

void tst_Misbehaviour::staysSilent_data() {
  QTest::addColumn<Misbehaviour>("misbehaviour");
  QTest::addColumn<qsizetype>("bytes");
  QTest::newRow("from the beginning") << Misbehaviour{.kind = Kind::NoReply} << qsizetype(0);
  QTest::newRow("within the head") << Misbehaviour{.kind = Kind::StallReply, .bytes = 20} << qsizetype(20);
  QTest::newRow("within the body") << Misbehaviour{.kind = Kind::StallReply, .bytes = 200} << qsizetype(200);
}

void tst_Misbehaviour::staysSilent() {
  QFETCH(Misbehaviour, misbehaviour);
  QFETCH(qsizetype, bytes);
  service->misbehave(misbehaviour);
  PracticeClient client(service->caFile());
  QVERIFY(client.connectTo(service->port()));
  client.send(PracticeClient::post(File));
  QVERIFY(service->waitForReceipts(1, 10000));
  QCOMPARE(client.readSome(bytes).size(), bytes);
  QCOMPARE(client.readSome(1, 200).size(), 0);
  QVERIFY(!client.ended());
}

void tst_Misbehaviour::cutsTheReplyWithoutGoodbye() {
  service->misbehave({.kind = Kind::CutReply, .bytes = 150});
  PracticeClient client(service->caFile());
  QVERIFY(client.connectTo(service->port()));
  client.send(PracticeClient::post(File));
  QCOMPARE(client.readToEnd().size(), 150);
  QVERIFY(client.ended());
  QCOMPARE(service->receipts().size(), 1);
}

void tst_Misbehaviour::tricklesTheReply() {
  service->misbehave({.kind = Kind::TrickleReply, .bytes = 100, .everyMs = 20});
  QElapsedTimer clock;
  clock.start();
  const QByteArray reply = exchange(*service, File);
  QCOMPARE(returnOf(reply), u"The file was taken."_s);
  QVERIFY2(clock.elapsed() >= (reply.size() / 100 - 1) * 20, qPrintable(QString::number(clock.elapsed())));
}

void tst_Misbehaviour::readsNoFurther() {
  PracticeService::Options options;
  options.receiveBufferBytes = 16 << 10;
  PracticeService small(options);
  QVERIFY(small.start());
  small.misbehave({.kind = Kind::StopReading, .bytes = 2000});
  PracticeClient client(small.caFile());
  QVERIFY(client.connectTo(small.port()));
  const QByteArray content = QByteArray(30 << 20, 'x').toBase64();
  QVERIFY(!client.send(PracticeClient::post(PracticeClient::file("SendFile", "a", "CX102-Uncoated120", content)), 500));
  QVERIFY(!client.ended());
  QCOMPARE(small.requests().first().bodyBytes, 2000);
  QVERIFY(!small.requests().first().complete);
}

void tst_Misbehaviour::cutsTheRequest() {
  QCOMPARE(send({.kind = Kind::CutRequest, .bytes = 5000}), QByteArray());
  QCOMPARE(service->requests().first().bodyBytes, 5000);
  QCOMPARE(service->receipts().size(), 0);
}

void tst_Misbehaviour::answersBeforeTheBodyIsRead_data() {
  QTest::addColumn<bool>("closeAfter");
  QTest::newRow("and leaves the connection open") << false;
  QTest::newRow("and drops the connection") << true;
}

void tst_Misbehaviour::answersBeforeTheBodyIsRead() {
  QFETCH(bool, closeAfter);
  service->misbehave({.kind = Kind::EarlyError, .text = "E003", .bytes = 3000, .closeAfter = closeAfter});
  PracticeClient client(service->caFile());
  QVERIFY(client.connectTo(service->port()));
  // Only the part that the service waits for: then nothing unread can cost the reply.
  client.send(PracticeClient::post(File).left(PracticeClient::post(File).indexOf("\r\n\r\n") + 4 + 3000));
  const QByteArray reply = client.readSome(300);
  QCOMPARE(returnOf(reply), u"E003"_s);
  if (closeAfter) (void)client.readToEnd();
  QCOMPARE(client.ended(), closeAfter);
  QCOMPARE(service->requests().first().bodyBytes, 3000);
}

void tst_Misbehaviour::neverSpeaksTls_data() {
  QTest::addColumn<Kind>("kind");
  QTest::newRow("silence") << Kind::SilentHandshake;
  QTest::newRow("the end of the connection") << Kind::CutHandshake;
}

void tst_Misbehaviour::neverSpeaksTls() {
  QFETCH(Kind, kind);
  service->misbehave({.kind = kind});
  PracticeClient client(service->caFile());
  QVERIFY(!client.connectTo(service->port(), 300));
  client.socket().abort();
  QTRY_COMPARE(service->failedHandshakes(), 1);
  QCOMPARE(service->connections(), 1);
  // The next one is served again.
  QCOMPARE(returnOf(exchange(*service, PracticeClient::call("Get_API_URL"))), service->url());
}

void tst_Misbehaviour::befallsOnlyWhatItIsMeantFor() {
  service->misbehave({.kind = Kind::ErrorCode, .text = "E004", .times = 2, .method = "SendFile"});
  service->misbehave({.kind = Kind::ErrorCode, .text = "E010", .times = 0, .method = "TrackList"});
  service->misbehave({.kind = Kind::ErrorCode, .text = "E003"});
  const auto answer = [this](const QByteArray& body) { return returnOf(exchange(*service, body)); };
  QCOMPARE(answer(PracticeClient::call("TrackList")), u"E010"_s);
  QCOMPARE(answer(File), u"E004"_s);
  QCOMPARE(answer(PracticeClient::call("Get_API_URL")), u"E003"_s);
  QCOMPARE(answer(File), u"E004"_s);
  QCOMPARE(answer(File), u"The file was taken."_s);
  QCOMPARE(answer(PracticeClient::call("Get_API_URL")), service->url());
  QCOMPARE(answer(PracticeClient::call("TrackList")), u"E010"_s);
  service->behave();
  QVERIFY(answer(PracticeClient::call("TrackList")).startsWith(u'['));
}

VANTRY_TEST(tst_Misbehaviour);
#include "tst_Misbehaviour.moc"
