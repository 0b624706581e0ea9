#include <QTcpSocket>
#include <QTest>

#include "PracticeClient.h"
#include "practice/PracticeProxy.h"
#include "practice/PracticeService.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;
using Kind = PracticeProxy::Behaviour::Kind;

class tst_PracticeProxy : public QObject {
  Q_OBJECT

 private slots:
  void tunnelsTls_data();
  void tunnelsTls();
  void passesWholeUrlsOn();
  void doesNotTunnel_data();
  void doesNotTunnel();
};

static QByteArray readUntilQuiet(QTcpSocket& socket, int quietMs) {
  QByteArray all = socket.readAll();
  while (socket.waitForReadyRead(quietMs)) all += socket.readAll();
  return all;
}

static const QByteArray Established = "HTTP/1.0 200 Connection established\r\nVia: practice proxy\r\n\r\n";

void tst_PracticeProxy::tunnelsTls_data() {
  QTest::addColumn<int>("pieceBytes");
  QTest::newRow("the head at once") << 0;
  QTest::newRow("the head byte by byte") << 1;
}

void tst_PracticeProxy::tunnelsTls() {
  QFETCH(int, pieceBytes);
  PracticeService service;
  PracticeProxy proxy;
  QVERIFY(service.start() && proxy.start());
  proxy.setBehaviour({.pieceBytes = pieceBytes});

  PracticeClient client(service.caFile());
  QSslSocket& socket = client.socket();
  socket.connectToHost(u"127.0.0.1"_s, proxy.port());
  QVERIFY(socket.waitForConnected(10000));
  socket.write("CONNECT localhost:" + QByteArray::number(service.port()) + " HTTP/1.0\r\nHost: localhost\r\n\r\n");
  QByteArray head;
  while (!head.endsWith("\r\n\r\n") && (socket.bytesAvailable() > 0 || socket.waitForReadyRead(10000)))
    head += socket.read(1);
  QCOMPARE(head, Established);
  socket.setPeerVerifyName(u"localhost"_s);
  socket.startClientEncryption();
  QVERIFY(socket.waitForEncrypted(10000));
  // Larger than what either side buffers, so that both directions have to be pumped.
  service.misbehave({.kind = Misbehaviour::Kind::LongReply, .bytes = 3 << 20});
  const QByteArray content = QByteArray(3 << 20, 'x').toBase64();
  client.send(PracticeClient::post(PracticeClient::file("SendFile", "a", "CX102-Uncoated120", content)));
  QCOMPARE(returnOf(client.readToEnd()).size(), 3 << 20);
  QCOMPARE(service.requests().first().bodyBytes,
           PracticeClient::file("SendFile", "a", "CX102-Uncoated120", content).size());
  QCOMPARE(proxy.tunnels(), 1);
  QVERIFY(proxy.heads().first().startsWith("CONNECT localhost:"));
}

// A second proxy stands in for the server: it records the head that reached it.
void tst_PracticeProxy::passesWholeUrlsOn() {
  PracticeProxy proxy, server;
  QVERIFY(proxy.start() && server.start());
  server.setBehaviour({.kind = Kind::Refuse, .status = 404});
  QTcpSocket socket;
  socket.connectToHost(u"127.0.0.1"_s, proxy.port());
  const QByteArray host = "127.0.0.1:" + QByteArray::number(server.port());
  socket.write("GET http://" + host + "/uploader.php?v=1 HTTP/1.0\r\nHost: " + host + "\r\n\r\n");
  QVERIFY(readUntilQuiet(socket, 10000).startsWith("HTTP/1.1 404"));
  QCOMPARE(server.heads(), QList<QByteArray>{"GET /uploader.php?v=1 HTTP/1.0\r\nHost: " + host + "\r\n\r\n"});
}

void tst_PracticeProxy::doesNotTunnel_data() {
  QTest::addColumn<PracticeProxy::Behaviour>("behaviour");
  QTest::addColumn<QByteArray>("startsWith");
  QTest::addColumn<bool>("ends");
  QTest::newRow("asks for a login") << PracticeProxy::Behaviour{} << QByteArray("HTTP/1.1 407") << true;
  QTest::newRow("answers with a page") << PracticeProxy::Behaviour{.kind = Kind::Html}
                                       << QByteArray("HTTP/1.1 200 OK\r\n") << true;
  QTest::newRow("closes") << PracticeProxy::Behaviour{.kind = Kind::Close} << QByteArray() << true;
  QTest::newRow("is silent") << PracticeProxy::Behaviour{.kind = Kind::Stall} << QByteArray() << false;
  QTest::newRow("stops within its head") << PracticeProxy::Behaviour{.kind = Kind::HalfReply} << Established.left(20)
                                         << false;
  QTest::newRow("says what it likes") << PracticeProxy::Behaviour{.kind = Kind::RawReply, .text = "220 mail"}
                                      << QByteArray("220 mail") << false;
}

void tst_PracticeProxy::doesNotTunnel() {
  QFETCH(PracticeProxy::Behaviour, behaviour);
  QFETCH(QByteArray, startsWith);
  QFETCH(bool, ends);
  if (qstrcmp(QTest::currentDataTag(), "asks for a login") == 0) behaviour.kind = Kind::Refuse;
  PracticeProxy proxy;
  QVERIFY(proxy.start());
  proxy.setBehaviour(behaviour);
  QTcpSocket socket;
  socket.connectToHost(u"127.0.0.1"_s, proxy.port());
  socket.write("CONNECT localhost:1 HTTP/1.0\r\n\r\n");
  const QByteArray reply = readUntilQuiet(socket, ends ? 10000 : 300);
  QVERIFY2(reply.startsWith(startsWith), reply);
  QVERIFY(!reply.contains("Connection established\r\nVia: practice proxy\r\n\r\n"));
  QCOMPARE(socket.state() == QAbstractSocket::UnconnectedState, ends);
  QCOMPARE(proxy.tunnels(), 0);
}

VANTRY_TEST(tst_PracticeProxy);
#include "tst_PracticeProxy.moc"
