// The log viewer's rows: opening, loading, the queue, the selection and the commands.

#include <QCloseEvent>

#include "monitor/SystemLogWindow.h"
#include "platform/Problems.h"
#include "platform/System.h"
#include "storage/LogDatabase.h"
#include "storage/Preferences.h"
#include "text/Placeholders.h"
#include "text/VTULocalization.h"
#include "widgets/Messages.h"

using namespace Qt::Literals::StringLiterals;
using namespace VTULocalization;

constexpr int SlowMs = 3000;

/// Why nothing is logged, as far as it is known.
static QString noLogReason() {
  for (const Problem& problem : Problems::present())
    if (problem.kind == Problem::Kind::LogUnavailable) return problemText(problem);
  return {};
}

void SystemLogWindow::Event_Open() {
  if (!VantryUtil::logDB) return emptyList(fillPlaceholders(klLogNone(), {noLogReason()}));
  struct Schema {
    QStringList columns;
    QString error;
  };
  const FolderItem file = VantryUtil::logDB->file();
  m_open.run<Schema>(
      SlowMs,
      [file](const auto&) {
        const LogReader::OpenResult opened = LogReader::open(file);
        return Schema{opened.columns, opened.error};
      },
      [this, file](const Schema& schema) {
        if (schema.columns.isEmpty()) return emptyList(fillPlaceholders(klLogUnreadable(), {schema.error}));
        m_model->setLog(file, schema.columns);
        TheData->setColumnWidths(VantryUtil::prefs ? VantryUtil::prefs->StringValue(widthsKey()) : QString());
        headers = schema.columns;
        m_find->setLog({file, headers});
        m_menu->setLog({file, headers});
        receive(true);
        loadAll();
      },
      [this] { emptyList(klLogBusy()); });
}

void SystemLogWindow::add(qint64 rowid) {
  const std::lock_guard lock(DefaultWindowMutex);
  if (DefaultWindow) DefaultWindow->addLog(rowid);
}

void SystemLogWindow::addLog(qint64 rowid) {
  const std::lock_guard lock(m_queueMutex);
  logstoadd.push_back(rowid);
}

void SystemLogWindow::stopReading() {
  m_load.cancel();
  m_row.cancel();
  m_find->hold();
}

void SystemLogWindow::loadAll() {
  if (!VantryUtil::logDB) return emptyList(m_emptyReason);
  m_reloadWanted = m_delete.running();
  if (m_delete.running() || m_open.running()) return;  // both load at their end
  if (headers.isEmpty()) return Event_Open();
  stopReading();
  const int scrolled = TheData->ScrollPosition();
  const auto fresh = std::make_shared<bool>(true);
  m_load.runInPieces<QList<qint64>, QString>(
      0,
      [file = VantryUtil::logDB->file()](const Cancelled& cancelled, const IdPieces& hand) {
        return loadIds(file, cancelled, hand);
      },
      [this, fresh](const QList<qint64>& ids) {
        if (std::exchange(*fresh, false))
          m_model->setRows(ids);
        else
          m_model->appendRows(ids);
        updateNote();
      },
      [this, fresh, scrolled](const QString& error) {
        if (*fresh || !error.isEmpty()) m_model->setRows({});
        loaded(error, scrolled);
      },
      [this] { loaded(klLogBusy(), 0); });
}

void SystemLogWindow::loaded(const QString& error, int scrolled) {
  m_emptyReason = error.isEmpty() ? klLogEmpty() : fillPlaceholders(klLogUnreadable(), {error});
  m_find->release();
  selectKeptRow();
  if (TheData->ListIndex() != -1)
    TheData->setScrollPosition(m_model->rowCount() - 1);
  else if (TheData->ScrollPosition() == 0)
    TheData->setScrollPosition(scrolled);
  updateNote();
}

void SystemLogWindow::showLogRow(qint64 rowid) {
  if (!VantryUtil::logDB) return;
  const LogSource log{VantryUtil::logDB->file(), headers};
  const LogFilter filter = m_find->filter();
  const auto putBack = [this, rowid] {
    const std::lock_guard lock(m_queueMutex);
    logstoadd.push_front(rowid);
  };
  m_row.run<ReadRow>(
      0, [log, rowid, filter](const auto&) { return readRow(log, rowid, filter); },
      [this, rowid, filter, putBack](const ReadRow& read) {
        // A search that has begun meanwhile doesn't know the row: it comes with a later tick.
        const bool late = m_find->searching() || filter != m_find->filter();
        if (read.error.isEmpty() && !late) return takeRow(rowid, read);
        putBack();
      },
      putBack);
}

