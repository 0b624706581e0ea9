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
    const QString off = u"up_status_off"_s;
    const std::tuple<bool, bool, int, QString> rows[] = {// uploading is on, the task is off, its status, the picture
                                                         {false, false, UploaderTask::Fault, off},
                                                         {true, true, UploaderTask::Fault, off},
                                                         {true, false, UploaderTask::Processing, u"up_status_active"_s},
                                                         {true, false, UploaderTask::Ready, u"up_status_check"_s},
                                                         {true, false, UploaderTask::Fault, u"up_status_fail"_s}};
    for (const auto& [enabled, disabled, status, picture] : rows) {
      Model model;
      model.setTasks({makeTask(u"a"_s, status, disabled)}, enabled);
      QCOMPARE(statusPicture(cell(model, 0, Model::StatusColumn, Model::CellTagRole).toLongLong()), picture);
      const QVariant colour = picture == off ? QVariant(QColor(127, 127, 127)) : QVariant();
      QCOMPARE(cell(model, 0, Model::NameColumn, Model::CellTagRole), colour);
      QCOMPARE(cell(model, 0, Model::FilesColumn, Qt::ForegroundRole), colour);
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
    tasks[1]->Status = UploaderTask::Fault;
    model.refresh(true);
    QCOMPARE(model.faultyTasks(), QStringList(u"c"_s));  // not the disabled one
    tasks[1]->Status = UploaderTask::NotEvaluated;
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
