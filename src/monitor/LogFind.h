#pragma once
// Narrows the log viewer's view to the rows that pass a filter, searched for on a thread of its own; what is found
// comes in while the search goes on. Main thread.

#include <QTimer>

#include "monitor/LogModel.h"
#include "monitor/LogQueries.h"

class LogFind : public QObject {
  Q_OBJECT
 public:
  LogFind(LogModel* model, QObject* parent);

  void setLog(const LogSource& log) { m_log = log; }
  /// Takes a filter; the search begins when no other has come for a moment, and none while the list is held.
  void setFilter(const LogFilter& filter);
  [[nodiscard]] const LogFilter& filter() const { return m_filter; }
  [[nodiscard]] bool searching() const { return m_wait.isActive() || m_search.running(); }
  /// Why the last search failed, which leaves nothing in the view; empty for none.
  [[nodiscard]] const QString& error() const { return m_error; }
  /// The list is being replaced: searching stops until release(), which searches anew.
  void hold();
  void release();

 signals:
  /// The view is what the filter leaves.
  void finished();
  void failed(const QString& reason);

 private:
  void begin();

  LogModel* m_model;
  std::optional<LogSource> m_log;
  LogFilter m_filter;
  QString m_error;
  bool m_held = false, m_fresh = true;
  QTimer m_wait;
  BackgroundCall m_search;
};
