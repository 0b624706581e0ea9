#include <sys/stat.h>

#include <QFile>
#include <QTest>
#include <atomic>
#include <thread>
#include <vector>

#include "storage/DictionaryFile.h"
#include "support/FailingFileOps.h"
#include "support/TemporaryHome.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;

/// What a save leaves on the disk, above all when it fails.
class tst_DictionaryFileSaving : public QObject {
  Q_OBJECT
 private slots:
  void init() { DictionaryFile::setSolutionKey(u"FifteenLetters!"_s); }
  void cleanup() { DictionaryFile::setSolutionKey({}); }

  void withoutALocationNothingIsWritten();
  void anExportLeavesTheLocationAndASaveElsewhereMovesIt();
  void theFileIsPrivateWhateverTheMask();
  void whicheverStepFailsAWholeFileStands();
  void aFullDiskLeavesTheOldFile_data();
  void aFullDiskLeavesTheOldFile();
  void manyThreadsMaySaveAndReadAtOnce();

 private:
  TemporaryHome m_home;
};

static QString valueOnDisk(const FolderItem& at) {
  DictionaryFile file;
  const IoResult read = file.open(at);
  return read.ok() ? file.StringValue(u"Name"_s) : read.message();
}

static bool saveValue(const FolderItem& at, const QString& value, FileOps& ops, IoResult* failure = nullptr) {
  DictionaryFile file(ops);
  file.setStringValue(u"Name"_s, value);
  const bool saved = file.save(at);
  if (failure) *failure = file.lastFailure();
  return saved;
}

void tst_DictionaryFileSaving::withoutALocationNothingIsWritten() {
  FailingFileOps ops;
  DictionaryFile file(ops);
  file.setStringValue(u"Name"_s, u"x"_s);
  QVERIFY(!file.save());
  QCOMPARE(ops.calls, 0);
  QVERIFY(!file.lastFailure().message().isEmpty());
}

void tst_DictionaryFileSaving::anExportLeavesTheLocationAndASaveElsewhereMovesIt() {
  const FolderItem first = m_home.item(u"first"_s), copy = m_home.item(u"copy"_s), second = m_home.item(u"second"_s);
  DictionaryFile file;
  QVERIFY(file.open(first).ok());
  file.setStringValue(u"Name"_s, u"one"_s);
  QVERIFY(file.Export(copy));
  QVERIFY(file.location() == first && !first.Exists());
  QCOMPARE(valueOnDisk(copy), u"one"_s);
  QVERIFY(file.save(second));
  file.setStringValue(u"Name"_s, u"two"_s);
  QVERIFY(file.save());
  QCOMPARE(valueOnDisk(second), u"two"_s);
  QVERIFY(!first.Exists());
}

void tst_DictionaryFileSaving::theFileIsPrivateWhateverTheMask() {
  const mode_t mask = umask(0);
  const FolderItem at = m_home.item(u"private"_s);
  m_home.writeFile(u"private"_s, "was open to all");
  QVERIFY(saveValue(at, u"x"_s, FileOps::real()));
  umask(mask);
  struct stat info;
  QCOMPARE(stat(at.bytes().constData(), &info), 0);
  QCOMPARE(info.st_mode & 0777, 0600u);
}

void tst_DictionaryFileSaving::whicheverStepFailsAWholeFileStands() {
  const FolderItem at = m_home.item(u"steps"_s);
  for (int step = 0;; ++step) {
    QVERIFY(saveValue(at, u"old"_s, FileOps::real()));
    FailingFileOps ops;
    ops.failAtCall = step;
    ops.errnoValue = EIO;
    IoResult failure;
    const bool saved = saveValue(at, u"new"_s, ops, &failure);
    if (ops.calls <= step) {
      QVERIFY(saved && step >= 5);
      break;
    }
    // A step that fails behind the rename leaves the new file, whole, but not yet known to be on the disk.
    const QString stands = valueOnDisk(at);
    QVERIFY2(saved ? stands == u"new" : (stands == u"old" || stands == u"new"), qPrintable(stands));
    QVERIFY2(saved || !failure.message().isEmpty(), qPrintable(u"step %1 failed without a word"_s.arg(step)));
  }
  QCOMPARE(valueOnDisk(at), u"new"_s);
}

void tst_DictionaryFileSaving::aFullDiskLeavesTheOldFile_data() {
  QTest::addColumn<int>("length");
  QTest::addColumn<int>("space");
  QTest::newRow("a small file, no space at all") << 10 << 0;
  QTest::newRow("a small file, one byte") << 10 << 1;
  QTest::newRow("a large file, no space at all") << 100'000 << 0;
  QTest::newRow("a large file, half of it") << 100'000 << 70'000;
}

void tst_DictionaryFileSaving::aFullDiskLeavesTheOldFile() {
  QFETCH(int, length);
  QFETCH(int, space);
  const FolderItem at = m_home.item(u"full"_s);
  QVERIFY(saveValue(at, u"old"_s, FileOps::real()));
  FailingFileOps ops;
  ops.bytesUntilFull = space;
  IoResult failure;
  QVERIFY(!saveValue(at, QString(length, u'x'), ops, &failure));
  QCOMPARE(failure.error, ENOSPC);
  QCOMPARE(valueOnDisk(at), u"old"_s);
}

void tst_DictionaryFileSaving::manyThreadsMaySaveAndReadAtOnce() {
  constexpr int Threads = 3, Rounds = 25;
  const FolderItem at = m_home.item(u"threads"_s);
  DictionaryFile shared;
  QVERIFY(shared.save(at));
  std::atomic<int> failed{0}, running{Threads};
  std::vector<std::thread> threads;
  for (int t = 0; t < Threads; ++t) {
    threads.emplace_back([&, t] {
      const QString mine = u"counter %1"_s.arg(t);
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
  QCOMPARE(failed.load(), 0);
  DictionaryFile last;
  QVERIFY(last.open(at).ok());
  for (int t = 0; t < Threads; ++t) QCOMPARE(last.integerValue(u"counter %1"_s.arg(t)), Rounds);
}

VANTRY_TEST(tst_DictionaryFileSaving);
#include "tst_DictionaryFileSaving.moc"
