// The process is killed at its n-th call to the system, for every n, and started again: no store is damaged, no half
// file stands under a visible name, and what was due has been sent.

#include <QCoreApplication>
#include <QProcess>

#include "platform/SpecialFolder.h"
#include "storage/Preferences.h"
#include "support/EngineBench.h"
#include "support/Sql.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;

static const QMap<QString, QByteArray> Contents{
    {u"a.txt"_s, QByteArray(70'000, 'a')}, {u"b.txt"_s, "b"}, {u"c.txt"_s, "c"}};

class tst_Kill : public QObject {
  Q_OBJECT

  struct End {
    bool killed = false;
    int exitCode = 0;
    QByteArray output;
  };

  static End start(const EngineBench& bench, const QString& call, int n) {
    QProcess process;
    QStringList arguments{QCoreApplication::applicationDirPath() + u"/send_batch"_s, bench.service.caFile(),
                          bench.service.url()};
    if (n > 0)
      arguments =
          u"strace -f -qq -o /dev/null -e trace=%1 -e inject=%1:signal=SIGKILL:when=%2"_s.arg(call).arg(n).split(u' ') +
          arguments;
    auto environment = QProcessEnvironment::systemEnvironment();
    // A leak report can't be made under a tracer, and has no meaning for a process that is killed.
    environment.insert(u"ASAN_OPTIONS"_s, environment.value(u"ASAN_OPTIONS"_s) + u":detect_leaks=0"_s);
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    const QString program = arguments.takeFirst();
    process.start(program, arguments);
    if (!process.waitForFinished(300'000)) qFatal("%s", qPrintable(process.errorString()));
    // strace ends as its child did, by the same signal.
    return {process.exitStatus() == QProcess::CrashExit || process.exitCode() == 128 + 9, process.exitCode(),
            process.readAll()};
  }

  /// A home with two tasks and three due files; one of the tasks deletes what it has sent.
  static void prepare(EngineBench& bench) {
    for (const QString& name : {u"Deleting"_s, u"Keeping"_s}) {
      const TaskPointer task = bench.makeTask(name);
      task->DeleteAfterSave = name == u"Deleting"_s;
      task->inputFolderPath = bench.home.makeFolder(u"in-"_s + name);
      task->outputFolderPath = bench.home.makeFolder(u"out-"_s + name);
      QVERIFY(task->save(UploaderTask::TaskDirectory().Child(name + u".vnt"_s)));
    }
    QVERIFY(VantryUtil::prefs->save());
    for (const QString& name : Contents.keys())
      bench.drop(name, Contents[name], name == u"a.txt"_s ? u"in-Deleting"_s : u"in-Keeping"_s);
  }

 private slots:
  void atEveryCall_data() {
    QTest::addColumn<QString>("call");
    for (const char* call : {"write", "pwrite64", "sendto", "fsync", "fdatasync", "rename", "renameat2", "unlink",
                             "copy_file_range", "close", "openat", "mkdir", "utimensat"})
      QTest::newRow(call) << QString::fromLatin1(call);
  }
  void atEveryCall() {
    QFETCH(QString, call);
    // Opening and closing is mostly the loading of libraries; every few of those calls will do.
    const int step = call == u"openat"_s || call == u"close"_s ? 23 : 1;
    int kills = 0;
    for (int n = 1;; n += step) {
      EngineBench bench;
      prepare(bench);
      const End first = start(bench, call, n);
      if (!first.killed) {
        QVERIFY2(first.exitCode == 0, first.output.constData());
        break;
      }
      ++kills;
      const End second = start(bench, call, 0);
      const QByteArray at = call.toUtf8() + " " + QByteArray::number(n) + ": " + second.output;
      QVERIFY2(!second.killed && second.exitCode == 0, at.constData());
      Sql log(SpecialFolder::ApplicationData().Child(u"VantryUploader.db"_s).NativePath());
      QCOMPARE(log.text("pragma integrity_check; select count(*) > 0 from log"), u"ok 1"_s);
      for (const PracticeReceipt& receipt : bench.service.receipts()) QCOMPARE(receipt.content, Contents[receipt.name]);
      for (const QString& name : Contents.keys()) QVERIFY2(bench.received().contains(name), at.constData());
      for (const QString& folder : {u"out-Deleting"_s, u"out-Keeping"_s})
        for (const QString& file : bench.files(folder)) {
          const QByteArray copy = TemporaryHome::readFile(bench.home.path(folder + u'/' + file));
          QVERIFY2(Contents.values().contains(copy), (at + " half a copy: " + file.toUtf8()).constData());
        }
      QVERIFY2(!bench.files(u"in-Deleting"_s).contains(u"a.txt"_s), at.constData());
      QCOMPARE(bench.files(u"in-Keeping"_s), (QStringList{u"b.txt"_s, u"c.txt"_s}));
    }
    QVERIFY2(kills > 0, "this call is never made, so the row proves nothing");
  }
};

VANTRY_TEST(tst_Kill);
#include "tst_Kill.moc"
