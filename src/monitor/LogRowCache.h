#pragma once
// The rows of the log that the view shows at the moment and those around them, fetched on a thread of its own. Holds at
// most some megabytes however long the log is. Main thread.

#include <QCache>
#include <QObject>
#include <QSet>
#include <QTimer>
#include <memory>

#include "monitor/LogRules.h"
#include "widgets/BackgroundCall.h"

struct LogCells {
  QStringList texts;  ///< one for each header, cut where it is longer than a list can show
  bool failed = false;
  bool gone = false;  ///< there is no such row in the log any more
};

class LogRowCache : public QObject {
  Q_OBJECT
 public:
  explicit LogRowCache(QObject* parent);

  /// Forgets all rows, and reads from this log from now on.
  void setLog(const FolderItem& file, const QStringList& headers);
  /// The cells of a row if they are at hand; they stay valid until the event loop runs.
  [[nodiscard]] const LogCells* find(qint64 id) const { return m_rows.object(id); }
  void put(qint64 id, const LogCells& cells);
  /// Has rows fetched, the last ones asked for first.
  void want(const QList<qint64>& ids);
  void forget();

 signals:
  void arrived();
  void failed(const QString& reason);

 private:
  struct Connection;
  struct Fetched {
    QList<qint64> ids;
    QList<LogCells> cells;
    QString error;
  };
  void fetch();
  void take(const Fetched& fetched);

  std::shared_ptr<Connection> m_connection;
  QCache<qint64, LogCells> m_rows;
  QList<qint64> m_wanted;
  QSet<qint64> m_asked;  // wanted or on their way
  QTimer m_begin, m_pause;
  BackgroundCall m_fetch;
};

/// The cells of a row, as lists show them.
[[nodiscard]] LogCells cellsOf(const LogReader::Fields& row, const QStringList& headers);
