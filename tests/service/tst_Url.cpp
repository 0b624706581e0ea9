#include <QTest>

#include "service/Url.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;

class tst_Url : public QObject {
  Q_OBJECT
 private slots:
  void parts_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("parts");  // server part | host | port | path; empty: refused
    QTest::newRow("a whole address") << u"https://svc.example/api/v1"_s << u"svc.example|svc.example|443|/api/v1"_s;
    QTest::newRow("no path goes to the root") << u"https://svc.example"_s << u"svc.example|svc.example|443|/"_s;
    QTest::newRow("no scheme") << u"svc.example/api"_s << u"svc.example|svc.example|443|/api"_s;
    QTest::newRow("another scheme is not looked at") << u"ftp://svc.example/"_s << u"svc.example|svc.example|443|/"_s;
    QTest::newRow("a port") << u"http://a.example:8443/x"_s << u"a.example:8443|a.example|8443|/x"_s;
    QTest::newRow("an empty port is the usual one") << u"https://a.example:/x"_s << u"a.example:|a.example|443|/x"_s;
    QTest::newRow("a third field is of no account") << u"a.example:90:17"_s << u"a.example:90:17|a.example|90|/"_s;
    QTest::newRow("a numeric IPv6 host") << u"https://[::1]:8443/api"_s << u"[::1]:8443|::1|8443|/api"_s;
    QTest::newRow("an IPv6 host without port") << u"https://[::1]"_s << u"[::1]|::1|443|/"_s;
    QTest::newRow("a query stays in the path") << u"https://a/b?c=d:e"_s << u"a|a|443|/b?c=d:e"_s;
    QTest::newRow("a line end behind the address is dropped") << u" https://a/api\n"_s << u"a|a|443|/api"_s;
    QTest::newRow("a line end within it is refused") << u"https://a/api\r\nX-Evil: 1"_s << QString();
    QTest::newRow("a blank within it is refused") << u"https://a/my api"_s << QString();
    QTest::newRow("a port that is no number is refused") << u"https://user:secret@a/"_s << QString();
    QTest::newRow("port 0 is refused") << u"https://a:0/"_s << QString();
    QTest::newRow("a port beyond 65535 is refused") << u"https://a:65536/"_s << QString();
    QTest::newRow("no host is refused") << u"https:///api"_s << QString();
    QTest::newRow("nothing is refused") << QString() << QString();
    QTest::newRow("an open bracket is refused") << u"https://[::1/api"_s << QString();
  }
  void parts() {
    QFETCH(QString, text);
    QFETCH(QString, parts);
    const auto url = Url::parse(text, 443);
    const QString found = url ? u"%1|%2|%3|%4"_s.arg(QString::fromUtf8(url->serverPart), url->host)
                                    .arg(url->port)
                                    .arg(QString::fromUtf8(url->path))
                              : QString();
    QCOMPARE(found, parts);
  }
};

VANTRY_TEST(tst_Url);
#include "tst_Url.moc"
