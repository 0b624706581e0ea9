#include <QTest>
#include <cmath>
#include <limits>

#include "platform/JSONItem.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;

class tst_JSON : public QObject {
  Q_OBJECT
 private slots:
  void textIsKeptAsItWasSent_data() {
    QTest::addColumn<QByteArray>("sent");
    QTest::addColumn<QByteArray>("kept");
    QTest::newRow("order of members") << "{\"z\":1,\"a\":2,\"m\":3}"_ba
                                      << "{\"z\":1,\"a\":2,\"m\":3}"_ba;
    QTest::newRow("twenty digits") << "[12345678901234567890]"_ba
                                   << "[12345678901234567890]"_ba;
    QTest::newRow("thirty digits") << "[123456789012345678901234567890]"_ba
                                   << "[123456789012345678901234567890]"_ba;
    QTest::newRow("negative") << "[-9223372036854775808]"_ba
                              << "[-9223372036854775808]"_ba;
    QTest::newRow("last zero of a decimal") << "[1.10]"_ba
                                            << "[1.10]"_ba;
    QTest::newRow("exponent") << "[1E+5]"_ba
                              << "[1E+5]"_ba;
    QTest::newRow("minus zero") << "[-0]"_ba
                                << "[-0]"_ba;
    QTest::newRow("white space goes") << " { \"a\" :\t[ true , false,\r\nnull ] } "_ba
                                      << "{\"a\":[true,false,null]}"_ba;
    QTest::newRow("the last of equal names holds") << "{\"a\":1,\"b\":2,\"a\":3}"_ba
                                                   << "{\"a\":3,\"b\":2}"_ba;
    QTest::newRow("empty name") << "{\"\":{}}"_ba
                                << "{\"\":{}}"_ba;
    QTest::newRow("escapes of a pair") << "[\"\\ud83d\\ude00\"]"_ba
                                       << "[\"\xf0\x9f\x98\x80\"]"_ba;
    QTest::newRow("a lone value") << "\"x\""_ba
                                  << "\"x\""_ba;
  }
  void textIsKeptAsItWasSent() {
    QFETCH(QByteArray, sent);
    const auto item = JSONItem::parse(sent);
    QVERIFY(item);
    QTEST(item->ToString(), "kept");
  }

  void whatIsNoJsonIsRefused_data() {
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("nothing") << ""_ba;
    QTest::newRow("rubbish behind") << "{} x"_ba;
    QTest::newRow("second value") << "{}{}"_ba;
    QTest::newRow("cut in an object") << "{\"a\":1"_ba;
    QTest::newRow("cut in a text") << "[\"a"_ba;
    QTest::newRow("comma before the end") << "[1,]"_ba;
    QTest::newRow("leading zero") << "[01]"_ba;
    QTest::newRow("hexadecimal") << "[0x10]"_ba;
    QTest::newRow("NaN") << "[NaN]"_ba;
    QTest::newRow("beyond a double") << "[1e400]"_ba;
    QTest::newRow("comment") << "[1/*x*/]"_ba;
    QTest::newRow("single quotes") << "['a']"_ba;
    QTest::newRow("line end in a text") << "[\"a\nb\"]"_ba;
    QTest::newRow("first half of a pair") << "[\"\\ud83d\"]"_ba;
    QTest::newRow("second half of a pair") << "[\"\\ude00\"]"_ba;
    QTest::newRow("broken UTF-8") << "[\"\xc3\"]"_ba;
    QTest::newRow("overlong UTF-8") << "[\"\xc0\xaf\"]"_ba;
    QTest::newRow("surrogate in UTF-8") << "[\"\xed\xa0\x80\"]"_ba;
    QTest::newRow("unknown escape") << "[\"\\x41\"]"_ba;
    QTest::newRow("zero byte behind") << QByteArray("{}\0", 3);
  }
  void whatIsNoJsonIsRefused() {
    QFETCH(QByteArray, text);
    QString error;
    QVERIFY(!JSONItem::parse(text, &error));
    QVERIFY(!error.isEmpty());
  }

  void nestingIsHeldTo64_data() {
    QTest::addColumn<int>("depth");
    QTest::addColumn<bool>("taken");
    QTest::newRow("64 levels") << 64 << true;
    QTest::newRow("65 levels") << 65 << false;
    QTest::newRow("100,000 levels") << 100'000 << false;
  }
  void nestingIsHeldTo64() {
    QFETCH(int, depth);
    const QByteArray arrays = QByteArray("[").repeated(depth) + QByteArray("]").repeated(depth);
    const QByteArray objects = QByteArray("{\"a\":").repeated(depth) + "1" + QByteArray("}").repeated(depth);
    QTEST(JSONItem::parse(arrays).has_value(), "taken");
    QTEST(JSONItem::parse(objects).has_value(), "taken");
    QVERIFY(!JSONItem::parse(QByteArray("[").repeated(depth)));
  }

