#include <fcntl.h>
#include <sys/stat.h>

#include <QTest>
#include <atomic>
#include <thread>
#include <vector>

#include "storage/DictionaryFile.h"
#include "support/FailingFileOps.h"
#include "support/TemporaryHome.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;

static QString valueOnDisk(const FolderItem& at) {
  DictionaryFile file;
  const IoResult read = file.open(at);
  return read.ok() ? file.StringValue(u"Name"_s) : read.message();
}

static IoResult saveValue(const FolderItem& at, const QString& value, FileOps& ops = FileOps::real()) {
  DictionaryFile file(ops);
  file.setStringValue(u"Name"_s, value);
  return file.save(at) ? IoResult() : file.lastFailure();
}

/// Notices a save that begins before the last one has ended.
class WatchingOps : public FileOps {
 public:
  std::atomic<int> saving{0}, overlaps{0};
  int open(const char* path, int flags, mode_t mode) override {
    if ((flags & O_CREAT) && saving++ > 0) ++overlaps;
    return FileOps::open(path, flags, mode);
  }
  int rename(const char* from, const char* to) override {
    --saving;
    return FileOps::rename(from, to);
  }
};

/// What a save leaves on the disk, above all when it fails.
class tst_DictionaryFileSaving : public QObject {
  Q_OBJECT
  const TemporaryHome m_home;
 private slots:
  void init() { DictionaryFile::setSolutionKey(u"FifteenLetters!"_s); }
  void cleanup() { DictionaryFile::setSolutionKey({}); }

  void anExportLeavesTheLocationAndASaveElsewhereMovesIt() {
    const FolderItem first = m_home.item(u"first"_s), copy = m_home.item(u"copy"_s), second = m_home.item(u"second"_s);
    DictionaryFile file;
    QVERIFY2(!file.save() && !file.lastFailure().message().isEmpty(), "saved without a location");
    QVERIFY(file.open(first).ok());
    file.setStringValue(u"Name"_s, u"one"_s);
    QVERIFY(file.Export(copy) && file.location() == first && !first.Exists());
    QVERIFY(file.save(second));
    file.setStringValue(u"Name"_s, u"two"_s);
    QVERIFY(file.save());
    QCOMPARE(valueOnDisk(copy) + valueOnDisk(second), u"onetwo"_s);
    QVERIFY(!first.Exists());
  }

  void theFileIsPrivateWhateverTheMask() {
    const mode_t mask = umask(0);
    m_home.writeFile(u"private"_s, "was open to all");
    const IoResult saved = saveValue(m_home.item(u"private"_s), u"x"_s);
    umask(mask);
    struct stat info;
    QVERIFY(saved.ok() && stat(m_home.item(u"private"_s).bytes().constData(), &info) == 0);
    QCOMPARE(info.st_mode & 0777, 0600u);
  }

  void whicheverStepFailsAWholeFileStands() {
    const FolderItem at = m_home.item(u"steps"_s);
    bool replaced = false;
    for (int step = 0;; ++step) {
      QVERIFY(saveValue(at, u"old"_s).ok());
      FailingFileOps ops;
      ops.failAtCall = step;
      ops.errnoValue = EIO;
      const IoResult saved = saveValue(at, u"new"_s, ops);
      const QString stands = valueOnDisk(at);
      if (ops.calls <= step) {
        QVERIFY(saved.ok() && stands == u"new" && step >= 6);
        break;
      }
      // Once the file is renamed, a step that fails leaves the new one, whole, but not known to outlive a power cut.
      replaced = replaced || stands == u"new";
      QVERIFY2(stands == (replaced ? u"new" : u"old"), qPrintable(u"step %1: %2"_s.arg(step).arg(stands)));
      QVERIFY2(replaced || !saved.message().isEmpty(), qPrintable(u"step %1 failed without a word"_s.arg(step)));
    }
  }

  void aFullDiskLeavesTheOldFile_data() {
    QTest::addColumn<int>("length");
    QTest::addColumn<int>("space");
    QTest::newRow("a small file, no space at all") << 10 << 0;
    QTest::newRow("a small file, one byte") << 10 << 1;
    QTest::newRow("a large file, half of it") << 100000 << 70000;
  }
  void aFullDiskLeavesTheOldFile() {
    QFETCH(int, length);
    QFETCH(int, space);
    const FolderItem at = m_home.item(u"full"_s);
    QVERIFY(saveValue(at, u"old"_s).ok());
    FailingFileOps ops;
    ops.bytesUntilFull = space;
    QCOMPARE(saveValue(at, QString(length, u'x'), ops).error, ENOSPC);
    QCOMPARE(valueOnDisk(at), u"old"_s);
  }

  void manyThreadsMaySaveAndReadAtOnce() {
    constexpr int Threads = 3, Rounds = 25;
    const FolderItem at = m_home.item(u"threads"_s);
    WatchingOps ops;
    DictionaryFile shared(ops), last;
    QVERIFY(shared.save(at));
    std::atomic<int> failed{0}, running{Threads};
    std::vector<std::thread> threads;
    for (int t = 0; t < Threads; ++t) {
      threads.emplace_back([&, mine = u"counter %1"_s.arg(t)] {
        for (int round = 1; round <= Rounds; ++round) {
          shared.setIntegerValue(mine, round);
          if (!shared.save()) ++failed;
        }
        --running;
      });
    }
    threads.emplace_back([&] {
      while (running > 0) {
        DictionaryFile seen;
        if (!seen.open(at).ok() || shared.integerValue(u"counter 0"_s) < seen.integerValue(u"counter 0"_s)) ++failed;
        if (shared.Keys().size() > Threads || !shared.lastFailure().ok()) ++failed;
      }
    });
    for (auto& thread : threads) thread.join();
    QCOMPARE(failed + ops.overlaps, 0);
    QVERIFY(last.open(at).ok());
    for (int t = 0; t < Threads; ++t) QCOMPARE(last.integerValue(u"counter %1"_s.arg(t)), Rounds);
  }
};

VANTRY_TEST(tst_DictionaryFileSaving);
#include "tst_DictionaryFileSaving.moc"
