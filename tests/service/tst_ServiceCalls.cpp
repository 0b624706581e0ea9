#include <QCryptographicHash>

#include "practice/PracticeProxy.h"
#include "practice/PracticeService.h"
#include "service/VTInstrumentTrack.h"
#include "service/VTTrack.h"
#include "service/VantryUtil.h"
#include "storage/Preferences.h"
#include "support/TemporaryHome.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;
using namespace VantryUtil;
using Phase = HttpFailure::Phase;

static const QString Login = u"colour & <co>"_s, Password = u"gr\u00fcn"_s;

/// The envelope around these lines as the service's interface tells it; "|" stands for a tab.
static QByteArray envelope(const QByteArray& lines, const QByteArray& login = "colour &amp; &lt;co&gt;") {
  const QByteArray hash = QCryptographicHash::hash(Password.toUtf8(), QCryptographicHash::Sha256).toHex();
  QByteArray text =
      "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
      "<SOAP-ENV:Envelope xmlns:SOAP-ENV=\"http://schemas.xmlsoap.org/soap/envelope/\"  "
      "xmlns:xsd=\"http://www.w3.org/2001/XMLSchema\" xmlns:SOAP-ENC=\"http://schemas.xmlsoap.org/soap/encoding/\" "
      "SOAP-ENV:encodingStyle=\"http://schemas.xmlsoap.org/soap/encoding/\">\n"
      "<SOAP-ENV:Header>\n|<Authenticate>\n||<Username>" +
      login + "</Username>\n||<Password>" + hash +
      "</Password>\n|</Authenticate>\n</SOAP-ENV:Header>\n<SOAP-ENV:Body>\n" + lines +
      "</SOAP-ENV:Body>\n</SOAP-ENV:Envelope>";
  return text.replace('|', '\t');
}

class tst_ServiceCalls : public QObject {
  Q_OBJECT
  std::optional<TemporaryHome> m_home;
  std::optional<PracticeService> m_service;
  QString m_err;
  SendFileWatch m_watch;

  std::optional<FolderItem> makeFile(const QByteArray& content) {
    m_home->writeFile(u"in/scan.txt"_s, content);
    const FolderItem file = m_home->item(u"in/scan.txt"_s);
    m_watch.version = *versionOf(file);
    return file;
  }

 private slots:
  void init() {
    m_home.emplace();
    PracticeService::Options options;
    options.login = Login;
    options.password = Password;
    m_service.emplace(options);
    QVERIFY2(m_service->start(), qPrintable(m_service->errorString()));
    setExtraCaFile(m_service->caFile());
    setAccountURL(m_service->url());
    prefs = std::make_shared<DictionaryFile>();
    prefs->setStringValue(u"SoapLogin"_s, u" \t"_s + Login + u' ');
    prefs->setStringValue(u"SoapPassword"_s, Password + u'\n');
    m_err = u"as it was"_s;
    m_watch = {};
  }
  void cleanup() {
    prefs.reset();
    setAccountURL({});
    setExtraCaFile({});
    setProxy({});
  }

  void theStoredLoginIsTrimmedAndAnArgumentIsNot() {
    QVERIFY(VTSoap(u"TrackList"_s, m_err, {}, {}));
    QCOMPARE(m_err, QString());
    QVERIFY(!VTSoap(u"TrackList"_s, m_err, Login + u' ', Password));
    QCOMPARE(m_err, u"E009"_s);
    QCOMPARE(m_service->requests().value(1).login, Login + u' ');
    QCOMPARE(m_service->requests().value(1).body, envelope("|<TrackList/>\n", "colour &amp; &lt;co&gt; "));
  }

