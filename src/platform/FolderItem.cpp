#include "platform/FolderItem.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <memory>

#include "platform/FileOps.h"
#include "platform/FolderCall.h"
#include "platform/Reasons.h"

using namespace Qt::Literals::StringLiterals;

namespace {

std::optional<struct stat> lookAt(const QByteArray& path) {
  const FolderCall call;
  struct stat info {};
  if (::stat(path.constData(), &info) != 0) return std::nullopt;
  return info;
}

// One component that stays inside its folder, whatever the text was.
QByteArray componentOf(QByteArray name) {
  name.replace('/', '_').replace('\0', '_');
  if (name.isEmpty()) return "_";
  if (name == "." || name == "..") name.replace('.', '_');
  return name;
}

QByteArray nativeName(const QString& name) {
  QString whole = name;
  // Half a surrogate pair has no UTF-8 form, and what a codec puts in its place is no choice of ours.
  for (qsizetype i = 0; i < whole.size(); ++i) {
    if (whole[i].isHighSurrogate() && i + 1 < whole.size() && whole[i + 1].isLowSurrogate())
      ++i;
    else if (whole[i].isSurrogate())
      whole[i] = u'_';
  }
  return componentOf(whole.toUtf8());
}

bool accessible(const QByteArray& path, int modes) {
  const FolderCall call;
  return ::faccessat(AT_FDCWD, path.constData(), modes, AT_EACCESS) == 0;
}

}  // namespace

int compareFileNames(QByteArrayView a, QByteArrayView b) {
  const auto fold = [](unsigned char c) { return c >= 'A' && c <= 'Z' ? c + ('a' - 'A') : int{c}; };
  const qsizetype common = std::min(a.size(), b.size());
  for (qsizetype i = 0; i < common; ++i) {
    const auto x = static_cast<unsigned char>(a[i]);
    const auto y = static_cast<unsigned char>(b[i]);
    if ((x | y) >= 0x80) {
      const int order = QString::fromUtf8(a).compare(QString::fromUtf8(b), Qt::CaseInsensitive);
      return order != 0 ? order : a.compare(b);
    }
    if (fold(x) != fold(y)) return fold(x) - fold(y);
  }
  if (a.size() != b.size()) return a.size() < b.size() ? -1 : 1;
  return a.compare(b);
}

std::optional<FolderItem> FolderItem::fromNativePath(const QString& path) {
  if (!path.isValidUtf16()) return std::nullopt;
  return fromBytes(path.toUtf8());
}

std::optional<FolderItem> FolderItem::fromBytes(const QByteArray& path) {
  if (!path.startsWith('/') || path.contains('\0')) return std::nullopt;
  QByteArray clean;
  clean.reserve(path.size());
  for (const QByteArray& component : path.split('/'))
    if (!component.isEmpty() && component != ".") clean += '/' + component;
  return FolderItem(clean.isEmpty() ? QByteArray("/") : clean);
}

FolderItem FolderItem::Child(const QString& name) const { return ChildBytes(nativeName(name)); }

FolderItem FolderItem::ChildBytes(const QByteArray& name) const {
  return FolderItem((m_path == "/" ? QByteArray() : m_path) + '/' + componentOf(name));
}

FolderItem FolderItem::Parent() const {
  const qsizetype slash = m_path.lastIndexOf('/');
  return FolderItem(slash <= 0 ? QByteArray("/") : m_path.left(slash));
}

QList<FolderItem> FolderItem::Items() const {
  const FolderCall call;
  const std::unique_ptr<DIR, int (*)(DIR*)> folder(::opendir(m_path.constData()), &::closedir);
  if (!folder) return {};
  QList<QByteArray> names;
  while (const dirent* entry = ::readdir(folder.get())) {
    const QByteArrayView name(entry->d_name);
    if (name != QByteArrayView(".") && name != QByteArrayView("..")) names.append(name.toByteArray());
  }
  std::sort(names.begin(), names.end(),
            [](const QByteArray& a, const QByteArray& b) { return compareFileNames(a, b) < 0; });
  QList<FolderItem> items;
  items.reserve(names.size());
  for (const QByteArray& name : names) items.append(ChildBytes(name));
  return items;
}

