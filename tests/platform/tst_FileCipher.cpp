#include <QTest>

#include "platform/FileCipher.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;

class tst_FileCipher : public QObject {
  Q_OBJECT
 private slots:
  void init() { m_cipher.Init(u"fifteen letters"_s); }

  void whatWasEncipheredComesBack_data() {
    QTest::addColumn<QByteArray>("plain");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("zero bytes inside") << QByteArray("a\0b\0", 4);
    QTest::newRow("more than one block") << QByteArray(100'000, 'z');
  }
  void whatWasEncipheredComesBack() {
    QFETCH(QByteArray, plain);
    const QByteArray first = m_cipher.Encode(plain);
    QVERIFY2(first != m_cipher.Encode(plain), "the nonce must be fresh each time");
    QVERIFY(plain.isEmpty() || !first.contains(plain));
    QCOMPARE(m_cipher.Decode(first), std::optional(plain));
  }

  void damageAnywhereIsRefused() {
    const QByteArray whole = m_cipher.Encode("{\"Name\":\"Press 3\"}");
    for (qsizetype place = 0; place < whole.size(); ++place) {
      QVERIFY2(!m_cipher.Decode(whole.left(place)), qPrintable(u"cut to %1 bytes"_s.arg(place)));
      for (int bit = 0; bit < 8; ++bit) {
        QByteArray flipped = whole;
        flipped[place] = static_cast<char>(flipped[place] ^ (1 << bit));
        QVERIFY2(!m_cipher.Decode(flipped), qPrintable(u"bit %1 of byte %2"_s.arg(bit).arg(place)));
      }
    }
    QVERIFY(!m_cipher.Decode(whole + 'x'));
  }

  void aKeyOpensOnlyItsOwnFiles() {
    FileCipher other;
    other.Init(u"Fifteen letters"_s);
    QVERIFY(!other.Decode(m_cipher.Encode("content")));
    other.Init(u"fifteen letters"_s);
    QVERIFY(other.Decode(m_cipher.Encode("content")));
  }

 private:
  FileCipher m_cipher;
};

VANTRY_TEST(tst_FileCipher);
#include "tst_FileCipher.moc"
