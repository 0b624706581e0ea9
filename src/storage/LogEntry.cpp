#include "storage/LogEntry.h"

#include <QMutex>
#include <QMutexLocker>
#include <utility>

#include "platform/Date.h"
#include "platform/Problems.h"
#include "storage/LogDatabase.h"

using namespace Qt::Literals::StringLiterals;

namespace VantryUtil {

namespace {

QMutex mutex;  // guards the one below
std::function<void(qint64)> rowObserver;

void tellObserver(qint64 rowid) {
  std::function<void(qint64)> observer;
  {
    const QMutexLocker lock(&mutex);
    observer = rowObserver;
  }
  if (observer) observer(rowid);
}

}  // namespace

void LogEntry::setRowObserver(std::function<void(qint64 rowid)> observer) {
  const QMutexLocker lock(&mutex);
  rowObserver = std::move(observer);
}

static LogRow rowFrom(const LogEntry& entry) {
  const auto text = [&entry](const QString& key) { return entry.Lookup(key, u"n/a"_s).toString(); };
  return {.OriginalName = text(u"OriginalName"_s),
          .NewName = text(u"NewName"_s),
          .InputFolder = text(u"InputFolder"_s),
          .OutputFolder = text(u"OutputFolder"_s),
          .Track = text(u"Track"_s),
          .EventTime = Date().local().toString(u"yyyy-MM-dd HH:mm:ss"),
          .Notes = text(u"Notes"_s)};
}

void LogEntry::WriteToLog() { writeAll({*this}); }

void LogEntry::writeAll(const std::vector<LogEntry>& entries) {
  if (!logDB || entries.empty()) return;
  std::vector<LogRow> rows;
  for (const LogEntry& entry : entries) rows.push_back(rowFrom(entry));
  QString error;
  const std::vector<qint64> rowids = logDB->insertAll(rows, &error);
  if (rowids.empty()) {
    Problems::raise(Problem::Kind::LogRowLost, {}, error);
    return;
  }
  Problems::clear(Problem::Kind::LogRowLost, {});
  for (const qint64 rowid : rowids) tellObserver(rowid);
}

}  // namespace VantryUtil
