#include <QTest>

#include "service/ReplyParser.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;
using State = ReplyParser::State;

class tst_ReplyParser : public QObject {
  Q_OBJECT
 private:
  static QString outcome(ReplyParser& parser) {
    const char* const names[] = {"Head", "Body", "Complete", "TooLarge", "BadLength"};
    const auto name = QLatin1StringView(names[static_cast<int>(parser.state())]);
    return u"%1 %2 %3"_s.arg(parser.status()).arg(name, QString::fromLatin1(parser.takeBody()));
  }

 private slots:
  void everyReplyAtEverySplit_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* label, const QByteArray& bytes, const QString& expected) {
      QTest::newRow(label) << bytes << expected;
    };
    row("lines ended by CR LF", "HTTP/1.0 200 OK\r\nContent-length: 3\r\n\r\nabc", u"200 Complete abc"_s);
    row("lines ended by LF", "HTTP/1.0 200 OK\nContent-Length: 3\n\nabc", u"200 Complete abc"_s);
    row("lines ended by CR", "HTTP/1.0 200 OK\rcontent-length:3\r\rabc", u"200 Complete abc"_s);
    row("a CR LF body behind a head of LF", "HTTP/1.0 200\n\n\r\n\r\nx", u"200 Body \r\n\r\nx"_s);
    row("an LF body behind a head of CR", "HTTP/1.0 200\r\r\n\nx", u"200 Body \n\nx"_s);
    row("no length: until the connection ends", "HTTP/1.0 500 No\r\n\r\nabc", u"500 Body abc"_s);
    row("bytes behind the length are dropped", "HTTP/1.0 200 OK\r\nContent-length: 2\r\n\r\nabc", u"200 Complete ab"_s);
    row("an empty body", "HTTP/1.0 200 OK\r\nContent-length: 0\r\n\r\n", u"200 Complete "_s);
    row("two lengths that agree", "HTTP/1.0 200 A\nContent-length: 3\nContent-length: 3\n\nabc", u"200 Complete abc"_s);
    row("two lengths in one field", "HTTP/1.0 200 A\nContent-length: 3, 3\n\nabc", u"200 Complete abc"_s);
    row("two lengths that differ", "HTTP/1.0 200 A\nContent-length: 3\nContent-length: 4\n\nabc", u"200 BadLength "_s);
    row("a negative length", "HTTP/1.0 200 OK\nContent-length: -3\n\nabc", u"200 BadLength "_s);
    row("a length with a sign", "HTTP/1.0 200 OK\nContent-length: +3\n\nabc", u"200 BadLength "_s);
    row("a length that is no number", "HTTP/1.0 200 OK\nContent-length: 0x3\n\nabc", u"200 BadLength "_s);
    row("an empty length", "HTTP/1.0 200 OK\nContent-length:\n\nabc", u"200 BadLength "_s);
    row("a length beyond 64 bits", "HTTP/1.0 200 OK\nContent-length: 18446744073709551619\n\nabc", u"200 TooLarge "_s);
    row("a length beyond the limit", "HTTP/1.0 200 OK\nContent-length: 101\n\nabc", u"200 TooLarge "_s);
    row("chunks are not decoded", "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n3\r\nabc\r\n0\r\n\r\n",
        u"200 Body 3\r\nabc\r\n0\r\n\r\n"_s);
    row("interim heads are passed over", "HTTP/1.1 100 Continue\r\n\r\nHTTP/1.1 102 W\n\nHTTP/1.1 201 C\r\n\r\nabc",
        u"201 Body abc"_s);
    row("a redirect is a page", "HTTP/1.0 302 Found\r\nLocation: /x\r\nContent-length: 1\r\n\r\n!",
        u"302 Complete !"_s);
    row("a first line without a number", "hello world\r\n\r\nabc", u"0 Body abc"_s);
    row("a head that doesn't end", "HTTP/1.0 200 OK\r\nContent-length: 3\r\n", u"0 Head "_s);
    row("a head beyond the limit", "HTTP/1.0 200 OK\r\nX: " + QByteArray(300, 'x') + "\r\n\r\nabc", u"0 TooLarge "_s);
    row("interim heads beyond the limit", QByteArray("HTTP/1.1 100 C\r\n\r\n").repeated(20), u"0 TooLarge "_s);
    row("a body beyond the limit", "HTTP/1.0 200 OK\r\n\r\n" + QByteArray(101, 'x'),
        u"200 TooLarge "_s + QString(100, u'x'));
  }
  void everyReplyAtEverySplit() {
    QFETCH(QByteArray, bytes);
    QFETCH(QString, expected);
    const HttpLimits limits{100, 256};
    for (qsizetype split = 0; split <= bytes.size(); ++split) {
      ReplyParser parser(limits);
      parser.feed(QByteArrayView(bytes).first(split));
      parser.feed(QByteArrayView(bytes).sliced(split));
      QCOMPARE(outcome(parser), expected);
    }
    ReplyParser parser(limits);
    for (const char& byte : bytes) parser.feed(QByteArrayView(&byte, 1));
    QCOMPARE(outcome(parser), expected);
  }
  void headersKeepTheirOrderAndContinuationLinesBelongToTheOneBefore() {
    ReplyParser parser({});
    parser.feed("HTTP/1.0 200 OK\r\nB: 1\r\nA:  two\r\n\t lines \r\nb: 3\r\n\r\n");
    const QList<std::pair<QByteArray, QByteArray>> expected = {{"B", "1"}, {"A", "two lines"}, {"b", "3"}};
    QCOMPARE(parser.headers().fields(), expected);
    QCOMPARE(parser.headers().value("a"), QByteArray("two lines"));
  }
};

VANTRY_TEST(tst_ReplyParser);
#include "tst_ReplyParser.moc"
