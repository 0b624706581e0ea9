// Task files on the disk and the shared list.

#include <QDir>

#include "engine/UploaderTask.h"
#include "platform/Problems.h"
#include "platform/Unprivileged.h"
#include "storage/DictionaryFile.h"
#include "support/TemporaryHome.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;

class tst_TaskFiles : public QObject {
  Q_OBJECT
  std::optional<TemporaryHome> m_home;

  static QString taskFile(const QString& name) { return UploaderTask::TaskDirectory().Child(name).NativePath(); }
  static TaskPointer stored(const QString& name, const QString& fileName, const QString& share = {}) {
    auto task = std::make_shared<UploaderTask>();
    task->Name = name;
    task->AutoMountInputFolder = !share.isEmpty();
    task->inputfolderURL = share;
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
    return list;
  }

 private slots:
  void init() {
    m_home.emplace();
    DictionaryFile::setSolutionKey(u"KestrelMoonOVJT"_s);
  }
  void cleanup() {
    UploaderTask::unload();
    Problems::clearKind(Problem::Kind::TaskFolderUnreadable);
    DictionaryFile::setSolutionKey({});
  }

  void aTaskComesBackAsItWasSaved() {
    UploaderTask task, read;
    QString UploaderTask::*const texts[] = {
        &UploaderTask::Name,     &UploaderTask::Description, &UploaderTask::Warden, &UploaderTask::Track,
        &UploaderTask::FileName, &UploaderTask::Extension,   &UploaderTask::Prefix, &UploaderTask::outputFolderPath};
    int number = 0;
    for (const auto text : texts) task.*text = u"/\"%1\" \u00fc\n"_s.arg(++number);
    task.inputFolderPath = m_home->path(u"in/with blank"_s);
    task.setExclusionPattern(u"  draft "_s);
    task.ReplaceName = task.DeleteAfterSave = true;
    const FolderItem file = UploaderTask::TaskDirectory().Child(u"x.vnt"_s);
    DictionaryFile raw;
    QVERIFY(task.save(file) && raw.open(file).ok() && read.open(file).ok());
    QStringList keys = raw.Keys();
    keys.sort();
    QCOMPARE(keys.join(u' '),
             u"adddatetofilename autorecognition deleteaftersave description exclusion extension "
             "filename inputfolder name outputfolder prefix replacename track warden"_s);
    for (const auto text : texts) QCOMPARE(read.*text, task.*text);
    QVERIFY(read.ExclusionPattern() == u"  draft "_s && read.matchesExclusion(u"a draft"_s));
    QCOMPARE(read.inputFolder->NativePath(), task.inputFolderPath);
    QVERIFY(read.ReplaceName && read.DeleteAfterSave && !read.AddDateToFilename && !read.AutoRecognition);
    QVERIFY(!read.AutoMountInputFolder && !read.autoMountOutputFolder);
  }

  void onlyASideThatMountsHasMoreMembers() {
    for (const bool input : {true, false}) {
      const auto task = std::make_shared<UploaderTask>();
      task->AutoMountInputFolder = input;
      task->autoMountOutputFolder = !input;
      task->inputfolderURL = u"smb://in/a b"_s, task->outputFolderUrl = u"smb://out"_s;
      task->InputLogin = u"SHOP\\in"_s, task->outputLogin = u"out@shop"_s;
      task->inputPassword = u"ink"_s, task->outputPassword = u"paper"_s;
      QVERIFY(task->save(UploaderTask::TaskDirectory().Child(u"x.vnt"_s)));
      QVERIFY(!TemporaryHome::readFile(task->file->NativePath()).contains("ink"));
      QVERIFY(UploaderTask::duplicateTask(task));
      const TaskPointer copy = UploaderTask::allTasks().last();
      DictionaryFile raw;
      QVERIFY(raw.open(*copy->file).ok());
      QCOMPARE(raw.Keys().size(), 18);
      UploaderTask read;
      QVERIFY(read.open(*copy->file).ok());
      const QStringList in{read.inputfolderURL, read.InputLogin, read.inputPassword};
      const QStringList out{read.outputFolderUrl, read.outputLogin, read.outputPassword};
      QCOMPARE(read.AutoMountInputFolder, input);
      QCOMPARE(read.autoMountOutputFolder, !input);
      QCOMPARE(in.join(u' '), input ? u"smb://in/a b SHOP\\in ink"_s : u"  "_s);
      QCOMPARE(out.join(u' '), input ? u"  "_s : u"smb://out out@shop paper"_s);
    }
  }

