// What OK leaves on the disk and in the list, and what Cancel and Clear do.

#include <QDir>

#include "EditorFixture.h"
#include "engine/DueMemory.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;

class tst_EditTaskWindowSaving : public QObject {
  Q_OBJECT

  static QStringList names() {
    QStringList list;
    for (const TaskPointer& task : UploaderTask::allTasks()) list << task->Name;
    return list;
  }

 private slots:
  void aNewTaskIsWrittenAsTheFormSays() {
    EditorFixture fixture;
    fixture.open(fixture.storedTask());
    fixture.list("Warden")->setCurrentIndex(1);
    fixture.list("TrackList1")->setCurrentIndex(1);
    fixture.list("TrackList2")->setCurrentIndex(0);
    fixture.type("TaskName", u"  Press/../2  "_s);
    fixture.control<QPlainTextEdit>("TaskDescription")->setPlainText(u" two\nlines "_s);
    fixture.type("FileName", u" scan* "_s);
    fixture.type("FileNameExclusion", u" draft "_s);
    fixture.list("Extension")->setCurrentIndex(5);
    fixture.type("Prefix", u" P "_s);
    for (const char* const box : {"ReplaceName", "AddDateToFileNameCheckBox", "DeleteFileAfterCopyCheckBox"})
      fixture.control<QCheckBox>(box)->setChecked(true);
    QTRY_VERIFY(fixture.canSave());
    fixture.press("OkButton");
    QVERIFY(fixture.dialog().Result);

    UploaderTask::Load();
    QCOMPARE(UploaderTask::allTasks().size(), 1);
    const TaskPointer saved = UploaderTask::allTasks().first();
    QCOMPARE(saved->Name, u"Press/../2"_s);
    QCOMPARE(saved->Description, u" two\nlines "_s);
    QCOMPARE(saved->Warden, u"Instrument"_s);
    QCOMPARE(saved->Track, u"s2-tile"_s);
    QCOMPARE(saved->FileName, u"scan*"_s);
    QCOMPARE(saved->ExclusionPattern(), u" draft "_s);
    QCOMPARE(saved->Extension, u".csv"_s);
    QCOMPARE(saved->Prefix, u"P"_s);
    QVERIFY(saved->ReplaceName && saved->AddDateToFilename && saved->DeleteAfterSave && !saved->AutoRecognition);
    QCOMPARE(saved->inputFolderPath, fixture.home.path(u"in"_s));
    QCOMPARE(saved->outputFolderPath, fixture.home.path(u"out"_s));
    QVERIFY(QRegularExpression(u"^Press_\\.\\._2 \\d{10}\\.VNT$"_s).match(saved->file->Name()).hasMatch());
  }

  void anEditTakesTheOldTasksPlace() {
    EditorFixture fixture;
    const TaskPointer old = fixture.storedTask();
    old->UploadedCount = 5;
    old->Status = UploaderTask::Ready;
    fixture.open(old);
    fixture.type("TaskName", u"Renamed"_s);
    fixture.control<QCheckBox>("DisableTaskButton")->setChecked(true);
    QTRY_VERIFY(fixture.canSave());
    fixture.press("OkButton");
    QCOMPARE(names(), QStringList{u"Renamed"_s});
    const TaskPointer saved = UploaderTask::allTasks().first();
    QVERIFY(saved != old);
    QVERIFY(saved->disabled);
    QVERIFY(!saved->Busy && saved->Status == UploaderTask::NotEvaluated && saved->UploadedCount == 0);
    QCOMPARE(old->Name, u"Press 1"_s);
    QVERIFY2(old->Busy, "nobody may begin with it any more");
    QCOMPARE(fixture.taskFiles().filter(u".del"_s), QStringList{u"stored.del"_s});
    UploaderTask::Load();
    QCOMPARE(names(), QStringList{u"Renamed"_s});
  }

  void twoEditsInOneSecondKeepTheTask() {
    EditorFixture fixture;
    fixture.storedTask();
    for (int i = 0; i < 3; ++i) {
      fixture.open(UploaderTask::allTasks().first());
      QTRY_VERIFY(fixture.canSave());
      fixture.press("OkButton");
    }
    UploaderTask::cleanUpDeletedTasks();
    UploaderTask::Load();
    QCOMPARE(names(), QStringList{u"Press 1"_s});
    QCOMPARE(fixture.taskFiles().size(), 1);
  }

  void everyNameCanBeSavedAndLoaded_data() {
    QTest::addColumn<QString>("name");
    QTest::newRow("one that begins with a dot") << u".hidden"_s;
    QTest::newRow("separators") << u"../../a/b"_s;
    QTest::newRow("longer than a file name") << QString(300, u'\u00fc');
    QTest::newRow("a line end and quotes") << u"a\"b'c"_s;
    QTest::newRow("only dots") << u".."_s;
  }
  void everyNameCanBeSavedAndLoaded() {
    QFETCH(QString, name);
    EditorFixture fixture;
    fixture.open(fixture.storedTask());
    fixture.type("TaskName", name);
    QTRY_VERIFY(fixture.canSave());
    fixture.press("OkButton");
    UploaderTask::Load();
    QCOMPARE(names(), QStringList{name});
    QCOMPARE(fixture.taskFiles().size(), 2);
  }

  void autoRecognitionStoresNoTrack() {
    EditorFixture fixture;
    fixture.open(fixture.storedTask());
    fixture.control<QCheckBox>("AutoRecognition")->setChecked(true);
    QTRY_VERIFY(fixture.canSave());
    fixture.press("OkButton");
    QVERIFY(UploaderTask::allTasks().first()->Track.isEmpty());
  }

