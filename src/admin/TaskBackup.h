#pragma once
// Copies of the task files, out of the task folder and back. The copying blocks for folders that may lie on a share, so
// it is done on a thread of its own; its job is shared with a window, which may stop it and ask what is missing.

#include <QStringList>
#include <atomic>
#include <memory>
#include <mutex>

#include "platform/FolderItem.h"

class CopyJob {
 public:
  /// No further file is begun. A file that is under way is finished in a backup and given up in a restore. Any thread.
  void stop() { m_stopped = true; }
  [[nodiscard]] bool stopped() const { return m_stopped; }

  // Any thread.
  void setWaiting(const QStringList& names);
  void copied(const QString& name);
  void failed(const QString& name, const QString& reason);
  [[nodiscard]] QStringList waiting() const;   ///< names not copied yet, in order
  [[nodiscard]] QStringList failures() const;  ///< "name: reason"
  [[nodiscard]] int copies() const;

 private:
  std::atomic<bool> m_stopped{false};
  mutable std::mutex m_mutex;  // guards the three below
  QStringList m_waiting, m_failures;
  int m_copies = 0;
};

/// The files directly in a folder whose names end in ".VNT", in any case. Blocks for the folder.
[[nodiscard]] QList<FolderItem> taskFilesIn(const FolderItem& folder);

/// Copies the files into a folder; where a name is taken the copy gets another. A folder that doesn't exist is left
/// alone. Blocks for the folder.
void backUpTasks(const QList<FolderItem>& files, const FolderItem& into, CopyJob& job);

/// Copies the task files of a folder into the task folder, over files of the same names, each of which is the old one
/// or the new one at every moment. A damaged one fails and replaces nothing; a folder that doesn't exist is left alone.
/// Blocks for the folder.
void restoreTasks(const FolderItem& from, CopyJob& job);

/// Loads the task list anew, once no file is being put into the task folder any more. Any thread but the main one.
void loadRestoredTasks();

/// A message that begins with `head` and names up to twenty of `lines`.
[[nodiscard]] QString messageNaming(const QString& head, const QStringList& lines);
