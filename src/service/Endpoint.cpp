#include <QMutex>

#include "build_settings.h"
#include "service/Credentials.h"
#include "service/StopSignal.h"
#include "service/VantryUtil.h"
#include "storage/Preferences.h"

using namespace Qt::Literals::StringLiterals;

namespace {
struct AccountEndpoint {
  QString url;
  quint64 loginNumber = 0;  // the login that it was given to, and is void for any other
};
}  // namespace

static QMutex accountMutex;  // guards accountEndpoint

static AccountEndpoint& accountEndpoint() {
  static AccountEndpoint endpoint;
  return endpoint;
}

static QString accountUrlOf(const VantryUtil::Account& account) {
  const QMutexLocker lock(&accountMutex);
  return accountEndpoint().loginNumber == account.loginNumber ? accountEndpoint().url : QString();
}

static void setAccountUrlOf(const VantryUtil::Account& account, const QString& url) {
  const QMutexLocker lock(&accountMutex);
  if (account.loginNumber >= accountEndpoint().loginNumber) accountEndpoint() = {url, account.loginNumber};
}

QString VantryUtil::DefaultAPIEndpoint() { return u"https://%1/api"_s.arg(QString::fromUtf8(ServiceHost)); }

QString VantryUtil::AccountURL() { return accountUrlOf(account()); }

void VantryUtil::setAccountURL(const QString& url) { setAccountUrlOf(account(), url); }

bool VantryUtil::ResolveAccountURL(HttpFailure* failure, QString* err) {
  const QString method = u"Get_API_URL"_s;
  const Account asked = account();
  QString said;
  const std::optional<Dictionary> reply = VTSoap(method, said, {}, {}, failure);
  if (err) *err = said;
  if (!reply) return false;
  // Of a login that was replaced meanwhile the answer is void, also where that happens at this very moment.
  setAccountUrlOf(asked, reply->Lookup(method, DefaultAPIEndpoint()).toString());
  return account().loginNumber == asked.loginNumber;
}

void VantryUtil::stopServiceCalls() { StopSignal::process().raise(); }

void VantryUtil::allowServiceCalls() { StopSignal::process().lower(); }

QString endpointFor(const VantryUtil::Account& account) {
  const QString url = accountUrlOf(account);
  return url.trimmed().isEmpty() ? VantryUtil::DefaultAPIEndpoint() : url;
}
