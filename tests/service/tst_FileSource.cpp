#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "service/FileSource.h"
#include "support/TemporaryHome.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;

using Change = std::function<bool(const char* path)>;

static constexpr double Dated = 1'700'000'000.25;

class tst_FileSource : public QObject {
  Q_OBJECT
  const TemporaryHome m_home;

  FolderItem makeFile(qsizetype size, const QString& name = u"scan.txt"_s) const {
    QByteArray bytes(size, Qt::Uninitialized);
    for (qsizetype i = 0; i < size; ++i) bytes[i] = static_cast<char>(i * 7 + i / 251);
    TemporaryHome::setDate(m_home.writeFile(name, bytes), Dated);
    return m_home.item(name);
  }
  /// Writes over the file's bytes from an offset on.
  static bool write(const char* path, const QByteArray& bytes, off_t offset) {
    const int fd = ::open(path, O_WRONLY | O_CLOEXEC);
    const bool good = pwrite(fd, bytes.constData(), static_cast<size_t>(bytes.size()), offset) == bytes.size();
    return ::close(fd) == 0 && good;
  }
  static void readToTheEnd(FileSource& source, QByteArray& all) {
    for (qsizetype size = -1; size != all.size() && source.isOpen();) {
      size = all.size();
      if (!source.read(all)) return;
    }
  }

 private slots:
  void aFileThatIsNotInItsVersionIsNotSentToItsEnd() {
    const auto dateBack = [](const char* path) { return TemporaryHome::setDate(QString::fromUtf8(path), Dated), true; };
    const Change grows = [](const char* path) { return write(path, "more", 100'000); };
    const Change becomesFifo = [](const char* path) { return ::unlink(path) == 0 && mkfifo(path, 0600) == 0; };
    const Change during[] = {
        [](const char* path) { return truncate(path, 60'000) == 0; },
        [](const char* path) { return truncate(path, 99'999) == 0; },
        grows,
        [&](const char* path) { return grows(path) && dateBack(path); },
        [](const char* path) { return write(path, "x", 0); },  // in its size
        [&](const char* path) { return ::rename(makeFile(100'000, u"other"_s).bytes(), path) == 0; },
        [](const char* path) { return ::unlink(path) == 0; }};
    const Change before[] = {grows, [](const char* path) { return write(path, "x", 0); }, becomesFifo};
    const auto judge = [this](const Change& change, bool opened) {
      const FolderItem file = makeFile(100'000);
      const FileVersion version = *versionOf(file);
      if (!opened) QVERIFY(change(file.bytes()));
      FileSourceState state;
      FileSource source(file, version, state);
      source.setEnvelope("<before>", "</behind>");
      QByteArray all;
      if (opened) QVERIFY(source.isOpen() && source.read(all) && change(file.bytes()));
      readToTheEnd(source, all);
      QVERIFY(state.changed && !all.contains("</behind>"));
      ::unlink(file.bytes());
    };
    for (const Change& change : during) judge(change, true);
    for (const Change& change : before) judge(change, false);
    FileSourceState gone;
    QVERIFY(!FileSource(m_home.item(u"gone.txt"_s), {5, 0}, gone).isOpen() && !gone.changed);
    QCOMPARE(gone.failure.error, ENOENT);
  }
};

VANTRY_TEST(tst_FileSource);
#include "tst_FileSource.moc"
