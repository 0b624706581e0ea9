// The connection test of the admin window against the practice service, as the user sees it.

#include "AdminFixture.h"
#include "practice/PracticeProxy.h"
#include "text/VTULocalization.h"

using namespace Qt::Literals::StringLiterals;
using namespace VTULocalization;
using Mis = Misbehaviour::Kind;
using Proxy = PracticeProxy::Behaviour::Kind;

class tst_ConnectionTest : public QObject {
  Q_OBJECT
 private slots:
  void whatTheServiceAnswersIsSaid() {
    const std::tuple<std::optional<Mis>, std::optional<Proxy>, QString, QString> rows[] = {
        {{}, {}, klTestSucceeded(), {}},
        {Mis::ErrorCode, {}, klTestErrorAnswered(), u"E009"_s},
        {Mis::NoReturn, {}, klTestErrorAnswered(), u"err"_s},
        {Mis::NotXml, {}, klTestNotTheService(), {}},
        {Mis::CutReply, {}, klTestBroken(), {}},
        {Mis::CutHandshake, {}, klTestTlsFailed(), {}},
        {{}, Proxy::Tunnel, klTestSucceededProxy(), {}},
        {{}, Proxy::Refuse, klTestProxyRefused(), {}}};
    for (const auto& [misbehaviour, behaviour, line, code] : rows) {
      AdminFixture fixture;
      PracticeService service;
      QTRY_VERIFY(fixture.startAtDefaultPort(service));
      PracticeProxy proxy;
      QVERIFY(proxy.start());
      if (misbehaviour) service.misbehave({.kind = *misbehaviour, .text = code.toUtf8()});
      VantryUtil::setProxy({u"saved.example"_s, 9});
      fixture.open();
      fixture.type("SoapLogin", u" "_s + PracticeService::Options().login + u" "_s);
      fixture.type("soapPassword", PracticeService::Options().password);
      if (behaviour) {
        proxy.setBehaviour({.kind = *behaviour});
        fixture.type("TheProxyAddress", u"127.0.0.1"_s);
        fixture.type("TheProxyPort", QString::number(proxy.port()) + u"x"_s);
      }
      const BoxAnswer ok(QMessageBox::Ok);
      fixture.press("CheckAndConnectButton");
      QCOMPARE(fixture.line(), klTestRunning());
      const QString peer = behaviour ? u"127.0.0.1:%1"_s.arg(proxy.port()) : u"localhost:%1"_s.arg(service.port());
      QTRY_COMPARE(fixture.line(), QString(line).replace(u"$1"_s, peer));
      QCOMPARE(ok.text(), VantryUtil::errToString(code));
      for (const PracticeRequest& request : service.requests())
        QCOMPARE(request.method + ' ' + request.login.toUtf8(), "Get_API_URL practice");
      QVERIFY(VantryUtil::proxy().port == 9 && VantryUtil::AccountURL().isEmpty());
      QVERIFY(!VantryUtil::prefs->HasKey(u"SoapLogin"_s));
    }
  }

  void whoGaveNoAnswerIsNamed() {
    ConnectionAnswer answer;
    for (const bool atProxy : {false, true}) {
      answer.failure = {HttpFailure::Phase::Connect, 0, u"why"_s, u"host:7"_s, atProxy};
      QString line = atProxy ? klTestProxyNotReached() : klTestNotReached();
      QCOMPARE(connectionLine(answer, {}).text, line.replace(u"$1"_s, u"host:7"_s));
    }
    answer.kind = ConnectionAnswer::Kind::Succeeded;
    QCOMPARE(connectionLine(answer, proxyOfFields(u" host "_s, u"70000"_s)).text, klTestSucceededNoPort());
  }

  void aServiceThatNeverAnswersLeavesTheWindowAlive() {
    AdminFixture fixture;
    PracticeService service;
    QTRY_VERIFY(fixture.startAtDefaultPort(service));
    service.misbehave({.kind = Mis::NoReply, .times = 0});
    fixture.storeLogin();
    fixture.open();  // tests by itself
    const LoopWatch watch;
    QTRY_COMPARE(service.requests().size(), 1);
    QCOMPARE(fixture.line(), klTestRunning());
    fixture.type("soapPassword", u"typed over"_s);
    QVERIFY2(fixture.line().isEmpty(), "a test of other values says nothing of these");
    fixture.press("CheckAndConnectButton");
    QTRY_COMPARE(service.requests().size(), 2);
    QVERIFY2(watch.longestMs() < 250, qPrintable(QString::number(watch.longestMs())));
    QElapsedTimer timer;
    timer.start();
    QTest::keyClick(fixture.control("SoapLogin"), Qt::Key_Escape);
    QVERIFY(!fixture.window().isVisible() && timer.elapsed() < 2000);
  }
};

VANTRY_TEST(tst_ConnectionTest);
#include "tst_ConnectionTest.moc"
