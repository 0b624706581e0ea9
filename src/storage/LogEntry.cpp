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

void LogEntry::WriteToLog() {
  if (!logDB) return;
  const auto text = [this](const QString& key) { return Lookup(key, u"n/a"_s).toString(); };
  const LogRow row{.OriginalName = text(u"OriginalName"_s),
                   .NewName = text(u"NewName"_s),
                   .InputFolder = text(u"InputFolder"_s),
                   .OutputFolder = text(u"OutputFolder"_s),
                   .Track = text(u"Track"_s),
                   .EventTime = Date().local().toString(u"yyyy-MM-dd HH:mm:ss"),
                   .Notes = text(u"Notes"_s)};
  QString error;
  const auto rowid = logDB->insert(row, &error);
  if (!rowid) {
    Problems::raise(Problem::Kind::LogRowLost, {}, error);
    return;
  }
  Problems::clear(Problem::Kind::LogRowLost, {});
  tellObserver(*rowid);
}

}  // namespace VantryUtil
