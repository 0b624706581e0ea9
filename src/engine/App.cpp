#include "engine/App.h"

#include "platform/System.h"
#include "storage/DictionaryFile.h"
#include "storage/LogDatabase.h"
#include "storage/Preferences.h"
#include "text/Placeholders.h"
#include "text/VTULocalization.h"

using namespace Qt::Literals::StringLiterals;

QString App::Event_Open(const std::function<void()>& showMainWindow) {
  System::DebugLog(u"Vantry Uploader - Starting"_s);
  DictionaryFile::setSolutionKey(u"KestrelMoonOVJT"_s);
  const QString setAside = VantryUtil::loadAccountPreferences();
  VantryUtil::ConnectToLogDatabase();
  VantryUtil::loadProxySettings();
  showMainWindow();
  return setAside.isEmpty() ? QString() : fillPlaceholders(VTULocalization::klPreferencesSetAside(), {setAside});
}

void App::Event_Close() {
  if (VantryUtil::prefs) (void)VantryUtil::prefs->save();  // nobody is left to tell; the old file stands if it fails
}
