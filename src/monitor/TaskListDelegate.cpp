#include "monitor/TaskListDelegate.h"

#include <QPainter>

#include "monitor/TaskListModel.h"
#include "widgets/Pictures.h"

void TaskListDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
  if (index.column() != TaskListModel::StatusColumn) {
    QStyledItemDelegate::paint(painter, option, index);
    return;
  }
  // The picture keeps the list's own ground in a selected row too: its colours are made for that one.
  painter->fillRect(option.rect, option.palette.brush(QPalette::Active, QPalette::Base));
  const QString name = statusPicture(index.data(TaskListModel::CellTagRole).toLongLong());
  const QPixmap picture = Pictures::load(name, painter->device()->devicePixelRatioF());
  const QSize size = Pictures::size(name);
  painter->drawPixmap(option.rect.left() + static_cast<int>(option.rect.width() / 2.0 - size.width() / 2.0),
                      option.rect.top() + static_cast<int>(option.rect.height() / 2.0 - size.height() / 2.0), picture);
}

QSize TaskListDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  return {QStyledItemDelegate::sizeHint(option, index).width(), RowHeight};
}