bool FolderItem::Exists() const { return lookAt(m_path).has_value(); }

bool FolderItem::Directory() const {
  const auto info = lookAt(m_path);
  return info && S_ISDIR(info->st_mode);
}

bool FolderItem::Visible() const { return !nameBytes().startsWith('.'); }

bool FolderItem::IsReadable() const { return accessible(m_path, Directory() ? R_OK | X_OK : R_OK); }

// The kernel's answer covers what modes don't tell: a read-only file system and, for root, an immutable folder.
bool FolderItem::IsWriteable() const { return accessible(m_path, Directory() ? W_OK | X_OK : W_OK); }

bool FolderItem::isSameAs(const FolderItem& other) const {
  const auto one = lookAt(m_path), another = lookAt(other.m_path);
  return one && another && one->st_dev == another->st_dev && one->st_ino == another->st_ino;
}

std::optional<quint64> FolderItem::Device() const {
  const auto info = lookAt(m_path);
  return info ? std::optional<quint64>(info->st_dev) : std::nullopt;
}

std::optional<QByteArray> FolderItem::WithoutLinks() const {
  const FolderCall call;
  const std::unique_ptr<char, decltype(&std::free)> path(::realpath(m_path.constData(), nullptr), &std::free);
  return path ? std::optional<QByteArray>(path.get()) : std::nullopt;
}

qint64 FolderItem::Length() const {
  const auto info = lookAt(m_path);
  return info ? qint64{info->st_size} : 0;
}

Date FolderItem::ModificationDate() const {
  const auto info = lookAt(m_path);
  if (!info) return Date::fromNanoseconds(0);
  return Date::fromNanoseconds(qint64{info->st_mtim.tv_sec} * 1'000'000'000 + info->st_mtim.tv_nsec);
}

IoResult FolderItem::setModifiedNow(const Date& now) const {
  constexpr qint64 second = 1'000'000'000;
  const timespec ours[2] = {{0, UTIME_OMIT}, {now.nanoseconds() / second, now.nanoseconds() % second}};
  if (::utimensat(AT_FDCWD, m_path.constData(), ours, 0) == 0) return {};
  if (errno == EPERM && ::utimensat(AT_FDCWD, m_path.constData(), nullptr, 0) == 0) return {};
  return IoResult::failure(errno, fillPlaceholders(Reasons::klSettingDate(), {NativePath()}));
}

QByteArray FolderItem::nameBytes() const { return m_path.mid(m_path.lastIndexOf('/') + 1); }

QString FolderItem::Name() const { return m_path == "/" ? u"/"_s : QString::fromUtf8(nameBytes()); }

IoResult FolderItem::setName(const QString& name) {
  const FolderCall call;
  const FolderItem renamed = Parent().Child(name);
  if (renamed == *this) return {};
  struct stat info {};
  // A link whose target is gone is no file, but it has a name to change.
  if (::lstat(m_path.constData(), &info) == 0) {
    if (FileOps::real().renameNoReplace(m_path.constData(), renamed.m_path.constData()) != 0)
      return IoResult::failure(errno, fillPlaceholders(Reasons::klRenamingTo(), {Name(), renamed.Name()}));
  } else if (errno != ENOENT && errno != ENOTDIR) {
    return IoResult::failure(errno, fillPlaceholders(Reasons::klRenaming(), {Name()}));
  }
  m_path = renamed.m_path;
  return {};
}

QString FolderItem::NativePath() const { return QString::fromUtf8(m_path); }

IoResult FolderItem::Delete() const {
  const FolderCall call;
  if (::unlink(m_path.constData()) == 0) return {};
  int error = errno;
  if (error == EISDIR) {
    if (::rmdir(m_path.constData()) == 0) return {};
    error = errno;
  }
  return IoResult::failure(error, fillPlaceholders(Reasons::klDeleting(), {NativePath()}));
}

IoResult FolderItem::CreateAsFolder() const {
  const FolderCall call;
  if (::mkdir(m_path.constData(), 0777) == 0) return {};
  const int error = errno;
  if (error == EEXIST && Directory()) return {};
  return IoResult::failure(error, fillPlaceholders(Reasons::klMakingFolder(), {NativePath()}));
}
