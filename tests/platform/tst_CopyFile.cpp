#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QTest>
#include <functional>

#include "platform/SafeFile.h"
#include "support/FailingFileOps.h"
#include "support/TemporaryHome.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// How a share may carry out what a copy asks of it, and what may happen meanwhile.
struct OddShare : FileOps {
  int copyError = 0, exclusiveError = 0, linkError = 0, folderSyncError = 0;  ///< errno; 0 for none
  std::optional<bool> pretendsToCopy;  ///< copy_file_range does nothing and reports all, or nothing
  std::function<void()> whenCopying = [] {}, whenSyncing = [] {};

  ssize_t copyRange(int from, int to, size_t size) override {
    std::exchange(whenCopying, [] {})();
    if (pretendsToCopy) return *pretendsToCopy ? static_cast<ssize_t>(size) : 0;
    return refuses(copyError) ? -1 : FileOps::copyRange(from, to, size);
  }
  int sync(int fd) override {
    struct stat info {};
    if (::fstat(fd, &info) == 0 && S_ISREG(info.st_mode)) whenSyncing();
    return S_ISDIR(info.st_mode) && refuses(folderSyncError) ? -1 : FileOps::sync(fd);
  }

 protected:
  int renameExclusive(const char* from, const char* to) override {
    return refuses(exclusiveError) ? -1 : FileOps::renameExclusive(from, to);
  }
  int link(const char* from, const char* to) override { return refuses(linkError) ? -1 : FileOps::link(from, to); }

 private:
  static bool refuses(int error) { return (errno = error) != 0; }
};

using Make = std::function<void(OddShare&)>;
const QByteArray kContent = QByteArray("patch;C;M;Y;K\n").repeated(50'000);

}  // namespace

