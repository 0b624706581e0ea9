#pragma once
// What is done with files after they were sent, in the order of sending: copy, deletion, log row, the row last. Files
// that were sent while earlier ones were being kept reach the disk together, which spares them a flush each. On the
// thread of an OrderedWork; `task` and its folder handles stay as they are meanwhile.

#include <vector>

#include "engine/UploaderTask.h"
#include "storage/LogEntry.h"

struct SentFile {
  enum class Outcome { Good, Refused, Gone };
  SentFile(const FolderItem& item, const ScannedFile& asScanned) : file(item), scanned(asScanned) {}

  FolderItem file;
  ScannedFile scanned;
  QString newName;  ///< as the service was told
  Outcome outcome = Outcome::Gone;
  QString error;                   ///< as the service or the exchange named it
  QString detail;                  ///< " - " and the words of a service code
  QString transport;               ///< how the exchange failed, for the window
  std::optional<FolderItem> copy;  ///< as keepSent() has placed it
};

/// Copies and deletes, and gives the log rows to write. What is a case for the foot strip is told there. Blocks for
/// the disk.
[[nodiscard]] std::vector<VantryUtil::LogEntry> keepSent(const UploaderTask& task, std::vector<SentFile>& sent);
