#pragma once
// Mounts a share for the program's user, through the desktop's mount service (GIO/GVfs), which shows it as a folder.

#include <QByteArray>
#include <QString>
#include <cerrno>
#include <functional>

struct MountRequest {
  QString url;             ///< smb, dav, davs, sftp, nfs, afp; escaped as a URL, but blanks may stand
  QString mountDirectory;  ///< empty leaves the place to the platform, which knows no other
  QString userName;        ///< a domain stands before a backslash or behind an @
  QString password;
  bool interactive = false;
  bool prompt = false;
  bool threaded = false;
  /// Asked ten times a second; true gives up with ECANCELED.
  std::function<bool()> cancelled;
};

/// What `errorCode` tells when a mount fails, beside codes of the system that need no words of ours.
namespace MountError {
constexpr int NoSession = ENOTCONN;  ///< no session bus, so no mount service
constexpr int LoginRefused = EACCES;
constexpr int Question = EPERM;            ///< something only a person can confirm, as a host key never seen or changed
constexpr int Unreachable = EHOSTUNREACH;  ///< nobody answers at that address
constexpr int NotThere = ENOENT;           ///< the server has no such share or folder
constexpr int TimedOut = ETIMEDOUT;
constexpr int Cancelled = ECANCELED;
constexpr int NotSupported = EPROTONOSUPPORT;  ///< nothing installed mounts that kind of address
/// Mounted, but not shown as a folder: FUSE is missing, or the address names a server and none of its shares.
constexpr int NoFolder = ENODEV;
constexpr int ServiceEnded = EPIPE;  ///< the mount service's process crashed over the address or the login
}  // namespace MountError

/// The address as it may be shown and logged: without what stands before an @ of its server.
[[nodiscard]] QString shareForDisplay(const QString& url);

/// The address as the mount service takes it: blanks escaped, and for nfs neither the usual port nor the bare colon of
/// "server:/folder", which it would mount and then not find.
[[nodiscard]] QString shareForService(const QString& url);

/// Has the automounter mount what belongs at the folder `path`, by opening it: a look at the metadata of a mount point
/// does not. Blocks for the mount; what it came to shows in the mount table. Any thread.
void wakeAutomount(const QByteArray& path);

/// Mounts a share without asking anybody and gives its folder as a local path, or the empty string and an errno (see
/// MountError). A share that is mounted already is a success. Blocks for `limitMs` at most and 5 s more for the service
/// to give up, then fails with ETIMEDOUT, or with ENOTCONN where the bus itself is silent; what hangs is left behind on
/// a thread of its own. The login goes to the mount service over the session bus, and nowhere else. Any thread.
[[nodiscard]] QString mountShare(const MountRequest& request, int& errorCode, int limitMs = 60'000);
