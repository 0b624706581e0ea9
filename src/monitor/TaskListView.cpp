#include "monitor/TaskListView.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QStyle>

#include "monitor/TaskListDelegate.h"
#include "monitor/TaskListModel.h"
#include "widgets/Captions.h"

TaskListView::TaskListView(TaskListModel* rows, QWidget* parent) : QTreeView(parent) {
  QFont own = font();
  own.setPointSizeF(qBound(9.0, own.pointSizeF(), 12.0));  // 12 design points are 9 of a screen of 96 dots an inch
  setFont(own);
  setItemDelegate(new TaskListDelegate(this));
  setModel(rows);
  setRootIsDecorated(false);
  setItemsExpandable(false);
  setUniformRowHeights(true);
  setAllColumnsShowFocus(true);
  setSelectionMode(SingleSelection);
  setEditTriggers(NoEditTriggers);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  header()->setSectionsMovable(false);
  header()->setStretchLastSection(false);
  header()->setMinimumSectionSize(40);
  header()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  header()->setSectionResizeMode(QHeaderView::Fixed);
  header()->setSectionResizeMode(TaskListModel::DescriptionColumn, QHeaderView::Stretch);
  header()->resizeSection(TaskListModel::StatusColumn, 53);
  header()->resizeSection(TaskListModel::NameColumn, 150);
  header()->resizeSection(TaskListModel::FilesColumn, 54);
  const int margins = 2 * header()->style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, header());
  for (const int column : {TaskListModel::StatusColumn, TaskListModel::NameColumn, TaskListModel::FilesColumn})
    (void)fitFont(*header(), rows->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString(),
                  header()->sectionSize(column) - margins);  // longer words still are elided
}

int TaskListView::ListIndex() const {
  const QModelIndexList rows = selectionModel()->selectedRows();
  return rows.isEmpty() ? -1 : rows.first().row();
}

void TaskListView::setNote(const QString& note) {
  m_note = note;
  setAccessibleDescription(note);
  viewport()->update();
}

void TaskListView::paintEvent(QPaintEvent* event) {
  QTreeView::paintEvent(event);
  if (m_note.isEmpty() || model()->rowCount() > 0) return;
  QPainter painter(viewport());
  painter.setPen(palette().color(QPalette::Text));
  painter.drawText(viewport()->rect().adjusted(16, 4, -16, -4), Qt::AlignCenter | Qt::TextWordWrap, m_note);
}

void TaskListView::keyPressEvent(QKeyEvent* event) {
  // Qt makes the first row current without selecting it; an arrow would then pass over it.
  const bool arrow = event->key() == Qt::Key_Down || event->key() == Qt::Key_Up;
  if (arrow && ListIndex() < 0 && currentIndex().isValid())
    setCurrentIndex(currentIndex());
  else
    QTreeView::keyPressEvent(event);
}