  void aPatternThatIsNotValidIsRefused() {
    EditorFixture fixture;
    const TaskPointer task = fixture.storedTask();
    fixture.open(task);
    fixture.type("FileNameExclusion", u"ab(c"_s);
    QTRY_VERIFY(fixture.canSave());
    const BoxAnswer told(QMessageBox::Ok);
    fixture.press("OkButton");
    QVERIFY2(told.text().contains(u"not a valid pattern"_s) && told.text().contains(u"at character 5"_s),
             qPrintable(told.text()));
    QVERIFY(fixture.dialog().isVisible() && !fixture.dialog().Result);
    QCOMPARE(UploaderTask::allTasks(), QList<TaskPointer>{task});
    QCOMPARE(fixture.control<QLineEdit>("FileNameExclusion")->cursorPosition(), 4);
    QVERIFY(fixture.control<LiveSample>("Sample")->line().contains(u"not a valid pattern"_s));
  }

  void aFailedWriteSaysWhyAndLosesNothing() {
    EditorFixture fixture;
    const TaskPointer task = fixture.storedTask();
    fixture.open(task);
    fixture.type("TaskName", u"Other"_s);
    QTRY_VERIFY(fixture.canSave());
    const QString directory = UploaderTask::TaskDirectory().NativePath();
    const QString away = directory + u" away"_s;
    QVERIFY(QDir().rename(directory, away));
    fixture.home.writeFile(u"data/vantry-uploader/Uploader Tasks"_s, "not a folder");
    const BoxAnswer told(QMessageBox::Ok);
    fixture.press("OkButton");
    QVERIFY2(told.text().startsWith(u"There was an error saving this task\n\n"_s) && told.text().size() > 50,
             qPrintable(told.text()));
    QVERIFY(fixture.dialog().isVisible() && task->Busy);
    QCOMPARE(fixture.text("TaskName"), u"Other"_s);
    QCOMPARE(UploaderTask::allTasks(), QList<TaskPointer>{task});

    QVERIFY(QFile::remove(directory) && QDir().rename(away, directory));
    fixture.press("OkButton");
    QVERIFY(fixture.dialog().Result);
    QCOMPARE(names(), QStringList{u"Other"_s});
  }

  void anOldFileThatCannotBeMarkedIsTold() {
    EditorFixture fixture;
    const TaskPointer task = fixture.storedTask();
    fixture.open(task);
    QTRY_VERIFY(fixture.canSave());
    // A handle of a place where nothing can be renamed stands for a disk that refuses.
    task->file = FolderItem::fromNativePath(u"/proc/self/status.VNT"_s);
    QVERIFY(QFile::exists(u"/proc/self/status"_s));
    task->file = FolderItem::fromNativePath(u"/proc/self/stat"_s);
    const BoxAnswer told(QMessageBox::Ok);
    fixture.press("OkButton");
    QVERIFY2(told.text().contains(u"back as a second task"_s), qPrintable(told.text()));
    QVERIFY(fixture.dialog().Result);
    QCOMPARE(UploaderTask::allTasks().size(), 1);
  }

  void cancelLeavesEverything() {
    EditorFixture fixture;
    const TaskPointer task = fixture.storedTask();
    fixture.open(task);
    fixture.type("TaskName", u"Other"_s);
    fixture.press("CancelDialogButton");
    QVERIFY(!fixture.dialog().Result && !task->Busy);
    QCOMPARE(UploaderTask::allTasks(), QList<TaskPointer>{task});
    QCOMPARE(fixture.taskFiles(), QStringList{u"stored.VNT"_s});
  }

  void clearingTheDateAsksAndActsAtOnce() {
    EditorFixture fixture;
    const TaskPointer task = fixture.storedTask();
    task->updateDateLimit(false, 1'700'000'000);
    QVERIFY(storedDateLimit(task->Name) > 0);
    fixture.open(task);
    const BoxAnswer no(QMessageBox::No);
    fixture.press("ClearProcessDateStampButton");
    QVERIFY(no.text().startsWith(u"Are you sure you want to clear the last processed date?\n\nThis will force"_s));
    QVERIFY(storedDateLimit(task->Name) > 0);
    const BoxAnswer yes(QMessageBox::Yes);
    fixture.press("ClearProcessDateStampButton");
    QTRY_COMPARE(storedDateLimit(task->Name), 0.0);
    fixture.press("CancelDialogButton");
    QVERIFY(BackgroundCall::waitForAll(10'000));
    VantryUtil::loadAccountPreferences();
    QCOMPARE(storedDateLimit(task->Name), 0.0);
  }

  void theSharedEntryPointsTellWhetherATaskWasSaved() {
    EditorFixture fixture;
    const auto answer = [](const char* button) {
      QTimer* const timer = new QTimer(qApp);
      connect(timer, &QTimer::timeout, qApp, [timer, button] {
        auto* const dialog = qobject_cast<EditTaskWindow*>(QApplication::activeModalWidget());
        auto* const pressed = dialog ? dialog->findChild<QPushButton*>(QString::fromLatin1(button)) : nullptr;
        if (!pressed || !pressed->isEnabled()) return;
        timer->deleteLater();
        timer->stop();
        pressed->click();
      });
      timer->start(5);
    };
    answer("CancelDialogButton");
    QVERIFY(!EditTaskWindow::CreateNewTask(nullptr));
    const TaskPointer task = fixture.storedTask();
    answer("CancelDialogButton");
    QVERIFY(!EditTaskWindow::EditTask(task, nullptr));
    QVERIFY(!task->Busy);
    answer("OkButton");
    QVERIFY(EditTaskWindow::EditTask(task, nullptr));
    QVERIFY(UploaderTask::allTasks().first() != task);
  }
};

VANTRY_TEST(tst_EditTaskWindowSaving);
#include "tst_EditTaskWindowSaving.moc"
