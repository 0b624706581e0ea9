#pragma once
// The walks over the log that may take long, each on a thread of its own with a connection of its own. They read a
// piece at a time and hold no lock between two, so that a batch never waits for them. Any thread but the main one.

#include <functional>

#include "monitor/LogRowCache.h"

/// The log as a window has it open.
struct LogSource {
  FolderItem file;
  QStringList headers;
};

using Cancelled = std::function<bool()>;
using IdPieces = std::function<void(QList<qint64>)>;

/// Hands all row ids over in order, the first screenful at once. Gives the reason of a failure.
[[nodiscard]] QString loadIds(const FolderItem& file, const Cancelled& cancelled, const IdPieces& hand);

/// Hands those of `ids` over whose rows pass the filter, in their order.
[[nodiscard]] QString searchIds(const LogSource& log, const QList<qint64>& ids, const LogFilter& filter,
                                const Cancelled& cancelled, const IdPieces& hand);

struct ReadRow {
  bool found = false;
  LogCells cells;
  bool passes = false;  ///< the filter
  QString error;
};
[[nodiscard]] ReadRow readRow(const LogSource& log, qint64 id, const LogFilter& filter);

/// The lines of these rows as an export writes them, without the heading.
struct CopiedLines {
  QByteArray lines;
  QString error;
};
[[nodiscard]] CopiedLines copyRows(const LogSource& log, const QList<qint64>& ids, const Cancelled& cancelled);

struct ExportOutcome {
  bool cancelled = false;
  QString error;  ///< empty when the file stands
};
/// Writes headings and rows to `target`, whose old content stands until all is written and stays when that fails.
/// `progress` is told the number of rows done. A row that has left the log since it was listed is a failure.
[[nodiscard]] ExportOutcome exportRows(const LogSource& log, const QList<qint64>& ids, const FolderItem& target,
                                       const Cancelled& cancelled, const std::function<void(qint64)>& progress);
