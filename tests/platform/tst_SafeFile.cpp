#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QTest>

#include "platform/HiddenName.h"
#include "platform/SafeFile.h"
#include "support/FailingFileOps.h"
#include "support/TemporaryHome.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// A share that knows no flushing of folders.
class NoFolderFlush : public FileOps {
 public:
  int sync(int fd) override {
    struct stat info {};
    if (::fstat(fd, &info) == 0 && S_ISREG(info.st_mode)) return FileOps::sync(fd);
    errno = EINVAL;
    return -1;
  }
};

// Every write is interrupted or does a single byte.
class HesitantWrites : public FileOps {
 public:
  ssize_t write(int fd, const void* buffer, size_t) override {
    if (m_calls++ % 2 == 1) return FileOps::write(fd, buffer, 1);
    errno = EINTR;
    return -1;
  }

 private:
  int m_calls = 0;
};

QByteArray nameOfDeadProcess() {
  const pid_t child = ::fork();
  if (child == 0) ::_exit(0);
  ::waitpid(child, nullptr, 0);
  return makeHiddenName().replace('-' + QByteArray::number(::getpid()) + '-', '-' + QByteArray::number(child) + '-');
}

}  // namespace

class tst_SafeFile : public QObject {
  Q_OBJECT
 private slots:
  void init() {
    m_home.emplace();
    m_home->writeFile(u"settings/tasks.vnt"_s, "old");
    m_target = m_home->item(u"settings/tasks.vnt"_s);
  }

  void eachFailingCallLeavesTheOldFile_data() { sizes(); }
  void eachFailingCallLeavesTheOldFile() {
    QFETCH(int, size);
    const QByteArray content(size, 'n');
    FailingFileOps counter;
    QVERIFY(writeFileSafely(*m_target, content, counter).ok());
    QVERIFY(counter.calls >= 8);
    const int folderFlush = counter.calls - 2;
    for (int call = 0; call < folderFlush; ++call) {
      m_home->writeFile(u"settings/tasks.vnt"_s, "old");
      FailingFileOps ops;
      ops.failAtCall = call;
      QCOMPARE(writeFileSafely(*m_target, content, ops).error, ENOSPC);
      QCOMPARE(stored(), QByteArray("old"));
      QCOMPARE(names(), QStringList{u"tasks.vnt"_s});
    }
    FailingFileOps ops;
    ops.failAtCall = folderFlush;
    QCOMPARE(writeFileSafely(*m_target, content, ops).error, ENOSPC);
    QCOMPARE(stored(), content);
  }

  void aFullDiskLeavesTheOldFile_data() { sizes(); }
  void aFullDiskLeavesTheOldFile() {
    QFETCH(int, size);
    for (const int room : {0, 1, size / 2, size - 1}) {
      FailingFileOps ops;
      ops.bytesUntilFull = room;
      QCOMPARE(writeFileSafely(*m_target, QByteArray(size, 'n'), ops).error, ENOSPC);
      QCOMPARE(stored(), QByteArray("old"));
      QCOMPARE(names(), QStringList{u"tasks.vnt"_s});
    }
    FailingFileOps ops;
    ops.bytesUntilFull = size;
    QVERIFY(writeFileSafely(*m_target, QByteArray(size, 'n'), ops).ok());
  }

  void interruptedAndShortWritesAreGoneOnWith() {
    HesitantWrites ops;
    QVERIFY(writeFileSafely(*m_target, "a whole line", ops).ok());
    QCOMPARE(stored(), QByteArray("a whole line"));
  }

  void aShareWithoutFolderFlushIsNoFailure() {
    NoFolderFlush ops;
    QVERIFY(writeFileSafely(*m_target, "new", ops).ok());
    QCOMPARE(stored(), QByteArray("new"));
  }

  void theFileIsPrivate() {
    ::chmod(m_target->bytes().constData(), 0666);
    QVERIFY(writeFileSafely(*m_target, "new").ok());
    struct stat info {};
    QCOMPARE(::stat(m_target->bytes().constData(), &info), 0);
    QCOMPARE(info.st_mode & 07777, 0600u);
  }

  void aLinkStaysAndItsTargetIsReplaced() {
    QVERIFY(QFile::link(m_target->NativePath(), m_home->path(u"link"_s)));
    QVERIFY(writeFileSafely(m_home->item(u"link"_s), "new").ok());
    QCOMPARE(stored(), QByteArray("new"));
    QVERIFY(QFileInfo(m_home->path(u"link"_s)).isSymLink());
  }

