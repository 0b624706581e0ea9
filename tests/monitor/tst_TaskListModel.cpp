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
  void aRowShowsTheStateOfItsTask_data() {
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("disabled");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("picture");
    QTest::addColumn<bool>("grey");
    QTest::newRow("uploading is off, whatever the task's state") << false << false << 2 << u"up_status_off"_s << true;
    QTest::newRow("uploading is off, also for a fault") << false << false << 3 << u"up_status_off"_s << true;
    QTest::newRow("a disabled task") << true << true << 2 << u"up_status_off"_s << true;
    QTest::newRow("a fault of a disabled task stays hidden") << true << true << 3 << u"up_status_off"_s << true;
    QTest::newRow("not yet evaluated") << true << false << 0 << u"up_status_off"_s << true;
    QTest::newRow("being processed") << true << false << 1 << u"up_status_active"_s << false;
    QTest::newRow("ready") << true << false << 2 << u"up_status_check"_s << false;
    QTest::newRow("folder fault") << true << false << 3 << u"up_status_fail"_s << false;
    QTest::newRow("a number that is no state is live, with the picture for off")
        << true << false << 7 << u"up_status_off"_s << false;
  }
  void aRowShowsTheStateOfItsTask() {
    QFETCH(bool, enabled);
    QFETCH(bool, disabled);
    QFETCH(int, status);
    QFETCH(QString, picture);
    QFETCH(bool, grey);
    Model model;
    model.setTasks({makeTask(u"a"_s, status, disabled)}, enabled);
    QCOMPARE(statusPicture(cell(model, 0, Model::StatusColumn, Model::CellTagRole).toLongLong()), picture);
    const QVariant grey127 = QColor(127, 127, 127);
    QCOMPARE(cell(model, 0, Model::NameColumn, Model::CellTagRole), grey ? grey127 : QVariant());
    for (const int column : {Model::NameColumn, Model::DescriptionColumn, Model::FilesColumn})
      QCOMPARE(cell(model, 0, column, Qt::ForegroundRole), grey ? grey127 : QVariant());
  }

  void aRefreshAnnouncesWhatChangedAndNothingElse() {
    const QList<TaskPointer> tasks{makeTask(u"a"_s), makeTask(u"b"_s), makeTask(u"c"_s)};
    Model model;
    model.setTasks(tasks, true);
    QSignalSpy changed(&model, &Model::dataChanged);
    model.refresh(true);
    QCOMPARE(changed.size(), 0);
    tasks[0]->UploadedCount = 12345;
    tasks[2]->Status = UploaderTask::Fault;
    model.refresh(true);
    QCOMPARE(changed.size(), 2);
    QCOMPARE(changed[0][0].toModelIndex(), model.index(0, Model::FilesColumn));
    QCOMPARE(changed[1][0].toModelIndex(), model.index(2, Model::StatusColumn));
    QCOMPARE(changed[1][1].toModelIndex(), model.index(2, Model::FilesColumn));
    QCOMPARE(cell(model, 0, Model::FilesColumn).toString(), u"12345"_s);
    QCOMPARE(model.faultyTasks(), QStringList(u"c"_s));
  }

  void newRowsComeAsOneChange() {
    Model model;
    QSignalSpy reset(&model, &Model::modelReset);
    QSignalSpy inserted(&model, &Model::rowsInserted);
    QSignalSpy changed(&model, &Model::dataChanged);
    model.setTasks({makeTask(u"a"_s), makeTask(u"b"_s)}, true);
    QCOMPARE(reset.size() + inserted.size() + changed.size(), 1);
    QCOMPARE(cell(model, 0, Model::FilesColumn).toString(), u"0"_s);
  }

  void onlyAnEnabledTaskIsWaitedForAtTheStart() {
    Model model;
    model.setTasks({makeTask(u"a"_s), makeTask(u"b"_s, 0, true)}, true);
    QVERIFY(!model.hasUnevaluated());
    model.setTasks({makeTask(u"a"_s), makeTask(u"b"_s, 0)}, true);
    QVERIFY(model.hasUnevaluated());
  }

  void aTextWithLineEndsAndMarkupStaysOneLineOfPlainText() {
    const TaskPointer task = makeTask(u"a\nb\u202e"_s);
    task->Description = u"<img src=x>"_s;
    Model model;
    model.setTasks({task}, true);
    QCOMPARE(cell(model, 0, Model::NameColumn).toString(), u"a b"_s);
    QVERIFY(!cell(model, 0, Model::DescriptionColumn, Qt::ToolTipRole).toString().contains(u"<img"_s));
  }
};

VANTRY_TEST(tst_TaskListModel);
#include "tst_TaskListModel.moc"
