// Task files on the disk and the shared list.

#include <QDir>
#include <QTest>

#include "engine/UploaderTask.h"
#include "platform/Problems.h"
#include "platform/SpecialFolder.h"
#include "storage/DictionaryFile.h"
#include "support/TemporaryHome.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;

class tst_TaskFiles : public QObject {
  Q_OBJECT

  static TaskPointer stored(const QString& name, const QString& fileName) {
    auto task = std::make_shared<UploaderTask>();
    task->Name = name;
    if (!task->save(UploaderTask::TaskDirectory().Child(fileName))) qFatal("cannot store a task");
    return task;
  }
  static QStringList names() {
    QStringList list;
    for (const TaskPointer& task : UploaderTask::allTasks()) list << task->Name;
    return list;
  }
  static QStringList files() {
    return QDir(UploaderTask::TaskDirectory().NativePath()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
  }
  static QStringList skipped() {
    QStringList list;
    for (const Problem& problem : Problems::present())
      if (problem.kind == Problem::Kind::TaskFileSkipped) list << problem.subject;
    list.sort();
    return list;
  }

 private slots:
  void init() { DictionaryFile::setSolutionKey(u"KestrelMoonOVJT"_s); }
  void cleanup() {
    UploaderTask::unload();
    DictionaryFile::setSolutionKey({});
  }

  void aTaskComesBackAsItWasSaved() {
    const TemporaryHome home;
    UploaderTask task;
    task.Name = u"Press \"3\" \u00fc"_s;
    task.Description = u"line\nbreak"_s;
    task.Warden = u"Print"_s;
    task.Track = u"TW-1"_s;
    task.FileName = u"a*b"_s;
    task.Extension = u".txt"_s;
    task.setExclusionPattern(u"  draft "_s);
    task.Prefix = u"P"_s;
    task.inputFolderPath = home.path(u"in/with blank"_s);
    task.outputFolderPath = home.path(u"out"_s);
    task.ReplaceName = task.DeleteAfterSave = true;
    const FolderItem file = UploaderTask::TaskDirectory().Child(u"x.vnt"_s);
    QVERIFY(task.save(file));

    DictionaryFile raw;
    QVERIFY(raw.open(file).ok());
    QStringList keys = raw.Keys();
    keys.sort();
    QCOMPARE(keys.join(u' '), u"adddatetofilename autorecognition deleteaftersave description exclusion extension "
                              "filename inputfolder name outputfolder prefix replacename track warden"_s);

    UploaderTask read;
    QVERIFY(read.open(file).ok());
    QCOMPARE(read.Name, task.Name);
    QCOMPARE(read.Description, task.Description);
    QCOMPARE(read.Track, task.Track);
    QCOMPARE(read.ExclusionPattern(), u"  draft "_s);
    QVERIFY(read.matchesExclusion(u"a draft"_s));
    QCOMPARE(read.inputFolder->NativePath(), task.inputFolderPath);
    QCOMPARE(read.outputFolderPath, task.outputFolderPath);
    QVERIFY(read.ReplaceName && read.DeleteAfterSave && !read.AddDateToFilename && !read.AutoRecognition);
  }

  void loadingSkipsWhatItCannotReadAndKeepsTheRest() {
    const TemporaryHome home;
    stored(u"beta"_s, u"1.vnt"_s);
    stored(u"Alpha"_s, u"2.VNT"_s);
    stored(u"alpha"_s, u"3.vnt"_s);
    stored(u"removed"_s, u"4.del"_s);
    stored(u"other"_s, u"5.txt"_s);
    const QString folder = UploaderTask::TaskDirectory().NativePath() + u'/';
    QDir().mkpath(folder + u"folder.vnt"_s);
    const QByteArray good = TemporaryHome::readFile(folder + u"1.vnt"_s);
    const auto write = [&](const QString& name, const QByteArray& content) {
      QFile file(folder + name);
      QVERIFY(file.open(QIODevice::WriteOnly));
      file.write(content);
    };
    write(u"cut.vnt"_s, good.left(good.size() / 2));
    write(u"empty.vnt"_s, {});
    write(u"plain.vnt"_s, R"({"name":"plain"})");
    DictionaryFile::setSolutionKey(u"another"_s);
    stored(u"foreign"_s, u"foreign.vnt"_s);
    DictionaryFile::setSolutionKey(u"KestrelMoonOVJT"_s);

    UploaderTask::Load();
    QCOMPARE(names(), (QStringList{u"Alpha"_s, u"alpha"_s, u"beta"_s}));
    QCOMPARE(skipped(), (QStringList{u"cut.vnt"_s, u"empty.vnt"_s, u"foreign.vnt"_s, u"plain.vnt"_s}));
    QCOMPARE(files().size(), 9);
    UploaderTask::Load();
    QCOMPARE(names().size(), 3);
  }

  void aTaskFolderThatIsAFileIsSaid() {
    const TemporaryHome home;
    home.writeFile(u"data/vantry-uploader/Uploader Tasks"_s, "not a folder");
    UploaderTask::Load();
    QVERIFY(names().isEmpty());
    bool said = false;
    for (const Problem& problem : Problems::present()) said |= problem.kind == Problem::Kind::TaskFolderUnreadable;
    QVERIFY(said);
    Problems::clearKind(Problem::Kind::TaskFolderUnreadable);
  }

  void aCopyIsDisabledNamedAndStored() {
    const TemporaryHome home;
    stored(u"Press/1"_s, u"p.vnt"_s);
    UploaderTask::Load();
    QVERIFY(UploaderTask::duplicateTask(UploaderTask::allTasks().first()));
    QVERIFY(UploaderTask::duplicateTask(UploaderTask::getTaskWIthName(u" PRESS/1 copy "_s)));
    QCOMPARE(names(), (QStringList{u"Press/1"_s, u"Press/1 Copy"_s, u"Press/1 Copy Copy"_s}));
    QVERIFY(UploaderTask::allTasks().at(1)->disabled);
    UploaderTask::Load();
    QCOMPARE(names().size(), 3);
    QVERIFY(!UploaderTask::allTasks().at(1)->disabled);
  }

  void aCopyThatCannotBeWrittenSaysWhy() {
    const TemporaryHome home;
    auto task = stored(u"gone"_s, u"gone.vnt"_s);
    QVERIFY(task->file->Delete().ok());
    UploaderTask::addTask(task);
    QVERIFY(QDir(UploaderTask::TaskDirectory().NativePath()).removeRecursively());
    IoResult failure;
    QVERIFY(!UploaderTask::duplicateTask(task, &failure));
    QVERIFY(!failure.ok());
    QCOMPARE(names().size(), 1);
  }

  void removingTakesTwoSteps() {
    const TemporaryHome home;
    stored(u"a"_s, u"a.vnt"_s);
    stored(u"b"_s, u"b.VNT"_s);
    stored(u"old"_s, u"a.del"_s);
    UploaderTask::Load();
    const TaskPointer a = UploaderTask::allTasks().first();
    QVERIFY(UploaderTask::RemoveTask(a).ok());
    QVERIFY(UploaderTask::RemoveTask(a).ok());
    QCOMPARE(names(), QStringList{u"b"_s});
    QCOMPARE(files(), (QStringList{u"1 a.del"_s, u"a.del"_s, u"b.VNT"_s}));
    UploaderTask::cleanUpDeletedTasks();
    QCOMPARE(files(), QStringList{u"b.VNT"_s});
  }

  void distinctNamesCountFromTheFirstName() {
    const TemporaryHome home;
    const auto distinct = [&](const QString& name) {
      FolderItem item = home.item(u"x/"_s + name);
      UploaderTask::DistinctName(item);
      return item.Name();
    };
    QCOMPARE(distinct(u"report.txt"_s), u"report.txt"_s);
    home.writeFile(u"x/report.txt"_s, "1");
    QCOMPARE(distinct(u"report.txt"_s), u"1 report.txt"_s);
    home.writeFile(u"x/1 report.txt"_s, "2");
    QCOMPARE(distinct(u"report.txt"_s), u"2 report.txt"_s);
  }
};

VANTRY_TEST(tst_TaskFiles);
#include "tst_TaskFiles.moc"
