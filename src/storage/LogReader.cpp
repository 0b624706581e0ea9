#include "storage/LogReader.h"

#include <sqlite3.h>

using namespace Qt::Literals::StringLiterals;

static constexpr int LockWaitMs = 2000;

// Ids that lie closer than this on average are read by one walk over the table, others by a look-up each.
static constexpr qint64 DensestGap = 4;

/// A statement in use: reset at the end, so that its lock goes.
class LogReader::Query {
 public:
  Query(LogReader& reader, sqlite3_stmt*& kept, const char* sql) : m_db(reader.m_db) {
    m_code = kept ? SQLITE_OK : sqlite3_prepare_v3(m_db, sql, -1, SQLITE_PREPARE_PERSISTENT, &kept, nullptr);
    m_statement = kept;
  }
  ~Query() { sqlite3_reset(m_statement); }  // its outcome is known already
  Query(const Query&) = delete;
  Query& operator=(const Query&) = delete;

  void bind(int place, qint64 value) {
    if (m_code == SQLITE_OK) m_code = sqlite3_bind_int64(m_statement, place, value);
  }
  bool step() {
    if (m_code == SQLITE_OK || m_code == SQLITE_ROW) m_code = sqlite3_step(m_statement);
    return m_code == SQLITE_ROW;
  }
  [[nodiscard]] sqlite3_stmt* row() const { return m_statement; }
  /// True when all rows came, or as many as were asked for.
  [[nodiscard]] bool ended(const FolderItem& file, QString* error) const {
    const bool good = m_code == SQLITE_DONE || m_code == SQLITE_ROW;
    if (!good && error) *error = u"%1: %2"_s.arg(file.Name(), QString::fromUtf8(sqlite3_errmsg(m_db)));
    return good;
  }

 private:
  sqlite3* m_db;
  sqlite3_stmt* m_statement = nullptr;
  int m_code;
};

LogReader::OpenResult LogReader::open(const FolderItem& file) {
  OpenResult result;
  sqlite3* db = nullptr;
  const int code = sqlite3_open_v2(file.bytes().constData(), &db,
                                   SQLITE_OPEN_READONLY | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE, nullptr);
  result.reader.reset(new LogReader(file, db));
  if (code != SQLITE_OK) {
    result.error = u"%1: %2"_s.arg(file.Name(), QString::fromUtf8(sqlite3_errmsg(db)));
    result.reader.reset();
    return result;
  }
  sqlite3_busy_timeout(db, LockWaitMs);
  result.columns = result.reader->readColumns(&result.error);
  if (result.columns.isEmpty()) result.reader.reset();
  return result;
}

LogReader::~LogReader() {
  for (sqlite3_stmt* const statement : {m_idsAbove, m_oneRow, m_runOfRows}) sqlite3_finalize(statement);
  sqlite3_close_v2(m_db);
}

QStringList LogReader::readColumns(QString* error) {
  QStringList names;
  sqlite3_stmt* schema = nullptr;
  {
    Query query(*this, schema, "PRAGMA table_info(log)");
    for (int column = 0; query.step(); ++column) {
      const QString name = QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(query.row(), 1)));
      if (name.compare(u"_rowid"_s, Qt::CaseInsensitive) == 0)
        m_rowidColumn = column;
      else
        names << name;
    }
    if (!query.ended(m_file, error))
      names.clear();
    else if (names.isEmpty() && error)
      *error = u"%1: no such table: log"_s.arg(m_file.Name());
  }
  sqlite3_finalize(schema);
  return names;
}

std::optional<QList<qint64>> LogReader::ids(qint64 after, int most, QString* error) {
  Query query(*this, m_idsAbove, "select _rowid from log where _rowid > ?1 order by _rowid limit ?2");
  query.bind(1, after);
  query.bind(2, most);
  QList<qint64> found;
  found.reserve(most);
  while (query.step()) found << sqlite3_column_int64(query.row(), 0);
  if (!query.ended(m_file, error)) return std::nullopt;
  return found;
}

QByteArrayView LogReader::Fields::text(int column) const {
  const int place = m_rowidColumn >= 0 && column >= m_rowidColumn ? column + 1 : column;
  const auto* const text = reinterpret_cast<const char*>(sqlite3_column_text(m_row, place));
  return {text, text ? sqlite3_column_bytes(m_row, place) : 0};
}

bool LogReader::visit(const QList<qint64>& ids, const Visitor& visitor, QString* error) {
  const qint64* const end = ids.constData() + ids.size();
  for (const qint64* begin = ids.constData(); begin != end;) {
    const qint64* next = begin + 1;
    while (next != end && *next > next[-1] && *next - next[-1] <= DensestGap) ++next;
    const bool good = next - begin > 1 ? visitRun(begin, next, visitor, error) : visitEach(begin, next, visitor, error);
    if (!good) return false;
    begin = next;
  }
  return true;
}

bool LogReader::visitRun(const qint64* begin, const qint64* end, const Visitor& visitor, QString* error) {
  Query query(*this, m_runOfRows, "Select *, _rowid from log where _rowid between ?1 and ?2 order by _rowid");
  query.bind(1, *begin);
  query.bind(2, end[-1]);
  while (begin != end && query.step()) {
    const qint64 id = sqlite3_column_int64(query.row(), sqlite3_column_count(query.row()) - 1);
    while (begin != end && *begin < id) ++begin;
    if (begin != end && *begin == id) visitor(id, Fields(query.row(), m_rowidColumn));
  }
  return query.ended(m_file, error);
}

bool LogReader::visitEach(const qint64* begin, const qint64* end, const Visitor& visitor, QString* error) {
  for (; begin != end; ++begin) {
    Query query(*this, m_oneRow, "Select * from Log where _rowid = ?1");
    query.bind(1, *begin);
    if (query.step()) visitor(*begin, Fields(query.row(), m_rowidColumn));
    if (!query.ended(m_file, error)) return false;
  }
  return true;
}
