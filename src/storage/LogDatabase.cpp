#include "storage/LogDatabase.h"

#include <fcntl.h>
#include <sqlite3.h>
#include <unistd.h>

#include <QDeadlineTimer>
#include <algorithm>
#include <array>
#include <cerrno>
#include <string>
#include <utility>

#include "platform/Problems.h"
#include "platform/Reasons.h"
#include "platform/SpecialFolder.h"
#include "storage/SetAside.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int LockWaitMs = 2000;

constexpr char CreateTable[] =
    "Create table log ( _rowid integer not null, OriginalName Text, NewName Text, InputFolder Text, OutputFolder Text, "
    "Track Text, EventTime TimeStamp, Notes Text, primary key(_rowid))";

constexpr char InsertRow[] =
    "insert into log (OriginalName, NewName, InputFolder, OutputFolder, Track, EventTime, Notes) "
    "values (?1, ?2, ?3, ?4, ?5, ?6, ?7)";

QString words(sqlite3* db, const FolderItem& file) {
  return u"%1: %2"_s.arg(file.Name(), QString::fromUtf8(sqlite3_errmsg(db)));
}

/// A connection while it is being brought up. All of its steps together wait for locks no longer than one of them may.
class Opening {
 public:
  explicit Opening(const FolderItem& file) : m_file(file) {}
  ~Opening() { close(); }
  Opening(const Opening&) = delete;
  Opening& operator=(const Opening&) = delete;

  /// SQLITE_OK once the database can be read and written and its journal is chosen.
  int bringUp();
  [[nodiscard]] static bool isDamage(int code) {
    return (code & 0xff) == SQLITE_CORRUPT || (code & 0xff) == SQLITE_NOTADB;
  }
  [[nodiscard]] QString error() const { return m_error; }
  [[nodiscard]] sqlite3* release() {
    sqlite3_busy_timeout(m_db, LockWaitMs);
    keepJournalOnClose(false);
    return std::exchange(m_db, nullptr);
  }
  void close() { sqlite3_close_v2(std::exchange(m_db, nullptr)); }

 private:
  enum class Journal { WriteAhead, Rollback };

  int makePrivateFile();
  int attempt(Journal journal);
  int connect();
  int leaveWriteAhead();
  int lookAtContent();
  int enterWriteAhead() { return tell(run("PRAGMA journal_mode=WAL")); }
  int probe();
  int checkLength();
  int run(const char* statement, std::string* firstValue = nullptr);
  void keepJournalOnClose(bool keep) const {
    sqlite3_db_config(m_db, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, keep ? 1 : 0, nullptr);
  }
  [[nodiscard]] bool hasWriteAheadJournal() const {
    return m_file.Parent().Child(m_file.Name() + u"-wal"_s).Length() > 0;
  }
  int refuse(int code, const QString& why) {
    m_error = u"%1: %2"_s.arg(m_file.Name(), why);
    return code;
  }
  int tell(int code) {
    if (code != SQLITE_OK) m_error = words(m_db, m_file);
    return code;
  }

  FolderItem m_file;
  sqlite3* m_db = nullptr;
  QString m_error;
  QDeadlineTimer m_deadline{LockWaitMs};
};

int Opening::bringUp() {
  if (const int code = makePrivateFile(); code != SQLITE_OK) return code;
  const int code = attempt(Journal::WriteAhead);
  const bool worthAnother = code != SQLITE_OK && !isDamage(code) && (code & 0xff) != SQLITE_BUSY;
  if (!worthAnother) return code;
  const QString reason = m_error;
  const int second = attempt(Journal::Rollback);
  if (second != SQLITE_OK) m_error = reason;
  return second;
}

/// Some file systems offer no shared memory, which write-ahead needs and which SQLite asks for after it has noted the
/// new journal in the file: hence a connection anew, which takes that back, and the probe.
int Opening::attempt(Journal journal) {
  close();
  int code = connect();
  if (code == SQLITE_OK && journal == Journal::Rollback) code = leaveWriteAhead();
  if (code == SQLITE_OK) code = lookAtContent();
  if (code == SQLITE_OK && journal == Journal::WriteAhead) code = enterWriteAhead();
  if (code == SQLITE_OK) code = probe();
  return code;
}

