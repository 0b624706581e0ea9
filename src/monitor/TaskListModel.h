#pragma once
// The rows of the task list: one for each task of a snapshot, in its order, with what each row shows at the moment.
// It owns no task. Main thread; reads nothing but the tasks' own fields, so a refresh touches no file.

#include <QAbstractTableModel>
#include <QColor>
#include <QList>

#include "engine/UploaderTask.h"

/// What a row shows beside its texts.
struct RowLook {
  qint64 state = UploaderTask::NotEvaluated;  ///< selects the picture
  bool dormant = true;                        ///< grey instead of the palette's text colour
  bool operator==(const RowLook&) const = default;
};
[[nodiscard]] RowLook rowLook(bool uploadEnabled, bool disabled, qint64 status);

/// The picture of a row's state; any number that is no state gives the one for "off".
[[nodiscard]] QString statusPicture(qint64 state);
/// The state in words, for a tool tip and for those who listen to the list.
[[nodiscard]] QString statusWords(qint64 state);

class TaskListModel : public QAbstractTableModel {
  Q_OBJECT
 public:
  enum Column { StatusColumn, NameColumn, DescriptionColumn, FilesColumn, ColumnCount };
  /// Of the status column the state number, of the name column the row's text colour (invalid: the palette's).
  static constexpr int CellTagRole = Qt::UserRole + 1;
  static constexpr QColor DormantColor{127, 127, 127};

  using QAbstractTableModel::QAbstractTableModel;

  /// Takes a new set of rows as one change.
  void setTasks(const QList<TaskPointer>& tasks, bool uploadEnabled);
  /// Brings every row up to date with its task; only the cells that changed are announced.
  void refresh(bool uploadEnabled);

  /// The task of a row; empty for a row that there isn't.
  [[nodiscard]] TaskPointer task(int row) const;
  /// Names of the tasks, not switched off, whose folders are at fault; also while uploading is held.
  [[nodiscard]] QStringList faultyTasks() const;
  /// Whether a row, of a task that is not switched off, is still shown grey: what was found out is not to be seen yet.
  [[nodiscard]] bool hasUnevaluated() const;

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  struct Row {
    TaskPointer task;
    RowLook look;
    qint64 uploaded = 0;
    bool faulty = false;  ///< also while uploading is held and the row is grey
  };
  static void bringUpToDate(Row& row, bool uploadEnabled);
  [[nodiscard]] static QVariant textOf(const Row& row, int column);

  QList<Row> m_rows;
};
