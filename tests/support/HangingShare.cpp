#include "HangingShare.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <atomic>
#include <cstdarg>
#include <cstring>

static std::atomic<bool> hangs = false;
static std::atomic<int> callsInside = 0;

static void pass(const char* path) {
  if (!path || !std::strstr(path, "hanging-share")) return;
  ++callsInside;
  hangs.wait(true);
  --callsInside;
  callsInside.notify_all();
}

HangingShare::HangingShare() { hangs = true; }

HangingShare::~HangingShare() {
  hangs = false;
  hangs.notify_all();
  for (int left = callsInside; left > 0; left = callsInside) callsInside.wait(left);
}

int HangingShare::waiting() { return callsInside; }

// The program's own definitions come before the C library's.
extern "C" int stat(const char* path, struct stat* info) noexcept {
  pass(path);
  return ::fstatat(AT_FDCWD, path, info, 0);
}

extern "C" int open(const char* path, int flags, ...) {
  va_list arguments;
  va_start(arguments, flags);
  const mode_t mode = (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(arguments, mode_t) : 0;
  va_end(arguments);
  pass(path);
  return ::openat(AT_FDCWD, path, flags, mode);
}
