#include <QCryptographicHash>
#include <QTest>

#include "PracticeClient.h"
#include "practice/EnvelopeReader.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;

class tst_EnvelopeReader : public QObject {
  Q_OBJECT

 private slots:
  void readsTheSameInAnyPieces();
  void knowsTheMethodBeforeTheFile();
  void keepsOnlyTheEnvelopeOfALargeFile();
  void readsAContentTagThatIsWrittenOtherwise();
  void findsFault_data();
  void findsFault();
};

static SoapRequest read(const QByteArray& body, qsizetype piece = 1 << 20) {
  EnvelopeReader reader;
  for (qsizetype at = 0; at < body.size(); at += piece)
    reader.feed(QByteArrayView(body).sliced(at, qMin(piece, body.size() - at)));
  return reader.finish();
}

void tst_EnvelopeReader::readsTheSameInAnyPieces() {
  const QByteArray content = "L*a*b* \x00\xff of a patch";
  const QByteArray body =
      PracticeClient::file("SendIWFile", "a &amp; b &lt;\xc3\xbc&gt;.cxf", "ST20417-Ceramic2", content.toBase64());
  for (qsizetype piece = 1; piece <= body.size(); ++piece) {
    const SoapRequest request = read(body, piece);
    QCOMPARE(request.fault, QString());
    QCOMPARE(request.method, "SendIWFile");
    QCOMPARE(request.login, u"practice"_s);
    QCOMPARE(request.fileName, u"a & b <ü>.cxf"_s);
    QCOMPARE(request.itWorkflowName, u"ST20417-Ceramic2"_s);
    QVERIFY(request.trackName.isEmpty());
    QVERIFY(request.hasContent);
    QCOMPARE(request.contentSize, content.size());
    QCOMPARE(request.contentSha256, QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex());
  }
}

void tst_EnvelopeReader::knowsTheMethodBeforeTheFile() {
  const QByteArray body = PracticeClient::file("SendFile", "a.txt", "T", "AAAA");
  EnvelopeReader reader;
  const qsizetype tagEnd = body.indexOf("<SendFile>") + 10;
  reader.feed(QByteArrayView(body).first(tagEnd - 1));
  QCOMPARE(reader.method(), QByteArray());
  reader.feed(QByteArrayView(body).sliced(tagEnd - 1, 1));
  QCOMPARE(reader.method(), "SendFile");
}

void tst_EnvelopeReader::keepsOnlyTheEnvelopeOfALargeFile() {
  const QByteArray content(3 << 20, 'x');
  const QByteArray body = PracticeClient::file("SendFile", "a.txt", "T", content.toBase64());
  qsizetype handedOn = 0;
  EnvelopeReader reader([&](QByteArrayView bytes) { handedOn += bytes.size(); });
  // Byte by byte around the tag, which must be seen wherever it is split.
  for (qsizetype i = 0; i < 1000; ++i) reader.feed(QByteArrayView(body).sliced(i, 1));
  reader.feed(QByteArrayView(body).sliced(1000));
  QCOMPARE(handedOn, content.size());
  QCOMPARE(reader.frame(), PracticeClient::file("SendFile", "a.txt", "T", ""));
  QCOMPARE(reader.finish().fault, QString());
}

void tst_EnvelopeReader::readsAContentTagThatIsWrittenOtherwise() {
  QByteArray body = PracticeClient::file("SendFile", "a.txt", "T", "QUJD");
  body.replace("<Base64string>", "<Base64string >");
  const SoapRequest request = read(body);
  QCOMPARE(request.fault, QString());
  QCOMPARE(request.contentSize, 3);
}

void tst_EnvelopeReader::findsFault_data() {
  QTest::addColumn<QByteArray>("body");
  QTest::addColumn<QString>("words");
  const QByteArray good = PracticeClient::file("SendFile", "a.txt", "T", "AAAA");
  const auto changed = [&](const char* from, const char* to) { return QByteArray(good).replace(from, to); };
  QTest::newRow("nothing at all") << QByteArray() << u"not well-formed"_s;
  QTest::newRow("an ampersand that is not escaped") << changed("a.txt", "a&b.txt") << u"not well-formed"_s;
  QTest::newRow("the end is missing") << good.chopped(5) << u"not well-formed"_s;
  QTest::newRow("text behind the end") << good + "x" << u"not well-formed"_s;
  QTest::newRow("bytes that are not UTF-8") << changed("a.txt", "a\xff.txt") << u"not well-formed"_s;
  QTest::newRow("a document type") << changed("?>\n", "?>\n<!DOCTYPE x [<!ENTITY e 'y'>]>") << u"document type"_s;
  QTest::newRow("another root") << QByteArray("<html><Body><SendFile/></Body></html>") << u"not a SOAP"_s;
  QTest::newRow("no method") << changed("SOAP-ENV:Body", "SOAP-ENV:Header") << u"No method"_s;
  QTest::newRow("two methods") << changed("</SendFile>", "</SendFile><TrackList/>") << u"more than one"_s;
  QTest::newRow("a line break in the content") << changed("AAAA", "AA\nAA") << u"strict Base64"_s;
  QTest::newRow("content that is cut off") << changed("AAAA", "AAA") << u"cut off"_s;
  QTest::newRow("an envelope of megabytes") << changed("a.txt", QByteArray(2 << 20, 'a')) << u"too long"_s;
  QTest::newRow("megabytes behind the content") << good + QByteArray(2 << 20, ' ') << u"too long"_s;
}

void tst_EnvelopeReader::findsFault() {
  QFETCH(QByteArray, body);
  QFETCH(QString, words);
  QVERIFY2(read(body).fault.contains(words), qPrintable(read(body).fault));
  QVERIFY(read(body, 1000).fault.contains(words));
}

VANTRY_TEST(tst_EnvelopeReader);
#include "tst_EnvelopeReader.moc"
