#pragma once
// Reads the event log through a connection of its own that can't write. Each call is a read of its own and holds no
// lock between calls, so a writer never waits for longer than one call lasts. An object belongs to one thread at a
// time.

#include <QByteArrayView>
#include <QList>
#include <QStringList>
#include <functional>
#include <memory>
#include <optional>

#include "platform/FolderItem.h"

struct sqlite3;
struct sqlite3_stmt;

class LogReader {
 public:
  struct OpenResult {
    std::unique_ptr<LogReader> reader;  ///< nullptr when the log can't be read
    QStringList columns;                ///< of the table `log` without `_rowid`, in table order; empty without a table
    QString error;                      ///< why there is no reader, or no column
  };
  /// Blocks for the disk, and at most 2 s for a lock, as every call does.
  [[nodiscard]] static OpenResult open(const FolderItem& file);
  ~LogReader();
  LogReader(const LogReader&) = delete;
  LogReader& operator=(const LogReader&) = delete;

  /// Up to `most` row ids above `after`, ascending; nothing with the reason in `error`.
  [[nodiscard]] std::optional<QList<qint64>> ids(qint64 after, int most, QString* error);

  /// A row while it is being visited.
  class Fields {
   public:
    /// The text of the column of that index in OpenResult::columns, UTF-8.
    [[nodiscard]] QByteArrayView text(int column) const;

   private:
    friend class LogReader;
    Fields(sqlite3_stmt* row, int rowidColumn) : m_row(row), m_rowidColumn(rowidColumn) {}
    sqlite3_stmt* m_row;
    int m_rowidColumn;
  };
  using Visitor = std::function<void(qint64 id, const Fields& fields)>;
  /// Visits the rows of these ids in the order of the ids; an id without a record is passed over. The lock is held
  /// meanwhile: for many rows call it with a piece at a time.
  [[nodiscard]] bool visit(const QList<qint64>& ids, const Visitor& visitor, QString* error);

 private:
  LogReader(const FolderItem& file, sqlite3* db) : m_file(file), m_db(db) {}
  class Query;
  [[nodiscard]] QStringList readColumns(QString* error);
  [[nodiscard]] bool visitRun(const qint64* begin, const qint64* end, const Visitor& visitor, QString* error);
  [[nodiscard]] bool visitEach(const qint64* begin, const qint64* end, const Visitor& visitor, QString* error);

  FolderItem m_file;
  sqlite3* m_db;
  sqlite3_stmt *m_idsAbove = nullptr, *m_oneRow = nullptr, *m_runOfRows = nullptr;
  int m_rowidColumn = -1;
};
