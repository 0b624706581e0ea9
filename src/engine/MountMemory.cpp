#include "engine/MountMemory.h"

#include <QHash>
#include <mutex>

#include "engine/UploaderTask.h"
#include "platform/Clock.h"
#include "platform/Mount.h"
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

/// True at most once in 30 s for a path: of five failed mounts in 10 s systemd makes an end of the automounting.
static bool mayWake(const QByteArray& path) {
  constexpr qint64 pauseMs = 30'000;
  static std::mutex mutex;  // guards the one below
  static QHash<QByteArray, qint64> lastMs;
  const std::lock_guard lock(mutex);
  const qint64 now = Clock::system().monotonicMs();
  const auto last = lastMs.constFind(path);
  if (last != lastMs.cend() && now - *last < pauseMs) return false;
  lastMs.insert(path, now);
  return true;
}

QString missingMountPoint(const FolderItem& folder, QByteArray& withoutLinks) {
  const auto path = folder.WithoutLinks();
  if (!path) return {};
  withoutLinks = *path;
  const auto& prefs = VantryUtil::prefs;
  const QString key = keyOf(folder.NativePath());
  const QByteArray remembered = prefs ? prefs->StringValue(key).toUtf8() : QByteArray();
  MountTable table = mountTableNow();
  if (table.entryOf(*path).type == "autofs" && mayWake(*path)) {
    wakeAutomount(*path);
    table = mountTableNow();
  }
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
  return !m_mounts.isEmpty() && mounts != m_mounts;  // none before the first look
}
