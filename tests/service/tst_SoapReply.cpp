#include <QTest>

#include "service/SoapReply.h"
#include "service/VantryUtil.h"
#include "service/XmlDocument.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;
using Phase = HttpFailure::Phase;
Q_DECLARE_METATYPE(HttpFailure::Phase)

class tst_SoapReply : public QObject {
  Q_OBJECT
 private:
  static QByteArray page(const QByteArray& returnText) {
    return "<?xml version=\"1.0\"?><e:Envelope><e:Body><r><return>" + returnText +
           "</return></r></e:Body></e:Envelope>";
  }
  static QByteArray nested(int depth, const QByteArray& inner) {
    return QByteArray("<a>").repeated(depth) + inner + QByteArray("</a>").repeated(depth);
  }
  /// "key=value;…" of a dictionary, or "nil" and the error text.
  static QString outcome(const QByteArray& bytes, const SoapReplyTexts& texts, const HttpFailure& failure = {}) {
    QString err = u"as it was"_s;
    const auto reply = readSoapReply(bytes, failure, u"Method"_s, texts, err);
    if (!reply) return u"nil, "_s + err;
    QStringList entries;
    for (const QString& key : reply->Keys()) entries << key + u'=' + reply->Value(key).toString();
    return entries.join(u';') + err;
  }

