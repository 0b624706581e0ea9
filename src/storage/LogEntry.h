#pragma once
// One entry of the event log while it is being filled, by one thread.

#include <functional>
#include <vector>

#include "storage/Dictionary.h"

namespace VantryUtil {

class LogEntry : public Dictionary {
 public:
  /// Writes the six texts (a key never stored stands as "n/a") and the present local time, YYYY-MM-DD HH:MM:SS, as
  /// one row of the log, and hands the row id to the observer. Without a log nothing happens; a row that can't be
  /// written raises Problem::LogRowLost, and the next one that can clears it. Blocks for the disk.
  void WriteToLog();
  /// The same for several, in one step to the disk.
  static void writeAll(const std::vector<LogEntry>& entries);

  /// Who is told of new rows, or none. The call comes on the thread that writes the row and must only queue. Any
  /// thread.
  static void setRowObserver(std::function<void(qint64 rowid)> observer);
};

}  // namespace VantryUtil
