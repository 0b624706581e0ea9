#pragma once
// How a row of the task list is painted: the state's picture in the middle of its cell at its own size, everything
// else as the style does it. Main thread.

#include <QStyledItemDelegate>

class TaskListDelegate : public QStyledItemDelegate {
 public:
  static constexpr int RowHeight = 24;

  using QStyledItemDelegate::QStyledItemDelegate;
  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};
