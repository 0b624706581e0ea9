#pragma once
// The account, proxy and administrative settings: one preference file, open from start to end. Any thread.

#include <QMutex>
#include <QString>
#include <memory>

#include "storage/DictionaryFile.h"

namespace VantryUtil {

/// The preference file; nullptr until loadAccountPreferences. It guards itself.
extern std::shared_ptr<DictionaryFile> prefs;

/// Opens VTUploaderAdmin.pref in the preferences folder (made if missing) into `prefs`. A damaged file is set aside
/// under a new name and the program goes on as at first start; the new name is given back, empty when all was well.
/// Raises Problem::PreferencesSetAside. Main thread, before any other thread uses prefs.
QString loadAccountPreferences();
/// Writes the preferences; a failure is told by Problem::PreferencesNotSaved, which it raises. Blocks for the disk.
bool savePreferences(DictionaryFile& preferences);
/// Brings ProxyAddress and ProxyPort from prefs into force.
void loadProxySettings();

/// The login as it was at start; tested once, when the main window opens.
[[nodiscard]] QString SoapUserName();
[[nodiscard]] QString SoapPassword();

struct ProxySetting {
  QString address;  ///< blank for none; not trimmed
  int port = 0;     ///< 0 for none
};
/// The proxy in force.
[[nodiscard]] ProxySetting proxy();
void setProxy(const ProxySetting& setting);

/// What a call to the service goes with: values that belong together.
struct Account {
  QString login, password;  ///< as stored, without white space at their ends
  ProxySetting proxy;
  quint64 loginNumber = 0;  ///< another one after each change of the login in this process
};
/// What is in force.
[[nodiscard]] Account account();
/// Stores login and password in prefs, which the caller saves, and brings them into force together with the proxy.
/// True if the login is another one.
bool changeAccount(const QString& login, const QString& password, const ProxySetting& setting);

}  // namespace VantryUtil
