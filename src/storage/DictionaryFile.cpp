#include "storage/DictionaryFile.h"

#include <sys/stat.h>

#include <QMutexLocker>

#include "platform/FileCipher.h"
#include "platform/Reasons.h"
#include "platform/SafeFile.h"
#include "storage/DictionaryFormat.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QMutex keyMutex;  // guards the one below
QString solutionKey;

QString currentKey() {
  const QMutexLocker lock(&keyMutex);
  return solutionKey;
}

/// True only if no entry of that name is there: a link that leads nowhere is one, and may lead to a share that is
/// not connected yet.
bool isAbsent(const FolderItem& f) {
  struct stat entry;
  return lstat(f.bytes().constData(), &entry) != 0 && errno == ENOENT;
}

IoResult load(const FolderItem& f, Dictionary& values) {
  if (isAbsent(f)) return {};
  QByteArray content;
  const IoResult read = readWholeFile(f, DictionaryFormat::LargestFile, content);
  if (!read.ok()) return read;
  const QString key = currentKey();
  const IoResult parsed = DictionaryFormat::read(content, key, values);
  if (key.isEmpty()) wipe(content);
  return parsed;
}

}  // namespace

void DictionaryFile::setSolutionKey(const QString& key) {
  const QMutexLocker lock(&keyMutex);
  solutionKey = key;
}

DictionaryFile::DictionaryFile(FileOps& ops) : m_ops(ops) {}

IoResult DictionaryFile::open(const FolderItem& f) {
  Dictionary values;
  const IoResult result = load(f, values);
  const QMutexLocker lock(&m_mutex);
  m_values = values;
  m_location = f;
  m_unread = result.ok() ? std::nullopt : std::make_optional(f);
  m_lastFailure = result;
  return result;
}

IoResult DictionaryFile::check(const QByteArray& content) {
  Dictionary values;
  return DictionaryFormat::read(content, currentKey(), values);
}

std::optional<FolderItem> DictionaryFile::location() const {
  const QMutexLocker lock(&m_mutex);
  return m_location;
}

QVariant DictionaryFile::lookup(const QString& key) const {
  const QMutexLocker lock(&m_mutex);
  return m_values.Value(key);
}

void DictionaryFile::store(const QString& key, const QVariant& value) {
  const QMutexLocker lock(&m_mutex);
  m_values.setValue(key, value);
}

bool DictionaryFile::BooleanValue(const QString& key) const { return DictionaryFormat::toBoolean(lookup(key)); }

qint64 DictionaryFile::integerValue(const QString& key) const { return DictionaryFormat::toInteger(lookup(key)); }

double DictionaryFile::DoubleValue(const QString& key) const { return DictionaryFormat::toDouble(lookup(key)); }

QString DictionaryFile::StringValue(const QString& key) const { return DictionaryFormat::toText(lookup(key)); }

std::optional<FolderItem> DictionaryFile::FileValue(const QString& key) const {
  return FolderItem::fromNativePath(StringValue(key));
}

void DictionaryFile::setBooleanValue(const QString& key, bool value) { store(key, value); }

void DictionaryFile::setIntegerValue(const QString& key, qint64 value) { store(key, value); }

void DictionaryFile::setDoubleValue(const QString& key, double value) { store(key, value); }

void DictionaryFile::setStringValue(const QString& key, const QString& value) { store(key, value); }

void DictionaryFile::setFileValue(const QString& key, const std::optional<FolderItem>& item) {
  store(key, item ? item->NativePath() : QString());
}

bool DictionaryFile::HasKey(const QString& key) const {
  const QMutexLocker lock(&m_mutex);
  return m_values.HasKey(key);
}

void DictionaryFile::Remove(const QString& key) {
  const QMutexLocker lock(&m_mutex);
  m_values.Remove(key);
}

QStringList DictionaryFile::Keys() const {
  const QMutexLocker lock(&m_mutex);
  return m_values.Keys();
}

bool DictionaryFile::save() {
  FileAccess.acquire();
  const QSemaphoreReleaser release(FileAccess);
  return write(location());
}

bool DictionaryFile::save(const FolderItem& f) {
  FileAccess.acquire();
  const QSemaphoreReleaser release(FileAccess);
  {
    const QMutexLocker lock(&m_mutex);
    m_location = f;
  }
  return write(f);
}

bool DictionaryFile::Export(const FolderItem& f) {
  FileAccess.acquire();
  const QSemaphoreReleaser release(FileAccess);
  return write(f);
}

IoResult DictionaryFile::lastFailure() const {
  const QMutexLocker lock(&m_mutex);
  return m_lastFailure;
}

bool DictionaryFile::write(const std::optional<FolderItem>& target) {
  Dictionary values;
  {
    const QMutexLocker lock(&m_mutex);
    if (!target)
      m_lastFailure = IoResult::failure(EINVAL, Reasons::klSavingWithoutFile());
    else if (target == m_unread)
      m_lastFailure = IoResult::failure(EPERM, fillPlaceholders(Reasons::klWritingOver(), {target->Name()}));
    else
      m_lastFailure = {};
    if (!m_lastFailure.ok()) return false;
    values = m_values;
  }
  const QString key = currentKey();
  QByteArray content = DictionaryFormat::write(values, key);
  IoResult written;
  if (content.isEmpty())
    written = IoResult::failure(EIO, fillPlaceholders(Reasons::klEnciphering(), {target->Name()}));
  else if (content.size() > DictionaryFormat::LargestFile)  // the next start would take it for damaged
    written = IoResult::failure(EFBIG, fillPlaceholders(Reasons::klWriting(), {target->Name()}));
  else
    written = writeFileSafely(*target, content, m_ops);
  if (key.isEmpty()) wipe(content);
  const QMutexLocker lock(&m_mutex);
  m_lastFailure = written;
  return written.ok();
}
