#pragma once
// The two lists of the log viewer: the rows of the log, and the fields of the selected one. Main thread.

#include <QLabel>
#include <QStandardItemModel>
#include <QTableView>

#include "monitor/LogModel.h"

class LogListView : public QTableView {
  Q_OBJECT
 public:
  LogListView(LogModel* model, QWidget* parent);

  /// The selected row, of several the one with the focus or else the first; -1 for none.
  [[nodiscard]] int ListIndex() const;
  /// Selects that row alone, whatever keys are held.
  void setListIndex(int row);
  /// The row ids of the selected rows in the order of the list, at most `most`.
  [[nodiscard]] QList<qint64> selectedIds(qsizetype most) const;
  /// The index of the topmost visible row.
  [[nodiscard]] int ScrollPosition() const;
  void setScrollPosition(int row);
  /// One line in the middle of the list, for why it is empty; none if blank.
  void setNote(const QString& note);

  /// Widths of the columns, separated by commas, and back; a text that doesn't fit gives the first widths.
  [[nodiscard]] QString columnWidths() const;
  void setColumnWidths(const QString& widths);

 signals:
  void copyWanted();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void placeNote();
  /// Lets the last column take what is free, as long as the columns just fill the list.
  void fillWidth(int oldWidth);

  LogModel* m_rows;
  QLabel* m_note;
};

class LogDetailsView : public QTableView {
  Q_OBJECT
 public:
  static constexpr QColor FieldGround{240, 240, 255};

  explicit LogDetailsView(QWidget* parent);
  void showFields(const QStringList& fields, const QStringList& values);
  void clearFields() { m_fields->setRowCount(0); }

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QStandardItemModel* m_fields;
};

/// The ground of the field names: light lavender, or a dark one of the same hue where lists are dark.
[[nodiscard]] QColor fieldGround(const QPalette& palette);