  void loadingSkipsWhatItCannotReadAndKeepsTheRest() {
    stored(u"beta"_s, u"1.vnt"_s);
    stored(u"Alpha"_s, u"2.VNT"_s);
    stored(u"alpha"_s, u"3.vnt"_s);
    stored(u"removed"_s, u"4.del"_s);
    stored(u"other"_s, u"5.txt"_s);
    stored(u"dotted"_s, u".6.vnt"_s);
    stored(u"of another system"_s, u"._1.vnt"_s);
    m_home->makeFolder(u"data/vantry-uploader/Uploader Tasks/folder.vnt"_s);
    const QByteArray good = TemporaryHome::readFile(taskFile(u"1.vnt"_s));
    const QString inHome = u"data/vantry-uploader/Uploader Tasks/"_s;
    m_home->writeFile(inHome + u"cut.vnt"_s, good.left(good.size() / 2));
    m_home->writeFile(inHome + u"empty.vnt"_s, {});
    m_home->writeFile(inHome + u"plain.vnt"_s, R"({"name":"plain"})");
    DictionaryFile::setSolutionKey(u"another"_s);
    stored(u"foreign"_s, u"foreign.vnt"_s);
    DictionaryFile::setSolutionKey(u"KestrelMoonOVJT"_s);

    UploaderTask::Load();
    QCOMPARE(names(), (QStringList{u"Alpha"_s, u"alpha"_s, u"beta"_s, u"dotted"_s}));
    QCOMPARE(skipped(), (QStringList{u"cut.vnt"_s, u"empty.vnt"_s, u"foreign.vnt"_s, u"plain.vnt"_s}));
    QCOMPARE(files().size(), 11);
    UploaderTask::Load();
    QCOMPARE(names().size(), 4);
  }

  void aTaskFolderThatIsAFileIsSaid() {
    m_home->writeFile(u"data/vantry-uploader/Uploader Tasks"_s, "not a folder");
    UploaderTask::Load();
    QVERIFY(names().isEmpty());
    QCOMPARE(Problems::present().value(0).kind, Problem::Kind::TaskFolderUnreadable);
  }

  void aTaskFolderThatIsReadOnlyOrGoneSaysSoAndLosesNothing() {
    ::chmod(QFile::encodeName(m_home->makeFolder(u"data"_s)).constData(), 0777);
    const Unprivileged user(m_home->path());
    stored(u"Press"_s, u"p.vnt"_s);
    const QByteArray folder = UploaderTask::TaskDirectory().bytes(),
                     before = TemporaryHome::readFile(taskFile(u"p.vnt"_s));
    QCOMPARE(::chmod(folder, 0500), 0);
    UploaderTask::Load();
    const TaskPointer task = UploaderTask::allTasks().value(0);
    UploaderTask edited;
    IoResult saving, copying;
    QVERIFY(task && !edited.save(*task->file, &saving) && !UploaderTask::duplicateTask(task, &copying));
    for (const IoResult& failure : {saving, copying, UploaderTask::RemoveTask(task)})
      QVERIFY2(failure.error == EACCES && failure.message().contains(u"Permission denied"_s) &&
                   failure.message().contains(u".vnt"_s, Qt::CaseInsensitive),
               qPrintable(failure.message()));
    QCOMPARE(files(), QStringList{u"p.vnt"_s});
    QCOMPARE(TemporaryHome::readFile(taskFile(u"p.vnt"_s)), before);
    UploaderTask::Load();
    QCOMPARE(names(), QStringList{u"Press"_s});
    QVERIFY(::chmod(folder, 0700) == 0 && QDir(QFile::decodeName(folder)).removeRecursively());
    QVERIFY(!UploaderTask::duplicateTask(task, &copying) && !copying.ok());
    QCOMPARE(names(), QStringList{u"Press"_s});
  }

