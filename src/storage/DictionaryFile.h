#pragma once
// A dictionary that lives in one enciphered file: task files and the preference file. It guards itself, so any thread
// may read and store; a save writes a copy taken under the guard, outside of it, and one save runs at a time.

#include <QMutex>
#include <QSemaphore>
#include <optional>

#include "platform/FileOps.h"
#include "platform/FolderItem.h"
#include "platform/IoResult.h"
#include "storage/Dictionary.h"

class DictionaryFile {
 public:
  /// The key of all files, set once before the first is read. Empty: the files are plain JSON.
  static void setSolutionKey(const QString& key);

  /// An empty dictionary without a location.
  explicit DictionaryFile(FileOps& ops = FileOps::real());

  /// Reads `f`, which becomes the location. A file that doesn't exist gives an empty dictionary and is no failure.
  /// Anything that can't be read, deciphered or parsed gives a failure in words and leaves the dictionary empty; that
  /// file is then never written over by this object, so that what it holds is not lost to defaults.
  /// DictionaryFormat::Damaged and EFBIG tell content that is no dictionary; other errors, a file that was not read.
  [[nodiscard]] IoResult open(const FolderItem& f);

  /// What open() would say of a file of that content, an empty one included; any thread.
  [[nodiscard]] static IoResult check(const QByteArray& content);

  [[nodiscard]] std::optional<FolderItem> location() const;

  // Typed access: a key that is missing gives false, 0, "" or nothing; a value of another type is converted.
  [[nodiscard]] bool BooleanValue(const QString& key) const;
  [[nodiscard]] qint64 integerValue(const QString& key) const;
  [[nodiscard]] double DoubleValue(const QString& key) const;
  [[nodiscard]] QString StringValue(const QString& key) const;
  /// A handle of the native path stored under the key; nothing for an empty or impossible path.
  [[nodiscard]] std::optional<FolderItem> FileValue(const QString& key) const;
  void setBooleanValue(const QString& key, bool value);
  void setIntegerValue(const QString& key, qint64 value);
  void setDoubleValue(const QString& key, double value);
  void setStringValue(const QString& key, const QString& value);
  void setFileValue(const QString& key, const std::optional<FolderItem>& item);
  [[nodiscard]] bool HasKey(const QString& key) const;
  void Remove(const QString& key);
  [[nodiscard]] QStringList Keys() const;

  /// Writes the location safely (see writeFileSafely). False without a location, over a file that could not be read,
  /// for more than DictionaryFormat::LargestFile (EFBIG), or when the disk refuses; the old file then stands as it was,
  /// and lastFailure() tells why.
  [[nodiscard]] bool save();
  /// Makes `f` the location and saves.
  [[nodiscard]] bool save(const FolderItem& f);
  /// Writes a copy to `f` and leaves the location.
  [[nodiscard]] bool Export(const FolderItem& f);
  [[nodiscard]] IoResult lastFailure() const;

 private:
  [[nodiscard]] bool write(const std::optional<FolderItem>& target);
  [[nodiscard]] QVariant lookup(const QString& key) const;
  void store(const QString& key, const QVariant& value);

  FileOps& m_ops;
  QSemaphore FileAccess{1};  ///< one save at a time; every save takes it
  mutable QMutex m_mutex;    // guards the four below
  Dictionary m_values;
  std::optional<FolderItem> m_location;
  std::optional<FolderItem> m_unread;  ///< the file that open() could not take in
  IoResult m_lastFailure;
};
