#pragma once
// The viewer of the event log: its rows, the fields of the selected one, and the commands to refresh, clear, export,
// delete and narrow them. It reads by itself, on threads of its own, and never holds a writer or the event loop up. At
// most one is open. Main thread, but for add() and addLog().

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QStringList>
#include <QTimer>
#include <QWidget>
#include <deque>
#include <mutex>

#include "monitor/LogExport.h"
#include "monitor/LogFind.h"
#include "monitor/LogLists.h"
#include "monitor/LogRowMenu.h"
#include "monitor/WindowSplitter.h"

class SystemLogWindow : public QWidget {
  Q_OBJECT
 public:
  SystemLogWindow();
  ~SystemLogWindow() override;

  /// Opens the viewer, or brings the open one to the front.
  static void bringUp();
  /// The open viewer, or nullptr.
  [[nodiscard]] static SystemLogWindow* openOne();
  /// Tells the open viewer, if there is one, of a new row. Any thread; only queues.
  static void add(qint64 rowid);

  /// Queues a row to be shown by the timer. Any thread.
  virtual void addLog(qint64 rowid);
  /// Reads the list anew from the table. The rows come in while the event loop runs.
  virtual void loadAll();
  /// Appends one row of the table, as soon as it is read; an id without a record adds none.
  virtual void showLogRow(qint64 rowid);

 protected:
  void changeEvent(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void buildControls();
  void buildKeys();
  void connectControls();
  void placeLists();
  void chooseGround();

  void Event_Open();
  void TheData_Change();
  void LogAddTimer_Action();
  void AutoRefreshCheckBox_Action();
  void CearLogButton_Action();
  void DeleteLogs_Action();
  void ExportToText_Action();
  void FindField_TextChange();

  void loaded(const QString& error, int scrolled);
  /// Stops what reads rows into the list.
  void stopReading();
  void takeRow(qint64 rowid, const ReadRow& read);
  /// The next queued id that the list doesn't show yet; 0 for none.
  [[nodiscard]] qint64 takeQueued();
  void selectKeptRow();
  void emptyList(const QString& reason);
  void updateNote();
  void sayUnreadable(const QString& reason);
  void receive(bool receiving);

  /// Where the preferences keep the columns' widths.
  [[nodiscard]] static QString widthsKey() { return QStringLiteral("LogWindowColumns"); }

  static std::mutex DefaultWindowMutex;  // guards the one below
  static SystemLogWindow* DefaultWindow;

  LogListView* TheData = nullptr;
  WindowSplitter* WindowSplitter1 = nullptr;
  LogDetailsView* LogDetails = nullptr;
  QPushButton* REfreshLogButton = nullptr;
  QPushButton* CearLogButton = nullptr;
  QPushButton* ExportToText = nullptr;
  QPushButton* DeleteLogs = nullptr;
  QLineEdit* FindField = nullptr;
  QCheckBox* FailuresOnlyCheckBox = nullptr;
  QCheckBox* AutoRefreshCheckBox = nullptr;
  QTimer* LogAddTimer = nullptr;

  std::mutex m_queueMutex;       // guards the one below
  std::deque<qint64> logstoadd;  // oldest first
  QStringList headers;
  LogModel* m_model;
  LogFind* m_find;
  LogExport* m_export;
  LogRowMenu* m_menu = nullptr;
  BackgroundCall m_open, m_load, m_row, m_delete;
  qint64 m_keptId = 0;            // of the selected row, to select it again when the rows are replaced
  bool m_detailsMissing = false;  // the selected row has not been read yet
  bool m_reloadWanted = false;    ///< asked for while the log was being deleted
  int m_detailsHeight;
  QString m_emptyReason;
};
