#include <QRandomGenerator>
#include <QTest>

#include "service/Base64.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;

Q_DECLARE_METATYPE(Base64Path)

class tst_Base64 : public QObject {
  Q_OBJECT
 private:
  static QByteArray encodeInPieces(Base64Path path, const QByteArray& data, QList<qsizetype> ends) {
    Base64Encoder encoder(path);
    QByteArray out(base64Length(data.size()) + 8, '#');
    qsizetype begin = 0, written = 0;
    ends.append(data.size());
    for (const qsizetype end : ends) {
      written += encoder.encode(data.constData() + begin, end - begin, out.data() + written);
      begin = end;
    }
    written += encoder.finish(out.data() + written);
    return out.first(written);
  }
  static QByteArray randomBytes(QRandomGenerator& random, qsizetype size) {
    QByteArray data(size, Qt::Uninitialized);
    for (char& byte : data) byte = static_cast<char>(random.bounded(256));
    return data;
  }

 private slots:
  void encodesAsQtDoes_data() {
    QTest::addColumn<Base64Path>("path");
    QTest::newRow("by the table") << Base64Path::Portable;
    if (supports(Base64Path::Avx2)) QTest::newRow("by AVX2") << Base64Path::Avx2;
    if (supports(Base64Path::Avx512)) QTest::newRow("by AVX-512") << Base64Path::Avx512;
  }
  void encodesAsQtDoes() {
    QFETCH(Base64Path, path);
    QRandomGenerator random(20260101);
    for (qsizetype size = 0; size <= 300; ++size) {
      const QByteArray data = randomBytes(random, size);
      const QByteArray expected = data.toBase64();
      QCOMPARE(expected.size(), base64Length(size));
      for (qsizetype split = 0; split <= size; ++split) QCOMPARE(encodeInPieces(path, data, {split}), expected);
    }
    for (int round = 0; round < 40; ++round) {
      const qsizetype size = random.bounded(200'000);
      const QByteArray data = randomBytes(random, size);
      QList<qsizetype> ends;
      for (int i = 0; i < 5; ++i) ends.append(random.bounded(static_cast<int>(size) + 1));
      std::sort(ends.begin(), ends.end());
      QCOMPARE(encodeInPieces(path, data, ends), data.toBase64());
    }
  }
};

VANTRY_TEST(tst_Base64);
#include "tst_Base64.moc"
