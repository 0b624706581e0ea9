#include "admin/TaskBackup.h"

#include <cerrno>

#include "engine/UploaderTask.h"
#include "platform/SafeFile.h"
#include "storage/DictionaryFile.h"
#include "text/Placeholders.h"
#include "text/VTULocalization.h"
#include "widgets/Captions.h"

using namespace Qt::Literals::StringLiterals;
using namespace VTULocalization;

constexpr qint64 LargestTaskFile = 16 << 20;  // bytes; a task file has some hundred
constexpr qsizetype MostNamed = 20;
constexpr int MostAttempts = 4;  // at a name that is taken although nothing seems to be there, as by a broken link

static std::mutex restoreMutex;  // guards the putting of restored files into the task folder

void CopyJob::setWaiting(const QStringList& names) {
  const std::lock_guard lock(m_mutex);
  m_waiting = names;
}

void CopyJob::copied(const QString& name) {
  const std::lock_guard lock(m_mutex);
  m_waiting.removeOne(name);
  ++m_copies;
}

void CopyJob::failed(const QString& name, const QString& reason) {
  const std::lock_guard lock(m_mutex);
  m_waiting.removeOne(name);
  m_failures << name + u": "_s + reason;
}

QStringList CopyJob::waiting() const {
  const std::lock_guard lock(m_mutex);
  return m_waiting;
}

QStringList CopyJob::failures() const {
  const std::lock_guard lock(m_mutex);
  return m_failures;
}

int CopyJob::copies() const {
  const std::lock_guard lock(m_mutex);
  return m_copies;
}

static QStringList namesOf(const QList<FolderItem>& files) {
  QStringList names;
  for (const FolderItem& file : files) names << file.Name();
  return names;
}

QList<FolderItem> taskFilesIn(const FolderItem& folder) {
  QList<FolderItem> files;
  for (const FolderItem& item : folder.Items()) {
    if (item.nameBytes().startsWith("._")) continue;  // other systems' own, beside a file of that name
    if (item.nameBytes().toLower().endsWith(".vnt") && !item.Directory()) files << item;
  }
  return files;
}

/// Copies under the first free name; one that another machine takes in the meantime is not copied over.
static IoResult copyBeside(const FolderItem& file, const FolderItem& into) {
  const std::optional<FileVersion> version = versionOf(file);
  if (!version) return IoResult::failure(ENOENT, file.Name());
  for (int attempt = 1;; ++attempt) {
    FolderItem target = into.ChildBytes(file.nameBytes());
    UploaderTask::DistinctName(target);
    const IoResult result = copyFileSafely(file, *version, target);
    if (result.error != EEXIST || attempt == MostAttempts) return result;
  }
}

void backUpTasks(const QList<FolderItem>& files, const FolderItem& into, CopyJob& job) {
  job.setWaiting(namesOf(files));
  if (!into.Directory()) return job.setWaiting({});
  for (const FolderItem& file : files) {
    if (job.stopped()) return;
    const IoResult result = copyBeside(file, into);
    if (result.ok())
      job.copied(file.Name());
    else
      job.failed(file.Name(), result.message());
  }
}

static IoResult putIntoTaskFolder(const FolderItem& file, const FolderItem& tasks, const CopyJob& job) {
  QByteArray content;
  IoResult result = readWholeFile(file, LargestTaskFile, content);
  if (result.ok()) result = DictionaryFile::check(content);  // a damaged file must not replace a task that works
  if (!result.ok()) return result;
  const std::lock_guard lock(restoreMutex);
  if (job.stopped()) return IoResult::failure(ECANCELED, file.Name());
  return writeFileSafely(tasks.ChildBytes(file.nameBytes()), content);
}

void restoreTasks(const FolderItem& from, CopyJob& job) {
  const FolderItem tasks = UploaderTask::TaskDirectory();
  if (!from.Directory()) return;
  if (!from.IsReadable()) return job.failed(from.Name(), IoResult::failure(EACCES, from.NativePath()).message());
  const QList<FolderItem> files = taskFilesIn(from);
  job.setWaiting(namesOf(files));
  for (const FolderItem& file : files) {
    if (job.stopped()) return;
    const IoResult result = putIntoTaskFolder(file, tasks, job);
    if (job.stopped() && result.error == ECANCELED) return;
    if (result.ok())
      job.copied(file.Name());
    else
      job.failed(file.Name(), result.message());
  }
}

void loadRestoredTasks() {
  const std::lock_guard lock(restoreMutex);
  UploaderTask::Load();
}

QString messageNaming(const QString& head, const QStringList& lines) {
  QStringList text{head, {}};
  for (const QString& line : lines.first(std::min(lines.size(), MostNamed))) text << onOneLine(line);
  if (lines.size() > MostNamed)
    text << fillPlaceholders(klSampleAndMore(), {QString::number(lines.size() - MostNamed)});
  return text.join(u'\n');
}
