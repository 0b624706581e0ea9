#pragma once
// The admin window on a home of the test's own, and a service where the build looks for it.

#include <QUrl>

#include "admin/AdminWindow.h"
#include "platform/SpecialFolder.h"
#include "practice/PracticeService.h"
#include "service/VantryUtil.h"
#include "support/ProgramHome.h"
#include "support/TestRunner.h"

class AdminFixture : public WindowControls {
 public:
  ~AdminFixture() override {
    m_window.reset();
    VantryUtil::stopServiceCalls();
    if (!BackgroundCall::waitForAll(60'000)) qFatal("a call did not end");
    VantryUtil::allowServiceCalls();
    VantryUtil::setProxy({});
    VantryUtil::setExtraCaFile({});
  }

  static bool startAtDefaultPort(PracticeService& service) {
    const bool started = service.start(static_cast<quint16>(QUrl(VantryUtil::DefaultAPIEndpoint()).port(443)));
    if (started) VantryUtil::setExtraCaFile(service.caFile());
    return started;
  }
  static void store(const char* key, const QString& text) {
    VantryUtil::prefs->setStringValue(QString::fromLatin1(key), text);
  }
  static void storeLogin() {
    store("SoapLogin", PracticeService::Options().login);
    store("SoapPassword", PracticeService::Options().password);
  }
  AdminWindow& open() {
    m_window = std::make_unique<AdminWindow>(nullptr);
    m_window->show();
    return *m_window;
  }
  AdminWindow& window() { return *m_window; }
  void lock(bool on) { tick("LockTaskListButton", on); }
  QString line(const char* name = "TestLine") { return control<QLabel>(name)->text(); }

  ProgramHome home;

 protected:
  QWidget& shownWindow() override { return *m_window; }

 private:
  std::unique_ptr<AdminWindow> m_window;
};
