#include "engine/MountMemory.h"

#include "engine/UploaderTask.h"
#include "storage/Preferences.h"

using namespace Qt::Literals::StringLiterals;

static QString keyOf(const QString& folderPath) { return u"mountpoint "_s + folderPath; }

QByteArray toRemember(const MountTable& table, const QByteArray& path, const QByteArray& remembered) {
  const QByteArray point = table.entryOf(path).point;
  if (remembered == "/" && (point == "/" || !table.missingFor(path, {}).isEmpty())) return remembered;
  return point == "/" ? QByteArray() : point;  // that one is always there
}

QString missingMountPoint(const FolderItem& folder) {
  const auto path = folder.WithoutLinks();
  if (!path) return {};
  const auto& prefs = VantryUtil::prefs;
  const QString key = keyOf(folder.NativePath());
  const QByteArray remembered = prefs ? prefs->StringValue(key).toUtf8() : QByteArray();
  const MountTable table = MountTable::present();
  const QByteArray missing = table.missingFor(*path, remembered);
  if (!missing.isEmpty()) return QString::fromUtf8(missing);

  const QByteArray point = toRemember(table, *path, remembered);
  if (!prefs || point == remembered) return {};
  if (point.isEmpty())
    prefs->Remove(key);
  else
    prefs->setStringValue(key, QString::fromUtf8(point));
  VantryUtil::savePreferences(*prefs);
  return {};
}

void UploaderTask::takeAsItIs(const QString& folderPath) {
  if (!VantryUtil::prefs || folderPath.isEmpty()) return;
  VantryUtil::prefs->setStringValue(keyOf(folderPath), u"/"_s);
}
