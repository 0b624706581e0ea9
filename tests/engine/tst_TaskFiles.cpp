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

  void onlyASideThatMountsHasMoreMembers() {
    for (const bool input : {true, false}) {
      const auto task = std::make_shared<UploaderTask>();
      task->AutoMountInputFolder = input;
      task->autoMountOutputFolder = !input;
      task->inputfolderURL = u"smb://in/a b"_s, task->outputFolderUrl = u"smb://out"_s;
      task->InputLogin = u"SHOP\\in"_s, task->outputLogin = u"out@shop"_s;
      task->inputPassword = u"magenta"_s, task->outputPassword = u"paper"_s;
      QVERIFY(task->save(UploaderTask::TaskDirectory().Child(u"x.vnt"_s)) && UploaderTask::duplicateTask(task));
      QVERIFY(!TemporaryHome::readFile(task->file->NativePath()).contains("magenta"));
      const TaskPointer copy = UploaderTask::allTasks().last();
      QVERIFY2(copy->disabled && copy->Name.endsWith(u" Copy"_s), "it would send every file once more");
      DictionaryFile raw;
      QVERIFY(raw.open(*copy->file).ok());
      QStringList keys = raw.Keys();
      keys.sort();
      if (input)
        QCOMPARE(
            keys.join(u' '),
            u"adddatetofilename automountinputfolder autorecognition deleteaftersave description exclusion extension "
            "filename inputfolder inputfolderurl inputlogin inputpassword name outputfolder prefix replacename track "
            "warden"_s);
      UploaderTask read;
      QVERIFY(read.open(*copy->file).ok() && read.AutoMountInputFolder == input && read.autoMountOutputFolder != input);
      const QStringList in{read.inputfolderURL, read.InputLogin, read.inputPassword},
          out{read.outputFolderUrl, read.outputLogin, read.outputPassword};
      QCOMPARE((in + out).join(u' ').trimmed(),
               input ? u"smb://in/a b SHOP\\in magenta"_s : u"smb://out out@shop paper"_s);
    }
  }

  void loadingSkipsWhatItCannotReadAndKeepsTheRest() {
    for (const auto& [name, file] : {std::pair(u"beta"_s, u"1.vnt"_s),
                                     {u"Alpha"_s, u"2.VNT"_s},
                                     {u"alpha"_s, u"3.vnt"_s},
                                     {u"removed"_s, u"4.del"_s},
                                     {u"other"_s, u"5.txt"_s},
                                     {u"dotted"_s, u".6.vnt"_s},
                                     {u"of another system"_s, u"._1.vnt"_s}})
      stored(name, file);
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
    m_home->writeFile(u"data/vantry-uploader/Uploader Tasks"_s, "a file in place of the folder");
    UploaderTask::Load();
    QVERIFY(names().isEmpty());
    QCOMPARE(Problems::present().value(0).kind, Problem::Kind::TaskFolderUnreadable);
  }

  void removingTakesTwoStepsAndAnEditThePlaceOfATaskThatWasLoadedAnew() {
    stored(u"a"_s, u"a.vnt"_s);
    stored(u"b"_s, u"b.VNT"_s);
    for (const QString& taken : {u"a.del"_s, u"1 a.del"_s}) stored(u"old"_s, taken);
    UploaderTask::Load();
    const TaskPointer a = UploaderTask::allTasks().first(), b = UploaderTask::allTasks().last();
    UploaderTask::Load();  // as a start-up that took long would, over a window that still holds the old one
    QVERIFY(UploaderTask::RemoveTask(a).ok());
    QVERIFY(UploaderTask::RemoveTask(a).ok());
    QCOMPARE(names(), QStringList{u"b"_s});
    QCOMPARE(files(), (QStringList{u"1 a.del"_s, u"2 a.del"_s, u"a.del"_s, u"b.VNT"_s}));
    QVERIFY(UploaderTask::replaceTask(b, stored(u"edited"_s, u"e.vnt"_s)).ok());
    QCOMPARE(names(), QStringList{u"edited"_s});
    UploaderTask::cleanUpDeletedTasks();
    QCOMPARE(files(), QStringList{u"e.vnt"_s});
    QVERIFY(QFile::remove(taskFile(u"e.vnt"_s)));
    QVERIFY(!UploaderTask::duplicateTask(UploaderTask::allTasks().first()));
    QVERIFY(files().isEmpty());
  }
};

VANTRY_TEST(tst_TaskFiles);
#include "tst_TaskFiles.moc"