  // Ends within the test's time only if each name costs the same, however many came before.
  void manyMembersAreTakenInLinearTime() {
    constexpr int kMembers = 300'000;
    QByteArray text = "{";
    for (int i = 0; i < kMembers; ++i) text += "\"name" + QByteArray::number(i) + "\":0,";
    const auto item = JSONItem::parse(text + "\"name7\":\"again\",\"name299999\":\"again\"}");
    QVERIFY(item);
    QCOMPARE(item->Count(), kMembers);
    QCOMPARE(item->Value(7).toText(), u"again"_s);
    QCOMPARE(item->Value(299'999).toText(), u"again"_s);
  }

  void moreValuesThanMemoryShouldHoldAreRefused() {
    QVERIFY(!JSONItem::parse('[' + QByteArray("1,").repeated(1'000'000) + "1]"));
  }

  void stringsAreEscaped_data() {
    QTest::addColumn<uint>("first");
    QTest::addColumn<uint>("last");
    QTest::newRow("soft hyphen") << 173u << 173u;
    QTest::newRow("delete") << 127u << 127u;
    QTest::newRow("control characters") << 14u << 31u;
    QTest::newRow("Arabic signs") << 1536u << 1540u;
    QTest::newRow("Syriac mark") << 1807u << 1807u;
    QTest::newRow("Khmer vowels") << 6068u << 6069u;
    QTest::newRow("joiners and direction marks") << 8204u << 8207u;
    QTest::newRow("separators and embeddings") << 8232u << 8239u;
    QTest::newRow("invisible operators") << 8288u << 8303u;
    QTest::newRow("byte order mark") << 65279u << 65279u;
    QTest::newRow("specials") << 65520u << 65535u;
  }
  void stringsAreEscaped() {
    QFETCH(uint, first);
    QFETCH(uint, last);
    for (uint c = first - 1; c <= last + 1 && c <= 65535; ++c) {
      const QString text = QChar(c);
      const bool inside = c >= first && c <= last;
      const QString expected =
          inside ? u"\"\\u"_s + QString::number(c, 16).rightJustified(4, u'0') + u'"' : u'"' + text + u'"';
      if (c >= 32 || inside) QCOMPARE(JSONItem::text(text).ToString(), expected.toUtf8());
    }
  }

  void shortEscapes_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("written");
    QTest::newRow("path") << u"/srv/in"_s << "\"\\/srv\\/in\""_ba;
    QTest::newRow("quote and backslash") << u"a\"b\\"_s << "\"a\\\"b\\\\\""_ba;
    QTest::newRow("line ends and tab") << u"\r\n\t"_s << "\"\\r\\n\\t\""_ba;
    QTest::newRow("backspace, form feed, zero") << QString(u"\b\f"_s + QChar(0)) << "\"\\b\\f\\u0000\""_ba;
    QTest::newRow("umlauts and pairs stand") << u"ä😀"_s << "\"\xc3\xa4\xf0\x9f\x98\x80\""_ba;
    QTest::newRow("half a pair") << QString(QChar(0xd83d)) << "\"\\ufffd\""_ba;
  }
  void shortEscapes() {
    QFETCH(QString, text);
    QTEST(JSONItem::text(text).ToString(), "written");
  }

  void everyCharacterComesBack() {
    QString text;
    for (char32_t c = 0; c < 0x20000; ++c)
      if (!QChar::isSurrogate(c)) text += QString::fromUcs4(&c, 1);
    JSONItem object = JSONItem::object();
    object.set(text, JSONItem::text(text));
    const auto read = JSONItem::parse(object.ToString());
    QVERIFY(read && read->find(text));
    QCOMPARE(read->find(text)->toText(), text);
  }

  void doublesFollowTheMask_data() {
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("zero") << 0.0 << u"0.0"_s;
    QTest::newRow("minus zero") << -0.0 << u"0.0"_s;
    QTest::newRow("whole seconds") << 1700000000.0 << u"1700000000.0"_s;
    QTest::newRow("fraction of a second") << 1700000000.1234567 << u"1700000000.1234567"_s;
    QTest::newRow("tenth") << 0.1 << u"0.1"_s;
    QTest::newRow("negative") << -2.25 << u"-2.25"_s;
    QTest::newRow("15 decimals at most") << 1.0 / 3 << u"0.333333333333333"_s;
    QTest::newRow("rounded up into the whole part") << 0.99999999999999989 << u"1.0"_s;
    QTest::newRow("too small for the mask") << -1e-20 << u"0.0"_s;
    QTest::newRow("large, no exponent") << 1e22 << u"10000000000000000000000.0"_s;
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity() << u"0.0"_s;
    QTest::newRow("no number") << std::nan("") << u"0.0"_s;
  }
  void doublesFollowTheMask() {
    QFETCH(double, value);
    QTEST(decimalText(value), "text");
  }
};

VANTRY_TEST(tst_JSON);
#include "tst_JSON.moc"
