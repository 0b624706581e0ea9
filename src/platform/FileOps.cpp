#include "platform/FileOps.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

#include "platform/FolderCall.h"

int FileOps::open(const char* path, int flags, mode_t mode) {
  const FolderCall call;
  return ::open(path, flags, mode);
}
ssize_t FileOps::read(int fd, void* buffer, size_t size) {
  const FolderCall call;
  return ::read(fd, buffer, size);
}
ssize_t FileOps::write(int fd, const void* buffer, size_t size) {
  const FolderCall call;
  return ::write(fd, buffer, size);
}
ssize_t FileOps::copyRange(int from, int to, size_t size) {
  const FolderCall call;
  return ::copy_file_range(from, nullptr, to, nullptr, size, 0);
}
int FileOps::sync(int fd) {
  const FolderCall call;
  return ::fsync(fd);
}
void FileOps::startWriting(int fd) {
  const FolderCall call;
  (void)::sync_file_range(fd, 0, 0, SYNC_FILE_RANGE_WRITE);  // not every file system knows it
}
int FileOps::close(int fd) {
  const FolderCall call;
  return ::close(fd);
}
int FileOps::rename(const char* from, const char* to) {
  const FolderCall call;
  return ::rename(from, to);
}
int FileOps::unlink(const char* path) {
  const FolderCall call;
  return ::unlink(path);
}
int FileOps::renameExclusive(const char* from, const char* to) {
  const FolderCall call;
  return ::renameat2(AT_FDCWD, from, AT_FDCWD, to, RENAME_NOREPLACE);
}
int FileOps::link(const char* from, const char* to) {
  const FolderCall call;
  return ::linkat(AT_FDCWD, from, AT_FDCWD, to, 0);
}

int FileOps::renameNoReplace(const char* from, const char* to) {
  if (renameExclusive(from, to) == 0) return 0;
  if (errno != EINVAL && errno != ENOSYS && errno != EOPNOTSUPP) return -1;
  if (link(from, to) == 0) {
    if (::unlink(from) == 0) return 0;
    const int error = errno;
    ::unlink(to);
    errno = error;
    return -1;
  }
  // EPERM is what a file system without links and a folder as source give.
  if (errno != EPERM && errno != ENOSYS && errno != EOPNOTSUPP && errno != EMLINK) return -1;
  return renameOntoReserved(from, to);
}

// Takes the free name with an empty file or folder of our own first: nobody else's can then be replaced.
int FileOps::renameOntoReserved(const char* from, const char* to) {
  const FolderCall call;
  struct stat info {};
  if (::lstat(from, &info) != 0) return -1;
  const bool folder = S_ISDIR(info.st_mode);
  if (folder) {
    if (::mkdir(to, 0700) != 0) return -1;
  } else {
    const int fd = ::open(to, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, 0600);
    if (fd < 0) return -1;
    ::close(fd);  // nothing was written that a late error could concern
  }
  if (::rename(from, to) == 0) return 0;
  const int error = errno;
  if (folder)
    ::rmdir(to);
  else
    ::unlink(to);
  errno = error;
  return -1;
}

FileOps& FileOps::real() {
  static FileOps ops;
  return ops;
}