void SystemLogWindow::takeRow(qint64 rowid, const ReadRow& read) {
  if (!read.found && LogAddTimer->isActive()) return LogAddTimer_Action();
  if (!read.found) return;
  m_model->appendRow(rowid, read.cells, read.passes);
  updateNote();
}

qint64 SystemLogWindow::takeQueued() {
  const std::lock_guard lock(m_queueMutex);
  while (!logstoadd.empty()) {
    const qint64 id = logstoadd.front();
    logstoadd.pop_front();
    if (!m_model->contains(id)) return id;
  }
  return 0;
}

void SystemLogWindow::LogAddTimer_Action() {
  if (m_load.running() || m_delete.running() || m_row.running() || m_find->searching()) return;
  if (!m_find->error().isEmpty()) return;  // one row would look like all that match
  if (const qint64 id = takeQueued()) showLogRow(id);
}

void SystemLogWindow::AutoRefreshCheckBox_Action() {
  if (AutoRefreshCheckBox->isChecked())
    LogAddTimer->start();
  else
    LogAddTimer->stop();
}

void SystemLogWindow::TheData_Change() {
  const int row = TheData->ListIndex();
  const LogCells* const cells = m_model->cells(row);
  m_keptId = m_model->idAt(row);
  m_detailsMissing = row >= 0 && !cells;
  if (cells)
    LogDetails->showFields(headers, cells->texts);
  else
    LogDetails->clearFields();
}

void SystemLogWindow::selectKeptRow() {
  const int row = m_keptId != 0 && TheData->ListIndex() < 0 ? m_model->rowOf(m_keptId) : -1;
  if (row < 0) return;
  TheData->setListIndex(row);
  TheData->scrollTo(m_model->index(row, 0), QAbstractItemView::PositionAtCenter);
}

void SystemLogWindow::emptyList(const QString& reason) {
  stopReading();
  m_keptId = 0;
  m_emptyReason = reason;
  m_model->setRows({});
  m_find->release();
  updateNote();
}

void SystemLogWindow::updateNote() {
  const bool busy = m_load.running() || m_find->searching();
  const QString& failed = m_find->error();
  const QString noMatch = failed.isEmpty() ? klLogNoMatch() : fillPlaceholders(klLogUnreadable(), {failed});
  const QString reason = m_model->all().isEmpty() ? m_emptyReason : noMatch;
  TheData->setNote(busy || m_model->rowCount() > 0 ? QString() : reason);
}

void SystemLogWindow::sayUnreadable(const QString& reason) {
  TheData->setNote(fillPlaceholders(klLogUnreadable(), {reason}));
}

void SystemLogWindow::CearLogButton_Action() {
  if (VantryUtil::logDB && !headers.isEmpty()) emptyList(klLogCleared());
}

void SystemLogWindow::DeleteLogs_Action() {
  if (!VantryUtil::logDB) return;
  emptyList({});
  m_delete.run<QString>(
      0,
      [log = VantryUtil::logDB](const auto&) {
        QString error;
        if (!log->deleteAll(&error)) System::DebugLog(error);
        return error;
      },
      [this](const QString& error) {
        m_emptyReason = error.isEmpty() ? klLogEmpty() : klLogCleared();
        updateNote();
        if (m_reloadWanted) loadAll();
        if (!error.isEmpty()) Messages::tell(this, error);
      },
      [this] {
        m_emptyReason = klLogCleared();
        updateNote();
        if (m_reloadWanted) loadAll();
        Messages::tell(this, klLogBusy());
      });
}

void SystemLogWindow::ExportToText_Action() {
  if (m_model->rowCount() == 0) return Messages::tell(this, klLogNoRecords(), false);
  // Half a list would look like a whole one in the file.
  if (m_load.running() || m_find->searching()) return Messages::tell(this, klLogBusy(), false);
  m_export->begin({VantryUtil::logDB->file(), headers}, [this] { return m_model->shown(); });
}

void SystemLogWindow::FindField_TextChange() {
  m_find->setFilter({FindField->text().trimmed(), FailuresOnlyCheckBox->isChecked()});
  updateNote();
}

void SystemLogWindow::closeEvent(QCloseEvent* event) {
  if (m_export->running() && !Messages::askYesNo(this, klLogStopExport())) return event->ignore();
  m_export->cancel();
  receive(false);
  event->accept();
}