class tst_CopyFile : public QObject {
  Q_OBJECT
 private slots:
  void init() {
    m_home.emplace();
    m_home->makeFolder(u"out"_s);
    m_home->writeFile(u"scan.txt"_s, kContent);
    TemporaryHome::setDate(m_home->path(u"scan.txt"_s), 1'600'000'000.25);
    m_source = m_home->item(u"scan.txt"_s);
    m_target = m_home->item(u"out/copy.txt"_s);
    m_version = versionOf(*m_source).value();
  }

  void aCopyHasTheModeOfAnyNewFile() {
    const mode_t before = ::umask(027);
    const int error = copyFileSafely(*m_source, m_version, *m_target).error;
    ::umask(before);
    struct stat info {};
    QCOMPARE(::stat(m_target->bytes().constData(), &info), 0);
    QCOMPARE(info.st_mode & 07777, 0640u);
    verifyWhole(error);
  }

  void eachFailingCallLeavesNoTrace() {
    FailingFileOps counter;
    QVERIFY(copyFileSafely(*m_source, m_version, *m_target, counter).ok());
    const int lastTwoCloses = counter.calls - 2;
    QVERIFY(lastTwoCloses >= 8);
    for (int call = 0; call < counter.calls; ++call) {
      QFile::remove(m_target->NativePath());
      FailingFileOps ops;
      ops.failAtCall = call;
      const int error = copyFileSafely(*m_source, m_version, *m_target, ops).error;
      if (call >= lastTwoCloses)
        verifyWhole(error);  // closing what was only read loses nothing
      else
        verifyNothing(error, ENOSPC);
    }
  }

  void aFullDiskLeavesNoTrace() {
    for (const long room : {0L, 1L, static_cast<long>(kContent.size()) - 1}) {
      FailingFileOps ops;
      ops.bytesUntilFull = room;
      verifyNothing(copyFileSafely(*m_source, m_version, *m_target, ops).error, ENOSPC);
    }
  }

  void oddSharesAreCopiedTo_data() {
    QTest::addColumn<Make>("make");
    QTest::newRow("across file systems") << Make([](OddShare& s) { s.copyError = EXDEV; });
    QTest::newRow("the kernel copies nothing") << Make([](OddShare& s) { s.pretendsToCopy = false; });
    QTest::newRow("the kernel reports bytes that never arrive") << Make([](OddShare& s) { s.pretendsToCopy = true; });
    QTest::newRow("no exclusive rename") << Make([](OddShare& s) { s.exclusiveError = EINVAL; });
    QTest::newRow("no links either") << Make([](OddShare& s) { s.exclusiveError = EINVAL, s.linkError = EPERM; });
    QTest::newRow("no flushing of folders") << Make([](OddShare& s) { s.folderSyncError = EINVAL; });
  }
  void oddSharesAreCopiedTo() {
    QFETCH(Make, make);
    OddShare ops;
    make(ops);
    verifyWhole(copyFileSafely(*m_source, m_version, *m_target, ops).error);
  }

  void aFileThatTookTheNameMeanwhileIsNotReplaced_data() { oddSharesAreCopiedTo_data(); }
  void aFileThatTookTheNameMeanwhileIsNotReplaced() {
    QFETCH(Make, make);
    OddShare ops;
    make(ops);
    ops.whenSyncing = [this] { m_home->writeFile(u"out/copy.txt"_s, "somebody else's"); };
    QCOMPARE(copyFileSafely(*m_source, m_version, *m_target, ops).error, EEXIST);
    QCOMPARE(namesInOutput(), QStringList{u"copy.txt"_s});
    QCOMPARE(TemporaryHome::readFile(m_target->NativePath()), QByteArray("somebody else's"));
  }

  void aSourceInAnotherVersionIsNotCopied() {
    FileVersion seen = m_version;
    seen.size += 1;
    verifyNothing(copyFileSafely(*m_source, seen, *m_target).error, ESTALE);
    seen = m_version;
    seen.mtimeNs += 1;
    verifyNothing(copyFileSafely(*m_source, seen, *m_target).error, ESTALE);
  }

  void aSourceThatChangesDuringTheCopyIsNotKept_data() {
    QTest::addColumn<qsizetype>("newSize");
    QTest::newRow("grows") << kContent.size() + 1;
    QTest::newRow("shrinks") << kContent.size() / 2;
    QTest::newRow("is rewritten in the same size") << kContent.size();
  }
  void aSourceThatChangesDuringTheCopyIsNotKept() {
    QFETCH(qsizetype, newSize);
    OddShare ops;
    ops.whenCopying = [&] { m_home->writeFile(u"scan.txt"_s, QByteArray(newSize, 'x')); };
    verifyNothing(copyFileSafely(*m_source, m_version, *m_target, ops).error, ESTALE);
  }

  void sourcesThatAreNoFile_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("error");
    QTest::newRow("a fifo that nobody writes") << u"fifo"_s << EINVAL;
    QTest::newRow("a folder") << u"out"_s << EISDIR;
    QTest::newRow("a link to itself") << u"loop"_s << ELOOP;
  }
  void sourcesThatAreNoFile() {
    QFETCH(QString, name);
    QFETCH(int, error);
    QCOMPARE(::mkfifo(m_home->item(u"fifo"_s).bytes().constData(), 0600), 0);
    QVERIFY(QFile::link(u"loop"_s, m_home->path(u"loop"_s)));
    verifyNothing(copyFileSafely(m_home->item(name), m_version, *m_target).error, error);
  }

 private:
  void verifyWhole(int error) const {
    QCOMPARE(error, 0);
    QCOMPARE(namesInOutput(), QStringList{u"copy.txt"_s});
    QCOMPARE(versionOf(*m_target), std::optional(m_version));
    QCOMPARE(TemporaryHome::readFile(m_target->NativePath()), kContent);
  }
  void verifyNothing(int error, int expected) const {
    QCOMPARE(error, expected);
    QCOMPARE(namesInOutput(), QStringList());
  }
  [[nodiscard]] QStringList namesInOutput() const {
    return QDir(m_home->path(u"out"_s)).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
  }

  std::optional<TemporaryHome> m_home;
  std::optional<FolderItem> m_source, m_target;
  FileVersion m_version;
};

VANTRY_TEST(tst_CopyFile);
#include "tst_CopyFile.moc"
