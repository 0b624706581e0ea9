#pragma once
// A second connection to a database, as the viewer or a stranger holds one.

#include <sqlite3.h>

#include <QStringList>

class Sql {
 public:
  explicit Sql(const QString& path) { sqlite3_open(path.toUtf8().constData(), &m_db); }
  ~Sql() { sqlite3_close_v2(m_db); }
  Sql(const Sql&) = delete;
  Sql& operator=(const Sql&) = delete;

  /// Every column of every row; the words of a failure stand last.
  QStringList run(const char* statement) {
    QStringList all;
    const auto keep = [](void* list, int columns, char** values, char**) {
      for (int i = 0; i < columns; ++i) *static_cast<QStringList*>(list) << QString::fromUtf8(values[i]);
      return 0;
    };
    if (sqlite3_exec(m_db, statement, keep, &all, nullptr) != SQLITE_OK) all << QString::fromUtf8(sqlite3_errmsg(m_db));
    return all;
  }
  /// The same in one line.
  QString text(const char* statement) { return run(statement).join(QLatin1Char(' ')); }

 private:
  sqlite3* m_db = nullptr;
};
