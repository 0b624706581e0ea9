#include "engine/MountMemory.h"

#include <mutex>

#include "engine/UploaderTask.h"
#include "storage/Preferences.h"

using namespace Qt::Literals::StringLiterals;

static QString keyOf(const QString& folderPath) { return u"mountpoint "_s + folderPath; }

QByteArray toRemember(const MountTable& table, const QByteArray& path, const QByteArray& remembered) {
  const QByteArray point = table.entryOf(path).point;
  if (remembered == "/" && (point == "/" || !table.missingFor(path, {}).isEmpty())) return remembered;
  return point == "/" ? QByteArray() : point;  // that one is always there
}

namespace {
std::mutex sourceMutex;  // guards the one below
std::function<MountTable()> tableSource;
}  // namespace

MountTable mountTableNow() {
  const std::lock_guard lock(sourceMutex);
  return tableSource ? tableSource() : MountTable::present();
}

void setMountTable(std::function<MountTable()> source) {
  const std::lock_guard lock(sourceMutex);
  tableSource = std::move(source);
}

QString missingMountPoint(const FolderItem& folder, QByteArray& withoutLinks) {
  const auto path = folder.WithoutLinks();
  if (!path) return {};
  withoutLinks = *path;
  const auto& prefs = VantryUtil::prefs;
  const QString key = keyOf(folder.NativePath());
  const QByteArray remembered = prefs ? prefs->StringValue(key).toUtf8() : QByteArray();
  const MountTable table = mountTableNow();
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

QByteArray UploaderTask::mountsOfFolders() const {
  const MountTable table = mountTableNow();
  const std::lock_guard lock(m_mountMutex);
  const QByteArray input = m_inputPath.isEmpty() ? inputFolderPath.toUtf8() : m_inputPath;
  const QByteArray output = m_outputPath.isEmpty() ? outputFolderPath.toUtf8() : m_outputPath;
  return table.entryOf(input).id + '\n' + table.entryOf(output).id;
}

void UploaderTask::noteMounts() {
  const QByteArray mounts = mountsOfFolders();
  const std::lock_guard lock(m_mountMutex);
  m_mounts = mounts;
}

bool UploaderTask::mountedAnew() const {
  const QByteArray mounts = mountsOfFolders();
  const std::lock_guard lock(m_mountMutex);
  return mounts != m_mounts;
}
