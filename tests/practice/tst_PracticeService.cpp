#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QTest>
#include <thread>

#include "PracticeClient.h"
#include "practice/PracticeService.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;

class tst_PracticeService : public QObject {
  Q_OBJECT

 private slots:
  void answersAndJudges_data();
  void answersAndJudges();
  void catalogueKeepsTheOrderOfKeys();
  void storesWhatItReceives();
  void goesOnCountingInAUsedFolder();
  void refusesWhatIsNoRequest_data();
  void refusesWhatIsNoRequest();
  void takesAFileBeyondWhatItKeeps();
  void holdsFilesBackUntilReleased();
  void callsTheHookOnceInMidBody();
  void saysThatAPortIsTaken();
  void startsAgainOnTheSamePort();
  void takesManyAtOnce();
};

static QByteArray hashOf(const QByteArray& content) {
  return QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex();
}

void tst_PracticeService::answersAndJudges_data() {
  QTest::addColumn<QByteArray>("body");
  QTest::addColumn<QString>("answer");
  QTest::addColumn<int>("receipts");
  using C = PracticeClient;
  const QByteArray print = PracticeService::knownPrintTrack().toUtf8();
  const QByteArray instrument = PracticeService::knownInstrumentTrack().toUtf8();
  const QString taken = u"The file was taken."_s;
  QTest::newRow("wrong password") << C::call("TrackList", "practice", "wrong") << u"E009"_s << 0;
  QTest::newRow("unknown login") << C::call("Get_API_URL", "somebody") << u"E009"_s << 0;
  QTest::newRow("a method that isn't there") << C::call("Delete") << u"EUnknownError"_s << 0;
  QTest::newRow("a print job") << C::file("SendFile", "a.txt", print, "QUJD") << taken << 1;
  QTest::newRow("an instrument job") << C::file("SendIWFile", "a.cxf", instrument, "QUJD") << taken << 1;
  QTest::newRow("a destination in another case") << C::file("SendFile", "a.txt", print.toUpper(), "QUJD") << taken << 1;
  QTest::newRow("an empty file") << C::file("SendFile", "a.txt", print, "") << taken << 1;
  QTest::newRow("an unknown press") << C::file("SendFile", "a.txt", "nowhere", "QUJD") << u"E008"_s << 0;
  QTest::newRow("no destination at all") << C::file("SendFile", "a.txt", "", "QUJD") << u"E008"_s << 0;
  QTest::newRow("a print job for an instrument") << C::file("SendFile", "a.txt", instrument, "QUJD") << u"E008"_s << 0;
  QTest::newRow("an unknown instrument") << C::file("SendIWFile", "a.cxf", print, "QUJD") << u"E102"_s << 0;
  QTest::newRow("an empty name") << C::file("SendFile", " ", print, "QUJD") << u"E007"_s << 0;
}

void tst_PracticeService::answersAndJudges() {
  QFETCH(QByteArray, body);
  QFETCH(QString, answer);
  QFETCH(int, receipts);
  PracticeService service;
  QVERIFY2(service.start(), qPrintable(service.errorString()));
  const QByteArray reply = exchange(service, body);
  QVERIFY(reply.startsWith("HTTP/1.1 200 OK\r\n"));
  QCOMPARE(returnOf(reply), answer);
  QCOMPARE(service.receipts().size(), receipts);
  QCOMPARE(service.requests().size(), 1);
  QCOMPARE(service.requests().first().body, body);
  QVERIFY(service.requests().first().complete);
}

void tst_PracticeService::catalogueKeepsTheOrderOfKeys() {
  PracticeService service;
  QVERIFY(service.start());
  QCOMPARE(returnOf(exchange(service, PracticeClient::call("Get_API_URL"))), service.url());
  const QString tracks = returnOf(exchange(service, PracticeClient::call("TrackList")));
  QVERIFY(tracks.startsWith(u"[{\"TrackName\":"_s));
  const QJsonArray list = QJsonDocument::fromJson(tracks.toUtf8()).array();
  QMap<QString, int> tracksOf;
  for (const QJsonValue& track : list) {
    QCOMPARE(track.toObject().size(), 8);
    ++tracksOf[track[u"Device"_s].toString()];
  }
  QVERIFY(tracksOf.size() >= 3);
  QVERIFY(std::any_of(tracksOf.cbegin(), tracksOf.cend(), [](int count) { return count > 1; }));
  const QString pairs = returnOf(exchange(service, PracticeClient::call("InstrumentTargetList")));
  QVERIFY(pairs.startsWith(u"[{\"InstrumentName\":"_s));
  QVERIFY(QJsonDocument::fromJson(pairs.toUtf8()).array().size() >= 4);
}

