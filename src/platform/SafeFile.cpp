#include "platform/SafeFile.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <map>
#include <optional>
#include <thread>

#include "platform/FolderCall.h"
#include "platform/HiddenName.h"
#include "platform/Reasons.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr size_t kPiece = size_t{256} * 1024;
constexpr int kOpenToRead = O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;

template <typename Call>
auto again(Call call) {
  auto result = call();
  while (result < 0 && errno == EINTR) result = call();
  return result;
}

int statusOf(int fd, struct stat& info) {
  const FolderCall call;
  return ::fstat(fd, &info);
}

int statusOfName(const char* path, struct stat& info) {
  const FolderCall call;
  return ::lstat(path, &info);
}

FileVersion versionFrom(const struct stat& info) {
  return {qint64{info.st_size}, qint64{info.st_mtim.tv_sec} * 1'000'000'000 + info.st_mtim.tv_nsec};
}

// A descriptor that closes itself when a step before its checked close fails.
class Descriptor {
 public:
  Descriptor(FileOps& ops, const QByteArray& path, int flags, mode_t mode = 0)
      : m_ops(ops), m_fd(again([&] { return ops.open(path.constData(), flags | O_CLOEXEC, mode); })) {}
  ~Descriptor() {
    if (m_fd >= 0) m_ops.close(m_fd);  // read only, or of a file that is thrown away
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;

  [[nodiscard]] bool isOpen() const { return m_fd >= 0; }
  [[nodiscard]] int fd() const { return m_fd; }
  /// Network file systems tell late errors here. An interrupted close has closed on Linux.
  [[nodiscard]] bool close() {
    const int fd = m_fd;
    m_fd = -1;
    return m_ops.close(fd) == 0 || errno == EINTR;
  }

 private:
  FileOps& m_ops;
  int m_fd;
};

// Flushes a folder's names. Opened before the names change, so that a folder that can't be opened changes nothing.
class FolderFlush {
 public:
  FolderFlush(FileOps& ops, const FolderItem& folder)
      : m_ops(ops), m_folder(ops, folder.bytes(), O_RDONLY | O_DIRECTORY), m_openError(m_folder.isOpen() ? 0 : errno) {}

  /// 0, or the errno that forbids to go on. A folder that may be written but not read can't be flushed.
  [[nodiscard]] int openError() const { return m_openError == EACCES ? 0 : m_openError; }
  [[nodiscard]] int flush() {
    if (!m_folder.isOpen()) return 0;
    if (again([&] { return m_ops.sync(m_folder.fd()); }) == 0) return 0;
    // What shares answer that know no flushing of folders.
    return errno == EINVAL || errno == EBADF || errno == EOPNOTSUPP || errno == ENOSYS ? 0 : errno;
  }

 private:
  FileOps& m_ops;
  Descriptor m_folder;
  int m_openError;
};

// A file under a hidden name beside its target, removed again unless it got the target's name.
class HiddenFile {
 public:
  HiddenFile(FileOps& ops, const FolderItem& folder, mode_t mode)
      : m_ops(ops),
        m_path(folder.ChildBytes(makeHiddenName()).bytes()),
        m_file(ops, m_path, O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW, mode),
        m_error(m_file.isOpen() ? 0 : errno),
        m_present(m_file.isOpen()) {}
  ~HiddenFile() {
    if (m_present) m_ops.unlink(m_path.constData());  // what can't be removed now, removeLeftovers finds
  }
  HiddenFile(const HiddenFile&) = delete;
  HiddenFile& operator=(const HiddenFile&) = delete;

  [[nodiscard]] int error() const { return m_error; }
  [[nodiscard]] int fd() const { return m_file.fd(); }

  [[nodiscard]] bool write(const char* data, size_t size) {
    while (size > 0) {
      const ssize_t done = again([&] { return m_ops.write(fd(), data, size); });
      if (done < 0) return false;
      if (done == 0) {
        errno = EIO;
        return false;
      }
      data += done;
      size -= static_cast<size_t>(done);
    }
    return true;
  }

  [[nodiscard]] bool flush() {
    return again([&] { return m_ops.sync(fd()); }) == 0;
  }
  [[nodiscard]] bool finish() { return flush() && m_file.close(); }

  [[nodiscard]] bool replace(const FolderItem& target) {
    return taken(m_ops.rename(m_path.constData(), target.bytes().constData()));
  }
  [[nodiscard]] bool takeFreeName(const FolderItem& target) {
    return taken(m_ops.renameNoReplace(m_path.constData(), target.bytes().constData()));
  }

 private:
  bool taken(int result) {
    if (result == 0) m_present = false;
    return result == 0;
  }

  FileOps& m_ops;
  QByteArray m_path;
  Descriptor m_file;
  int m_error;
  bool m_present;
};

// A settings file may be a link to where a person keeps it: the link stays and its target is replaced.
std::optional<FolderItem> realTarget(const FolderItem& target, int& error) {
  struct stat info {};
  if (statusOfName(target.bytes().constData(), info) != 0 || S_ISREG(info.st_mode)) return target;
  const std::unique_ptr<char, decltype(&std::free)> path(::realpath(target.bytes().constData(), nullptr), &std::free);
  error = errno;
  if (!path) return std::nullopt;
  auto item = FolderItem::fromBytes(path.get());
  if (item && versionOf(*item)) return item;
  error = item && item->Directory() ? EISDIR : EINVAL;
  return std::nullopt;
}

bool rewind(int fd) { return ::lseek(fd, 0, SEEK_SET) == 0; }

// Fills `to` with at most `size` bytes of `from`, inside the kernel where it can. Gives 0 or an errno.
int copyInKernel(FileOps& ops, int from, HiddenFile& to, qint64 size) {
  for (qint64 left = size; left > 0;) {
    const size_t piece = static_cast<size_t>(std::min<qint64>(left, 8 << 20));
    const ssize_t done = again([&] { return ops.copyRange(from, to.fd(), piece); });
    if (done < 0) return errno;
    if (done == 0) return ENODATA;
    left -= done;
  }
  struct stat info {};
  if (statusOf(to.fd(), info) != 0) return errno;
  // Some network file systems report bytes that never arrive.
  return info.st_size == size ? 0 : ENODATA;
}

int copyByReading(FileOps& ops, int from, HiddenFile& to, qint64 size) {
  if (!rewind(from) || !rewind(to.fd())) return errno;
  const auto buffer = std::make_unique_for_overwrite<char[]>(kPiece);
  for (qint64 left = size; left > 0;) {
    const size_t piece = static_cast<size_t>(std::min<qint64>(left, kPiece));
    const ssize_t done = again([&] { return ops.read(from, buffer.get(), piece); });
    if (done < 0) return errno;
    if (done == 0) return ESTALE;
    if (!to.write(buffer.get(), static_cast<size_t>(done))) return errno;
    left -= done;
  }
  return 0;
}

bool meansNoRoom(int error) { return error == ENOSPC || error == EDQUOT || error == EFBIG; }

int copyContent(FileOps& ops, int from, HiddenFile& to, qint64 size) {
  const int error = copyInKernel(ops, from, to, size);
  return error == 0 || meansNoRoom(error) ? error : copyByReading(ops, from, to, size);
}

// Where files belong to another user than the one who writes them, as on some shares, dates can't be set: then the
// copy keeps its own, for a copy without its date is worth more than none.
int keepDate(int fd, const struct stat& source) {
  const FolderCall call;
  const timespec times[2] = {source.st_atim, source.st_mtim};
  if (::futimens(fd, times) == 0) return 0;
  return errno == EPERM || errno == EACCES || errno == EOPNOTSUPP || errno == ENOSYS ? 0 : errno;
}

// Gives 0 when the open source is still a plain file in that version.
int stillIn(const FileVersion& version, int fd, struct stat& info) {
  if (statusOf(fd, info) != 0) return errno;
  if (!S_ISREG(info.st_mode)) return S_ISDIR(info.st_mode) ? EISDIR : EINVAL;
  return versionFrom(info) == version ? 0 : ESTALE;
}

int fillCopy(FileOps& ops, int from, HiddenFile& to, const FileVersion& version) {
  struct stat info {};
  if (const int error = copyContent(ops, from, to, version.size)) return error;
  if (const int error = stillIn(version, from, info)) return error;
  if (const int error = keepDate(to.fd(), info)) return error;
  struct stat written {};
  if (statusOf(to.fd(), written) != 0) return errno;
  if (written.st_size != version.size) return EIO;
  FileOps::startWriting(to.fd());
  return 0;
}

}  // namespace

std::optional<FileVersion> versionOf(const FolderItem& file) {
  const FolderCall call;
  struct stat info {};
  if (::stat(file.bytes().constData(), &info) != 0 || !S_ISREG(info.st_mode)) return std::nullopt;
  return versionFrom(info);
}

std::optional<FileVersion> versionAtServer(const FolderItem& file) {
  const FolderCall call;
  struct statx info {};
  if (::statx(AT_FDCWD, file.bytes().constData(), AT_STATX_FORCE_SYNC, STATX_BASIC_STATS, &info) != 0) return {};
  if (!S_ISREG(info.stx_mode)) return {};
  return FileVersion{static_cast<qint64>(info.stx_size),
                     qint64{info.stx_mtime.tv_sec} * 1'000'000'000 + info.stx_mtime.tv_nsec};
}

bool isGone(const FolderItem& file) {
  const FolderCall call;
  struct stat info {};
  if (::stat(file.bytes().constData(), &info) == 0) return !S_ISREG(info.st_mode);
  return errno == ENOENT || errno == ENOTDIR || errno == ELOOP;
}

// `fill` writes the content; it gives 0 or the errno that stopped it.
static IoResult replaceFile(const FolderItem& wanted, mode_t mode, const std::function<int(HiddenFile&)>& fill,
                            FileOps& ops) {
  const QString doing = fillPlaceholders(Reasons::klWriting(), {wanted.NativePath()});
  int linkError = 0;
  const auto target = realTarget(wanted, linkError);
  if (!target) return IoResult::failure(linkError, doing);
  FolderFlush folder(ops, target->Parent());
  if (folder.openError()) return IoResult::failure(folder.openError(), doing);
  HiddenFile file(ops, target->Parent(), mode);
  if (file.error()) return IoResult::failure(file.error(), doing);
  if (const int error = fill(file)) return IoResult::failure(error, doing);
  if (!file.finish() || !file.replace(*target)) return IoResult::failure(errno, doing);
  if (const int error = folder.flush())
    return IoResult::failure(error, fillPlaceholders(Reasons::klFlushingFolder(), {wanted.NativePath()}));
  return {};
}

IoResult writeFileSafely(const FolderItem& target, const QByteArray& content, FileOps& ops) {
  const auto fill = [&](HiddenFile& file) {
    return file.write(content.constData(), static_cast<size_t>(content.size())) ? 0 : errno;
  };
  return replaceFile(target, 0600, fill, ops);
}

IoResult writeFileInPieces(const FolderItem& target, const NextPiece& next, FileOps& ops) {
  const auto fill = [&](HiddenFile& file) {
    for (;;) {
      const auto piece = next();
      if (!piece) return ECANCELED;
      // The flush takes the longest, so the writer is asked once more behind it.
      if (piece->isEmpty()) return !file.flush() ? errno : next() ? 0 : ECANCELED;
      if (!file.write(piece->constData(), static_cast<size_t>(piece->size()))) return errno;
    }
  };
  return replaceFile(target, 0666, fill, ops);
}

IoResult readWholeFile(const FolderItem& file, qint64 limit, QByteArray& content) {
  const QString doing = fillPlaceholders(Reasons::klReading(), {file.NativePath()});
  content.clear();
  FileOps& ops = FileOps::real();
  const Descriptor source(ops, file.bytes(), kOpenToRead);
  if (!source.isOpen()) return IoResult::failure(errno, doing);
  struct stat info {};
  if (statusOf(source.fd(), info) != 0) return IoResult::failure(errno, doing);
  if (!S_ISREG(info.st_mode)) return IoResult::failure(S_ISDIR(info.st_mode) ? EISDIR : EINVAL, doing);
  if (info.st_size > limit) return IoResult::failure(EFBIG, doing);
  QByteArray read;
  for (;;) {
    // One byte more than announced shows the end, or a file that has grown since.
    const qsizetype room = std::max<qsizetype>(qsizetype{info.st_size} - read.size(), 0) + 1;
    const qsizetype before = read.size();
    read.resize(before + room);
    const ssize_t done = again([&] { return ops.read(source.fd(), read.data() + before, static_cast<size_t>(room)); });
    if (done < 0) return IoResult::failure(errno, doing);
    read.resize(before + done);
    if (read.size() > limit) return IoResult::failure(EFBIG, doing);
    if (done == 0) break;
  }
  content = std::move(read);
  return {};
}

struct SafeCopy::Steps {
  Steps(FileOps& ops, const FolderItem& target) : folder(ops, target), copy(ops, target, 0666) {}
  FolderFlush folder;
  HiddenFile copy;
};

/// Waits for another process that holds a lease on the file, as a file server does for its clients: it is asked to give
/// it up, and mostly does at once. False with errno.
static bool openPatiently(std::optional<Descriptor>& opened, FileOps& ops, const QByteArray& path) {
  for (int tries = 0; tries < 20; ++tries) {
    opened.emplace(ops, path, kOpenToRead);
    if (opened->isOpen() || errno != EAGAIN) break;
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
    errno = EAGAIN;
  }
  return opened->isOpen();
}

SafeCopy::SafeCopy(const FolderItem& source, const FileVersion& version, const FolderItem& folder, FileOps& ops)
    : m_ops(ops),
      m_folder(folder),
      m_doing(fillPlaceholders(Reasons::klCopying(), {source.NativePath(), folder.NativePath()})) {
  std::optional<Descriptor> from;
  struct stat info {};
  if (!openPatiently(from, ops, source.bytes())) {
    fail(errno);
  } else if (const int error = stillIn(version, from->fd(), info)) {
    fail(error);
  } else {
    m_steps = std::make_unique<Steps>(ops, folder);
    if (m_steps->folder.openError())
      fail(m_steps->folder.openError());
    else if (m_steps->copy.error())
      fail(m_steps->copy.error());
    else if (const int unfilled = fillCopy(ops, from->fd(), m_steps->copy, version))
      fail(unfilled);
  }
}

SafeCopy::~SafeCopy() = default;

bool SafeCopy::fail(int error) {
  m_state = IoResult::failure(error, m_doing);
  m_steps.reset();
  return false;
}

void SafeCopy::sync() {
  if (m_state.ok() && !m_steps->copy.finish()) fail(errno);
}

bool SafeCopy::place(const FolderItem& target) {
  if (!m_steps) return false;
  m_state = {};
  if (m_steps->copy.takeFreeName(target)) {
    m_placed = target;
    return true;
  }
  m_state = IoResult::failure(errno, m_doing);
  return false;
}

void SafeCopy::flushFolders(std::span<SafeCopy* const> copies) {
  std::map<QByteArray, int> flushed;
  for (SafeCopy* const copy : copies) {
    if (!copy->m_placed) continue;
    const auto [folder, isNew] = flushed.try_emplace(copy->m_folder.bytes(), 0);
    if (isNew) folder->second = copy->m_steps->folder.flush();
    if (folder->second == 0) continue;
    copy->m_ops.unlink(copy->m_placed->bytes().constData());
    copy->m_placed.reset();
    copy->fail(folder->second);
  }
}

IoResult copyFileSafely(const FolderItem& source, const FileVersion& version, const FolderItem& target, FileOps& ops) {
  struct stat info {};
  // Only saves the work: placing it is what never replaces a file.
  if (statusOfName(target.bytes().constData(), info) == 0)
    return IoResult::failure(EEXIST,
                             fillPlaceholders(Reasons::klCopying(), {source.NativePath(), target.NativePath()}));
  SafeCopy copy(source, version, target.Parent(), ops);
  copy.sync();
  SafeCopy* const placed = &copy;
  if (copy.place(target)) SafeCopy::flushFolders({&placed, 1});
  return copy.state();
}

void removeLeftovers(const FolderItem& folder) {
  const auto opened = [&] {
    const FolderCall call;
    return ::opendir(folder.bytes().constData());
  };
  const std::unique_ptr<DIR, int (*)(DIR*)> names(opened(), &::closedir);
  if (!names) return;
  const auto next = [&] {
    const FolderCall call;
    return ::readdir(names.get());
  };
  while (const dirent* entry = next()) {
    const FolderCall call;
    struct stat info {};
    if (!hasOurMark(entry->d_name)) continue;
    if (::fstatat(::dirfd(names.get()), entry->d_name, &info, AT_SYMLINK_NOFOLLOW) != 0) continue;
    if (!S_ISREG(info.st_mode)) continue;
    const qint64 changedNs = qint64{info.st_ctim.tv_sec} * 1'000'000'000 + info.st_ctim.tv_nsec;
    if (isLeftover(entry->d_name, changedNs)) ::unlinkat(::dirfd(names.get()), entry->d_name, 0);
  }
}
