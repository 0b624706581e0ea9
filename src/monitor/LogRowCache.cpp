#include "monitor/LogRowCache.h"

#include <mutex>

#include "text/VTULocalization.h"

using namespace Qt::Literals::StringLiterals;

constexpr qsizetype LongestCell = 4096;  // characters
constexpr int CacheKiB = 16 * 1024;
constexpr int RowsAtOnce = 512;
constexpr int PauseAfterFailureMs = 2000;

/// The connection of the fetches, which follow one another on threads of their own.
struct LogRowCache::Connection {
  FolderItem file;
  QStringList headers;
  std::mutex mutex;  // guards the one below
  std::unique_ptr<LogReader> reader;

  Connection(FolderItem log, QStringList names) : file(std::move(log)), headers(std::move(names)) {}
  Fetched read(const QList<qint64>& ids);
};

LogCells cellsOf(const LogReader::Fields& row, const QStringList& headers) {
  LogCells cells;
  cells.texts.reserve(headers.size());
  for (int column = 0; column < headers.size(); ++column) {
    const QByteArrayView text = row.text(column);
    if (headers[column] == "Notes"_L1) cells.failed = isFailure(text);
    // A character has at most four bytes.
    QString shown = QString::fromUtf8(text.first(qMin(text.size(), 4 * LongestCell)));
    if (shown.size() > LongestCell) shown = shown.left(LongestCell) + u'…';
    cells.texts << shown;
  }
  return cells;
}

LogRowCache::Fetched LogRowCache::Connection::read(const QList<qint64>& ids) {
  Fetched fetched;
  const std::lock_guard lock(mutex);
  if (!reader) {
    LogReader::OpenResult opened = LogReader::open(file);
    fetched.error = opened.error;
    reader = std::move(opened.reader);
  }
  if (!reader) return fetched;
  const auto visitor = [&](qint64 id, const LogReader::Fields& row) {
    fetched.ids << id;
    fetched.cells << cellsOf(row, headers);
  };
  if (!reader->visit(ids, visitor, &fetched.error)) return fetched;
  QSet<qint64> missing(ids.begin(), ids.end());
  for (const qint64 id : std::as_const(fetched.ids)) missing.remove(id);
  for (const qint64 id : missing) {
    fetched.ids << id;
    fetched.cells.append({QStringList(headers.size()), false, true});
  }
  return fetched;
}

LogRowCache::LogRowCache(QObject* parent) : QObject(parent), m_rows(CacheKiB), m_fetch("log-rows", this) {
  for (QTimer* const timer : {&m_begin, &m_pause}) {
    timer->setSingleShot(true);
    connect(timer, &QTimer::timeout, this, &LogRowCache::fetch);
  }
}

void LogRowCache::setLog(const FolderItem& file, const QStringList& headers) {
  m_connection = std::make_shared<Connection>(file, headers);
  forget();
}

void LogRowCache::forget() {
  m_fetch.cancel();
  m_rows.clear();
  m_wanted.clear();
  m_asked.clear();
}

void LogRowCache::put(qint64 id, const LogCells& cells) {
  qsizetype characters = 0;
  for (const QString& text : cells.texts) characters += text.size();
  m_rows.insert(id, new LogCells(cells), static_cast<int>(1 + 2 * characters / 1024));  // the cache owns it
}

void LogRowCache::want(const QList<qint64>& ids) {
  for (const qint64 id : ids) {
    if (m_asked.contains(id) || m_rows.contains(id)) continue;
    m_asked.insert(id);
    m_wanted << id;
  }
  if (!m_begin.isActive() && !m_pause.isActive() && !m_fetch.running()) m_begin.start(0);
}

void LogRowCache::fetch() {
  if (m_wanted.isEmpty() || !m_connection || m_fetch.running()) return;
  // Of a quick scroll only where it ended is still of use.
  QList<qint64> ids = m_wanted.last(qMin<qsizetype>(m_wanted.size(), RowsAtOnce));
  m_wanted.clear();
  m_asked = QSet<qint64>(ids.begin(), ids.end());
  std::sort(ids.begin(), ids.end());
  m_fetch.run<Fetched>(
      0, [connection = m_connection, ids](const auto&) { return connection->read(ids); },
      [this](const Fetched& fetched) { take(fetched); },
      [this] {
        take({{}, {}, VTULocalization::klLogBusy()});
      });
}

void LogRowCache::take(const Fetched& fetched) {
  for (qsizetype i = 0; i < fetched.ids.size(); ++i) put(fetched.ids[i], fetched.cells[i]);
  m_asked = QSet<qint64>(m_wanted.begin(), m_wanted.end());
  if (!fetched.error.isEmpty()) {
    m_pause.start(PauseAfterFailureMs);
    emit failed(fetched.error);
    return;
  }
  if (!m_wanted.isEmpty()) m_begin.start(0);
  emit arrived();
}
