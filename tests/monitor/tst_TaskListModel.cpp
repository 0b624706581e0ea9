// What a row of the task list shows, without a window.

#include <QSignalSpy>
#include <QTest>

#include "monitor/TaskListModel.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;
using Model = TaskListModel;

static TaskPointer makeTask(const QString& name, qint64 status = UploaderTask::Ready, bool disabled = false) {
  auto task = std::make_shared<UploaderTask>();
  task->Name = name;
  task->Status = status;
  task->disabled = disabled;
  return task;
}

static QVariant cell(const Model& model, int row, int column, int role = Qt::DisplayRole) {
  return model.index(row, column).data(role);
}

class tst_TaskListModel : public QObject {
  Q_OBJECT
 private slots:
  void aRowShowsTheStateOfItsTask() {
    const struct {
      const char* label;
      bool enabled, disabled;
      int status;
      QString picture;
      bool grey;
    } rows[] = {{"uploading is off, also for a fault", false, false, 3, u"up_status_off"_s, true},
                {"a disabled task", true, true, 2, u"up_status_off"_s, true},
                {"a fault of a disabled task stays hidden", true, true, 3, u"up_status_off"_s, true},
                {"being processed", true, false, 1, u"up_status_active"_s, false},
                {"ready", true, false, 2, u"up_status_check"_s, false},
                {"folder fault", true, false, 3, u"up_status_fail"_s, false},
                {"a number that is no state", true, false, 7, u"up_status_off"_s, false}};
    for (const auto& row : rows) {
      Model model;
      model.setTasks({makeTask(u"a"_s, row.status, row.disabled)}, row.enabled);
      const auto tag = cell(model, 0, Model::StatusColumn, Model::CellTagRole).toLongLong();
      QVERIFY2(statusPicture(tag) == row.picture, row.label);
      const QVariant colour = row.grey ? QVariant(QColor(127, 127, 127)) : QVariant();
      QVERIFY2(cell(model, 0, Model::NameColumn, Model::CellTagRole) == colour, row.label);
      for (const int column : {Model::NameColumn, Model::DescriptionColumn, Model::FilesColumn})
        QVERIFY2(cell(model, 0, column, Qt::ForegroundRole) == colour, row.label);
    }
  }

  void aRefreshShowsTheTaskThatTookAnothersPlace() {
    const TaskPointer old = makeTask(u"a"_s, UploaderTask::Fault);
    UploaderTask::addTask(old);
    Model model;
    model.setTasks({old}, true);
    const TaskPointer heir = UploaderTask::renewed(old);
    heir->Status = UploaderTask::Ready;
    model.refresh(true);
    UploaderTask::unload();
    QVERIFY(heir != old && model.task(0) == heir && model.faultyTasks().isEmpty());
  }

  void aRefreshAnnouncesWhatChangedAndNothingElse() {
    const QList<TaskPointer> tasks{makeTask(u"a\nb\u202e"_s), makeTask(u"b"_s, 0, true), makeTask(u"c"_s)};
    tasks[0]->Description = u"<img src=x>"_s;
    Model model;
    const QSignalSpy reset(&model, &Model::modelReset), inserted(&model, &Model::rowsInserted);
    const QSignalSpy changed(&model, &Model::dataChanged);
    model.setTasks(tasks, true);
    model.refresh(true);
    QVERIFY2(reset.size() == 1 && inserted.isEmpty() && changed.isEmpty(), "new rows come as one change");
    QCOMPARE(cell(model, 0, Model::NameColumn).toString(), u"a b"_s);  // one line of plain text
    QVERIFY(!cell(model, 0, Model::DescriptionColumn, Qt::ToolTipRole).toString().contains(u"<img"_s));
    tasks[0]->UploadedCount = 12345;
    tasks[2]->Status = UploaderTask::Fault;
    model.refresh(true);
    QCOMPARE(changed.size(), 2);
    QCOMPARE(changed[0][0].toModelIndex(), model.index(0, Model::FilesColumn));
    QCOMPARE(changed[1][0].toModelIndex(), model.index(2, Model::StatusColumn));
    QCOMPARE(cell(model, 0, Model::FilesColumn).toString(), u"12345"_s);
    QCOMPARE(model.faultyTasks(), QStringList(u"c"_s));
    QVERIFY2(!model.hasUnevaluated(), "a disabled task is not waited for at the start");
    model.setTasks({makeTask(u"a"_s), makeTask(u"b"_s, 0)}, true);
    QVERIFY(model.hasUnevaluated());
    model.task(1)->Status = UploaderTask::Fault;
    QVERIFY2(model.hasUnevaluated(), "all is well must not be told before a fault is shown");
    model.refresh(true);
    QVERIFY(!model.hasUnevaluated() && !model.faultyTasks().isEmpty());
    model.refresh(false);
    QVERIFY2(!model.faultyTasks().isEmpty(), "all is well must not be told while a dialog holds the upload");
  }
};

VANTRY_TEST(tst_TaskListModel);
#include "tst_TaskListModel.moc"