  void targetsThatNoFileCanReplace_data() {
    QTest::addColumn<QString>("target");
    QTest::addColumn<int>("error");
    QTest::newRow("a folder") << u"folder"_s << EISDIR;
    QTest::newRow("a fifo") << u"fifo"_s << EINVAL;
    QTest::newRow("a link to itself") << u"loop"_s << ELOOP;
    QTest::newRow("in a folder that isn't there") << u"gone/file"_s << ENOENT;
    QTest::newRow("in a file") << u"settings/tasks.vnt/file"_s << ENOTDIR;
    QTest::newRow("name of 256 bytes") << QString(256, u'n') << ENAMETOOLONG;
  }
  void targetsThatNoFileCanReplace() {
    QFETCH(QString, target);
    makeOddThings();
    QTEST(writeFileSafely(m_home->item(target), "new").error, "error");
    QCOMPARE(stored(), QByteArray("old"));
  }

  void filesAreReadUpToTheLimit_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("limit");
    QTest::addColumn<int>("error");
    QTest::newRow("as large as the limit") << u"settings/tasks.vnt"_s << 3 << 0;
    QTest::newRow("larger by a byte") << u"settings/tasks.vnt"_s << 2 << EFBIG;
    QTest::newRow("larger than it tells") << u"/proc/self/status"_s << 2 << EFBIG;
    QTest::newRow("a fifo that nobody writes") << u"fifo"_s << 10 << EINVAL;
    QTest::newRow("a folder") << u"folder"_s << 10 << EISDIR;
    QTest::newRow("a link to itself") << u"loop"_s << 10 << ELOOP;
    QTest::newRow("gone") << u"gone"_s << 10 << ENOENT;
  }
  void filesAreReadUpToTheLimit() {
    QFETCH(QString, name);
    QFETCH(int, limit);
    QFETCH(int, error);
    makeOddThings();
    const FolderItem file = name.startsWith(u'/') ? *FolderItem::fromNativePath(name) : m_home->item(name);
    QByteArray content = "before";
    QCOMPARE(readWholeFile(file, limit, content).error, error);
    QCOMPARE(content, error == 0 ? QByteArray("old") : QByteArray());
  }

  void leftoversOfDeadProcessesAreRemoved_data() {
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<bool>("stays");
    QTest::newRow("of a process that is gone") << nameOfDeadProcess() << false;
    QTest::newRow("being written by us") << makeHiddenName() << true;
    QTest::newRow("of another machine, fresh") << ".vantry-uploader-0123456789ab-1-77.part"_ba << true;
    QTest::newRow("a user's hidden file") << ".vantry-uploader-notes"_ba << true;
    QTest::newRow("a user's file") << nameOfDeadProcess().mid(1) << true;
  }
  void leftoversOfDeadProcessesAreRemoved() {
    QFETCH(QByteArray, name);
    m_home->writeFile(u"settings/"_s + QString::fromLatin1(name), "half");
    removeLeftovers(m_target->Parent());
    QTEST(m_target->Parent().ChildBytes(name).Exists(), "stays");
    QCOMPARE(stored(), QByteArray("old"));
  }

  void leftoversOfOtherMachinesAreOldAfterADay() {
    const qint64 now = Date().nanoseconds();
    const qint64 hour = 3'600'000'000'000;
    QVERIFY(!isLeftover(".vantry-uploader-0123456789ab-1-77.part", now - 23 * hour));
    QVERIFY(isLeftover(".vantry-uploader-0123456789ab-1-77.part", now - 25 * hour));
    QVERIFY(!isLeftover(makeHiddenName(), now - 25 * hour));
  }

 private:
  static void sizes() {
    QTest::addColumn<int>("size");
    QTest::newRow("small") << 100;
    QTest::newRow("large") << 1'000'000;
  }
  void makeOddThings() {
    m_home->makeFolder(u"folder"_s);
    QCOMPARE(::mkfifo(m_home->item(u"fifo"_s).bytes().constData(), 0600), 0);
    QVERIFY(QFile::link(u"loop"_s, m_home->path(u"loop"_s)));
  }
  [[nodiscard]] QByteArray stored() const { return TemporaryHome::readFile(m_target->NativePath()); }
  [[nodiscard]] QStringList names() const {
    return QDir(m_home->path(u"settings"_s)).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
  }

  std::optional<TemporaryHome> m_home;
  std::optional<FolderItem> m_target;
};

VANTRY_TEST(tst_SafeFile);
#include "tst_SafeFile.moc"
