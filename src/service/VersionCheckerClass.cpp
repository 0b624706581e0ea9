#include "service/VersionCheckerClass.h"

#include "build_settings.h"
#include "platform/System.h"
#include "service/UpdateReply.h"

using namespace Qt::Literals::StringLiterals;

static constexpr int TimeoutMs = 10'000;             // of each phase
static constexpr qint64 MaxReplyBytes = 64LL << 10;  // a reply has some hundred

QString UpdateEndpoint() { return u"http://%1/uploader.php"_s.arg(QString::fromUtf8(UpdateHost)); }

static VersionCheckerClass::Page getPage(const QString& url) {
  HTTPSocket socket;
  VantryUtil::ConfigureProxy(socket);
  socket.limits.maxReplyBytes = MaxReplyBytes;
  VersionCheckerClass::Page page;
  page.url = url;
  page.content = socket.Get(url, TimeoutMs);
  page.status = socket.HTTPStatusCode();
  page.headers = socket.PageHeaders();
  page.failure = socket.failure();
  return page;
}

VersionCheckerClass::VersionCheckerClass(Exchange exchange, QString endpoint)
    : m_exchange(std::move(exchange)), m_endpoint(std::move(endpoint)) {}

void VersionCheckerClass::CheckVersion() {
  const auto received = [this](const Page& page) {
    if (page.failure.failed())
      System::DebugLog(u"Update check: no reply. "_s + page.failure.detail);
    else
      Event_PageReceived(page.url, page.status, page.headers, page.content);
  };
  m_exchange([url = m_endpoint] { return getPage(url); }, received);
}

void VersionCheckerClass::Event_PageReceived(const QString& /*url*/, int /*status*/, const InternetHeaders& /*headers*/,
                                             const QByteArray& content) {
  QString misfit;
  const auto offer = readUpdateReply(content, runningVersion(), misfit);
  if (!offer)
    System::DebugLog(u"Update check: the reply doesn't fit: "_s + misfit);
  else if (NewVersionAvailable)
    NewVersionAvailable(offer->version, offer->url);
}
