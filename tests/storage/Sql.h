#pragma once
// A second connection to a database, as the viewer or a stranger holds one.

#include <sqlite3.h>

#include <QString>
#include <QStringList>

class Sql {
 public:
  explicit Sql(const QString& path) { sqlite3_open(path.toUtf8().constData(), &m_db); }
  ~Sql() {
    sqlite3_finalize(m_open);
    sqlite3_close_v2(m_db);
  }
  Sql(const Sql&) = delete;
  Sql& operator=(const Sql&) = delete;

  /// The first column of every row; the words of a failure stand last.
  QStringList run(const char* statement) {
    QStringList values;
    for (begin(statement); step();) values << QString::fromUtf8(sqlite3_column_text(m_open, 0));
    if (sqlite3_errcode(m_db) != SQLITE_DONE && sqlite3_errcode(m_db) != SQLITE_OK)
      values << QString::fromUtf8(sqlite3_errmsg(m_db));
    sqlite3_finalize(std::exchange(m_open, nullptr));
    return values;
  }
  /// A statement that stays open between its rows.
  void begin(const char* statement) { sqlite3_prepare_v2(m_db, statement, -1, &m_open, nullptr); }
  bool step() { return sqlite3_step(m_open) == SQLITE_ROW; }

 private:
  sqlite3* m_db = nullptr;
  sqlite3_stmt* m_open = nullptr;
};