void tst_PracticeService::storesWhatItReceives() {
  const QTemporaryDir folder;
  PracticeService::Options options;
  options.storeFolder = folder.filePath(u"received"_s);
  PracticeService service(options);
  QVERIFY(service.start());
  const QByteArray content("\x00\r\n<&>\xff", 7);
  const QByteArray name = "../../etc/\xc3\xbc\n&amp;\"x\".txt";
  exchange(service, PracticeClient::file("SendFile", name, "CX102-Uncoated120", content.toBase64()));
  exchange(service, PracticeClient::file("SendFile", "no.txt", "nowhere", content.toBase64()));

  QCOMPARE(service.receipts().size(), 1);
  const PracticeReceipt receipt = service.receipts().first();
  QCOMPARE(receipt.content, content);
  QCOMPARE(receipt.name, u"../../etc/ü\n&\"x\".txt"_s);
  const QDir received(options.storeFolder);
  QCOMPARE(received.entryList(QDir::Files | QDir::Hidden, QDir::Name),
           QStringList({u"0001-.._.._etc_ü_&_x_.txt"_s, u"receipts.jsonl"_s}));
  QFile stored(receipt.storedAs), lines(received.filePath(u"receipts.jsonl"_s));
  QVERIFY(stored.open(QIODevice::ReadOnly) && lines.open(QIODevice::ReadOnly));
  QCOMPARE(stored.readAll(), content);
  QCOMPARE(lines.readAll(),
           "{\"name\":\"../../etc/\xc3\xbc\\n&\\\"x\\\".txt\",\"kind\":\"print\",\"destination\":"
           "\"CX102-Uncoated120\",\"size\":7,\"sha256\":\"" +
               hashOf(content) + "\"}\n");
}

void tst_PracticeService::goesOnCountingInAUsedFolder() {
  const QTemporaryDir folder;
  PracticeService::Options options;
  options.storeFolder = folder.path();
  const QByteArray body = PracticeClient::file("SendFile", "a.txt", "CX102-Uncoated120", "QUJD");
  for (int run = 0; run < 2; ++run) {
    PracticeService service(options);
    QVERIFY(service.start());
    exchange(service, body);
  }
  QCOMPARE(QDir(folder.path()).entryList({u"*.txt"_s}, QDir::Files, QDir::Name),
           QStringList({u"0001-a.txt"_s, u"0002-a.txt"_s}));
}

void tst_PracticeService::refusesWhatIsNoRequest_data() {
  QTest::addColumn<QByteArray>("request");
  QTest::addColumn<QByteArray>("status");
  const QByteArray body = PracticeClient::call("TrackList");
  QTest::newRow("another path") << PracticeClient::post(body, "/elsewhere") << QByteArray("404");
  QTest::newRow("another method") << QByteArray("GET /api HTTP/1.0\r\n\r\n") << QByteArray("405");
  QTest::newRow("no length") << QByteArray("POST /api HTTP/1.0\r\n\r\n") << QByteArray("411");
  QTest::newRow("a head without end") << "POST /api HTTP/1.0\r\nX: " + QByteArray(100000, 'x') << QByteArray("400");
  QTest::newRow("a body that isn't XML") << PracticeClient::post(body + "&") << QByteArray("500");
}

void tst_PracticeService::refusesWhatIsNoRequest() {
  QFETCH(QByteArray, request);
  QFETCH(QByteArray, status);
  PracticeService service;
  QVERIFY(service.start());
  PracticeClient client(service.caFile());
  QVERIFY(client.connectTo(service.port()));
  client.send(request);
  const QByteArray reply = client.readSome(12);
  QCOMPARE(reply.mid(9, 3), status);
  QVERIFY(!reply.contains("<return>"));
  QCOMPARE(service.receipts().size(), 0);
}