  void aCopyIsDisabledNamedAndStored() {
    stored(u"Press/1"_s, u"p.vnt"_s);
    UploaderTask::Load();
    QVERIFY(UploaderTask::duplicateTask(UploaderTask::allTasks().first()));
    QVERIFY(UploaderTask::duplicateTask(UploaderTask::getTaskWIthName(u" PRESS/1 copy "_s)));
    QCOMPARE(names(), (QStringList{u"Press/1"_s, u"Press/1 Copy"_s, u"Press/1 Copy Copy"_s}));
    QVERIFY(UploaderTask::allTasks().at(1)->disabled);
    UploaderTask::unload();
    UploaderTask::Load();
    QVERIFY(names().size() == 3 && !UploaderTask::allTasks().at(1)->disabled);
  }

  void removingTakesTwoSteps() {
    stored(u"a"_s, u"a.vnt"_s);
    stored(u"b"_s, u"b.VNT"_s);
    for (const QString& taken : {u"a.del"_s, u"1 a.del"_s}) stored(u"old"_s, taken);
    UploaderTask::Load();
    const TaskPointer a = UploaderTask::allTasks().first();
    UploaderTask::Load();  // as a start-up that took long would, over a window that still holds the old one
    QVERIFY(UploaderTask::RemoveTask(a).ok());
    QVERIFY(UploaderTask::RemoveTask(a).ok());
    QCOMPARE(names(), QStringList{u"b"_s});
    QCOMPARE(files(), (QStringList{u"1 a.del"_s, u"2 a.del"_s, u"a.del"_s, u"b.VNT"_s}));
    UploaderTask::cleanUpDeletedTasks();
    QCOMPARE(files(), QStringList{u"b.VNT"_s});
  }

  void aProblemGoesWithTheLastTaskThatItConcerns() {
    const QString share = u"smb://server/share"_s;
    stored(u"a"_s, u"a.vnt"_s, share);
    stored(u"b"_s, u"b.vnt"_s, share);
    stored(u"c"_s, u"c.vnt"_s);
    UploaderTask::Load();
    Problems::raise(Problem::Kind::ShareNotMounted, share, {});
    for (const QString& name : {u"a"_s, u"b"_s, u"c"_s}) Problems::raise(Problem::Kind::UploadFailed, name, {});
    const auto subjects = [] {
      QStringList list;
      for (const Problem& problem : Problems::present()) list << problem.subject;
      return list;
    };
    QVERIFY(UploaderTask::RemoveTask(UploaderTask::getTaskWIthName(u"a"_s)).ok());
    QCOMPARE(subjects(), (QStringList{share, u"b"_s, u"c"_s}));
    QVERIFY(QFile::remove(taskFile(u"b.vnt"_s)));
    UploaderTask::Load();
    QCOMPARE(subjects(), QStringList{u"c"_s});
    Problems::clear(Problem::Kind::UploadFailed, u"c"_s);
  }

  void anEditTakesThePlaceOfATaskThatWasLoadedAnew() {
    stored(u"a"_s, u"a.vnt"_s);
    UploaderTask::Load();
    const TaskPointer old = UploaderTask::allTasks().first();
    UploaderTask::Load();
    QVERIFY(UploaderTask::replaceTask(old, stored(u"edited"_s, u"e.vnt"_s)).ok());
    QCOMPARE(names(), QStringList{u"edited"_s});
    QCOMPARE(files(), (QStringList{u"a.del"_s, u"e.vnt"_s}));
  }
};

VANTRY_TEST(tst_TaskFiles);
#include "tst_TaskFiles.moc"
