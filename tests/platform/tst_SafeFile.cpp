#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <array>

#include "platform/HiddenName.h"
#include "platform/SafeFile.h"
#include "support/FailingFileOps.h"
#include "support/TemporaryHome.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// How a share may carry out what a copy asks of it, and what may happen meanwhile.
struct OddShare : FileOps {
  int copyError = 0, exclusiveError = 0, linkError = 0, folderSyncError = 0;  ///< errno; 0 for none
  int folderSyncs = 0;
  std::optional<bool> pretendsToCopy;  ///< copy_file_range does nothing and reports all, or nothing
  std::function<void()> whenCopying = [] {}, whenSyncing = [] {};

  ssize_t copyRange(int from, int to, size_t size) override {
    std::exchange(whenCopying, [] {})();
    if (pretendsToCopy) return *pretendsToCopy ? static_cast<ssize_t>(size) : 0;
    return refuses(copyError) ? -1 : FileOps::copyRange(from, to, size);
  }
  int sync(int fd) override {
    struct stat info {};
    const bool folder = ::fstat(fd, &info) == 0 && S_ISDIR(info.st_mode);
    folder ? void(++folderSyncs) : whenSyncing();
    return folder && refuses(folderSyncError) ? -1 : FileOps::sync(fd);
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

/// Files that are written or copied so that a name never stands for half of one.
class tst_SafeFile : public QObject {
  Q_OBJECT
 private slots:
  void init() {
    m_home.emplace();
    m_home->makeFolder(u"out"_s);
    m_home->makeFolder(u"folder"_s);
    m_home->writeFile(u"settings/tasks.vnt"_s, "old");
    TemporaryHome::setDate(m_home->writeFile(u"scan.txt"_s, kContent), 1'600'000'000.25);
    m_written = m_home->item(u"settings/tasks.vnt"_s);
    m_source = m_home->item(u"scan.txt"_s);
    m_copy = m_home->item(u"out/copy.txt"_s);
    m_version = versionOf(*m_source).value();
    QCOMPARE(::mkfifo(m_home->item(u"fifo"_s).bytes().constData(), 0600), 0);
    QVERIFY(QFile::link(u"loop"_s, m_home->path(u"loop"_s)));
  }

  void whateverFailsLeavesTheOldFileAndNoPartOfANewOne() {
    for (const qsizetype size : {100, 1'000'000}) {
      const auto write = [&](FileOps& ops) {
        m_home->writeFile(u"settings/tasks.vnt"_s, "old");
        return writeFileSafely(*m_written, QByteArray(size, 'n'), ops).error;
      };
      const auto judge = [&](int error, bool last) {
        verifyWritten(error && !last ? "old"_ba : QByteArray(size, 'n'));
      };
      QCOMPARE(failAtEachCall(size, write, judge), 1);  // closing the folder, which was only read, loses nothing
    }
    const auto judge = [this](int error, bool) { error ? verifyNothing(error, ENOSPC) : verifyWhole(); };
    QCOMPARE(failAtEachCall(
                 kContent.size(), [this](FileOps& ops) { return copy(ops); }, judge),
             2);
  }

  void aWrittenFileIsPrivateACopyIsNotAndALinkStays() {
    ::chmod(m_written->bytes().constData(), 0666);
    QVERIFY(QFile::link(m_written->NativePath(), m_home->path(u"link"_s)));
    const mode_t before = ::umask(027);
    QVERIFY(writeFileSafely(m_home->item(u"link"_s), "new").ok() && copy() == 0);
    ::umask(before);
    verifyWritten("new");
    QVERIFY(QFileInfo(m_home->path(u"link"_s)).isSymLink());
    struct stat written {
    }, copied{};
    QVERIFY(::stat(m_written->bytes().constData(), &written) == 0 && (written.st_mode & 07777) == 0600);
    QVERIFY(::stat(m_copy->bytes().constData(), &copied) == 0 && (copied.st_mode & 07777) == 0640);
  }

  void whatIsNoFileOrTooLargeIsNeitherWrittenNorReadNorCopied() {
    const QString file = u"settings/tasks.vnt"_s, grows = u"../../proc/self/status"_s;  // larger than it tells
    for (const auto& [path, error] : {std::pair(u"folder"_s, EISDIR),
                                      {u"fifo"_s, EINVAL},
                                      {u"loop"_s, ELOOP},
                                      {u"gone/file"_s, ENOENT},
                                      {file, EFBIG},
                                      {grows, EFBIG}}) {
      QByteArray content = "before";
      m_source = m_home->item(path);
      QCOMPARE(readWholeFile(*m_source, 2, content).error, error);
      QVERIFY(content.isEmpty());
      verifyNothing(copy(), error == EFBIG ? ESTALE : error);
      if (error != EFBIG) QCOMPARE(writeFileSafely(*m_source, "new").error, error);
      QVERIFY(readWholeFile(*m_written, 3, content).ok() && content.size() == 3);
    }
  }

  void aSourceInAnotherVersionIsNotCopied() {
    const FileVersion seen = m_version;
    for (const FileVersion& other : {FileVersion{seen.size + 1, seen.mtimeNs}, {seen.size, seen.mtimeNs + 1}}) {
      m_version = other;
      verifyNothing(copy(), ESTALE);
    }
    for (const qsizetype newSize : {kContent.size() + 1, kContent.size() / 2, kContent.size()}) {
      init();
      OddShare ops;
      ops.whenCopying = [&] { m_home->writeFile(u"scan.txt"_s, QByteArray(newSize, 'x')); };
      verifyNothing(copy(ops), ESTALE);
    }
  }

  void oddSharesAreCopiedToAndNeverReplaceAFile() {
    for (const Make& make : {
             Make([](OddShare& s) { s.copyError = EXDEV; }),        // across file systems
             Make([](OddShare& s) { s.pretendsToCopy = false; }),   // the kernel copies nothing
             Make([](OddShare& s) { s.pretendsToCopy = true; }),    // it reports bytes that never arrive
             Make([](OddShare& s) { s.exclusiveError = EINVAL; }),  // no exclusive rename
             Make([](OddShare& s) { s.exclusiveError = EINVAL, s.linkError = EPERM; }),  // no links either
             Make([](OddShare& s) { s.folderSyncError = EINVAL; }),                      // no flushing of folders
         }) {
      OddShare ops;
      make(ops);
      QCOMPARE(copy(ops), 0);
      verifyWhole();
      ops.whenSyncing = [this] { m_home->writeFile(u"out/copy.txt"_s, "somebody else's"); };
      QCOMPARE(copy(ops), EEXIST);
      QCOMPARE(namesIn(u"out"_s), QStringList{u"copy.txt"_s});
      QCOMPARE(TemporaryHome::readFile(m_copy->NativePath()), "somebody else's"_ba);
    }
  }

  void ofCopiesThatGoTogetherEachFolderIsFlushedOnce() {
    OddShare ops;
    const FolderItem out = m_copy->Parent(), other = m_home->item(u"folder"_s);
    SafeCopy first(*m_source, m_version, out, ops), second(*m_source, m_version, out, ops);
    SafeCopy third(*m_source, m_version, other, ops);
    const std::array copies{&first, &second, &third};
    QVERIFY(first.place(*m_copy) && !second.place(*m_copy));
    QCOMPARE(second.state().error, EEXIST);
    QVERIFY(second.place(out.Child(u"1 copy.txt"_s)) && third.place(other.Child(u"copy.txt"_s)));
    ops.folderSyncError = EIO;
    ops.folderSyncs = 0;
    SafeCopy::flushFolders(copies);
    QCOMPARE(ops.folderSyncs, 2);
    for (const SafeCopy* const copy : copies) QCOMPARE(copy->state().error, EIO);
    QVERIFY(namesIn(u"out"_s).isEmpty() && namesIn(u"folder"_s).isEmpty());
  }

  void leftoversOfDeadProcessesAreRemoved() {
    const QByteArray own = '-' + QByteArray::number(::getpid()) + '-';
    const QByteArray dead = makeHiddenName().replace(own, "-4194305-");  // no process has so high a number
    const QByteArray elsewhere = ".vantry-uploader-0123456789ab-1-77.part";
    const QList<QByteArray> kept = {makeHiddenName(), elsewhere, dead.mid(1)};
    for (const QByteArray& name : kept + QList{dead}) m_home->writeFile(u"out/"_s + QString::fromLatin1(name), "half");
    removeLeftovers(m_home->item(u"out"_s));
    for (const QByteArray& name : kept) QVERIFY2(m_home->item(u"out"_s).ChildBytes(name).Exists(), name.constData());
    QVERIFY(!m_home->item(u"out"_s).ChildBytes(dead).Exists());
    const qint64 now = Date().nanoseconds(), hour = 3'600'000'000'000;
    QVERIFY2(!isLeftover(elsewhere, now - 23 * hour), "another machine may still be writing it");
    QVERIFY(isLeftover(elsewhere, now - 25 * hour) && !isLeftover(".vantry-uploader-notes", now - 25 * hour));
  }

 private:
  /// Lets each call fail, and a disk be full after so many bytes; gives the number of failed calls that did no harm.
  /// The judge is told the error, and whether it came with the last call but one, which flushes the folder.
  static int failAtEachCall(qsizetype size, const std::function<int(FileOps&)>& work,
                            const std::function<void(int error, bool last)>& judge) {
    FailingFileOps counter;
    judge(work(counter), false);
    int harmless = 0;
    for (int call = 0; call < counter.calls; ++call) {
      FailingFileOps ops;
      ops.failAtCall = call;
      const int error = work(ops);
      harmless += error == 0;
      judge(error, call == counter.calls - 2);
    }
    for (const qsizetype room : {qsizetype{0}, qsizetype{1}, size - 1}) {
      FailingFileOps full;
      full.bytesUntilFull = room;
      const int error = work(full);
      judge(error, false);
      if (error != ENOSPC) QTest::qFail("the full disk was not noticed", __FILE__, __LINE__);
    }
    return counter.calls < 8 ? -1 : harmless;
  }
  /// The error of a copy, made where none is yet.
  int copy(FileOps& ops = FileOps::real()) {
    QFile::remove(m_copy->NativePath());
    return copyFileSafely(*m_source, m_version, *m_copy, ops).error;
  }
  [[nodiscard]] QStringList namesIn(const QString& folder) const {
    return QDir(m_home->path(folder)).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
  }
  void verifyWhole() const {
    QCOMPARE(namesIn(u"out"_s), QStringList{u"copy.txt"_s});
    QCOMPARE(versionOf(*m_copy), std::optional(m_version));
    QCOMPARE(TemporaryHome::readFile(m_copy->NativePath()), kContent);
  }
  void verifyNothing(int error, int expected) const {
    QCOMPARE(error, expected);
    QCOMPARE(namesIn(u"out"_s), QStringList());
  }
  void verifyWritten(const QByteArray& content) const {
    QCOMPARE(TemporaryHome::readFile(m_written->NativePath()), content);
    QCOMPARE(namesIn(u"settings"_s), QStringList{u"tasks.vnt"_s});
  }

  std::optional<TemporaryHome> m_home;
  std::optional<FolderItem> m_source, m_copy, m_written;
  FileVersion m_version;
};

VANTRY_TEST(tst_SafeFile);
#include "tst_SafeFile.moc"
