#pragma once
// A handle of a file or folder, which may not exist yet. It holds a native path as bytes, so names that are not
// UTF-8 stay reachable. A value; any thread. Every query looks at the disk anew and may block on a share.
// "No item" is an empty std::optional<FolderItem>.

#include <QByteArray>
#include <QByteArrayView>
#include <QList>
#include <QString>
#include <optional>

#include "platform/Date.h"
#include "platform/IoResult.h"

class FolderItem {
 public:
  /// A handle of an absolute path. Nothing for a path that no file can have: empty, relative, or with a NUL in it.
  static std::optional<FolderItem> fromNativePath(const QString& path);
  static std::optional<FolderItem> fromBytes(const QByteArray& path);

  /// The item of that name inside this folder, existing or not. A '/', NUL or half surrogate pair in the name is
  /// replaced by '_', and so is a name that would lead elsewhere: empty, "." or "..".
  [[nodiscard]] FolderItem Child(const QString& name) const;
  [[nodiscard]] FolderItem ChildBytes(const QByteArray& name) const;
  [[nodiscard]] FolderItem Parent() const;
  /// The folder's items in order of their names (case-insensitive, ties by exact bytes); empty if it can't be read.
  [[nodiscard]] QList<FolderItem> Items() const;

  [[nodiscard]] bool Exists() const;  ///< follows links; a broken or looping link doesn't exist
  [[nodiscard]] bool Directory() const;
  [[nodiscard]] bool Visible() const;                            ///< false for a name that begins with a dot
  [[nodiscard]] bool IsReadable() const;                         ///< for a folder: listed and entered
  [[nodiscard]] bool IsWriteable() const;                        ///< for a folder: files can be made in it
  [[nodiscard]] bool isSameAs(const FolderItem& other) const;    ///< one and the same, by whatever paths
  [[nodiscard]] std::optional<quint64> Device() const;           ///< of its file system, as long as that is mounted
  [[nodiscard]] std::optional<QByteArray> WithoutLinks() const;  ///< the path that links lead to; nothing if it's gone
  [[nodiscard]] qint64 Length() const;                           ///< bytes; 0 if it doesn't exist
  [[nodiscard]] Date ModificationDate() const;                   ///< 1970-01-01 if it doesn't exist
  /// Sets the modification date to `now`, links followed. Of a file that belongs to another user and may only be
  /// written, it becomes the present moment by the file system's own clock.
  IoResult setModifiedNow(const Date& now) const;

  /// The last component for display: bytes that are not UTF-8 show as U+FFFD.
  [[nodiscard]] QString Name() const;
  /// The last component as it stands on the disk; empty for the root.
  [[nodiscard]] QByteArray nameBytes() const;
  /// Renames a file that exists (never over another one: EEXIST), and only changes the handle of one that doesn't.
  IoResult setName(const QString& name);
  /// The path for display and for settings; bytes that are not UTF-8 show as U+FFFD and don't lead back to the file.
  [[nodiscard]] QString NativePath() const;
  [[nodiscard]] const QByteArray& bytes() const { return m_path; }

  IoResult Delete() const;          ///< a file, link or empty folder
  IoResult CreateAsFolder() const;  ///< mode 0777 less the umask; an existing folder is a success

  bool operator==(const FolderItem&) const = default;

 private:
  explicit FolderItem(QByteArray path) : m_path(std::move(path)) {}
  QByteArray m_path;
};

/// Order of file names: below 0, 0 or above 0. Case-insensitive, ties by exact bytes.
[[nodiscard]] int compareFileNames(QByteArrayView a, QByteArrayView b);
