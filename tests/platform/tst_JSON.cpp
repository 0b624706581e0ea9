#include <QTest>
#include <cmath>

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
    QTest::newRow("many digits") << "[12345678901234567890123]"_ba
                                 << "[12345678901234567890123]"_ba;
    QTest::newRow("forms of numbers") << "[1.10,1E+5,-0,-7]"_ba
                                      << "[1.10,1E+5,-0,-7]"_ba;
    QTest::newRow("white space goes") << " {\"a\" :\t[ true,\r\nnull ] } "_ba
                                      << "{\"a\":[true,null]}"_ba;
    QTest::newRow("the last of equal names holds") << "{\"a\":1,\"b\":2,\"a\":3}"_ba
                                                   << "{\"a\":3,\"b\":2}"_ba;
    QTest::newRow("escapes of a pair") << "[\"\\ud83d\\ude00\"]"_ba
                                       << "[\"\xf0\x9f\x98\x80\"]"_ba;
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
    QTest::newRow("zero byte behind") << QByteArray("{}\0", 3);
    QTest::newRow("cut in an object") << "{\"a\":1"_ba;
    QTest::newRow("comma before the end") << "[1,]"_ba;
    QTest::newRow("leading zero") << "[01]"_ba;
    QTest::newRow("beyond a double") << "[1e400]"_ba;
    QTest::newRow("comment") << "[1/*x*/]"_ba;
    QTest::newRow("first half of a pair") << "[\"\\ud83d\"]"_ba;
    QTest::newRow("second half of a pair") << "[\"\\ude00\"]"_ba;
    QTest::newRow("overlong UTF-8") << "[\"\xc0\xaf\"]"_ba;
    QTest::newRow("surrogate in UTF-8") << "[\"\xed\xa0\x80\"]"_ba;
    QTest::newRow("more values than memory should hold") << '[' + "1,"_ba.repeated(1'000'000) + "1]";
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
    QTEST(JSONItem::parse("["_ba.repeated(depth) + "]"_ba.repeated(depth)).has_value(), "taken");
    QTEST(JSONItem::parse("{\"a\":"_ba.repeated(depth) + '1' + "}"_ba.repeated(depth)).has_value(), "taken");
  }

  // Ends within the test's time only if each name costs the same, however many came before.
  void manyMembersAreTakenInLinearTime() {
    QByteArray text = "{";
    for (int i = 0; i < 100'000; ++i) text += "\"name" + QByteArray::number(i) + "\":0,";
    const auto item = JSONItem::parse(text + "\"name7\":\"again\",\"name99999\":\"again\"}");
    QVERIFY(item);
    QCOMPARE(item->Count(), 100'000);
    QCOMPARE(item->Value(7).toText() + item->Value(99'999).toText(), u"againagain"_s);
  }

  void invisibleCharactersAreEscaped() {
    static constexpr uint kRanges[][2] = {{11, 11},     {14, 31},     {127, 127},     {173, 173},
                                          {1536, 1540}, {1807, 1807}, {6068, 6069},   {8204, 8207},
                                          {8232, 8239}, {8288, 8303}, {65279, 65279}, {65520, 65535}};
    for (const auto& [first, last] : kRanges) {
      for (uint c = first; c <= last; ++c)
        QCOMPARE(JSONItem::text(QChar(c)).ToString(), "\"\\u" + QByteArray::number(c, 16).rightJustified(4, '0') + '"');
      for (const uint c : {first - 1, last + 1})
        if (c >= 32 && c <= 65535)
          QCOMPARE(JSONItem::text(QChar(c)).ToString(), (u'"' + QString(QChar(c)) + u'"').toUtf8());
    }
  }

  void shortEscapes_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("written");
    QTest::newRow("path, quote and backslash") << u"/in\"\\"_s << "\"\\/in\\\"\\\\\""_ba;
    QTest::newRow("control characters") << u"\r\n\t\b\f"_s << "\"\\r\\n\\t\\b\\f\""_ba;
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
    QTest::newRow("minus zero") << -0.0 << u"0.0"_s;
    QTest::newRow("whole seconds") << 1700000000.0 << u"1700000000.0"_s;
    QTest::newRow("fraction of a second") << 1700000000.1234567 << u"1700000000.1234567"_s;
    QTest::newRow("negative") << -2.25 << u"-2.25"_s;
    QTest::newRow("15 decimals at most") << 1.0 / 3 << u"0.333333333333333"_s;
    QTest::newRow("rounded up into the whole part") << 0.99999999999999989 << u"1.0"_s;
    QTest::newRow("too small for the mask") << -1e-20 << u"0.0"_s;
    QTest::newRow("large, no exponent") << 1e22 << u"10000000000000000000000.0"_s;
    QTest::newRow("no number") << std::nan("") << u"0.0"_s;
  }
  void doublesFollowTheMask() {
    QFETCH(double, value);
    QTEST(decimalText(value), "text");
  }
};

VANTRY_TEST(tst_JSON);
#include "tst_JSON.moc"
