#pragma once
// Writing and copying so that the name never stands for half a file: written beside under a hidden name, flushed to
// the disk with its folder, and renamed. Any thread; each call blocks for the disk.

#include <QByteArray>

#include "platform/FileOps.h"
#include "platform/FolderItem.h"
#include "platform/IoResult.h"

/// What tells one version of a file from another: its size in bytes and its date in nanoseconds since 1970 UTC.
struct FileVersion {
  qint64 size = 0;
  qint64 mtimeNs = 0;
  bool operator==(const FileVersion&) const = default;
};

/// The present version of a plain file (links followed); nothing if it is gone or not a plain file.
[[nodiscard]] std::optional<FileVersion> versionOf(const FolderItem& file);

/// Replaces `target` by `content`: the old file or the new one stands there at every moment, never a part.
/// The file is private to the user (0600); a link stays and its target is replaced. Every step's result is looked
/// at. A failure leaves the old file, but for one: when the folder can't be flushed after the rename, the new file
/// stands and may be the old one again after a power loss. Shares that know no flushing of folders are no failure.
IoResult writeFileSafely(const FolderItem& target, const QByteArray& content, FileOps& ops = FileOps::real());

/// Reads a whole file of at most `limit` bytes; EFBIG for a larger one, without reading it. Never blocks on a fifo.
IoResult readWholeFile(const FolderItem& file, qint64 limit, QByteArray& content);

/// Copies `source`, which must still be in `version` (ESTALE otherwise, before and after the copy), to `target`,
/// which must not exist (EEXIST). The copy is written beside under a hidden name, synced, its size compared, its
/// modification date set to the source's (where the share lets its user), and renamed; its mode is that of any new
/// file. A source that is not a plain file gives EISDIR or EINVAL. A failure leaves no trace under the target's name.
IoResult copyFileSafely(const FolderItem& source, const FileVersion& version, const FolderItem& target,
                        FileOps& ops = FileOps::real());

/// Removes leftovers of interrupted writes and copies of ours (hidden names with our mark) from a folder: those whose
/// process on this machine is gone, and those of other machines or before a restart that rest since a day.
void removeLeftovers(const FolderItem& folder);
