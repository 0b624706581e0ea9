#pragma once
// Exports what the log viewer shows to a text file: asks for the file, writes it on a thread of its own, shows how far
// it is and lets the user cancel. Main thread; lives as long as its window, with which an export ends.

#include <QPointer>
#include <QProgressDialog>

#include "monitor/LogQueries.h"
#include "widgets/PathChooser.h"

class LogExport : public QObject {
  Q_OBJECT
 public:
  explicit LogExport(QWidget* window);

  /// Asks for a file and writes the rows that `rows` gives when it was chosen.
  void begin(const LogSource& log, std::function<QList<qint64>()> rows);
  [[nodiscard]] bool running() const { return m_writing.running(); }
  /// Ends an export that is under way; the file is as it was before.
  void cancel();

 signals:
  /// An export has begun or ended.
  void changed();

 private:
  void write(const LogSource& log, const QList<qint64>& ids, const FolderItem& target);
  void end(const QString& error);

  QWidget* m_window;
  PathChooser m_chooser;
  BackgroundCall m_writing;
  QPointer<QProgressDialog> m_progress;
};
