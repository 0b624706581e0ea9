#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <QTest>

#include "service/FileSource.h"
#include "support/TemporaryHome.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;

using Change = std::function<void(const TemporaryHome& home, const QString& path)>;
Q_DECLARE_METATYPE(Change)

static constexpr double Dated = 1'700'000'000.25;

class tst_FileSource : public QObject {
  Q_OBJECT
 private:
  static QByteArray sample(qsizetype size) {
    QByteArray bytes(size, Qt::Uninitialized);
    for (qsizetype i = 0; i < size; ++i) bytes[i] = static_cast<char>(i * 7 + i / 251);
    return bytes;
  }
  static void append(const QString& path) {
    QFile file(path);
    QVERIFY(file.open(QIODevice::Append) && file.write("more") == 4);
  }

 private slots:
  void theWholeEnvelopeInItsAnnouncedLength_data() {
    QTest::addColumn<int>("size");
    for (const int size : {0, 1, 2, 3, 49'151, 49'152, 49'153, 200'000}) QTest::addRow("%d bytes", size) << size;
  }
  void theWholeEnvelopeInItsAnnouncedLength() {
    QFETCH(int, size);
    const TemporaryHome home;
    const QByteArray content = sample(size);
    home.writeFile(u"in/scan.txt"_s, content);
    const FolderItem file = home.item(u"in/scan.txt"_s);
    FileSourceState state;
    FileSource source(file, *versionOf(file), state);
    source.setEnvelope("<before>", "</behind>");
    qint64 reported = 0;
    source.setProgress([&](qint64 sent, qint64 total) {
      QVERIFY(sent <= total && sent > reported && sent - reported <= 48 << 10);
      reported = sent;
    });
    const qint64 announced = source.size();
    QByteArray all, piece;
    do {
      all += piece;
      piece.clear();
      QVERIFY(source.read(piece));
    } while (!piece.isEmpty());
    QCOMPARE(all, "<before>" + content.toBase64() + "</behind>");
    QCOMPARE(announced, all.size());
    QCOMPARE(reported, size);
    QVERIFY(!state.changed && state.failure.ok());
  }

  void aFileThatIsNotInItsVersionIsNotSentToItsEnd_data() {
    QTest::addColumn<Change>("before");  // opened
    QTest::addColumn<Change>("during");  // read
    const auto row = [](const char* label, const Change& before, const Change& during) {
      QTest::newRow(label) << before << during;
    };
    const Change replace = [](const TemporaryHome& home, const QString& path) {
      const QString other = home.writeFile(u"in/other"_s, sample(100'000));
      TemporaryHome::setDate(other, Dated);
      QCOMPARE(rename(qPrintable(other), qPrintable(path)), 0);
    };
    row("it grew before", [](const TemporaryHome&, const QString& path) { append(path); }, {});
    row("it is dated anew before",
        [](const TemporaryHome&, const QString& path) { TemporaryHome::setDate(path, Dated + 0.001); }, {});
    row("a fifo stands in its place",
        [](const TemporaryHome&, const QString& path) {
          QVERIFY(QFile::remove(path) && mkfifo(qPrintable(path), 0600) == 0);
        },
        {});
    row("it shrinks", {},
        [](const TemporaryHome&, const QString& path) { QCOMPARE(truncate(qPrintable(path), 60'000), 0); });
    row("it shrinks by a byte", {},
        [](const TemporaryHome&, const QString& path) { QCOMPARE(truncate(qPrintable(path), 99'999), 0); });
    row("it grows", {}, [](const TemporaryHome&, const QString& path) { append(path); });
    row("it grows and keeps its date", {}, [](const TemporaryHome&, const QString& path) {
      append(path);
      TemporaryHome::setDate(path, Dated);
    });
    row("it is written anew in its size", {}, [](const TemporaryHome&, const QString& path) {
      QFile file(path);
      QVERIFY(file.open(QIODevice::ReadWrite) && file.write("x") == 1);
    });
    row("another of its size and date takes its place", {}, replace);
    row("it is deleted", {}, [](const TemporaryHome&, const QString& path) { QVERIFY(QFile::remove(path)); });
  }
  void aFileThatIsNotInItsVersionIsNotSentToItsEnd() {
    QFETCH(Change, before);
    QFETCH(Change, during);
    const TemporaryHome home;
    const QString path = home.writeFile(u"in/scan.txt"_s, sample(100'000));
    TemporaryHome::setDate(path, Dated);
    const FolderItem file = home.item(u"in/scan.txt"_s);
    const FileVersion version = *versionOf(file);
    if (before) before(home, path);
    FileSourceState state;
    FileSource source(file, version, state);
    source.setEnvelope("<before>", "</behind>");
    QByteArray all;
    if (during) {
      QVERIFY(source.isOpen() && source.read(all));
      during(home, path);
    }
    bool good = true;
    for (qsizetype size = -1; good && size != all.size();) {
      size = all.size();
      good = source.read(all);
    }
    QVERIFY(!good);
    QVERIFY(state.changed);
    QVERIFY(!all.contains("</behind>"));
  }

  void aFileThatIsGoneIsNoChange() {
    const TemporaryHome home;
    FileSourceState state;
    const FileSource source(home.item(u"in/gone.txt"_s), {5, 0}, state);
    QVERIFY(!source.isOpen() && !state.changed);
    QCOMPARE(state.failure.error, ENOENT);
  }
};

VANTRY_TEST(tst_FileSource);
#include "tst_FileSource.moc"
