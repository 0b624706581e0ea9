#include <QTest>

#include "service/Envelope.h"
#include "service/VantryUtil.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;

// The lines as the service's interface tells them; "|" stands for a tab.
static const char CommonLines[] =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<SOAP-ENV:Envelope xmlns:SOAP-ENV=\"http://schemas.xmlsoap.org/soap/envelope/\"  "
    "xmlns:xsd=\"http://www.w3.org/2001/XMLSchema\" xmlns:SOAP-ENC=\"http://schemas.xmlsoap.org/soap/encoding/\" "
    "SOAP-ENV:encodingStyle=\"http://schemas.xmlsoap.org/soap/encoding/\">\n"
    "<SOAP-ENV:Header>\n"
    "|<Authenticate>\n"
    "||<Username>[login]</Username>\n"
    "||<Password>[password]</Password>\n"
    "|</Authenticate>\n"
    "</SOAP-ENV:Header>\n"
    "<SOAP-ENV:Body>\n";
static const char SoapLines[] =
    "|<[method]/>\n"
    "</SOAP-ENV:Body>\n"
    "</SOAP-ENV:Envelope>";
static const char SendFileLines[] =
    "|<[SendFile]>\n"
    "||<File>\n"
    "|||<Filename>[FILENAME]</Filename>\n"
    "|||<[Trackname]>[TRACKWORKFLOWNAME]</[Trackname]>\n"
    "|||<Base64string>[FILEBODY]</Base64string>\n"
    "|||</File>\n"
    "||</[SendFile]>\n"
    "</SOAP-ENV:Body>\n"
    "</SOAP-ENV:Envelope>";

class tst_Envelope : public QObject {
  Q_OBJECT
 private slots:
  void templates_data() {
    QTest::addColumn<QByteArray>("found");
    QTest::addColumn<QByteArray>("lines");
    QTest::addColumn<int>("size");
    QTest::newRow("of a call") << VantryUtil::soapTemplate() << QByteArray(CommonLines) + SoapLines << 491;
    QTest::newRow("of a file") << VantryUtil::sendFileTemplate() << QByteArray(CommonLines) + SendFileLines << 656;
  }
  void templates() {
    QFETCH(QByteArray, found);
    QFETCH(QByteArray, lines);
    QFETCH(int, size);
    QCOMPARE(found, lines.replace('|', '\t'));
    QCOMPARE(found.size(), size);
  }
  void aPlaceholderInAValueStays() {
    const QByteArray filled = Envelope::fill("[a][b] [c] [a]", {{"[a]", "[b]"}, {"[b]", "[a][x]"}, {"[x]", "wrong"}});
    QCOMPARE(filled, QByteArray("[b][a][x] [c] [b]"));
  }
  void onlyTheMarkupOfXmlIsEscaped() {
    QCOMPARE(Envelope::escaped(u"<a & b>\"'\u00e4;"_s), QByteArray("&lt;a &amp; b&gt;\"'\xc3\xa4;"));
  }
  void thePasswordGoesOutAsItsSha256() {
    QCOMPARE(Envelope::passwordField({}),
             QByteArray("e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855"));
    QCOMPARE(Envelope::passwordField(u"p\u00e4ss"_s),
             QByteArray("73c2e2fd2aec66e50135a01b2a007fcc23e4d35010637f98541e453a8665d25d"));
  }
};

VANTRY_TEST(tst_Envelope);
#include "tst_Envelope.moc"
