// What the replies of the service, and of the host of updates, mean.

#include "service/SoapReply.h"
#include "service/UpdateReply.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;
using Phase = HttpFailure::Phase;

class tst_SoapReply : public QObject {
  Q_OBJECT
  static QByteArray page(const QByteArray& returnText) {
    return "<?xml version=\"1.0\"?><e:Envelope><e:Body><r><return>" + returnText +
           "</return></r></e:Body></e:Envelope>";
  }
  static QByteArray nested(int depth) {
    return QByteArray("<a>").repeated(depth) + "<return>OK</return>" + QByteArray("</a>").repeated(depth);
  }
  /// "key=value;…" of a dictionary, or "nil" and the error text.
  static QString outcome(const QByteArray& bytes, const SoapReplyTexts& texts, Phase phase = Phase::None) {
    QString err = u"as it was"_s;
    const auto reply = readSoapReply(bytes, {phase, 0, {}}, u"M"_s, texts, err);
    if (!reply) return u"nil, "_s + err;
    QStringList entries;
    for (const QString& key : reply->Keys()) entries << key + u'=' + reply->Value(key).toString();
    return entries.join(u';') + err;
  }

 private slots:
  void replies() {
    const QString notXml = u"Could not parse server response - invalid or missing XML"_s;
    const QString notJson = u"nil, Could not parse server response - invalid JSON"_s;
    const QString noReturn = u"nil, err"_s, unread = u"nil, as it was"_s;  // of a file: "Soap Error", and notXml
    const QByteArray entities = "<!DOCTYPE a [<!ENTITY b \"bbbbbbbbbb\"><!ENTITY c \"&b;&b;&b;&b;&b;&b;\">]>";
    const std::pair<QByteArray, QString> rows[] = {
        {page("[1,2]"), u"M=[1,2]"_s},
        {page(" {}"), u"M= {}"_s},
        {page("{\"b\":1,\"a\":\"x\"}"), u"b=1;a=x"_s},
        {page("[{\"a\":1},{}]"), u"1=;2="_s},
        {page("{\"a\":12345678901234567890,\"b\":1.10,\"e\":true}"), u"a=12345678901234567890;b=1.10;e=true"_s},
        {page("E008"), u"nil, E008"_s},
        {page("everything is fine"), u"nil, everything is fine"_s},
        {page("{\"a\":"), notJson},
        {page("{\"a\":" + QByteArray("[").repeated(70) + QByteArray("]").repeated(70) + "}"), notJson},
        {page(""), noReturn},
        {"<a><b>text</b></a>", noReturn},
        {"<html><body><br></body></html>", unread},
        {page("OK").chopped(3), unread},
        {"<!DOCTYPE a [<!ENTITY x \"OK\">]><a><return>&x;</return></a>", unread},
        {entities + "<a><return>&c;</return></a>", unread},
        {nested(255), u"M=OK"_s},
        {nested(1'000'000), unread},
        // Which `return` it is, and what its text is.
        {"<a><RETURN>OK</RETURN></a>", u"M=OK"_s},
        {"<a><x:return>OK</x:return></a>", noReturn},
        {"<a><b><return/></b><return>1st</return><return>2nd</return></a>", u"M=1st"_s},
        {"<a><return><b>x</b></return><c><return>OK</return></c></a>", u"M=OK"_s},
        {"<a><return><!-- c --><?p i?>OK<!-- c -->!</return></a>", u"M=OK!"_s},
        {"<a><return>O<![CDATA[K & <]]>!</return></a>", u"M=OK & <!"_s},
        {page("a &amp; b &#x263A;"), u"M=a & b \u263a"_s},
        {QByteArray("\xff\xfe<\0r\0e\0t\0u\0r\0n\0>\0O\0<\0/\0r\0e\0t\0u\0r\0n\0>\0", 38), u"M=O"_s}};
    for (const auto& [bytes, expected] : rows) {
      const QString ofFile = expected == noReturn ? u"nil, Soap Error"_s
                             : expected == unread ? u"nil, "_s + notXml
                                                  : expected;
      QCOMPARE(outcome(bytes, {std::nullopt, u"err"_s}), expected);
      QCOMPARE(outcome(bytes, {notXml, u"Soap Error"_s}), ofFile);
    }
    for (const char* nothing : {"", " \r\n\t"}) QCOMPARE(outcome(nothing, {notXml, u"Soap Error"_s}), unread);
  }

