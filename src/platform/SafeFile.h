#pragma once
// Writing and copying so that the name never stands for half a file: written beside under a hidden name, flushed to
// the disk with its folder, and renamed. Any thread; each call blocks for the disk.

#include <QByteArray>
#include <functional>
#include <memory>
#include <optional>
#include <span>

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
/// The same, as the file's server has it now: a share may remember for a minute what it looked at.
[[nodiscard]] std::optional<FileVersion> versionAtServer(const FolderItem& file);

/// True if no plain file stands under that name; false also where that can't be told, as on a share that fails.
[[nodiscard]] bool isGone(const FolderItem& file);

/// Replaces `target` by `content`: the old file or the new one stands there at every moment, never a part.
/// The file is private to the user (0600); a link stays and its target is replaced. Every step's result is looked
/// at. A failure leaves the old file, but for one: when the folder can't be flushed after the rename, the new file
/// stands and may be the old one again after a power loss. Shares that know no flushing of folders are no failure.
IoResult writeFileSafely(const FolderItem& target, const QByteArray& content, FileOps& ops = FileOps::real());

/// The next piece of a file's content, an empty one at its end, also when asked again; nothing breaks the writing off.
using NextPiece = std::function<std::optional<QByteArray>()>;
/// The same for a file of the user's own, such as an export, whose content comes in pieces: its mode is that of any new
/// file. ECANCELED when `next` breaks it off; the old file then stands.
IoResult writeFileInPieces(const FolderItem& target, const NextPiece& next, FileOps& ops = FileOps::real());

/// Reads a whole file of at most `limit` bytes; EFBIG for a larger one, without reading it. Never blocks on a fifo.
IoResult readWholeFile(const FolderItem& file, qint64 limit, QByteArray& content);

/// Copies `source`, which must still be in `version` (ESTALE otherwise, before and after the copy), to `target`,
/// which must not exist (EEXIST). The copy is written beside under a hidden name, synced, its size compared, its
/// modification date set to the source's (where the share lets its user), and renamed; its mode is that of any new
/// file. A source that is not a plain file gives EISDIR or EINVAL. A failure leaves no trace under the target's name.
IoResult copyFileSafely(const FolderItem& source, const FileVersion& version, const FolderItem& target,
                        FileOps& ops = FileOps::real());

/// The same in steps, so that several copies reach the disk together. What wasn't placed leaves no trace.
class SafeCopy {
 public:
  /// Writes `source` into `folder` under a hidden name.
  SafeCopy(const FolderItem& source, const FileVersion& version, const FolderItem& folder,
           FileOps& ops = FileOps::real());
  ~SafeCopy();
  SafeCopy(const SafeCopy&) = delete;
  SafeCopy& operator=(const SafeCopy&) = delete;

  /// The first step that failed; later ones do nothing then.
  [[nodiscard]] const IoResult& state() const { return m_state; }
  /// Brings the content to the disk.
  void sync();
  /// Gives it its name, in that folder; false with EEXIST as error when it is taken, and another may be tried then.
  [[nodiscard]] bool place(const FolderItem& target);
  /// Brings the names of placed copies to the disk, one flush for each folder. Where that fails they are removed again.
  static void flushFolders(std::span<SafeCopy* const> copies);

 private:
  struct Steps;
  bool fail(int error);

  FileOps& m_ops;
  FolderItem m_folder;
  QString m_doing;
  IoResult m_state;
  std::unique_ptr<Steps> m_steps;
  std::optional<FolderItem> m_placed;
};

/// Removes leftovers of interrupted writes and copies of ours (hidden names with our mark) from a folder: those whose
/// process on this machine is gone, and those of other machines or before a restart that rest since a day.
void removeLeftovers(const FolderItem& folder);
