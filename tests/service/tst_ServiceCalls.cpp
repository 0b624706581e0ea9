#include <QCryptographicHash>
#include <QTest>
#include <optional>

#include "ScriptedServer.h"
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

class tst_ServiceCalls : public QObject {
  Q_OBJECT
 private:
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
  std::optional<Dictionary> send(const QByteArray& content, const QString& name = u"scan.txt"_s) {
    return SendFile(name, PracticeService::knownPrintTrack(), makeFile(content), false, m_err, m_watch);
  }
  static Misbehaviour answerWith(const QByteArray& code) {
    Misbehaviour result;
    result.text = code;
    return result;
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
    m_service.reset();
    m_home.reset();
  }

  void theStoredLoginIsTrimmedAndAnArgumentIsNot() {
    QVERIFY(VTSoap(u"TrackList"_s, m_err, {}, {}));
    QCOMPARE(m_err, QString());
    QVERIFY(!VTSoap(u"TrackList"_s, m_err, Login + u' ', Password));
    QCOMPARE(m_err, u"E009"_s);
    QCOMPARE(m_service->requests().value(1).login, Login + u' ');
  }

  void filesArriveInTheEnvelopeByteForByte_data() {
    QTest::addColumn<bool>("instrumentJob");
    QTest::addColumn<int>("size");
    QTest::newRow("a print job") << false << 1000;
    QTest::newRow("an instrument job") << true << 1000;
    QTest::newRow("an empty file") << false << 0;
    QTest::newRow("a file of several pieces") << false << 150'000;
  }
  void filesArriveInTheEnvelopeByteForByte() {
    QFETCH(bool, instrumentJob);
    QFETCH(int, size);
    QByteArray content(size, '\n');
    for (qsizetype i = 0; i < size; ++i) content[i] = static_cast<char>(i % 256);
    const QString name = u"[FILEBODY] <R&D> [login]\u00df.txt"_s;
    const QString workflow =
        instrumentJob ? PracticeService::knownInstrumentTrack() : PracticeService::knownPrintTrack();
    const auto reply = SendFile(name, workflow, makeFile(content), instrumentJob, m_err, m_watch);
    QVERIFY2(reply, qPrintable(m_err + m_watch.failure.detail));
    QCOMPARE(m_err, QString());
    QCOMPARE(reply->Keys(), QStringList{u"SendFile"_s});
    QVERIFY(!m_watch.fileChanged && !m_watch.failure.failed());

    const PracticeReceipt receipt = m_service->receipts().value(0);
    QCOMPARE(receipt.name, name);
    QCOMPARE(receipt.destination, workflow);
    QCOMPARE(receipt.content, content);
    QByteArray envelope = sendFileTemplate();
    envelope.replace("[FILEBODY]", content.toBase64());
    envelope.replace("[FILENAME]", u"[FILEBODY] &lt;R&amp;D&gt; #login]\u00df.txt"_s.toUtf8());
    envelope.replace("[login]", "colour &amp; &lt;co&gt;").replace("#login]", "[login]");
    envelope.replace("[password]", QCryptographicHash::hash(Password.toUtf8(), QCryptographicHash::Sha256).toHex());
    envelope.replace("[TRACKWORKFLOWNAME]", workflow.toUtf8());
    envelope.replace("[Trackname]", instrumentJob ? "ITWorkflowName" : "Trackname");
    envelope.replace("[SendFile]", instrumentJob ? "SendIWFile" : "SendFile");
    const PracticeRequest request = m_service->requests().value(0);
    QCOMPARE(request.body, envelope);
    const QString host = u"localhost:%1"_s.arg(m_service->port());
    QCOMPARE(QString::fromLatin1(request.head),
             u"POST /api HTTP/1.0\r\nAccept: */*\r\nAccept-Language: en\r\nHost: %1\r\n"
             "Content-type: text/xml; charset=utf-8\r\nContent-length: %2\r\n\r\n"_s.arg(host)
                 .arg(envelope.size()));
  }

  void refusalsComeBackAsCodes() {
    const auto file = makeFile("abc");
    QVERIFY(!SendFile(u"a.txt"_s, u"nowhere"_s, file, false, m_err, m_watch));
    QCOMPARE(m_err, u"E008"_s);
    QVERIFY(!SendFile(u"a.txt"_s, u"nowhere"_s, file, true, m_err, m_watch));
    QCOMPARE(m_err, u"E102"_s);
    QVERIFY(!m_watch.failure.failed());
  }

  void aFileThatChangesWhileItIsSentIsNotTaken_data() {
    QTest::addColumn<bool>("shrinks");
    QTest::newRow("it shrinks") << true;
    QTest::newRow("it grows") << false;
  }
  void aFileThatChangesWhileItIsSentIsNotTaken() {
    QFETCH(bool, shrinks);
    const auto path = m_home->path(u"in/scan.txt"_s);
    m_service->whenBodyReaches(1 << 20, [&] {
      QFile file(path);
      if (shrinks)
        QVERIFY(file.resize(30 << 20));
      else
        QVERIFY(file.open(QIODevice::Append) && file.write("more") == 4);
    });
    QVERIFY(!send(QByteArray(32 << 20, 'x')));
    QVERIFY(m_watch.fileChanged);
    QCOMPARE(m_watch.failure.phase, Phase::Source);
    QCOMPARE(m_err, u"as it was"_s);
    QTRY_COMPARE(m_service->connections(), 1);
    QVERIFY(m_service->receipts().isEmpty());
  }

