#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <atomic>
#include <thread>

#include "platform/FileCipher.h"
#include "storage/DictionaryFile.h"
#include "storage/DictionaryFormat.h"
#include "support/FailingFileOps.h"
#include "support/TemporaryHome.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;

static const QString Key = u"FifteenLetters!"_s;

static QByteArray enciphered(const QByteArray& plain, const QString& key = Key) {
  FileCipher cipher;
  cipher.Init(key);
  return cipher.Encode(plain).toBase64();
}

class tst_DictionaryFile : public QObject {
  Q_OBJECT
  const TemporaryHome m_home;

  [[nodiscard]] QByteArray sampleFile() const {
    DictionaryFile file;
    file.setStringValue(u"SoapPassword"_s, u"hush/\"quiet\" ünd\n"_s);
    file.setBooleanValue(u"Lock"_s, true);
    file.setIntegerValue(u"ProxyPort"_s, 8080);
    file.setDoubleValue(u"Press 1lastprocessed"_s, 1700000000);
    return file.save(m_home.item(u"sample"_s)) ? TemporaryHome::readFile(m_home.path(u"sample"_s)) : QByteArray();
  }
  static QString valueOnDisk(const FolderItem& at) {
    DictionaryFile file;
    return file.open(at).ok() ? file.StringValue(u"Name"_s) : u"unreadable"_s;
  }

 private slots:
  void init() { DictionaryFile::setSolutionKey(Key); }
  void cleanup() { DictionaryFile::setSolutionKey({}); }

  void everyTypeComesBackInItsOrder() {
    const FolderItem folder = m_home.item(u"In & out/ä"_s), at = m_home.item(u"types.vnt"_s);
    DictionaryFile written, read;
    written.setStringValue(u"text"_s, u"x"_s);
    written.setStringValue(u"gone"_s, u"x"_s);
    written.setBooleanValue(u"flag"_s, true);
    written.setIntegerValue(u"least"_s, std::numeric_limits<qint64>::min());
    written.setDoubleValue(u"date"_s, 1700000000.1234567);
    written.setFileValue(u"folder"_s, folder);
    written.setFileValue(u"none"_s, std::nullopt);
    written.Remove(u"gone"_s);
    written.setStringValue(u"text"_s, u"a\u2028b\U0001F5A8"_s);
    QVERIFY(written.save(at) && read.open(at).ok());
    QCOMPARE(read.Keys().join(u' '), u"text flag least date folder none"_s);
    QCOMPARE(read.StringValue(u"text"_s), u"a\u2028b\U0001F5A8"_s);
    QVERIFY(read.BooleanValue(u"flag"_s) && read.FileValue(u"folder"_s) == folder);
    QCOMPARE(read.integerValue(u"least"_s), std::numeric_limits<qint64>::min());
    QCOMPARE(read.DoubleValue(u"date"_s), 1700000000.1234567);
    QVERIFY(!read.FileValue(u"none"_s) && !read.FileValue(u"missing"_s) && !read.HasKey(u"Flag"_s));
  }

  void theFileIsBase64InLinesOverACipherOverJson() {
    const QByteArray json =
        "{\"SoapPassword\":\"hush\\/\\\"quiet\\\" ünd\\n\",\"Lock\":true,\"ProxyPort\":8080,"
        "\"Press 1lastprocessed\":1700000000.0}";
    const QByteArray content = sampleFile();
    for (qsizetype at = 76; at < content.size(); at += 77) QCOMPARE(content[at], '\n');
    QVERIFY(content.size() > 2 * 77 && content.count('\n') == content.size() / 77 && !content.endsWith('\n'));
    FileCipher cipher;
    cipher.Init(Key);
    QCOMPARE(cipher.Decode(QByteArray::fromBase64(content)).value_or("unreadable"), json);
    QVERIFY2(content != sampleFile(), "the nonce is not fresh");
    for (const char* lineEnd : {"\r\n", "\r", "", " \t\n\n  "}) {
      Dictionary read;
      const QByteArray other = QByteArray(content).replace("\n", lineEnd) + lineEnd;
      QVERIFY(DictionaryFormat::read(other, Key, read).ok() && read.Value(u"ProxyPort"_s) == 8080);
    }
    DictionaryFile::setSolutionKey({});
    QCOMPARE(sampleFile(), json);
  }

  void aValueOfAnotherTypeIsConverted() {
    const FolderItem at = m_home.item(u"values"_s);
    m_home.writeFile(u"values"_s, enciphered(R"({"a":true,"b":-1.75,"c":9223372036854775808,"d":-1e20,"e":" 8080 ",)"
                                             R"("f":"9007199254740993","g":"True","h":"80 or so","i":null,"j":[1]})"));
    DictionaryFile file;
    // What was not understood is still written as it was.
    QVERIFY(file.open(at).ok() && file.save() && file.open(at).ok());
    QString all;
    for (const QString& key : file.Keys())
      all += file.StringValue(key) +
             u" %1 %2 %3|"_s.arg(file.BooleanValue(key)).arg(file.integerValue(key)).arg(file.DoubleValue(key));
    QCOMPARE(all,
             u"true 1 1 1|-1.75 1 -1 -1.75|9223372036854775808.0 1 9223372036854775807 9.22337e+18|"
             "-100000000000000000000.0 1 -9223372036854775808 -1e+20| 8080  1 8080 8080|"
             "9007199254740993 1 9007199254740993 9.0072e+15|True 1 0 0|80 or so 0 0 0| 0 0 0| 0 0 0|"_s);
  }

