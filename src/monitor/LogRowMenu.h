#pragma once
// The context menu of the log's rows: copying them, and sending their files again. Files are looked at and touched on
// a thread of their own. Main thread; lives as long as the list.

#include "engine/SendAgain.h"
#include "monitor/LogLists.h"
#include "monitor/LogQueries.h"

class LogRowMenu : public QObject {
  Q_OBJECT
 public:
  explicit LogRowMenu(LogListView* list);
  void setLog(const LogSource& log) { m_log = log; }

  /// Puts the selected rows on the clipboard as an export would write them.
  void copy();

 private:
  void show(QPoint place);
  void look(class QAction* sendAgain);
  void sendAgain();

  LogListView* m_list;
  std::optional<LogSource> m_log;
  QList<RepeatableFile> m_files;  // of the menu that is open
  BackgroundCall m_copy, m_look;
};

/// The question that is asked before files are sent again, with their names.
[[nodiscard]] QString sendAgainQuestion(const QList<RepeatableFile>& files);
