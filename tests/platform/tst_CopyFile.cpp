#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

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

// How a share may carry out what a copy asks of it.
class OddShare : public FileOps {
 public:
  int copyError = 0;                ///< of copy_file_range; 0 for none
  bool copiesNothing = false;       ///< copy_file_range reports the end at once
  bool pretendsToCopy = false;      ///< copy_file_range reports bytes that never arrive
  int exclusiveError = 0;           ///< of renameat2; 0 for none
  int linkError = 0;                ///< of link; 0 for none
  bool flushesFolders = true;       ///< or reports an error
  std::function<void()> meanwhile;  ///< happens before the copy is flushed

  ssize_t copyRange(int from, int to, size_t size) override {
    if (pretendsToCopy) return static_cast<ssize_t>(size);
    if (copiesNothing) return 0;
    return copyError != 0 ? refuse(copyError) : FileOps::copyRange(from, to, size);
  }
  int sync(int fd) override {
    struct stat info {};
    if (::fstat(fd, &info) == 0 && S_ISDIR(info.st_mode) && !flushesFolders) return refuse(EIO);
    if (S_ISREG(info.st_mode) && meanwhile) meanwhile();
    return FileOps::sync(fd);
  }

 protected:
  int renameExclusive(const char* from, const char* to) override {
    return exclusiveError != 0 ? refuse(exclusiveError) : FileOps::renameExclusive(from, to);
  }
  int link(const char* from, const char* to) override {
    return linkError != 0 ? refuse(linkError) : FileOps::link(from, to);
  }

 private:
  static int refuse(int error) {
    errno = error;
    return -1;
  }
};

// Something happens to the source when the copy's first bytes are asked for.
class RacingOps : public FileOps {
 public:
  explicit RacingOps(std::function<void()> action) : m_action(std::move(action)) {}
  ssize_t copyRange(int from, int to, size_t size) override {
    if (m_action) std::exchange(m_action, nullptr)();
    return FileOps::copyRange(from, to, size);
  }