  void filesArriveInTheEnvelopeByteForByte() {
    const QList<int> sizes{1000, 0, 1, 2, 49'151, 49'152, 49'153, 150'000};
    for (const int size : sizes) {
      const bool instrumentJob = size == 1000;
      qint64 reported = 0;
      m_watch.progress = [&](qint64 sent, qint64 total) {
        QVERIFY(total == size && sent <= total && sent > reported && sent - reported <= 48 << 10);
        reported = sent;
      };
      m_service->forgetReceived();
      QByteArray content(size, '\n');
      for (qsizetype i = 0; i < size; ++i) content[i] = static_cast<char>(i % 256);
      const QString name = u"[FILEBODY] <R&D> [login]\"'\u00df.txt"_s;
      const QString workflow =
          instrumentJob ? PracticeService::knownInstrumentTrack() : PracticeService::knownPrintTrack();
      const auto reply = SendFile(name, workflow, makeFile(content), instrumentJob, m_err, m_watch);
      QVERIFY2(reply && m_err.isEmpty(), qPrintable(m_err + m_watch.failure.detail));
      QCOMPARE(reply->Keys(), QStringList{u"SendFile"_s});
      QVERIFY(!m_watch.fileChanged && !m_watch.failure.failed() && reported == size);
      m_watch.progress = {};
      const PracticeReceipt receipt = m_service->receipts().value(0);
      QVERIFY(receipt.name == name && receipt.destination == workflow && receipt.content == content);
      const QByteArray method = instrumentJob ? "SendIWFile" : "SendFile";
      const QByteArray field = instrumentJob ? "ITWorkflowName" : "Trackname";
      const PracticeRequest request = m_service->requests().value(0);
      QCOMPARE(request.body, envelope("|<" + method +
                                      ">\n||<File>\n|||<Filename>[FILEBODY] &lt;R&amp;D&gt; [login]\"'"
                                      "\u00df.txt</Filename>\n|||<" +
                                      field + ">" + workflow.toUtf8() + "</" + field + ">\n|||<Base64string>" +
                                      content.toBase64() + "</Base64string>\n|||</File>\n||</" + method + ">\n"));
      QCOMPARE(QString::fromLatin1(request.head),
               u"POST /api HTTP/1.0\r\nAccept: */*\r\nAccept-Language: en\r\nHost: localhost:%1\r\n"
               "Content-type: text/xml; charset=utf-8\r\nContent-length: %2\r\n\r\n"_s.arg(m_service->port())
                   .arg(request.body.size()));
    }
    for (const bool instrumentJob : {false, true}) {
      QVERIFY(!SendFile(u"a.txt"_s, u"nowhere"_s, makeFile("abc"), instrumentJob, m_err, m_watch));
      QCOMPARE(m_err, instrumentJob ? u"E102"_s : u"E008"_s);
      QVERIFY(!m_watch.failure.failed());
    }
  }

  void whileTheAccountsEndpointIsBlankCallsGoToTheDefaultOne() {
    PracticeProxy proxy;
    QVERIFY(proxy.start());
    proxy.setBehaviour({.kind = PracticeProxy::Behaviour::Kind::Close});
    setProxy({u"127.0.0.1"_s, proxy.port()});
    setAccountURL(u" "_s);
    QVERIFY(!SendFile(u"a"_s, u"b"_s, makeFile("abc"), false, m_err, m_watch));
    const QByteArray server = DefaultAPIEndpoint().section(u'/', 2, 2).toLatin1();
    QVERIFY(proxy.heads().value(0).startsWith("CONNECT " + server + ' '));
  }

  void cataloguesAreEmptiedByAFailureAndAskedForAgain() {
    QVERIFY(TrackList() && InstrumentTrackList());
    QVERIFY(VTInstrumentTrack::GetTrackWithName(PracticeService::knownInstrumentTrack()));
    m_service->stop();
    HttpFailure failure;
    QVERIFY(!TrackList(&failure) && !InstrumentTrackList() && failure.phase == Phase::Connect);
    QVERIFY(VTTrack::Tracks().isEmpty() && VTInstrumentTrack::Tracks().isEmpty());
    QVERIFY(!VTTrack::everFetched() && !VTInstrumentTrack::everFetched());
  }

  void lookupsTakeTheFirstMatchInAnyCaseOfWholeIdentities() {
    const auto json = JSONStringtoDictionary(
        u"[{'Device':'B','TrackName':'Day','TrackWorkflowName':'1','Backing':7},"
        "{'Device':'b','TrackName':'DAY','TrackWorkflowName':'3'},"
        "{'Device':'b','TrackName':'Night','TrackWorkflowName':'4','Other':1},{}]"_s.replace(u'\'', u'"'));
    QList<VTTrack> tracks;
    for (const QVariant& record : json->Values()) tracks << VTTrack(JSONtoDictionary(record.value<JSONItem>()));
    VTTrack::setTracks(tracks);
    QCOMPARE(tracks.value(0).Backing, u"7"_s);
    QCOMPARE(VTTrack::ListDevices(), (QStringList{u"B"_s, QString()}));
    QCOMPARE(VTTrack::GetTracksForDevice(u"b"_s), (QStringList{u"Day"_s, u"Night"_s}));
    QCOMPARE(VTTrack::GetTrackWorkflowNameForDeviceAndTrack(u"b"_s, u"dAY"_s), u"1"_s);
    QVERIFY(!VTTrack::getTrackwithWorkflowName(u"5"_s));
    VTTrack::setTracks({});
    QList<VTInstrumentTrack> instruments(2);
    for (VTInstrumentTrack& track : instruments) track.InstrumentName = track.TargetName = u"Meter"_s;
    instruments[1].InstrumentSerial = instruments[1].ITWorkflowName = u"2"_s;
    VTInstrumentTrack::setTracks(instruments);
    QCOMPARE(VTInstrumentTrack::InstrumentNames(), (QStringList{u"Meter "_s, u"Meter 2"_s}));
    QCOMPARE(VTInstrumentTrack::GetITWorkflowNameForInstrumentAndTarget(u"meter 2"_s, u"METER "_s), u"2"_s);
    QCOMPARE(VTInstrumentTrack::GetITWorkflowNameForInstrumentAndTarget(u"Meter"_s, u"Meter "_s), QString());
    VTInstrumentTrack::setTracks({});
  }
};

VANTRY_TEST(tst_ServiceCalls);
#include "tst_ServiceCalls.moc"
