#pragma once
// A home of a test's own: XDG folders in a temporary directory, set for the life of the object and restored after it.

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>
#include <array>

#include "platform/FolderItem.h"

class TemporaryHome {
 public:
  TemporaryHome();
  ~TemporaryHome();
  TemporaryHome(const TemporaryHome&) = delete;
  TemporaryHome& operator=(const TemporaryHome&) = delete;

  [[nodiscard]] QString path(const QString& relative = {}) const;
  [[nodiscard]] FolderItem item(const QString& relative) const;
  /// Makes a folder (with its parents) and gives its path.
  QString makeFolder(const QString& relative) const;
  /// Writes a file, with its folder; the date is set to `secondsAgo` before now when that is not 0.
  QString writeFile(const QString& relative, const QByteArray& content, double secondsAgo = 0) const;
  static void setDate(const QString& path, double secondsSince1970);
  static QByteArray readFile(const QString& path);

 private:
  QTemporaryDir m_dir;
  std::array<QByteArray, 4> m_before;
};