 private:
  std::function<void()> m_action;
};

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

  void aCopyKeepsContentAndDateAndHasACommonMode() {
    const mode_t before = ::umask(027);
    const IoResult result = copyFileSafely(*m_source, m_version, *m_target);
    ::umask(before);
    QVERIFY2(result.ok(), qPrintable(result.message()));
    verifyWhole();
    struct stat info {};
    QCOMPARE(::stat(m_target->bytes().constData(), &info), 0);
    QCOMPARE(info.st_mode & 07777, 0640u);
    QCOMPARE(TemporaryHome::readFile(m_source->NativePath()), kContent);
  }

  void eachFailingCallLeavesNoTrace() {
    FailingFileOps counter;
    QVERIFY(copyFileSafely(*m_source, m_version, *m_target, counter).ok());
    QVERIFY(counter.calls >= 10);
    const int lastTwoCloses = counter.calls - 2;
    for (int call = 0; call < counter.calls; ++call) {
      QVERIFY(QFile::remove(m_target->NativePath()) || call > 0);
      FailingFileOps ops;
      ops.failAtCall = call;
      const IoResult result = copyFileSafely(*m_source, m_version, *m_target, ops);
      if (call >= lastTwoCloses) {
        QVERIFY2(result.ok(), "closing what was only read loses nothing");
        verifyWhole();
        QVERIFY(QFile::remove(m_target->NativePath()));
      } else {
        QVERIFY2(result.error == ENOSPC, qPrintable(u"call %1"_s.arg(call)));
        QCOMPARE(namesInOutput(), QStringList());
      }
    }
  }

  void aFullDiskLeavesNoTrace_data() {
    QTest::addColumn<int>("room");
    QTest::newRow("full already") << 0;
    QTest::newRow("after a byte") << 1;
    QTest::newRow("a byte short") << static_cast<int>(kContent.size()) - 1;
  }
  void aFullDiskLeavesNoTrace() {
    QFETCH(int, room);
    FailingFileOps ops;
    ops.bytesUntilFull = room;
    QCOMPARE(copyFileSafely(*m_source, m_version, *m_target, ops).error, ENOSPC);
    QCOMPARE(namesInOutput(), QStringList());
  }

  void oddSharesAreCopiedTo_data() {
    QTest::addColumn<std::function<void(OddShare&)>>("make");
    using Make = std::function<void(OddShare&)>;
    QTest::newRow("across file systems") << Make([](OddShare& s) { s.copyError = EXDEV; });
    QTest::newRow("no copy in the kernel") << Make([](OddShare& s) { s.copyError = EOPNOTSUPP; });
    QTest::newRow("the kernel copies nothing") << Make([](OddShare& s) { s.copiesNothing = true; });
    QTest::newRow("the kernel reports bytes that never arrive") << Make([](OddShare& s) { s.pretendsToCopy = true; });
    QTest::newRow("no exclusive rename") << Make([](OddShare& s) { s.exclusiveError = EINVAL; });
    QTest::newRow("no exclusive rename and no links") << Make([](OddShare& s) {
      s.exclusiveError = EINVAL;
      s.linkError = EPERM;
    });
  }
  void oddSharesAreCopiedTo() {
    QFETCH(std::function<void(OddShare&)>, make);
    OddShare ops;
    make(ops);
    const IoResult result = copyFileSafely(*m_source, m_version, *m_target, ops);
    QVERIFY2(result.ok(), qPrintable(result.message()));
    verifyWhole();
  }

  void aFileThatTookTheNameMeanwhileIsNotReplaced_data() { oddSharesAreCopiedTo_data(); }
  void aFileThatTookTheNameMeanwhileIsNotReplaced() {
    QFETCH(std::function<void(OddShare&)>, make);
    OddShare ops;
    make(ops);
    ops.meanwhile = [this] { m_home->writeFile(u"out/copy.txt"_s, "somebody else's"); };
    QCOMPARE(copyFileSafely(*m_source, m_version, *m_target, ops).error, EEXIST);
    QCOMPARE(namesInOutput(), QStringList{u"copy.txt"_s});
    QCOMPARE(TemporaryHome::readFile(m_target->NativePath()), QByteArray("somebody else's"));
  }

  void aTargetThatExistsIsNotReplaced() {
    m_home->writeFile(u"out/copy.txt"_s, "the user's");
    QCOMPARE(copyFileSafely(*m_source, m_version, *m_target).error, EEXIST);
    QCOMPARE(TemporaryHome::readFile(m_target->NativePath()), QByteArray("the user's"));
  }

  void aFolderThatCannotBeFlushedKeepsNoCopy() {
    OddShare ops;
    ops.flushesFolders = false;
    QCOMPARE(copyFileSafely(*m_source, m_version, *m_target, ops).error, EIO);
    QCOMPARE(namesInOutput(), QStringList());
  }

  void aSourceInAnotherVersionIsNotCopied_data() {
    QTest::addColumn<qint64>("sizeMoved");
    QTest::addColumn<qint64>("dateMoved");
    QTest::newRow("grown by a byte") << qint64{1} << qint64{0};
    QTest::newRow("dated a nanosecond later") << qint64{0} << qint64{1};
  }
  void aSourceInAnotherVersionIsNotCopied() {
    QFETCH(qint64, sizeMoved);
    QFETCH(qint64, dateMoved);
    const FileVersion seen{m_version.size - sizeMoved, m_version.mtimeNs - dateMoved};
    QCOMPARE(copyFileSafely(*m_source, seen, *m_target).error, ESTALE);
    QCOMPARE(namesInOutput(), QStringList());
  }

  void aSourceThatChangesDuringTheCopyIsNotKept_data() {
    QTest::addColumn<int>("newSize");
    QTest::newRow("grows") << static_cast<int>(kContent.size()) + 1;
    QTest::newRow("shrinks") << static_cast<int>(kContent.size()) / 2;
    QTest::newRow("is emptied") << 0;
    QTest::newRow("is rewritten in the same size") << static_cast<int>(kContent.size());
  }
  void aSourceThatChangesDuringTheCopyIsNotKept() {
    QFETCH(int, newSize);
    RacingOps ops([&] { m_home->writeFile(u"scan.txt"_s, QByteArray(newSize, 'x')); });
    QCOMPARE(copyFileSafely(*m_source, m_version, *m_target, ops).error, ESTALE);
    QCOMPARE(namesInOutput(), QStringList());
  }

  void sourcesThatAreNoFile_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("error");
    QTest::newRow("a fifo that nobody writes") << u"fifo"_s << EINVAL;
    QTest::newRow("a folder") << u"out"_s << EISDIR;
    QTest::newRow("a link to itself") << u"loop"_s << ELOOP;
    QTest::newRow("gone") << u"gone"_s << ENOENT;
  }
  void sourcesThatAreNoFile() {
    QFETCH(QString, name);
    QCOMPARE(::mkfifo(m_home->item(u"fifo"_s).bytes().constData(), 0600), 0);
    QVERIFY(QFile::link(u"loop"_s, m_home->path(u"loop"_s)));
    QTEST(copyFileSafely(m_home->item(name), m_version, *m_target).error, "error");
    QCOMPARE(namesInOutput(), QStringList());
  }

  void anOutputFolderThatIsGoneIsToldApart() {
    QCOMPARE(copyFileSafely(*m_source, m_version, m_home->item(u"gone/copy.txt"_s)).error, ENOENT);
  }

 private:
  void verifyWhole() const {
    QCOMPARE(namesInOutput(), QStringList{u"copy.txt"_s});
    QCOMPARE(versionOf(*m_target), std::optional(m_version));
    QCOMPARE(TemporaryHome::readFile(m_target->NativePath()), kContent);
  }
  [[nodiscard]] QStringList namesInOutput() const {
    return QDir(m_home->path(u"out"_s))
        .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
  }

  std::optional<TemporaryHome> m_home;
  std::optional<FolderItem> m_source, m_target;
  FileVersion m_version;
};

VANTRY_TEST(tst_CopyFile);
#include "tst_CopyFile.moc"
