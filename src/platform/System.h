#pragma once
// Small services of the machine. Any thread.

#include <QString>

namespace System {
/// One line to the debug log (standard error, journal). Never holds a secret.
void DebugLog(const QString& line);
/// Names the calling thread for debuggers and process lists (15 bytes at most).
void nameThisThread(const char* name);
}  // namespace System

struct MountRequest {
  QString url;
  QString mountDirectory;  ///< empty leaves the place to the platform
  QString userName;
  QString password;
  bool interactive = false;
  bool prompt = false;
  bool threaded = false;
};

/// Mounts a share without asking anybody, blocking. Gives the mount point, or the empty string and an errno. On this
/// system nothing mounts shares for a program without rights yet: every call gives the empty string and ENOTSUP.
[[nodiscard]] QString mountShare(const MountRequest& request, int& errorCode);