 private slots:
  void replies_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("ofCall");
    QTest::addColumn<QString>("ofFile");  // empty: the same
    const auto row = [](const char* label, const QByteArray& bytes, const QString& ofCall, const QString& ofFile = {}) {
      QTest::newRow(label) << bytes << ofCall << (ofFile.isEmpty() ? ofCall : ofFile);
    };
    const QString notXml = u"nil, Could not parse server response - invalid or missing XML"_s;
    const QString notJson = u"nil, Could not parse server response - invalid JSON"_s;
    row("a plain text", page("https://a/api"), u"Method=https://a/api"_s);
    row("a plain number", page("42"), u"Method=42"_s);
    row("an array of numbers is a plain text", page("[1,2]"), u"Method=[1,2]"_s);
    row("JSON behind a blank is a plain text", page(" {}"), u"Method= {}"_s);
    row("an object", page("{\"b\":1,\"a\":\"x\"}"), u"b=1;a=x"_s);
    row("an array of objects", page("[{\"a\":1},{}]"), u"1=;2="_s);
    row("digits of numbers are kept", page("{\"a\":12345678901234567890,\"b\":1.10,\"d\":-0.5,\"e\":true}"),
        u"a=12345678901234567890;b=1.10;d=-0.5;e=true"_s);
    row("a code", page("E008"), u"nil, E008"_s);
    row("a word with e is a code", page("everything is fine"), u"nil, everything is fine"_s);
    row("an object that isn't", page("{\"a\":"), notJson);
    row("an array that isn't", page("[{]"), notJson);
    row("JSON that is too deep", page("{\"a\":" + QByteArray("[").repeated(70) + QByteArray("]").repeated(70) + "}"),
        notJson);
    row("an empty return", page(""), u"nil, err"_s, u"nil, Soap Error"_s);
    row("a return of white space alone", page(" \n\t"), u"nil, err"_s, u"nil, Soap Error"_s);
    row("no return", "<a><b>text</b></a>", u"nil, err"_s, u"nil, Soap Error"_s);
    row("HTML that isn't XML", "<html><body><br></body></html>", u"nil, as it was"_s, notXml);
    row("a reply cut short", page("OK").chopped(3), u"nil, as it was"_s, notXml);
    row("text behind the root", page("OK") + "x", u"nil, as it was"_s, notXml);
    row("a document type", "<!DOCTYPE a [<!ENTITY x \"OK\">]><a><return>&x;</return></a>", u"nil, as it was"_s, notXml);
    row("entities that grow without bound",
        "<!DOCTYPE a [<!ENTITY b \"bbbbbbbbbb\"><!ENTITY c \"&b;&b;&b;&b;&b;&b;\"><!ENTITY d \"&c;&c;&c;&c;&c;\">]>"
        "<a><return>&d;</return></a>",
        u"nil, as it was"_s, notXml);
    row("255 elements deep", nested(255, "<return>OK</return>"), u"Method=OK"_s);
    row("257 elements deep", nested(256, "<return>OK</return>"), u"nil, as it was"_s, notXml);
    row("a million elements deep", nested(1'000'000, "<return>OK</return>"), u"nil, as it was"_s, notXml);
    row("white space alone", " \r\n\t", u"nil, as it was"_s);
    row("nothing", "", u"nil, as it was"_s);
    // Which `return` it is.
    row("in capitals", "<a><RETURN>OK</RETURN></a>", u"Method=OK"_s);
    row("of another prefix is another name", "<a><x:return>OK</x:return></a>", u"nil, err"_s, u"nil, Soap Error"_s);
    row("the first with a child", "<a><b><return/></b><return>1st</return><return>2nd</return></a>", u"Method=1st"_s);
    row("one that holds an element is passed over", "<a><return><b>x</b></return><c><return>OK</return></c></a>",
        u"Method=OK"_s);
    row("comments and instructions are no children", "<a><return><!-- c --><?p i?>OK<!-- c -->!</return></a>",
        u"Method=OK!"_s);
    row("a character section belongs to the text", "<a><return>O<![CDATA[K & <]]>!</return></a>", u"Method=OK & <!"_s);
    row("entities of XML are read", page("a &amp; b &#x263A;"), u"Method=a & b \u263a"_s);
    row("in UTF-16", QByteArray("\xff\xfe<\0r\0e\0t\0u\0r\0n\0>\0O\0<\0/\0r\0e\0t\0u\0r\0n\0>\0", 38), u"Method=O"_s);
  }
  void replies() {
    QFETCH(QByteArray, bytes);
    QFETCH(QString, ofCall);
    QFETCH(QString, ofFile);
    QCOMPARE(outcome(bytes, {std::nullopt, u"err"_s}), ofCall);
    QCOMPARE(outcome(bytes, {u"Could not parse server response - invalid or missing XML"_s, u"Soap Error"_s}), ofFile);
  }

  void aSuccessIsOnlyBelievedFromAWholeExchangeWithTheService_data() {
    QTest::addColumn<HttpFailure::Phase>("phase");
    QTest::addColumn<bool>("believed");
    QTest::newRow("a whole exchange") << Phase::None << true;
    QTest::newRow("the goodbye is missing, the page is whole") << Phase::Reply << true;
    QTest::newRow("the page of a proxy") << Phase::Proxy << false;
    QTest::newRow("an answer to half a request") << Phase::Request << false;
    QTest::newRow("a file that could not be read") << Phase::Source << false;
  }
  void aSuccessIsOnlyBelievedFromAWholeExchangeWithTheService() {
    QFETCH(HttpFailure::Phase, phase);
    QFETCH(bool, believed);
    const HttpFailure failure{phase, 0, {}};
    QCOMPARE(outcome(page("OK"), {std::nullopt, u"err"_s}, failure), believed ? u"Method=OK"_s : u"nil, as it was"_s);
    QCOMPARE(outcome(page("E009"), {std::nullopt, u"err"_s}, failure), u"nil, E009"_s);
  }

  void errorCodes_data() {
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("text");
    QTest::newRow("none") << QString() << QString();
    QTest::newRow("in lower case") << u"e010"_s << u"No tracks found."_s;
    QTest::newRow("the last of the table") << u"E103"_s << u"Measured file does not have required list of patches."_s;
    QTest::newRow("an unknown one") << u"E999"_s << u"Unknown Error"_s;
    QTest::newRow("with more behind it") << u"E010 "_s << u"Unknown Error"_s;
    QTest::newRow("another text") << u"Soap Error"_s << u"Unknown Error"_s;
  }
  void errorCodes() {
    QFETCH(QString, code);
    QTEST(VantryUtil::errToString(code), "text");
  }
};

VANTRY_TEST(tst_SoapReply);
#include "tst_SoapReply.moc"
