#pragma once
// The seam between our careful file operations and the kernel: each virtual is one system call, so that a test's
// double can fail the n-th of them. real() is stateless and safe from any thread.

#include <sys/types.h>

class FileOps {
 public:
  virtual ~FileOps() = default;
  virtual int open(const char* path, int flags, mode_t mode);
  virtual ssize_t read(int fd, void* buffer, size_t size);
  virtual ssize_t write(int fd, const void* buffer, size_t size);
  /// copy_file_range from and to the files' own offsets; may do less than `size`, and nothing on some shares.
  virtual ssize_t copyRange(int from, int to, size_t size);
  virtual int sync(int fd);  ///< fsync: data and metadata
  /// Starts the writing that sync() waits for. Only advice: sync() tells what failed. Files whose writing was started
  /// together share what a sync of each costs.
  static void startWriting(int fd);
  virtual int close(int fd);
  virtual int rename(const char* from, const char* to);           ///< replaces the target
  virtual int renameNoReplace(const char* from, const char* to);  ///< EEXIST if the target exists, on every file system
  virtual int unlink(const char* path);
  static FileOps& real();

 protected:
  // What renameNoReplace is made of: not every file system knows the first or the second.
  virtual int renameExclusive(const char* from, const char* to);
  virtual int link(const char* from, const char* to);

 private:
  int renameOntoReserved(const char* from, const char* to);
};
