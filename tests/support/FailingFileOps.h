#pragma once
// File operations of which the n-th fails, and writes that stop after so many bytes, as a full disk does.

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
    if (fails()) return -1;
    if (bytesUntilFull >= 0) {
      if (bytesUntilFull == 0) return refuse();
      if (static_cast<long>(size) > bytesUntilFull) size = static_cast<size_t>(bytesUntilFull);
      bytesUntilFull -= static_cast<long>(size);
    }
    return FileOps::write(fd, buffer, size);
  }
  ssize_t copyRange(int from, int to, size_t size) override {
    if (fails()) return -1;
    if (bytesUntilFull >= 0) {
      if (bytesUntilFull == 0) return refuse();
      if (static_cast<long>(size) > bytesUntilFull) size = static_cast<size_t>(bytesUntilFull);
    }
    const ssize_t done = FileOps::copyRange(from, to, size);
    if (bytesUntilFull >= 0 && done > 0) bytesUntilFull -= static_cast<long>(done);
    return done;
  }
  int sync(int fd) override { return fails() ? -1 : FileOps::sync(fd); }
  int close(int fd) override {
    const bool fail = fails();
    const int result = FileOps::close(fd);
    return fail ? refuse() : result;
  }
  int rename(const char* from, const char* to) override { return fails() ? -1 : FileOps::rename(from, to); }
  int renameNoReplace(const char* from, const char* to) override {
    return fails() ? -1 : FileOps::renameNoReplace(from, to);
  }
  int unlink(const char* path) override { return FileOps::unlink(path); }

 private:
  int refuse() const {
    errno = errnoValue;
    return -1;
  }
  bool fails() {
    if (calls++ != failAtCall) return false;
    errno = errnoValue;
    return true;
  }
};
