// How the program comes up: in order, without a network, and by itself once the network is there.

#include <QUrl>
#include <thread>

#include "engine/StartUp.h"
#include "engine/UploadThread.h"
#include "platform/Problems.h"
#include "service/VTInstrumentTrack.h"
#include "service/VTTrack.h"
#include "service/VantryUtil.h"
#include "storage/Preferences.h"
#include "support/EngineBench.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;

/// The service where this build looks for it, and a program that hasn't asked it yet. Ends the start-up before what it
/// uses goes.
class StartUpBench : public EngineBench {
 public:
  StartUpBench() {
    service.stop();
    startService();
    VantryUtil::setAccountURL({});
    VTTrack::forget();
    VTInstrumentTrack::forget();
    UploadThread::Enabled = false;
  }
  ~StartUpBench() {
    StartUp::stop(60'000);
    VantryUtil::allowServiceCalls();
  }
  void startService() {
    const int port = QUrl(VantryUtil::DefaultAPIEndpoint()).port(443);
    if (!service.start(static_cast<quint16>(port))) qFatal("%s", qPrintable(service.errorString()));
    VantryUtil::setExtraCaFile(service.caFile());
  }
  [[nodiscard]] static bool unreachable() { return problems().contains(Problem::Kind::ServiceUnreachable); }
};

class tst_StartUp : public QObject {
  Q_OBJECT

 private slots:
  void withoutANetworkTheTasksRunAndTheRestComesByItself() {
    StartUpBench bench;
    bench.service.stop();
    QVERIFY(bench.makeTask()->save(UploaderTask::TaskDirectory().Child(u"a.vnt"_s)));
    std::atomic<int> loaded{0};
    StartUp::begin({.tasksLoaded = [&] { ++loaded; }, .failed = {}});
    QTRY_COMPARE(loaded.load(), 1);
    QVERIFY(UploadThread::Enabled && bench.unreachable() && VantryUtil::AccountURL().isEmpty());
    QCOMPARE(UploaderTask::allTasks().size(), 1);
    bench.startService();
    QTRY_VERIFY(VTInstrumentTrack::everFetched() && VTTrack::everFetched());
    QCOMPARE(VantryUtil::AccountURL(), bench.service.url());
    QVERIFY(!VTTrack::ListDevices().isEmpty());
    QTRY_VERIFY(!bench.unreachable());
    QCOMPARE(loaded.load(), 1);
  }

  void aServiceThatSaysNoIsThere() {
    StartUpBench bench;
    bench.service.misbehave(
        {.kind = Misbehaviour::Kind::ErrorCode, .text = "E009", .times = 0, .method = "Get_API_URL"});
    Problems::raise(Problem::Kind::ServiceUnreachable, {}, u"nobody"_s);
    StartUp::begin({});
    QTRY_VERIFY(!bench.unreachable());
    QTRY_COMPARE(bench.problems(), QList{Problem::Kind::ServiceRefuses});
    QVERIFY(Problems::present().first().detail.startsWith(u"E009 - Wrong login"_s));
    bench.service.behave();
    StartUp::refresh(true);
    QTRY_VERIFY(bench.problems().isEmpty());
  }

  void theEndpointComesFirstTheTasksLastAndAnExceptionIsHandedOut() {
    StartUpBench bench;
    bench.service.misbehave({.kind = Misbehaviour::Kind::ErrorCode, .text = "E003", .method = "TrackList"});
    QByteArrayList methods;
    QString reason;
    std::atomic<bool> failed{false};
    const auto loaded = [&] {
      for (const PracticeRequest& request : bench.service.requests()) methods << request.method;
      throw std::runtime_error("planted");
    };
    StartUp::begin({.tasksLoaded = loaded, .failed = [&](const QString& why) { reason = why, failed = true; }});
    QTRY_VERIFY(failed);
    QCOMPARE(reason, u"planted"_s);
    QCOMPARE(methods, (QByteArrayList{"Get_API_URL", "TrackList", "InstrumentTargetList"}));
  }

  void anotherLoginBringsItsEndpointAndCatalogues() {
    StartUpBench bench;
    StartUp::begin({});
    QTRY_VERIFY(VTInstrumentTrack::everFetched());
    VTTrack old;
    old.Device = u"old"_s;
    VTTrack::setTracks({old});
    StartUp::refresh(false);
    QTRY_VERIFY(UploadThread::Enabled);
    QCOMPARE(VTTrack::ListDevices(), QStringList{u"old"_s});  // the account is the same

    bench.service.forgetReceived();
    bench.service.misbehave({.kind = Misbehaviour::Kind::NoReply});
    StartUp::refresh(true);
    QVERIFY(VTTrack::ListDevices().isEmpty() && VantryUtil::AccountURL().isEmpty());
    QVERIFY(bench.service.waitForRequests(1, 60'000));
    QVERIFY2(!UploadThread::Enabled, "no file goes out before the endpoint has been asked for");
    UploadThread::enable();
    QVERIFY(!UploadThread::Enabled);
    QVERIFY2(StartUp::stop(20'000), "a call that is never answered holds the end up");
    QVERIFY(UploadThread::Enabled);

    VantryUtil::allowServiceCalls();
    StartUp::begin({});
    QTRY_VERIFY(VTInstrumentTrack::everFetched());
    StartUp::refresh(true);
    QTRY_VERIFY(VTInstrumentTrack::everFetched());
    QVERIFY(UploadThread::Enabled && !VTTrack::ListDevices().isEmpty());
    QCOMPARE(VantryUtil::AccountURL(), bench.service.url());
  }

  void anAnswerToTheLoginBeforeIsDropped() {
    StartUpBench bench;
    bench.service.misbehave({.kind = Misbehaviour::Kind::TrickleReply, .bytes = 100, .everyMs = 20});
    bool resolved = true;
    std::thread slow([&resolved] { resolved = VantryUtil::ResolveAccountURL(); });
    const bool asked = bench.service.waitForRequests(1, 60'000);
    VantryUtil::changeAccount(u"another"_s, u"x"_s, {});
    slow.join();
    QVERIFY(asked && !resolved && VantryUtil::AccountURL().isEmpty());
  }
};

VANTRY_TEST(tst_StartUp);
#include "tst_StartUp.moc"
