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

static QByteArray nameOfDeadProcess() {
  const pid_t child = ::fork();
  if (child == 0) ::_exit(0);
  ::waitpid(child, nullptr, 0);
  return makeHiddenName().replace('-' + QByteArray::number(::getpid()) + '-', '-' + QByteArray::number(child) + '-');
}

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
    const int folderFlush = counter.calls - 2;
    QVERIFY(folderFlush >= 6);
    for (int call = 0; call <= folderFlush; ++call) {
      m_home->writeFile(u"settings/tasks.vnt"_s, "old");
      FailingFileOps ops;
      ops.failAtCall = call;
      QCOMPARE(writeFileSafely(*m_target, content, ops).error, ENOSPC);
      verifyStored(call < folderFlush ? "old" : content);
    }
  }

  void aFullDiskLeavesTheOldFile_data() { sizes(); }
  void aFullDiskLeavesTheOldFile() {
    QFETCH(int, size);
    for (const int room : {0, 1, size - 1, size}) {
      FailingFileOps ops;
      ops.bytesUntilFull = room;
      QCOMPARE(writeFileSafely(*m_target, QByteArray(size, 'n'), ops).error, room < size ? ENOSPC : 0);
      verifyStored(room < size ? "old" : QByteArray(size, 'n'));
    }
  }

  void theFileIsPrivateAndALinkToItStays() {
    ::chmod(m_target->bytes().constData(), 0666);
    QVERIFY(QFile::link(m_target->NativePath(), m_home->path(u"link"_s)));
    QVERIFY(writeFileSafely(m_home->item(u"link"_s), "new").ok());
    verifyStored("new");
    QVERIFY(QFileInfo(m_home->path(u"link"_s)).isSymLink());
    struct stat info {};
    QCOMPARE(::stat(m_target->bytes().constData(), &info), 0);
    QCOMPARE(info.st_mode & 07777, 0600u);
  }

  void targetsThatNoFileCanReplace_data() {
    QTest::addColumn<QString>("target");
    QTest::addColumn<int>("error");
    QTest::newRow("a folder") << u"folder"_s << EISDIR;
    QTest::newRow("a fifo") << u"fifo"_s << EINVAL;
    QTest::newRow("a link to itself") << u"loop"_s << ELOOP;
    QTest::newRow("in a folder that isn't there") << u"gone/file"_s << ENOENT;
  }
  void targetsThatNoFileCanReplace() {
    QFETCH(QString, target);
    makeOddThings();
    QTEST(writeFileSafely(m_home->item(target), "new").error, "error");
  }

  void filesAreReadUpToTheLimit_data() {
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("limit");
    QTest::addColumn<int>("error");
    QTest::newRow("as large as the limit") << u"settings/tasks.vnt"_s << 3 << 0;
    QTest::newRow("larger by a byte") << u"settings/tasks.vnt"_s << 2 << EFBIG;
    QTest::newRow("larger than it tells") << u"/proc/self/status"_s << 2 << EFBIG;
    QTest::newRow("a fifo that nobody writes") << u"fifo"_s << 10 << EINVAL;
    QTest::newRow("a folder") << u"folder"_s << 10 << EISDIR;
  }
  void filesAreReadUpToTheLimit() {
    QFETCH(QString, path);
    QFETCH(int, limit);
    QFETCH(int, error);
    makeOddThings();
    QByteArray content = "before";
    const auto file = FolderItem::fromNativePath(path.startsWith(u'/') ? path : m_home->path(path));
    QCOMPARE(readWholeFile(*file, limit, content).error, error);
    QCOMPARE(content, error == 0 ? "old"_ba : ""_ba);
  }

  void leftoversOfDeadProcessesAreRemoved() {
    const QByteArray dead = nameOfDeadProcess();
    const QByteArray elsewhere = ".vantry-uploader-0123456789ab-1-77.part";
    const QList<QByteArray> kept = {makeHiddenName(), elsewhere, dead.mid(1)};
    for (const QByteArray& name : kept + QList{dead}) m_home->writeFile(u"out/"_s + QString::fromLatin1(name), "half");
    removeLeftovers(m_home->item(u"out"_s));
    for (const QByteArray& name : kept) QVERIFY2(m_home->item(u"out"_s).ChildBytes(name).Exists(), name.constData());
    QVERIFY(!m_home->item(u"out"_s).ChildBytes(dead).Exists());

    const qint64 hour = 3'600'000'000'000;
    QVERIFY2(!isLeftover(elsewhere, Date().nanoseconds() - 23 * hour), "another machine may still be writing it");
    QVERIFY(isLeftover(elsewhere, Date().nanoseconds() - 25 * hour));
    QVERIFY(!isLeftover(".vantry-uploader-notes", Date().nanoseconds() - 25 * hour));
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
  void verifyStored(const QByteArray& content) const {
    QCOMPARE(TemporaryHome::readFile(m_target->NativePath()), content);
    QCOMPARE(QDir(m_home->path(u"settings"_s)).entryList(QDir::Files | QDir::Hidden), QStringList{u"tasks.vnt"_s});
  }

  std::optional<TemporaryHome> m_home;
  std::optional<FolderItem> m_target;
};

VANTRY_TEST(tst_SafeFile);
#include "tst_SafeFile.moc"
