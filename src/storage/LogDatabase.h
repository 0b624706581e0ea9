#pragma once
// The event log: one SQLite file with the table `log`. This is its one writer; a viewer opens a connection of its own
// for reading. Guarded inside; rows are written on the upload thread and the one beside it, and deleted on one of the
// viewer's.

#include <QString>
#include <QStringList>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

#include "platform/FolderItem.h"

struct sqlite3;
struct sqlite3_stmt;

/// The columns a row is written with, without `_rowid`, in the order of the table.
struct LogRow {
  QString OriginalName{}, NewName{}, InputFolder{}, OutputFolder{}, Track{}, EventTime{}, Notes{};
};

class LogDatabase {
 public:
  struct OpenResult {
    std::unique_ptr<LogDatabase> database;  ///< nullptr when the log can't be used
    QString setAsideAs;                     ///< name under which a damaged file was kept; empty if none was
    QString error;                          ///< why there is no database
  };
  /// Opens or creates the log. A damaged file is set aside under a new name (nothing is deleted) and an empty log
  /// takes its place; a locked or forbidden one is left alone and reported. WAL with full sync where the file system
  /// allows it, a rollback journal where not. Waits at most 2 s for a lock.
  [[nodiscard]] static OpenResult open(const FolderItem& file);
  ~LogDatabase();

  /// Inserts one row, durable when this returns; gives its row id, or nothing with the reason in `error`.
  [[nodiscard]] std::optional<qint64> insert(const LogRow& row, QString* error);
  /// Deletes all rows as one change; false with the reason in `error`. Inserts wait meanwhile and none is lost.
  [[nodiscard]] bool deleteAll(QString* error);
  /// The same for several in their order, durable together; all of them or none.
  [[nodiscard]] std::vector<qint64> insertAll(const std::vector<LogRow>& rows, QString* error);
  [[nodiscard]] const FolderItem& file() const { return m_file; }

 private:
  LogDatabase(const FolderItem& file, sqlite3* db) : m_file(file), m_db(db) {}
  /// Under the mutex; an SQLite result code.
  [[nodiscard]] int run(const char* statement);
  [[nodiscard]] int insertOne(const LogRow& row, qint64& rowid);

  FolderItem m_file;
  std::mutex m_mutex;  // guards the two below
  sqlite3* m_db;
  sqlite3_stmt* m_insert = nullptr;
};

namespace VantryUtil {

/// The open log, or nullptr: then nothing is logged.
extern std::shared_ptr<LogDatabase> logDB;

/// Opens "VantryUploader.db" in the application data folder into logDB. Raises Problem::LogSetAside, LogUnavailable.
/// Main thread, once at start.
void ConnectToLogDatabase();

}  // namespace VantryUtil
