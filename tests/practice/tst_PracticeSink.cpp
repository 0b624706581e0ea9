#include <QTest>

#include "PracticeClient.h"
#include "practice/PracticeSink.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;

class tst_PracticeSink : public QObject {
  Q_OBJECT

 private slots:
  void readsToTheLengthAndAnswers();
  void resumesSessions();
  void endsWithClientsInMidRequest();
};

void tst_PracticeSink::readsToTheLengthAndAnswers() {
  PracticeSink sink;
  QVERIFY2(sink.start(), qPrintable(sink.errorString()));
  const QByteArray body(500000, 'x');
  PracticeClient client(sink.caFile());
  QVERIFY(client.connectTo(sink.port()));
  // All but the last byte: no answer may come yet.
  const QByteArray request = PracticeClient::post(body);
  QVERIFY(client.send(request.chopped(1)));
  QCOMPARE(client.readSome(1, 200).size(), 0);
  QVERIFY(client.send("x"));
  QVERIFY(returnOf(client.readToEnd()).startsWith(u"The file"_s));
  QVERIFY(client.endedInOrder());
  QCOMPARE(sink.requests(), 1);
  QCOMPARE(sink.bodyBytes(), body.size());
}

void tst_PracticeSink::resumesSessions() {
  PracticeSink sink;
  QVERIFY(sink.start());
  QByteArray ticket;
  for (int i = 0; i < 2; ++i) {
    PracticeClient client(sink.caFile());
    QSslConfiguration tls = client.socket().sslConfiguration();
    tls.setSslOption(QSsl::SslOptionDisableSessionPersistence, false);
    tls.setSessionTicket(ticket);
    client.socket().setSslConfiguration(tls);
    QVERIFY(client.connectTo(sink.port()));
    client.send(PracticeClient::post("x"));
    QVERIFY(!client.readToEnd().isEmpty());
    ticket = client.socket().sslConfiguration().sessionTicket();
    QVERIFY(!ticket.isEmpty());
  }
  QCOMPARE(sink.requests(), 2);
  QCOMPARE(sink.resumedSessions(), 1);
}

void tst_PracticeSink::endsWithClientsInMidRequest() {
  PracticeSink sink;
  QVERIFY(sink.start());
  PracticeClient silent(sink.caFile()), sending(sink.caFile());
  QVERIFY(silent.connectTo(sink.port()));
  QVERIFY(sending.connectTo(sink.port()));
  sending.send(PracticeClient::post(QByteArray(1000, 'x')).chopped(10));
  const quint16 port = sink.port();
  sink.stop();
  (void)silent.readToEnd();
  QVERIFY(silent.ended());
  QVERIFY(sink.start(port));
  QCOMPARE(sink.requests(), 0);
}

VANTRY_TEST(tst_PracticeSink);
#include "tst_PracticeSink.moc"
