#include <QMutex>

#include "build_settings.h"
#include "service/Credentials.h"
#include "service/StopSignal.h"
#include "service/VantryUtil.h"
#include "storage/Preferences.h"

using namespace Qt::Literals::StringLiterals;

static QMutex accountMutex;  // guards accountUrl

static QString& accountUrl() {
  static QString url;
  return url;
}

QString VantryUtil::DefaultAPIEndpoint() { return u"https://%1/api"_s.arg(QString::fromUtf8(ServiceHost)); }

QString VantryUtil::AccountURL() {
  const QMutexLocker lock(&accountMutex);
  return accountUrl();
}

void VantryUtil::setAccountURL(const QString& url) {
  const QMutexLocker lock(&accountMutex);
  accountUrl() = url;
}

bool VantryUtil::ResolveAccountURL(HttpFailure* failure, QString* err) {
  const QString method = u"Get_API_URL"_s, loginKey = u"SoapLogin"_s;
  const QString login = storedPreference(loginKey);
  QString said;
  const std::optional<Dictionary> reply = VTSoap(method, said, {}, {}, failure);
  if (err) *err = said;
  if (!reply || storedPreference(loginKey) != login) return false;  // the answer for a login replaced meanwhile
  setAccountURL(reply->Lookup(method, DefaultAPIEndpoint()).toString());
  return true;
}

void VantryUtil::stopServiceCalls() { StopSignal::process().raise(); }

void VantryUtil::allowServiceCalls() { StopSignal::process().lower(); }

QString storedPreference(const QString& key) {
  return VantryUtil::prefs ? VantryUtil::prefs->StringValue(key).trimmed() : QString();
}

QString endpointInForce() {
  const QString account = VantryUtil::AccountURL();
  return account.trimmed().isEmpty() ? VantryUtil::DefaultAPIEndpoint() : account;
}
