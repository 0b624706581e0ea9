#pragma once
// The task list's view: four columns of which the description takes the spare width, one row selected at most, no
// grid. Main thread.

#include <QTreeView>

class TaskListModel;

class TaskListView : public QTreeView {
 public:
  TaskListView(TaskListModel* model, QWidget* parent);

  /// The selected row, -1 for none.
  [[nodiscard]] int ListIndex() const;
  /// What stands in the place of the rows while there are none.
  void setNote(const QString& note);
  [[nodiscard]] const QString& note() const { return m_note; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QString m_note;
};