  void whatIsNoDictionaryIsRefusedAndKept() {
    const TemporaryHome home;
    const auto nativePath = [&home](const QString& name) { return home.item(name).bytes(); };
    home.writeFile(u"an empty file"_s, {});
    home.writeFile(u"plain JSON under a key"_s, R"({"SoapPassword":"hush"})");
    home.writeFile(u"another key"_s, enciphered(R"({"SoapPassword":"hush"})", u"another"_s));
    home.writeFile(u"an array"_s, enciphered(R"(["hush"])"));
    home.writeFile(u"JSON that breaks off"_s, enciphered("{\"SoapPassword\":\"hush\","));
    home.writeFile(u"nothing enciphered"_s, enciphered(""));
    home.writeFile(u"gigabytes"_s, "A");
    home.makeFolder(u"a folder"_s);
    QCOMPARE(truncate(nativePath(u"gigabytes"_s), 5LL << 30), 0);
    QCOMPARE(mkfifo(nativePath(u"a fifo"_s), 0600), 0);
    QCOMPARE(symlink("a loop", nativePath(u"a loop"_s)), 0);
    QCOMPARE(symlink("gone", nativePath(u"a link to nowhere"_s)), 0);
    for (const QString& name : QDir(home.path()).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot)) {
      const FolderItem bad = home.item(name == u"run"_s ? u"an array/below.vnt"_s : name);
      struct stat before {
      }, after{};
      const int there = lstat(bad.bytes(), &before);
      DictionaryFile file;
      file.setStringValue(u"old"_s, u"value"_s);
      const QString words = file.open(bad).message();
      QVERIFY2(!words.isEmpty() && !words.contains(u"hush") && file.Keys().isEmpty(), qPrintable(name));
      QVERIFY2(!file.save() && !file.save(bad) && !file.Export(bad), qPrintable(name));
      QVERIFY(!file.lastFailure().ok() && lstat(bad.bytes(), &after) == there);
      QVERIFY2(before.st_ino == after.st_ino && before.st_size == after.st_size, "it was written over");
    }
  }

  void noCutAndNoFlippedBitGoesUnnoticed() {
    const QByteArray whole = sampleFile();
    const auto letters = [](const QByteArray& text) { return text.simplified().replace(" ", ""); };
    const auto judge = [&](const QByteArray& damaged) {
      Dictionary read;
      const bool ok = DictionaryFormat::read(damaged, Key, read).ok();
      // Another white space in place of a line end is no damage.
      return ok == (letters(damaged) == letters(whole)) && read.Count() == (ok ? 4 : 0);
    };
    for (qsizetype at = 0; at < whole.size(); ++at) {
      QVERIFY2(judge(whole.first(at)), qPrintable(u"cut at %1"_s.arg(at)));
      for (int bit = 0; bit < 8; ++bit) {
        QByteArray flipped = whole;
        flipped[at] = static_cast<char>(flipped[at] ^ (1 << bit));
        QVERIFY2(judge(flipped), qPrintable(u"bit %1 of byte %2"_s.arg(bit).arg(at)));
      }
    }
  }

  void anExportLeavesTheLocationASaveElsewhereMovesItAndAFullDiskTheOldFile() {
    const FolderItem first = m_home.item(u"first"_s), copy = m_home.item(u"copy"_s), second = m_home.item(u"second"_s);
    FailingFileOps ops;
    DictionaryFile file(ops);
    QVERIFY2(!file.save() && !file.lastFailure().message().isEmpty(), "saved without a location");
    QVERIFY(file.open(first).ok());
    file.setStringValue(u"Name"_s, u"one"_s);
    QVERIFY(file.Export(copy) && file.location() == first && !first.Exists());
    QVERIFY(file.save(second));
    file.setStringValue(u"Name"_s, u"two"_s);
    QVERIFY(file.save() && !first.Exists());
    ops.bytesUntilFull = 70;
    file.setStringValue(u"Name"_s, u"three"_s);
    QVERIFY(!file.save());
    QCOMPARE(file.lastFailure().error, ENOSPC);
    // One that could not be read again takes the place of none.
    ops.bytesUntilFull = -1;
    file.setStringValue(u"Name"_s, QString(DictionaryFormat::LargestFile * 3 / 4, u'x'));
    QVERIFY(!file.save());
    QCOMPARE(file.lastFailure().error, EFBIG);
    QCOMPARE(valueOnDisk(copy) + valueOnDisk(second), u"onetwo"_s);
  }

  void manyThreadsMaySaveAndReadAtOnce() {
    constexpr int Threads = 3, Rounds = 25;
    const FolderItem at = m_home.item(u"threads"_s);
    DictionaryFile shared, last;
    QVERIFY(shared.save(at));
    std::atomic<int> failed{0};
    std::vector<std::jthread> threads;
    for (int t = 0; t < Threads; ++t)
      threads.emplace_back([&, mine = u"counter %1"_s.arg(t)] {
        for (int round = 1; round <= Rounds; ++round) {
          shared.setIntegerValue(mine, round);
          DictionaryFile seen;
          failed += !shared.save() || !seen.open(at).ok() || seen.integerValue(mine) != round;
        }
      });
    threads.clear();
    QVERIFY(failed == 0 && last.open(at).ok());
    for (int t = 0; t < Threads; ++t) QCOMPARE(last.integerValue(u"counter %1"_s.arg(t)), Rounds);
  }
};

VANTRY_TEST(tst_DictionaryFile);
#include "tst_DictionaryFile.moc"