  void aFileThatCantBeSentPutsNothingOnTheWire() {
    QVERIFY(!SendFile(u"a"_s, u"b"_s, std::nullopt, false, m_err, m_watch));
    QCOMPARE(m_watch.failure.phase, Phase::Source);
    QVERIFY(!SendFile(u"a"_s, u"b"_s, m_home->item(u"in/gone"_s), false, m_err, m_watch));
    QVERIFY(m_watch.failure.code == ENOENT && !m_watch.fileChanged);
    const auto file = makeFile("abc");
    m_watch.version.mtimeNs += 1;
    QVERIFY(!SendFile(u"a"_s, u"b"_s, file, false, m_err, m_watch));
    QVERIFY(m_watch.fileChanged);
    QCOMPARE(m_err, u"as it was"_s);
    QCOMPARE(m_service->connections(), 0);
  }

  void whileTheAccountsEndpointIsBlankCallsGoToTheDefaultOne() {
    // A proxy that leads every tunnel to the practice service, wherever it was asked for.
    ScriptedServer proxy([&](ScriptedServer::Peer& peer) {
      (void)peer.readTo("\r\n\r\n");
      peer.write("HTTP/1.0 200 Established\r\n\r\n");
      peer.pipeTo(m_service->port());
    });
    setProxy({u"127.0.0.1"_s, proxy.port()});
    const QByteArray asked = "CONNECT " + DefaultAPIEndpoint().section(u'/', 2, 2).toLatin1() + ' ';
    setAccountURL(u" "_s);
    QVERIFY2(send("abc"), qPrintable(m_watch.failure.detail));
    QCOMPARE(proxy.received().count(asked), 1);
    setAccountURL(u"https://elsewhere.example/api"_s);
    QVERIFY(ResolveAccountURL());  // asks the default endpoint, whatever the account's is
    QCOMPARE(proxy.received().count(asked), 2);
    QCOMPARE(AccountURL(), m_service->url());

    m_service->misbehave(answerWith("E016"));
    HttpFailure failure;
    QVERIFY(!ResolveAccountURL(&failure));
    QVERIFY(!failure.failed());
    QCOMPARE(AccountURL(), m_service->url());
  }

  void cataloguesAreFetchedAndEmptiedByAFailure() {
    QVERIFY(TrackList() && InstrumentTrackList());
    QVERIFY(VTTrack::everFetched() && VTInstrumentTrack::everFetched());
    QVERIFY(VTTrack::getTrackwithWorkflowName(PracticeService::knownPrintTrack().toUpper()));
    QVERIFY(VTInstrumentTrack::GetTrackWithName(PracticeService::knownInstrumentTrack()));
    m_service->stop();
    HttpFailure failure;
    QVERIFY(!TrackList(&failure) && !InstrumentTrackList());
    QCOMPARE(failure.phase, Phase::Connect);
    QVERIFY(VTTrack::Tracks().isEmpty() && VTInstrumentTrack::Tracks().isEmpty());
    QVERIFY(VTTrack::everFetched());
  }

  void trackLookupsTakeTheFirstMatchInAnyCase() {
    const auto json = JSONStringtoDictionary(
        u"[{'Device':'B','TrackName':'Day','TrackWorkflowName':'1','Backing':7},"
        "{'Device':'a','TrackName':'day','TrackWorkflowName':'2'},"
        "{'Device':'b','TrackName':'DAY','TrackWorkflowName':'3'},"
        "{'Device':'b','TrackName':'Night','TrackWorkflowName':'4','Other':1},{}]"_s.replace(u'\'', u'"'));
    ;
    QList<VTTrack> tracks;
    for (const QVariant& record : json->Values()) tracks << VTTrack(JSONtoDictionary(record.value<JSONItem>()));
    VTTrack::setTracks(tracks);
    QCOMPARE(tracks.value(0).Backing, u"7"_s);
    QCOMPARE(VTTrack::ListDevices(), (QStringList{u"B"_s, u"a"_s, QString()}));
    QCOMPARE(VTTrack::GetTracksForDevice(u"b"_s), (QStringList{u"Day"_s, u"Night"_s}));
    QCOMPARE(VTTrack::GetTrackWorkflowNameForDeviceAndTrack(u"b"_s, u"dAY"_s), u"1"_s);
    QCOMPARE(VTTrack::GetTrackWorkflowNameForDeviceAndTrack(u"a"_s, u"night"_s), QString());
    QVERIFY(!VTTrack::getTrackwithWorkflowName(u"5"_s));
    VTTrack::setTracks({});
    QVERIFY(VTTrack::ListDevices().isEmpty());
  }

  void instrumentLookupsCompareWholeIdentities() {
    VTInstrumentTrack first, second, third;
    first.InstrumentName = second.InstrumentName = u"Meter"_s;
    third.InstrumentName = u"METER"_s;
    second.InstrumentSerial = u"2"_s;
    first.TargetName = second.TargetName = u"Chart"_s;
    third.TargetName = u"Strip"_s;
    first.ITWorkflowName = u"1"_s;
    second.ITWorkflowName = u"2"_s;
    third.ITWorkflowName = u"3"_s;
    VTInstrumentTrack::setTracks({first, second, third});
    QCOMPARE(VTInstrumentTrack::InstrumentNames(), (QStringList{u"Meter "_s, u"Meter 2"_s}));
    QCOMPARE(VTInstrumentTrack::GetTargetsForDevice(u"meter "_s), (QStringList{u"Chart "_s, u"Strip "_s}));
    QCOMPARE(VTInstrumentTrack::GetITWorkflowNameForInstrumentAndTarget(u"Meter "_s, u"strip "_s), u"3"_s);
    QCOMPARE(VTInstrumentTrack::GetITWorkflowNameForInstrumentAndTarget(u"Meter"_s, u"Chart "_s), QString());
    VTInstrumentTrack::setTracks({});
  }
};

VANTRY_TEST(tst_ServiceCalls);
#include "tst_ServiceCalls.moc"