  // What would take gigabytes or hours to read is refused at once; as long a text is not.
  void replyOfBoundedEffort() {
    const auto many = [](int count, const QByteArray& piece) {
      return "<a><return>OK</return>" + piece.repeated(count);
    };
    QByteArray attributes;
    for (int i = 0; i < 20'000; ++i) attributes += " a" + QByteArray::number(i) + "='>'";
    QByteArray wide = "\xff\xfe";
    for (const char c : many(1, "<b" + attributes + "/>") + "</a>") wide += QByteArray(1, c) + '\0';
    const QString unread = u"nil, as it was"_s;
    const std::pair<QByteArray, QString> rows[] = {
        {many(200'000, "<b/>") + "</a>", unread},
        {many(20'000, "<b/>") + "</a>", u"M=OK"_s},
        {many(1, "<b" + attributes + "/>") + "</a>", unread},
        {"<!-- <b -->" + many(1, "<b" + attributes + "/>") + "</a>", unread},
        {wide, unread},
        {many(1, "<![CDATA[<b" + attributes + "/>]]><!--" + attributes + "--><?p" + attributes + "?>") + "</a>",
         u"M=OK"_s},
        {many(1, "<b c=\"" + QByteArray("=").repeated(5000) + "\"/>") + "</a>", u"M=OK"_s}};
    for (const auto& [bytes, expected] : rows) QCOMPARE(outcome(bytes, {std::nullopt, u"err"_s}), expected);
  }

  void anUpdateIsJudgedByItsNumbers() {
    const auto outcome = [](QByteArray json) {
      QString misfit;
      const auto offer = readUpdateReply(json.replace('\'', '"'), {2, 1, 1, 15}, misfit);
      return !offer ? misfit : offer->url.isEmpty() ? u"not newer"_s : u"newer"_s;
    };
    const QString odd = u"its version has not the form 1.2.3v4"_s;
    for (const auto& [versions, expected] :
         {std::pair(u"2.1.1v15 2.1.1v14 2.1.0v99 2.0.9v99 1.9.9v99"_s, u"not newer"_s),
          {u"2.1.1v100 2.1.2v1 2.2.0v0 3.0.0v0 Beta2.1.1v16."_s, u"newer"_s},
          {u"2.1.2 2.1.99999999999999999999v1"_s, odd}})
      for (const QString& version : versions.split(u' '))
        QCOMPARE(outcome("{'version':'" + version.toUtf8() + "','mac':'http://d/'}"), expected);
    QCOMPARE(outcome("{'version':'3.0.0v1'}"), u"there is no text \"mac\" in it"_s);
    QCOMPARE(outcome("{'version':3,'mac':''}"), u"there is no text \"version\" in it"_s);
  }

  void aSuccessIsOnlyBelievedFromAWholeExchangeWithTheService() {
    // The goodbye may be missing behind a whole page; a proxy, half a request or half a file never succeed.
    for (const Phase phase : {Phase::None, Phase::Reply, Phase::Proxy, Phase::Request, Phase::Source}) {
      const bool believed = phase == Phase::None || phase == Phase::Reply;
      QCOMPARE(outcome(page("OK"), {std::nullopt, u"err"_s}, phase), believed ? u"M=OK"_s : u"nil, as it was"_s);
      QCOMPARE(outcome(page("E009"), {std::nullopt, u"err"_s}, phase), u"nil, E009"_s);
    }
  }
};

VANTRY_TEST(tst_SoapReply);
#include "tst_SoapReply.moc"
