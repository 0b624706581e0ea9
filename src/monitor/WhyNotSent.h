#pragma once
// "Why was this file not sent?": a file that is dropped on a row of the task list, or chosen from the row's context
// menu, is explained rule by rule in a small window. The file is looked at off the main thread. Main thread.

#include <QDialog>
#include <QLabel>
#include <QListWidget>
#include <QTreeView>

#include "engine/UploaderTask.h"
#include "monitor/TaskListModel.h"
#include "monitor/WhyText.h"
#include "widgets/BackgroundCall.h"
#include "widgets/PathChooser.h"

/// The window for one file and one task; closes and ends by itself when the user closes it.
class WhyNotSentWindow : public QDialog {
  Q_OBJECT
 public:
  WhyNotSentWindow(const TaskPointer& task, const FolderItem& file, QWidget* parent);

 private:
  void fill(const WhyAnswer& answer);

  QLabel *Head, *WhyVerdict;
  QListWidget* WhyAnswers;
  BackgroundCall m_look;
};

/// Teaches the task list to take files and to show its menu. Lives as long as the list, which owns it.
class WhyNotSent : public QObject {
  Q_OBJECT
 public:
  WhyNotSent(QTreeView* list, const TaskListModel* model);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  [[nodiscard]] TaskPointer taskAt(QPoint place) const;
  void drop(const TaskPointer& task, const QList<QUrl>& urls);
  void showMenu(QPoint place);
  void chooseFile(const TaskPointer& task);
  void explain(const TaskPointer& task, const FolderItem& file);

  QTreeView* m_list;
  const TaskListModel* m_model;
  PathChooser m_chooser;
};
