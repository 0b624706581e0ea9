#include <QTest>

#include "practice/Base64Decoder.h"
#include "support/TestRunner.h"

class tst_Base64Decoder : public QObject {
  Q_OBJECT

 private slots:
  void decodesInAnyPieces();
  void refuses_data();
  void refuses();
};

// Every length modulo 3, and every size of piece against every place of a group.
void tst_Base64Decoder::decodesInAnyPieces() {
  for (int length = 0; length <= 14; ++length) {
    QByteArray content;
    for (int i = 0; i < length; ++i) content += static_cast<char>(i * 83 + 251);
    const QByteArray text = content.toBase64();
    for (qsizetype piece = 1; piece <= text.size() + 1; ++piece) {
      Base64Decoder decoder;
      QByteArray decoded;
      for (qsizetype at = 0; at < text.size(); at += piece)
        QVERIFY2(decoder.feed(QByteArrayView(text).sliced(at, qMin(piece, text.size() - at)), decoded), text);
      QVERIFY(decoder.finish());
      QCOMPARE(decoded, content);
    }
  }
}

void tst_Base64Decoder::refuses_data() {
  QTest::addColumn<QByteArray>("text");
  QTest::newRow("a line break") << QByteArray("AAAA\nAAAA");
  QTest::newRow("a blank at the end") << QByteArray("AAAA ");
  QTest::newRow("a character of the URL alphabet") << QByteArray("AA-_");
  QTest::newRow("a group that is cut off") << QByteArray("AAAAAA");
  QTest::newRow("text behind the padding") << QByteArray("AA==AAAA");
  QTest::newRow("a stray character behind the padding") << QByteArray("AAA=A");
  QTest::newRow("padding alone") << QByteArray("====");
  QTest::newRow("three signs of padding") << QByteArray("A===");
  QTest::newRow("padding within a group") << QByteArray("AA=A");
  QTest::newRow("stray bits before one sign of padding") << QByteArray("AAB=");
  QTest::newRow("stray bits before two signs of padding") << QByteArray("AB==");
  QTest::newRow("a NUL") << QByteArray("AA\0A", 4);
  QTest::newRow("a byte above ASCII") << QByteArray("AA\xc3\xa4");
}

void tst_Base64Decoder::refuses() {
  QFETCH(QByteArray, text);
  for (qsizetype piece = 1; piece <= text.size(); ++piece) {
    Base64Decoder decoder;
    QByteArray decoded;
    bool good = true;
    for (qsizetype at = 0; at < text.size(); at += piece)
      good = decoder.feed(QByteArrayView(text).sliced(at, qMin(piece, text.size() - at)), decoded) && good;
    QVERIFY2(!(good && decoder.finish()), qPrintable(QStringLiteral("in pieces of %1").arg(piece)));
  }
}

VANTRY_TEST(tst_Base64Decoder);
#include "tst_Base64Decoder.moc"
