#pragma once
// Makes files that were dealt with due once more, by the same rule as a file that was saved anew: its date is set to
// now, which makes it a version that no ledger knows. Any thread; blocks for the files.

#include <QList>
#include <QString>
#include <functional>

#include "platform/FolderItem.h"

/// What a log row tells of the file that it is about.
struct LoggedFile {
  QString inputFolder, originalName;
};

struct RepeatableFile {
  FolderItem file;
  bool taken = false;  ///< a task that is switched on watches this folder and takes files of this name
};

/// The files that still exist as plain files, each once, in the order of the rows. `cancelled` is asked between two.
[[nodiscard]] QList<RepeatableFile> filesToSendAgain(const QList<LoggedFile>& rows,
                                                     const std::function<bool()>& cancelled);
/// Sets the file's date to now. A file system that takes no dates is a failure too, since nothing would be sent.
IoResult makeDueAgain(const FolderItem& file);
