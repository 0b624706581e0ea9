#pragma once
// Which file system a path lies on, from the kernel's table and from the one that the administrator wrote. Reading
// either touches no share. Values; any thread.

#include <QByteArray>
#include <QList>

struct MountEntry {
  QByteArray point;  ///< an absolute path
  QByteArray type;   ///< "cifs", "fuse.gvfsd-fuse", "autofs", …
  QByteArray id;     ///< another one when the same is mounted anew while a call hangs on the old one
};

/// True for the folder itself and for what lies in it.
[[nodiscard]] bool liesIn(const QByteArray& path, const QByteArray& folder);

class MountTable {
 public:
  /// From the texts of /proc/self/mountinfo and /etc/fstab.
  MountTable(const QByteArray& mountinfo, const QByteArray& fstab);
  /// As it is at the moment.
  [[nodiscard]] static MountTable present();

  /// What `path`, free of links, lies on: the innermost entry, the uppermost where several share a mount point.
  [[nodiscard]] MountEntry entryOf(const QByteArray& path) const;
  /// The mount point in which `path` should lie and doesn't, since nothing is mounted there: one of fstab's, an
  /// automounter's, or `remembered`, that of an earlier look. Empty if all is as it should be. A `remembered` "/" takes
  /// the path as it is, unless an automounter answers for it.
  [[nodiscard]] QByteArray missingFor(const QByteArray& path, const QByteArray& remembered) const;
  /// True if `path`, absolute and perhaps with links in it, leads to a file system that waits for a server or for
  /// another program, or that isn't known. Looks at local links on the way and at nothing else.
  [[nodiscard]] bool leadsToShare(const QByteArray& path) const;

 private:
  QList<MountEntry> m_mounted;
  QList<QByteArray> m_wanted;
};