void tst_PracticeService::takesAFileBeyondWhatItKeeps() {
  PracticeService::Options options;
  options.keepBytes = 1000;
  PracticeService service(options);
  QVERIFY(service.start());
  QByteArray content(300000, 'x');
  for (qsizetype i = 0; i < content.size(); ++i) content[i] = static_cast<char>(i * i);
  exchange(service, PracticeClient::file("SendFile", "a.txt", "CX102-Uncoated120", content.toBase64()));
  QCOMPARE(service.receipts().size(), 1);
  QCOMPARE(service.receipts().first().size, content.size());
  QCOMPARE(service.receipts().first().sha256, hashOf(content));
  QVERIFY(service.receipts().first().content.isEmpty());
  QCOMPARE(service.requests().first().body, PracticeClient::file("SendFile", "a.txt", "CX102-Uncoated120", ""));
}

void tst_PracticeService::holdsFilesBackUntilReleased() {
  PracticeService service;
  QVERIFY(service.start());
  service.hold();
  PracticeClient client(service.caFile());
  QVERIFY(client.connectTo(service.port()));
  client.send(PracticeClient::post(PracticeClient::file("SendFile", "a.txt", "CX102-Uncoated120", "QUJD")));
  QVERIFY(service.waitForHeld(1, 10000));
  // Other calls are not held.
  QCOMPARE(returnOf(exchange(service, PracticeClient::call("Get_API_URL"))), service.url());
  QVERIFY(client.readSome(1, 0).isEmpty());
  service.release();
  QCOMPARE(returnOf(client.readToEnd()), u"The file was taken."_s);
  QVERIFY(!service.waitForHeld(1, 0));
}

void tst_PracticeService::callsTheHookOnceInMidBody() {
  PracticeService service;
  QVERIFY(service.start());
  qint64 arrived = -1;
  int calls = 0;
  service.whenBodyReaches(
      50000,
      [&] {
        ++calls;
        arrived = service.requests().last().bodyBytes;
      },
      "SendFile");
  const QByteArray file =
      PracticeClient::file("SendFile", "a.txt", "CX102-Uncoated120", QByteArray(90000, 'x').toBase64());
  exchange(service, PracticeClient::call("TrackList"));
  QCOMPARE(calls, 0);
  exchange(service, file);
  QCOMPARE(calls, 1);
  QCOMPARE(arrived, 50000);
  exchange(service, file);
  QCOMPARE(calls, 1);
  QCOMPARE(service.receipts().size(), 2);
}

void tst_PracticeService::saysThatAPortIsTaken() {
  QTcpServer other;
  QVERIFY(other.listen(QHostAddress::LocalHost));
  PracticeService service;
  QVERIFY(!service.start(other.serverPort()));
  QVERIFY(!service.errorString().isEmpty());
  QVERIFY(service.start());
}

void tst_PracticeService::startsAgainOnTheSamePort() {
  PracticeService service;
  QVERIFY(service.start());
  const quint16 port = service.port();
  PracticeClient open(service.caFile());
  QVERIFY(open.connectTo(port));
  service.stop();
  (void)open.readToEnd();
  QVERIFY(open.ended());
  PracticeClient refused(service.caFile());
  QVERIFY(!refused.connectTo(port));
  QVERIFY2(service.start(port), qPrintable(service.errorString()));
  QCOMPARE(returnOf(exchange(service, PracticeClient::call("Get_API_URL"))), service.url());
}

void tst_PracticeService::takesManyAtOnce() {
  PracticeService service;
  QVERIFY(service.start());
  static constexpr int Clients = 6;
  std::vector<std::thread> threads;
  for (int i = 0; i < Clients; ++i)
    threads.emplace_back([&service, i] {
      const QByteArray content(40000 + i, static_cast<char>('a' + i));
      exchange(service,
               PracticeClient::file("SendFile", QByteArray::number(i), "CX102-Uncoated120", content.toBase64()));
    });
  QVERIFY(service.waitForReceipts(Clients, 30000));
  for (std::thread& thread : threads) thread.join();
  for (const PracticeReceipt& receipt : service.receipts()) {
    const int i = receipt.name.toInt();
    QCOMPARE(receipt.sha256, hashOf(QByteArray(40000 + i, static_cast<char>('a' + i))));
  }
}

VANTRY_TEST(tst_PracticeService);
#include "tst_PracticeService.moc"
