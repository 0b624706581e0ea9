#include "monitor/TaskListModel.h"

#include "monitor/MonitorText.h"
#include "text/VTULocalization.h"
#include "widgets/Captions.h"

using namespace Qt::Literals::StringLiterals;

RowLook rowLook(bool uploadEnabled, bool disabled, qint64 status) {
  if (!uploadEnabled || status == UploaderTask::NotEvaluated || disabled) return {};
  return {status, false};
}

QString statusPicture(qint64 state) {
  switch (state) {
    case UploaderTask::Processing:
      return u"up_status_active"_s;
    case UploaderTask::Ready:
      return u"up_status_check"_s;
    case UploaderTask::Fault:
      return u"up_status_fail"_s;
    default:
      return u"up_status_off"_s;
  }
}

QString statusWords(qint64 state) {
  switch (state) {
    case UploaderTask::Processing:
      return MonitorText::klStateProcessing();
    case UploaderTask::Ready:
      return MonitorText::klStateReady();
    case UploaderTask::Fault:
      return MonitorText::klStateFault();
    default:
      return MonitorText::klStateOff();
  }
}

void TaskListModel::setTasks(const QList<TaskPointer>& tasks, bool uploadEnabled) {
  beginResetModel();
  m_rows.clear();
  m_rows.reserve(tasks.size());
  for (const TaskPointer& task : tasks) {
    m_rows.append({task, {}});
    bringUpToDate(m_rows.last(), uploadEnabled);
  }
  endResetModel();
}

void TaskListModel::refresh(bool uploadEnabled) {
  for (int i = 0; i < m_rows.size(); ++i) {
    const RowLook look = m_rows[i].look;
    const qint64 uploaded = m_rows[i].uploaded;
    while (const TaskPointer heir = m_rows[i].task->heir()) m_rows[i].task = heir;
    bringUpToDate(m_rows[i], uploadEnabled);
    if (m_rows[i].look != look)
      emit dataChanged(index(i, StatusColumn), index(i, FilesColumn));
    else if (m_rows[i].uploaded != uploaded)
      emit dataChanged(index(i, FilesColumn), index(i, FilesColumn));
  }
}

void TaskListModel::bringUpToDate(Row& row, bool uploadEnabled) {
  row.uploaded = row.task->UploadedCount.load();
  const bool disabled = row.task->disabled.load();
  const qint64 status = row.task->Status.load();
  row.look = rowLook(uploadEnabled, disabled, status);
  row.faulty = !disabled && status == UploaderTask::Fault;
}

TaskPointer TaskListModel::task(int row) const {
  return row >= 0 && row < m_rows.size() ? m_rows[row].task : TaskPointer();
}

QStringList TaskListModel::faultyTasks() const {
  QStringList names;
  for (const Row& row : m_rows)
    if (row.faulty) names << row.task->Name;
  return names;
}

bool TaskListModel::hasUnevaluated() const {
  return std::any_of(m_rows.begin(), m_rows.end(),
                     [](const Row& row) { return row.look.dormant && !row.task->disabled.load(); });
}

int TaskListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int TaskListModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : ColumnCount; }

QVariant TaskListModel::textOf(const Row& row, int column) {
  switch (column) {
    case NameColumn:
      return onOneLine(row.task->Name);
    case DescriptionColumn:
      return onOneLine(row.task->Description);
    case FilesColumn:
      return QString::number(row.uploaded);
    default:
      return QString();
  }
}

QVariant TaskListModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= m_rows.size()) return {};
  const Row& row = m_rows[index.row()];
  const bool status = index.column() == StatusColumn;
  switch (role) {
    case Qt::DisplayRole:
      return textOf(row, index.column());
    case Qt::ToolTipRole:
      if (index.column() == FilesColumn) return {};
      return plainToolTip(status ? statusWords(row.look.state) : textOf(row, index.column()).toString());
    case Qt::AccessibleTextRole:
      return status ? statusWords(row.look.state) : textOf(row, index.column());
    case Qt::ForegroundRole:
      return row.look.dormant ? QVariant(DormantColor) : QVariant();
    case CellTagRole:
      if (status) return row.look.state;
      return index.column() == NameColumn && row.look.dormant ? QVariant(DormantColor) : QVariant();
    default:
      return {};
  }
}

QVariant TaskListModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  switch (section) {
    case StatusColumn:
      return VTULocalization::klStatus();
    case NameColumn:
      return VTULocalization::klTaskName();
    case DescriptionColumn:
      return VTULocalization::klTaskDescription();
    case FilesColumn:
      return VTULocalization::klFiles();
    default:
      return {};
  }
}
