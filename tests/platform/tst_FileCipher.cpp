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
    QTest::newRow("one byte") << QByteArray("x");
    QTest::newRow("zero bytes inside") << QByteArray("a\0b\0", 4);
    QTest::newRow("more than one block") << QByteArray(100'000, 'z');
  }
  void whatWasEncipheredComesBack() {
    QFETCH(QByteArray, plain);
    const QByteArray first = m_cipher.Encode(plain);
    QVERIFY2(first != m_cipher.Encode(plain), "the nonce must be fresh each time");
    QVERIFY(plain.size() < 2 || !first.contains(plain));
    QCOMPARE(m_cipher.Decode(first), std::optional(plain));
  }

  void dataCutAtAnyLengthIsRefused() {
    const QByteArray whole = m_cipher.Encode("{\"Name\":\"Press 3\"}");
    for (qsizetype length = 0; length < whole.size(); ++length) {
      QVERIFY2(!m_cipher.Decode(whole.left(length)), qPrintable(u"cut to %1 bytes"_s.arg(length)));
      QVERIFY2(!m_cipher.Decode(whole.mid(whole.size() - length)), qPrintable(u"last %1 bytes"_s.arg(length)));
    }
    QVERIFY(!m_cipher.Decode(whole + 'x'));
  }

  void aFlippedBitAnywhereIsRefused() {
    const QByteArray whole = m_cipher.Encode("{\"Name\":\"Press 3\"}");
    for (qsizetype bit = 0; bit < whole.size() * 8; ++bit) {
      QByteArray damaged = whole;
      damaged[bit / 8] = static_cast<char>(damaged[bit / 8] ^ (1 << (bit % 8)));
      QVERIFY2(!m_cipher.Decode(damaged), qPrintable(u"bit %1"_s.arg(bit)));
    }
  }

  void aKeyOpensOnlyItsOwnFiles_data() {
    QTest::addColumn<QString>("phrase");
    QTest::addColumn<bool>("opens");
    QTest::newRow("the same phrase in another object") << u"fifteen letters"_s << true;
    QTest::newRow("other case") << u"Fifteen letters"_s << false;
    QTest::newRow("blank behind") << u"fifteen letters "_s << false;
    QTest::newRow("empty") << QString() << false;
  }
  void aKeyOpensOnlyItsOwnFiles() {
    QFETCH(QString, phrase);
    FileCipher other;
    other.Init(phrase);
    QTEST(other.Decode(m_cipher.Encode("content")).has_value(), "opens");
  }

  void wipingLeavesOtherOwnersOfTheBufferAlone() {
    QByteArray mine(6, 's');
    const QByteArray theirs = mine;
    wipe(mine);
    QVERIFY(mine.isEmpty());
    QCOMPARE(theirs, QByteArray("ssssss"));
  }

 private:
  FileCipher m_cipher;
};

VANTRY_TEST(tst_FileCipher);
#include "tst_FileCipher.moc"
