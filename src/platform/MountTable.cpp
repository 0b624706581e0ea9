#include "platform/MountTable.h"

#include <unistd.h>

#include <QFile>
#include <algorithm>
#include <climits>
#include <string_view>

using namespace Qt::Literals::StringLiterals;

/// Both tables write blanks and their like as three octal digits behind a backslash.
static QByteArray unescaped(const QByteArray& field) {
  QByteArray text;
  for (qsizetype i = 0; i < field.size(); ++i) {
    const QByteArray digits = field[i] == '\\' ? field.mid(i + 1, 3) : QByteArray();
    const bool octal = digits.size() == 3 && std::ranges::all_of(digits, [](char c) { return c >= '0' && c <= '7'; });
    text += octal ? static_cast<char>(digits.toInt(nullptr, 8)) : field[i];
    if (octal) i += 3;
  }
  return text;
}

bool liesIn(const QByteArray& path, const QByteArray& folder) {
  return folder == "/" || path == folder || (path.startsWith(folder) && path.at(folder.size()) == '/');
}

MountTable::MountTable(const QByteArray& mountinfo, const QByteArray& fstab) {
  for (const QByteArray& line : mountinfo.split('\n')) {
    const QList<QByteArray> fields = line.split(' ');
    const qsizetype dash = fields.indexOf("-");  // ends the optional fields
    if (dash >= 6 && fields.size() > dash + 1)
      m_mounted.append({unescaped(fields[4]), fields[dash + 1], fields[0] + ' ' + fields[2]});
  }
  for (const QByteArray& line : fstab.split('\n')) {
    const QList<QByteArray> fields = line.simplified().split(' ');
    if (fields.size() < 3 || fields[0].startsWith('#')) continue;
    QByteArray point = unescaped(fields[1]);
    while (point.size() > 1 && point.endsWith('/')) point.chop(1);
    if (point.startsWith('/')) m_wanted.append(point);  // swap has none
  }
}

MountTable MountTable::present() {
  const auto read = [](const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  };
  return {read(u"/proc/self/mountinfo"_s), read(u"/etc/fstab"_s)};
}

MountEntry MountTable::entryOf(const QByteArray& path) const {
  MountEntry found;
  for (const MountEntry& entry : m_mounted)
    if (liesIn(path, entry.point) && entry.point.size() >= found.point.size()) found = entry;
  return found;
}

QByteArray MountTable::missingFor(const QByteArray& path, const QByteArray& remembered) const {
  const MountEntry entry = entryOf(path);
  if (entry.type == "autofs") return entry.point;
  if (remembered == "/") return {};
  const auto missing = [&](const QByteArray& point) {
    return !point.isEmpty() && liesIn(path, point) && point.size() > entry.point.size();
  };
  for (const QByteArray& point : m_wanted)
    if (missing(point)) return point;
  return missing(remembered) ? remembered : QByteArray();
}

/// File systems that answer by themselves: disks, memory, and the kernel's own.
static bool isLocal(const MountEntry& entry) {
  static constexpr std::string_view Types[]{
      "aufs",   "bcachefs", "btrfs", "cgroup",  "cgroup2", "devpts",  "devtmpfs", "ecryptfs", "erofs",
      "exfat",  "ext2",     "ext3",  "ext4",    "f2fs",    "hfsplus", "iso9660",  "jfs",      "msdos",
      "nilfs2", "ntfs",     "ntfs3", "overlay", "proc",    "ramfs",   "reiserfs", "rootfs",   "squashfs",
      "sysfs",  "tmpfs",    "udf",   "vfat",    "xfs",     "zfs"};
  return std::ranges::find(Types, std::string_view(entry.type.constData(), entry.type.size())) != std::end(Types);
}

bool MountTable::leadsToShare(const QByteArray& path) const {
  constexpr int MostLinks = 40;  // the kernel's own bound
  QByteArray walked;             // free of links; empty for the root
  QList<QByteArray> ahead = path.split('/');
  int links = 0;
  while (isLocal(entryOf(walked.isEmpty() ? "/" : walked))) {
    if (ahead.isEmpty()) return false;
    const QByteArray name = ahead.takeFirst();
    if (name.isEmpty() || name == ".") continue;
    if (name == "..") {
      walked.truncate(qMax(walked.lastIndexOf('/'), 0));
      continue;
    }
    const QByteArray next = walked + '/' + name;
    char target[PATH_MAX];
    const ssize_t size = isLocal(entryOf(next)) ? ::readlink(next.constData(), target, sizeof target) : -1;
    if (size < 0) {
      walked = next;
      continue;
    }
    if (++links > MostLinks) return false;  // leads nowhere
    if (target[0] == '/') walked.clear();
    ahead = QByteArray(target, size).split('/') + ahead;
  }
  return true;
}
