#pragma once
// A second connection to a database, as the viewer or a stranger holds one.

#include <sqlite3.h>

#include <QString>
#include <QStringList>

class Sql {
 public:
  explicit Sql(const QString& path) {
    if (sqlite3_open_v2(path.toUtf8().constData(), &m_db, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr) != 0)
      qFatal("cannot open %s", qPrintable(path));
  }
  ~Sql() {
    sqlite3_finalize(m_open);
    sqlite3_close_v2(m_db);
  }
  Sql(const Sql&) = delete;
  Sql& operator=(const Sql&) = delete;

  /// The first column of every row; a failure gives its words alone.
  QStringList run(const char* statement) {
    begin(statement);
    QStringList values;
    while (step()) values << value(0);
    if (sqlite3_errcode(m_db) != SQLITE_OK && sqlite3_errcode(m_db) != SQLITE_DONE)
      values = QStringList{QString::fromUtf8(sqlite3_errmsg(m_db))};
    end();
    return values;
  }
  /// A statement that stays open between its rows.
  void begin(const char* statement) { sqlite3_prepare_v2(m_db, statement, -1, &m_open, nullptr); }
  bool step() { return m_open && sqlite3_step(m_open) == SQLITE_ROW; }
  QString value(int column) {
    const void* text = sqlite3_column_text16(m_open, column);
    return QString(static_cast<const QChar*>(text), sqlite3_column_bytes16(m_open, column) / 2);
  }
  void end() {
    sqlite3_finalize(m_open);
    m_open = nullptr;
  }

 private:
  sqlite3* m_db = nullptr;
  sqlite3_stmt* m_open = nullptr;
};
