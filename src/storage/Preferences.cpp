#include "storage/Preferences.h"

#include <QMutexLocker>
#include <cerrno>

#include "platform/Problems.h"
#include "platform/SafeFile.h"
#include "platform/SpecialFolder.h"
#include "storage/DictionaryFormat.h"
#include "storage/SetAside.h"

using namespace Qt::Literals::StringLiterals;

namespace VantryUtil {

std::shared_ptr<DictionaryFile> prefs;

namespace {

QMutex mutex;  // guards the four below; login and password of prefs change together under it
QString soapUserName, soapPassword;
ProxySetting proxyInForce;
quint64 loginNumber = 0;

/// True for content that no repair of the machine will make readable. A file that is forbidden, or on a disk that
/// fails, may be whole: it stays where it is.
bool isDamaged(const IoResult& read) {
  return read.error == DictionaryFormat::Damaged || read.error == EFBIG || read.error == EISDIR;
}

QString openPreferences(const FolderItem& file, IoResult& read) {
  auto opened = std::make_shared<DictionaryFile>();
  read = opened->open(file);
  QString setAsideAs;
  if (isDamaged(read)) {
    const SetAsideResult moved = setAside(file);
    setAsideAs = moved.name;
    if (moved.result.ok())
      read = opened->open(file);
    else
      read = moved.result;
  }
  prefs = opened;
  return setAsideAs;
}

}  // namespace

QString loadAccountPreferences() {
  const FolderItem folder = SpecialFolder::Preferences();
  const IoResult made = SpecialFolder::createPrivate(folder);
  if (made.ok()) removeLeftovers(folder);
  IoResult read;
  const QString setAsideAs = openPreferences(folder.Child(u"VTUploaderAdmin.pref"_s), read);
  if (!setAsideAs.isEmpty()) Problems::raise(Problem::Kind::PreferencesSetAside, setAsideAs, {});
  if (!made.ok()) read = made;
  if (!read.ok()) Problems::raise(Problem::Kind::PreferencesNotSaved, {}, read.message());

  const QMutexLocker lock(&mutex);
  soapUserName = prefs->StringValue(u"SoapLogin"_s);
  soapPassword = prefs->StringValue(u"SoapPassword"_s);
  return setAsideAs;
}

bool savePreferences(DictionaryFile& preferences) {
  const bool saved = preferences.save();
  if (saved)
    Problems::clear(Problem::Kind::PreferencesNotSaved, {});
  else
    Problems::raise(Problem::Kind::PreferencesNotSaved, {}, preferences.lastFailure().message());
  return saved;
}

void loadProxySettings() {
  const qint64 port = prefs->integerValue(u"ProxyPort"_s);
  const bool possible = port >= 1 && port <= 65535;
  setProxy({prefs->StringValue(u"ProxyAddress"_s), possible ? static_cast<int>(port) : 0});
}

QString SoapUserName() {
  const QMutexLocker lock(&mutex);
  return soapUserName;
}

QString SoapPassword() {
  const QMutexLocker lock(&mutex);
  return soapPassword;
}

ProxySetting proxy() {
  const QMutexLocker lock(&mutex);
  return proxyInForce;
}

void setProxy(const ProxySetting& setting) {
  const QMutexLocker lock(&mutex);
  proxyInForce = setting;
}

Account account() {
  const QMutexLocker lock(&mutex);
  Account now{{}, {}, proxyInForce, loginNumber};
  if (!prefs) return now;
  now.login = prefs->StringValue(u"SoapLogin"_s).trimmed();
  now.password = prefs->StringValue(u"SoapPassword"_s).trimmed();
  return now;
}

bool changeAccount(const QString& login, const QString& password, const ProxySetting& setting) {
  const QMutexLocker lock(&mutex);
  const bool another = login.trimmed() != prefs->StringValue(u"SoapLogin"_s).trimmed();
  if (another) ++loginNumber;
  prefs->setStringValue(u"SoapLogin"_s, login);
  prefs->setStringValue(u"SoapPassword"_s, password);
  proxyInForce = setting;
  return another;
}

}  // namespace VantryUtil
