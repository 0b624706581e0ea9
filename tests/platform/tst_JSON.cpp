#include <cmath>

#include "platform/JSONItem.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;

class tst_JSON : public QObject {
  Q_OBJECT
 private slots:
  void orderDigitsAndTextAreKeptAndTheLastOfEqualNamesHolds() {
    const auto item = JSONItem::parse(
        " {\"z\" :1,\t\"a\":2,\"m\":[1.10, "
        "1E+5,-0,\r\n12345678901234567890123],\"a\":[true,null,\"\\ud83d\\ude00\"]} ");
    QCOMPARE(item.value_or(JSONItem()).ToString(),
             "{\"z\":1,\"a\":[true,null,\"\xf0\x9f\x98\x80\"],\"m\":[1.10,1E+5,-0,12345678901234567890123]}"_ba);
  }

  void whatIsNoJsonIsRefused() {
    const QByteArray many = '[' + "1,"_ba.repeated(1'000'000) + "1]";
    for (const QByteArray& text :
         {""_ba, "{} x"_ba, QByteArray("{}\0", 3), "{\"a\":1"_ba, "[1,]"_ba, "[01]"_ba, "[1e400]"_ba, "[1/*x*/]"_ba,
          "[\"\\ud83d\"]"_ba, "[\"\\ude00\"]"_ba, "[\"\xc0\xaf\"]"_ba, "[\"\xed\xa0\x80\"]"_ba, many}) {
      QString error;
      QVERIFY2(!JSONItem::parse(text, &error) && !error.isEmpty(), text.left(20).constData());
    }
  }

  void nestingIsHeldTo64() {
    for (const int depth : {64, 65, 100'000}) {
      QCOMPARE(JSONItem::parse("["_ba.repeated(depth) + "]"_ba.repeated(depth)).has_value(), depth == 64);
      const QByteArray objects = "{\"a\":"_ba.repeated(depth) + '1' + "}"_ba.repeated(depth);
      QCOMPARE(JSONItem::parse(objects).has_value(), depth == 64);
    }
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

  void whatWouldNotBeSeenIsEscaped() {
    QCOMPARE(JSONItem::text(u"/in\"\\"_s).ToString(), "\"\\/in\\\"\\\\\""_ba);
    QCOMPARE(JSONItem::text(u"\r\n\t\b\f"_s).ToString(), "\"\\r\\n\\t\\b\\f\""_ba);
    QCOMPARE(JSONItem::text(u"ä😀"_s).ToString(), "\"\xc3\xa4\xf0\x9f\x98\x80\""_ba);
    QCOMPARE(JSONItem::text(u"\x7f\u00ad\u200b\u200f\ufeff\uffff"_s).ToString(),
             "\"\\u007f\\u00ad\xe2\x80\x8b\\u200f\\ufeff\\uffff\""_ba);
    QCOMPARE(JSONItem::text(QChar(0xd83d)).ToString(), "\"\\ufffd\""_ba);
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

  void doublesFollowTheMask() {
    QStringList texts;
    for (const double value :
         {-0.0, 17e8, 1700000000.1234567, 1.0 / 3, 0.99999999999999989, -1e-20, 1e22, std::nan("")})
      texts << decimalText(value);
    QCOMPARE(texts.join(u' '),
             u"0.0 1700000000.0 1700000000.1234567 0.333333333333333 1.0 0.0 "
             "10000000000000000000000.0 0.0"_s);
  }
};

VANTRY_TEST(tst_JSON);
#include "tst_JSON.moc"
