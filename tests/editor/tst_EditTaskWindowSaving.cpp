// What OK leaves on the disk and in the list, and what Cancel and Clear do.

#include <QDir>
#include <thread>

#include "EditorFixture.h"
#include "engine/DueMemory.h"
#include "platform/Languages.h"

using namespace Qt::Literals::StringLiterals;

class tst_EditTaskWindowSaving : public QObject {
  Q_OBJECT

  static QString names() {
    QStringList list;
    for (const TaskPointer& task : UploaderTask::allTasks()) list << task->Name;
    return list.join(u'|');
  }
  static QString taskFiles(const QString& ending) {
    return QDir(UploaderTask::TaskDirectory().NativePath())
        .entryList({u'*' + ending}, QDir::Files | QDir::Hidden)
        .join(u'|');
  }

 private slots:
  void cleanup() { Languages::install({}); }

  void aTaskIsWrittenAndShownAsTheFormSays() {
    Languages::install(u"de"_s);  // in which only the form is
    EditorFixture fixture;
    fixture.open(fixture.storedTask());
    fixture.type("TaskName", u" "_s);
    QTest::keyClick(fixture.control("TaskName"), Qt::Key_Return);
    QVERIFY2(fixture.dialog().isVisible(), "a disabled OK answers no key");
    for (const auto& [list, row] : {std::pair("Warden", 1), {"TrackList1", 1}, {"TrackList2", 0}, {"Extension", 5}})
      fixture.list(list)->setCurrentIndex(row);
    fixture.type("TaskName", u"  Press/../2  "_s);
    fixture.control<QPlainTextEdit>("TaskDescription")->setPlainText(u"two "_s);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Tab}) QTest::keyClick(fixture.control("TaskDescription"), key);
    fixture.type("FileName", u" scan* "_s);
    fixture.type("FileNameExclusion", u" draft "_s);
    fixture.type("Prefix", u" P "_s);
    for (const char* const box : {"ReplaceName", "AddDateToFileNameCheckBox", "DeleteFileAfterCopyCheckBox"})
      fixture.tick(box);
    QTRY_VERIFY(fixture.canSave());
    QTest::keyClick(fixture.control("InputFolderSetButton"), Qt::Key_Return);
    QVERIFY(fixture.dialog().Result && !fixture.dialog().isVisible());
    UploaderTask::Load();
    QCOMPARE(names(), u"Press/../2"_s);
    const TaskPointer saved = UploaderTask::allTasks().first();
    QCOMPARE((QStringList{saved->Description, saved->Warden, saved->Track, saved->FileName, saved->ExclusionPattern(),
                          saved->Extension, saved->Prefix}
                  .join(u'|')),
             u"\ntwo |Instrument|s2-tile|scan*| draft |.csv|P"_s);
    QVERIFY(saved->ReplaceName && saved->AddDateToFilename && saved->DeleteAfterSave && !saved->AutoRecognition);
    QCOMPARE(saved->inputFolderPath + saved->outputFolderPath,
             fixture.home.path(u"in"_s) + fixture.home.path(u"out"_s));
    QVERIFY(QRegularExpression(u"^Press_\\.\\._2 \\d{10}\\.VNT$"_s).match(saved->file->Name()).hasMatch());

    fixture.open(saved);
    QVERIFY(saved->Busy);
    QStringList shown{fixture.control<QPlainTextEdit>("TaskDescription")->toPlainText()};
    for (const char* const field : {"TaskName", "FileName", "FileNameExclusion", "Prefix"})
      shown << fixture.text(field);
    for (const char* const list : {"Extension", "TrackList1", "TrackList2"}) shown << fixture.list(list)->currentText();
    for (const QCheckBox* const box : fixture.dialog().findChildren<QCheckBox*>())
      if (box->isChecked()) shown << box->objectName();
    QCOMPARE(shown.join(u'|'),
             u"\ntwo |Press/../2|scan*| draft |P|.csv|Spectro 2|Tile 7|ReplaceName|AddDateToFileNameCheckBox|"
             "DeleteFileAfterCopyCheckBox"_s);
    QTest::keyClick(fixture.control("Prefix"), Qt::Key_Escape);
    QVERIFY(!fixture.dialog().isVisible() && !fixture.dialog().Result && !saved->Busy);
  }

  void anEditTakesTheOldTasksPlaceUnderAnyName() {
    EditorFixture fixture;
    const TaskPointer old = fixture.storedTask();
    old->UploadedCount = 5;
    const QString same = u"Saved again in one second"_s;
    for (const QString& name :
         {u".hidden"_s, u"../../a/b"_s, QString(300, u'\u00fc'), u"a\"b'c"_s, u".."_s, same, same, same}) {
      fixture.open(UploaderTask::allTasks().first());
      fixture.type("TaskName", name);
      const TaskPointer saved = fixture.save();
      QVERIFY(!saved->Busy && saved->UploadedCount == 0);
      UploaderTask::Load();
      QCOMPARE(names(), name);
    }
    QVERIFY2(old->Name == u"Press 1"_s && old->Busy, "nobody may begin with it any more");
    QVERIFY(taskFiles(u".del"_s).contains(u"stored.del"_s));
    UploaderTask::cleanUpDeletedTasks();
    QVERIFY(taskFiles(u".del"_s).isEmpty() && !taskFiles({}).contains(u'|'));
  }

  void foldersThatWereChosenAreRememberedAsideOfTheWindow() {
    struct Watched : FileOps {
      const std::thread::id window = std::this_thread::get_id();
      std::atomic<int> saves = 0, inWindow = 0;
      int rename(const char* from, const char* to) override {
        inWindow += std::this_thread::get_id() == window ? 1 : 0;
        ++saves;
        return FileOps::rename(from, to);
      }
    } ops;
    EditorFixture fixture;
    VantryUtil::prefs = std::make_shared<DictionaryFile>(ops);
    const FolderItem file = fixture.home.item(u"chosen.pref"_s);
    QVERIFY(VantryUtil::prefs->open(file).ok());
    fixture.open(fixture.storedTask());
    for (const auto& [button, folder] :
         {std::pair("InputFolderSetButton", u"in 2"_s), {"OutputFOlderSetButton", u"out 2"_s}}) {
      const Choice choice(fixture.home.makeFolder(folder));
      fixture.press(button);
      QTRY_VERIFY(choice.made());
    }
    QTRY_VERIFY(fixture.canSave());
    fixture.press("OkButton");
    QTRY_COMPARE(ops.saves, 1);
    QCOMPARE(ops.inWindow, 0);
    QVERIFY(BackgroundCall::waitForAll(60'000));
    DictionaryFile written;
    QVERIFY(written.open(file).ok());
    for (const QString& folder : {u"in 2"_s, u"out 2"_s})
      QCOMPARE(written.StringValue(u"mountpoint "_s + fixture.home.path(folder)), u"/"_s);
  }

  void aPatternThatIsNotValidIsRefused() {
    EditorFixture fixture;
    const TaskPointer task = fixture.storedTask();
    fixture.open(task);
    fixture.type("FileNameExclusion", u"ab(c"_s);
    const BoxAnswer told(QMessageBox::Ok);
    QCOMPARE(fixture.save(), task);
    QVERIFY2(told.text().contains(u"not a valid pattern"_s) && told.text().contains(u"at character 5"_s),
             qPrintable(told.text()));
    QVERIFY(fixture.dialog().isVisible() && !fixture.dialog().Result);
    QCOMPARE(fixture.control<QLineEdit>("FileNameExclusion")->cursorPosition(), 4);
    QVERIFY(fixture.sample().contains(u"not a valid pattern"_s));
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
    QCOMPARE(fixture.save(), task);
    QVERIFY2(told.text().startsWith(u"There was an error saving this task\n\n"_s) && told.text().size() > 50,
             qPrintable(told.text()));
    QVERIFY(fixture.dialog().isVisible() && task->Busy);

    QVERIFY(QFile::remove(directory) && QDir().rename(away, directory));
    // A handle of a place where nothing can be renamed stands for a disk that refuses.
    task->file = FolderItem::fromNativePath(u"/proc/self/stat"_s);
    const BoxAnswer second(QMessageBox::Ok);
    (void)fixture.save();
    QVERIFY2(second.text().contains(u"back as a second task"_s), qPrintable(second.text()));
    QVERIFY(fixture.dialog().Result);
    QCOMPARE(names(), u"Other"_s);
  }

  void clearingTheDateActsAtOnceAndCancelLeavesAllElse() {
    EditorFixture fixture;
    const TaskPointer task = fixture.storedTask();
    task->updateDateLimit(false, 1'700'000'000);
    fixture.open(task);
    fixture.type("TaskName", u"Other"_s);
    const BoxAnswer no(QMessageBox::No);
    fixture.press("ClearProcessDateStampButton");
    QVERIFY(storedDateLimit(task->Name) > 0);
    const BoxAnswer yes(QMessageBox::Yes);
    fixture.press("ClearProcessDateStampButton");
    QTRY_COMPARE(storedDateLimit(task->Name), 0.0);
    fixture.press("CancelDialogButton");
    QCOMPARE(UploaderTask::allTasks(), QList<TaskPointer>{task});
    QCOMPARE(taskFiles({}), u"stored.VNT"_s);
    QVERIFY(BackgroundCall::waitForAll(60'000));
    VantryUtil::loadAccountPreferences();
    QCOMPARE(storedDateLimit(task->Name), 0.0);
  }
};

VANTRY_TEST(tst_EditTaskWindowSaving);
#include "tst_EditTaskWindowSaving.moc"