/// SQLite would make the file readable for others. Only a new file is opened here: closing one that SQLite has open
/// would drop its locks.
int Opening::makePrivateFile() {
  // SQLite would delete the journal, which may hold all that is left of a file that was emptied.
  if (m_file.Length() == 0 && hasWriteAheadJournal()) return refuse(SQLITE_CORRUPT, Reasons::klContentGone());
  const int fd = ::open(m_file.bytes().constData(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
  if (fd >= 0)
    ::close(fd);
  else if (errno != EEXIST)
    return refuse(SQLITE_CANTOPEN, IoResult::failure(errno, Reasons::klMakingIt()).message());
  return SQLITE_OK;
}

int Opening::connect() {
  const int code = sqlite3_open_v2(m_file.bytes().constData(), &m_db,
                                   SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE, nullptr);
  if (tell(code) != SQLITE_OK) return code;
  if (sqlite3_db_readonly(m_db, "main") == 1) return refuse(SQLITE_READONLY, Reasons::klWriteProtected());
  // Until the file has proved to be whole, its journal is not to be merged or removed.
  keepJournalOnClose(true);
  return SQLITE_OK;
}

/// With exclusive access SQLite reads a write-ahead journal without shared memory.
int Opening::leaveWriteAhead() {
  for (const char* step : {"PRAGMA locking_mode=EXCLUSIVE", "PRAGMA journal_mode=DELETE", "PRAGMA locking_mode=NORMAL"})
    if (const int code = tell(run(step)); code != SQLITE_OK) return code;
  return SQLITE_OK;
}

/// Reads the schema and the way to the newest row, where damage would meet the next insert. An empty file gets its
/// table while the journal is still a rollback journal: a kill in between leaves an empty file again.
int Opening::lookAtContent() {
  std::string pages;
  if (const int code = tell(run("PRAGMA page_count", &pages)); code != SQLITE_OK) return code;
  if (const int code = checkLength(); code != SQLITE_OK) return code;
  if (pages == "0") return tell(run(CreateTable));
  if (const int code = tell(run("select count(*) from sqlite_master")); code != SQLITE_OK) return code;
  const int code = run("select max(_rowid) from log");
  // Without the table the file stays as it is, and each insert tells.
  return code == SQLITE_ERROR ? SQLITE_OK : tell(code);
}

/// SQLite reads a last page that was cut as one that ends in zeros, rows and all. With a journal beside the file the
/// page may be whole there.
int Opening::checkLength() {
  std::string pageSize;
  if (const int code = tell(run("PRAGMA page_size", &pageSize)); code != SQLITE_OK) return code;
  const bool whole = m_file.Length() % std::stoll(pageSize) == 0;
  return whole || hasWriteAheadJournal() ? SQLITE_OK : refuse(SQLITE_CORRUPT, Reasons::klEndCutOff());
}

/// An empty transaction, with every lock that an insert takes.
int Opening::probe() {
  for (const char* step : {"PRAGMA synchronous=FULL", "begin immediate", "rollback"})
    if (const int code = tell(run(step)); code != SQLITE_OK) return code;
  return SQLITE_OK;
}

int Opening::run(const char* statement, std::string* firstValue) {
  sqlite3_busy_timeout(m_db, std::max<int>(1, static_cast<int>(m_deadline.remainingTime())));
  sqlite3_stmt* prepared = nullptr;
  int code = sqlite3_prepare_v2(m_db, statement, -1, &prepared, nullptr);
  if (code == SQLITE_OK) code = sqlite3_step(prepared);
  if (code == SQLITE_ROW && firstValue) *firstValue = reinterpret_cast<const char*>(sqlite3_column_text(prepared, 0));
  while (code == SQLITE_ROW) code = sqlite3_step(prepared);
  sqlite3_finalize(prepared);
  return code == SQLITE_DONE ? SQLITE_OK : code;
}

/// SQLite keeps a NUL, but what reads the text stops there.
QByteArray columnText(QString text) { return text.replace(QChar::Null, QChar::ReplacementCharacter).toUtf8(); }

}  // namespace

LogDatabase::OpenResult LogDatabase::open(const FolderItem& file) {
  OpenResult result;
  for (;;) {
    Opening opening(file);
    const int code = opening.bringUp();
    if (code == SQLITE_OK) {
      result.database.reset(new LogDatabase(file, opening.release()));
      return result;
    }
    if (!Opening::isDamage(code) || !result.setAsideAs.isEmpty()) {
      result.error = opening.error();
      return result;
    }
    opening.close();
    const SetAsideResult moved = setAside(file, {u"-wal"_s, u"-shm"_s, u"-journal"_s});
    result.setAsideAs = moved.name;
    if (!moved.result.ok()) {
      result.error = u"%1; %2"_s.arg(opening.error(), moved.result.message());
      return result;
    }
  }
}

LogDatabase::~LogDatabase() {
  sqlite3_finalize(m_insert);
  sqlite3_close_v2(m_db);
}

int LogDatabase::run(const char* statement) { return sqlite3_exec(m_db, statement, nullptr, nullptr, nullptr); }

int LogDatabase::insertOne(const LogRow& row, qint64& rowid) {
  const std::array<QByteArray, 7> texts{columnText(row.OriginalName), columnText(row.NewName),
                                        columnText(row.InputFolder),  columnText(row.OutputFolder),
                                        columnText(row.Track),        columnText(row.EventTime),
                                        columnText(row.Notes)};
  int code = SQLITE_OK;
  if (!m_insert) code = sqlite3_prepare_v3(m_db, InsertRow, -1, SQLITE_PREPARE_PERSISTENT, &m_insert, nullptr);
  for (int i = 0; code == SQLITE_OK && i < static_cast<int>(texts.size()); ++i)
    code = sqlite3_bind_text64(m_insert, i + 1, texts[i].constData(), static_cast<sqlite3_uint64>(texts[i].size()),
                               SQLITE_STATIC, SQLITE_UTF8);
  if (code == SQLITE_OK) code = sqlite3_step(m_insert);
  if (code == SQLITE_DONE) rowid = sqlite3_last_insert_rowid(m_db);
  // The outcome is known already; the reset repeats its code.
  sqlite3_reset(m_insert);
  if (m_insert) sqlite3_clear_bindings(m_insert);
  return code == SQLITE_DONE ? SQLITE_OK : code;
}

std::optional<qint64> LogDatabase::insert(const LogRow& row, QString* error) {
  const std::vector<qint64> rowids = insertAll({row}, error);
  return rowids.empty() ? std::nullopt : std::optional(rowids.front());
}

std::vector<qint64> LogDatabase::insertAll(const std::vector<LogRow>& rows, QString* error) {
  std::vector<qint64> rowids(rows.size());
  const bool grouped = rows.size() > 1;  // one row is a transaction by itself
  const std::lock_guard lock(m_mutex);
  int code = grouped ? run("begin immediate") : SQLITE_OK;
  for (size_t i = 0; code == SQLITE_OK && i < rows.size(); ++i) code = insertOne(rows[i], rowids[i]);
  if (code == SQLITE_OK && grouped) code = run("commit");
  if (code == SQLITE_OK) return rowids;
  if (error) *error = words(m_db, m_file);
  if (sqlite3_get_autocommit(m_db) == 0) (void)run("rollback");  // it fails only where SQLite has done so itself
  return {};
}

bool LogDatabase::deleteAll(QString* error) {
  const std::lock_guard lock(m_mutex);
  const bool done = sqlite3_exec(m_db, "delete from log", nullptr, nullptr, nullptr) == SQLITE_OK;
  if (!done && error) *error = words(m_db, m_file);
  return done;
}

namespace VantryUtil {

std::shared_ptr<LogDatabase> logDB;

void ConnectToLogDatabase() {
  const FolderItem folder = SpecialFolder::ApplicationData();
  const IoResult made = SpecialFolder::createPrivate(folder);
  LogDatabase::OpenResult opened;
  if (made.ok())
    opened = LogDatabase::open(folder.Child(u"VantryUploader.db"_s));
  else
    opened.error = made.message();
  if (!opened.setAsideAs.isEmpty()) Problems::raise(Problem::Kind::LogSetAside, opened.setAsideAs, {});
  if (opened.database)
    logDB = std::move(opened.database);
  else
    Problems::raise(Problem::Kind::LogUnavailable, {}, opened.error);
}

}  // namespace VantryUtil
