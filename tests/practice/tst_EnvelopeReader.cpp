#include <QCryptographicHash>

#include "practice/EnvelopeReader.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;

/// A service that takes what is no proper envelope would let a broken client pass.
class tst_EnvelopeReader : public QObject {
  Q_OBJECT
  static QByteArray envelope(const QByteArray& base64) {
    return "<?xml version=\"1.0\"?>\n<e:Envelope xmlns:e=\"http://schemas.xmlsoap.org/soap/envelope/\"><e:Header>"
           "<Authenticate><Username>me</Username><Password>x</Password></Authenticate></e:Header><e:Body><SendIWFile>"
           "<File><Filename>a &amp; b &lt;\xc3\xbc&gt;.cxf</Filename><ITWorkflowName>T</ITWorkflowName><Base64string>" +
           base64 + "</Base64string></File></SendIWFile></e:Body></e:Envelope>";
  }
  static SoapRequest read(const QByteArray& body, qsizetype piece) {
    EnvelopeReader reader;
    for (qsizetype at = 0; at < body.size(); at += piece)
      reader.feed(QByteArrayView(body).sliced(at, qMin(piece, body.size() - at)));
    return reader.finish();
  }

 private slots:
  void readsTheSameInAnyPieces() {
    for (int length = 0; length <= 5; ++length) {
      const QByteArray content = QByteArray("\xff\x00L*a*", 6).first(length), body = envelope(content.toBase64());
      for (qsizetype piece = 1; piece <= body.size(); ++piece) {
        const SoapRequest request = read(body, piece);
        QCOMPARE(request.fault, QString());
        QVERIFY(request.method == "SendIWFile" && request.login == u"me"_s && request.itWorkflowName == u"T"_s);
        QCOMPARE(request.fileName, u"a & b <ü>.cxf"_s);
        QCOMPARE(request.contentSize, content.size());
        QCOMPARE(request.contentSha256, QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex());
      }
    }
  }

  void findsEveryFault() {
    const QByteArray good = envelope("AAAA");
    const auto changed = [&](const char* from, const QByteArray& to) { return QByteArray(good).replace(from, to); };
    QList<std::pair<QByteArray, QString>> rows = {
        {{}, u"not well-formed"_s},
        {changed("&amp;", "&"), u"not well-formed"_s},
        {good.chopped(5), u"not well-formed"_s},
        {good + "x", u"not well-formed"_s},
        {changed("\xc3\xbc", "\xff"), u"not well-formed"_s},
        {changed("?>\n", "?>\n<!DOCTYPE x [<!ENTITY e 'y'>]>"), u"document type"_s},
        {"<html><Body><SendFile/></Body></html>", u"not a SOAP"_s},
        {changed("e:Body", "e:Header"), u"No method"_s},
        {changed("</SendIWFile>", "</SendIWFile><TrackList/>"), u"more than one"_s},
        {changed("a &amp;", QByteArray(2 << 20, 'a')), u"too long"_s},
        {good + QByteArray(2 << 20, ' '), u"too long"_s},
        {changed("AAAA", "AAA"), u"cut off"_s}};
    for (const char* base64 :
         {"AAAA\nAAAA", "AAAA ", "AA-_", "AA==AAAA", "AAA=A", "====", "A===", "AA=A", "AAB=", "AB==", "AA\xc3\xa4"})
      rows.append({changed("AAAA", base64), {}});
    for (const auto& [body, words] : rows)
      for (const qsizetype piece : {1000, 1 << 20}) {
        const QString fault = read(body, piece).fault;
        QVERIFY2(!fault.isEmpty() && fault.contains(words), body.right(150) + qPrintable(fault));
      }
  }
};

VANTRY_TEST(tst_EnvelopeReader);
#include "tst_EnvelopeReader.moc"
