#pragma once
// File operations of which the n-th fails, and writes that stop after so many bytes, as a full disk does.

#include <algorithm>
#include <cerrno>

#include "platform/FileOps.h"

class FailingFileOps : public FileOps {
 public:
  int failAtCall = -1;       ///< index, from 0, of the call that fails; -1 for none
  long bytesUntilFull = -1;  ///< bytes that can still be written; -1 for no bound
  int errnoValue = ENOSPC;
  int calls = 0;

  int open(const char* path, int flags, mode_t mode) override {
    return fails() ? -1 : FileOps::open(path, flags, mode);
  }
  ssize_t read(int fd, void* buffer, size_t size) override { return fails() ? -1 : FileOps::read(fd, buffer, size); }
  ssize_t write(int fd, const void* buffer, size_t size) override {
    return fails() || !hasRoom(size) ? -1 : used(FileOps::write(fd, buffer, size));
  }
  ssize_t copyRange(int from, int to, size_t size) override {
    return fails() || !hasRoom(size) ? -1 : used(FileOps::copyRange(from, to, size));
  }
  int sync(int fd) override { return fails() ? -1 : FileOps::sync(fd); }
  int close(int fd) override {
    const int result = FileOps::close(fd);
    return fails() ? -1 : result;
  }
  int rename(const char* from, const char* to) override { return fails() ? -1 : FileOps::rename(from, to); }
  int renameNoReplace(const char* from, const char* to) override {
    return fails() ? -1 : FileOps::renameNoReplace(from, to);
  }

 private:
  bool fails() {
    errno = calls == failAtCall ? errnoValue : errno;
    return calls++ == failAtCall;
  }
  bool hasRoom(size_t& size) {
    if (bytesUntilFull < 0) return true;
    errno = errnoValue;
    size = std::min(size, static_cast<size_t>(bytesUntilFull));
    return size > 0;
  }
  ssize_t used(ssize_t bytes) {
    if (bytesUntilFull > 0) bytesUntilFull -= std::max<ssize_t>(bytes, 0);
    return bytes;
  }
};
