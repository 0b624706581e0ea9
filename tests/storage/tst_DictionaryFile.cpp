#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <QTest>

#include "platform/FileCipher.h"
#include "storage/DictionaryFile.h"
#include "storage/DictionaryFormat.h"
#include "support/TemporaryHome.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;

static QByteArray enciphered(const QByteArray& plain, const QString& key = u"FifteenLetters!"_s) {
  FileCipher cipher;
  cipher.Init(key);
  return cipher.Encode(plain).toBase64();
}

static QByteArray sampleFile(const TemporaryHome& home) {
  DictionaryFile file;
  file.setStringValue(u"SoapPassword"_s, u"hush/\"quiet\" ünd\n"_s);
  file.setBooleanValue(u"Lock"_s, true);
  file.setIntegerValue(u"ProxyPort"_s, 8080);
  file.setDoubleValue(u"Press 1lastprocessed"_s, 1700000000);
  return file.save(home.item(u"sample"_s)) ? TemporaryHome::readFile(home.path(u"sample"_s)) : QByteArray();
}

static const QByteArray SampleJson =
    "{\"SoapPassword\":\"hush\\/\\\"quiet\\\" ünd\\n\",\"Lock\":true,\"ProxyPort\":8080,"
    "\"Press 1lastprocessed\":1700000000.0}";

/// What stands in a dictionary file and what comes out of it.
class tst_DictionaryFile : public QObject {
  Q_OBJECT
  const TemporaryHome m_home;
 private slots:
  void init() { DictionaryFile::setSolutionKey(u"FifteenLetters!"_s); }
  void cleanup() { DictionaryFile::setSolutionKey({}); }

  void everyTypeComesBackInItsOrder() {
    const FolderItem folder = m_home.item(u"In & out/ä"_s);
    DictionaryFile written, read;
    written.setStringValue(u"text"_s, u"a\u2028b\U0001F5A8"_s);
    written.setStringValue(u"gone"_s, u"x"_s);
    written.setBooleanValue(u"flag"_s, true);
    written.setIntegerValue(u"least"_s, std::numeric_limits<qint64>::min());
    written.setDoubleValue(u"date"_s, 1700000000.1234567);
    written.setDoubleValue(u"infinite"_s, std::numeric_limits<double>::infinity());
    written.setFileValue(u"folder"_s, folder);
    written.setFileValue(u"none"_s, std::nullopt);
    written.Remove(u"gone"_s);
    written.setStringValue(u"text"_s, u"b\u2028b\U0001F5A8"_s);
    QVERIFY(written.save(m_home.item(u"types.vnt"_s)) && read.open(m_home.item(u"types.vnt"_s)).ok());
    QCOMPARE(written.Keys().join(u' '), u"text flag least date infinite folder none"_s);
    QCOMPARE(read.Keys(), written.Keys());
    QCOMPARE(read.StringValue(u"text"_s), u"b\u2028b\U0001F5A8"_s);
    QVERIFY(read.BooleanValue(u"flag"_s));
    QCOMPARE(read.integerValue(u"least"_s), std::numeric_limits<qint64>::min());
    QCOMPARE(read.DoubleValue(u"date"_s), 1700000000.1234567);
    QCOMPARE(read.DoubleValue(u"infinite"_s), 0.0);
    QVERIFY(read.FileValue(u"folder"_s) == folder);
    QVERIFY(!read.FileValue(u"none"_s) && !read.FileValue(u"missing"_s) && !read.HasKey(u"Flag"_s));
  }

  void theFileIsBase64InLinesOverACipherOverJson() {
    const QByteArray content = sampleFile(m_home);
    const QList<QByteArray> lines = content.split('\n');
    for (qsizetype i = 0; i + 1 < lines.size(); ++i) QCOMPARE(lines[i].size(), 76);
    QVERIFY(lines.size() > 2 && !lines.last().isEmpty() && lines.last().size() <= 76);
    FileCipher cipher;
    cipher.Init(u"FifteenLetters!"_s);
    QCOMPARE(cipher.Decode(QByteArray::fromBase64(lines.join())).value_or("unreadable"), SampleJson);
    QVERIFY2(content != sampleFile(m_home), "the nonce is not fresh");
    DictionaryFile::setSolutionKey({});
    QCOMPARE(sampleFile(m_home), SampleJson);
    DictionaryFile plain;
    m_home.writeFile(u"plain"_s, "\r\n{ \"Name\" :\t\"other\" }\n");
    QVERIFY(plain.open(m_home.item(u"plain"_s)).ok());
    QCOMPARE(plain.StringValue(u"Name"_s), u"other"_s);
  }

  void anyLineEndIsTaken() {
    const QByteArray whole = sampleFile(m_home);
    for (const char* lineEnd : {"\r\n", "\r", "", " \t\n\n  "}) {
      Dictionary read;
      const IoResult result =
          DictionaryFormat::read(QByteArray(whole).replace("\n", lineEnd) + lineEnd, u"FifteenLetters!"_s, read);
      QVERIFY2(result.ok() && read.Value(u"ProxyPort"_s) == 8080, QByteArray(lineEnd).toHex().constData());
    }
  }

  void aValueOfAnotherTypeIsConverted_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("boolean");
    QTest::addColumn<qint64>("integer");
    QTest::addColumn<double>("real");
    const auto row = [](const char* json, const char* text, bool boolean, qint64 integer, double real) {
      QTest::newRow(json) << QString::fromUtf8(text) << boolean << integer << real;
    };
    row("true", "true", true, 1, 1);
    row("false", "false", false, 0, 0);
    row("8080", "8080", true, 8080, 8080);
    row("0", "0", false, 0, 0);
    row("-1.75", "-1.75", true, -1, -1.75);
    row("1e3", "1000.0", true, 1000, 1000);
    row("9223372036854775808", "9223372036854775808.0", true, std::numeric_limits<qint64>::max(),
        9.223372036854775808e18);
    row("-1e20", "-100000000000000000000.0", true, std::numeric_limits<qint64>::min(), -1e20);
    row(R"("")", "", false, 0, 0);
    row(R"(" 8080 ")", " 8080 ", true, 8080, 8080);
    row(R"("9007199254740993")", "9007199254740993", true, 9007199254740993, 9007199254740992.0);
    row(R"("2.5")", "2.5", true, 2, 2.5);
    row(R"("True")", "True", true, 0, 0);
    row(R"("80 or so")", "80 or so", false, 0, 0);
    row(R"("inf")", "inf", false, 0, 0);
    row("null", "", false, 0, 0);
    row("[1]", "", false, 0, 0);
  }
  void aValueOfAnotherTypeIsConverted() {
    m_home.writeFile(u"value"_s, enciphered(QByteArray("{\"k\":") + QTest::currentDataTag() + '}'));
    DictionaryFile file;
    QVERIFY(file.open(m_home.item(u"value"_s)).ok());
    QTEST(file.StringValue(u"k"_s), "text");
    QTEST(file.BooleanValue(u"k"_s), "boolean");
    QTEST(file.integerValue(u"k"_s), "integer");
    QTEST(file.DoubleValue(u"k"_s), "real");
    // What was not understood is still written as it was.
    QVERIFY(file.save() && file.open(m_home.item(u"value"_s)).ok() && file.HasKey(u"k"_s));
  }

  void whatIsNoDictionaryIsRefusedAndKept_data() {
    QTest::addColumn<QByteArray>("content");
    const auto row = [](const char* label, const QByteArray& content = {}) { QTest::newRow(label) << content; };
    row("an empty file");
    row("plain JSON under a key", R"({"SoapPassword":"hush"})");
    row("another key", enciphered(R"({"SoapPassword":"hush"})", u"another"_s));
    row("an array", enciphered(R"(["hush"])"));
    row("JSON that breaks off behind a secret", enciphered("{\"SoapPassword\":\"hush\","));
    row("nothing enciphered", enciphered(""));
    row("too short for a cipher", "AAAA");
    for (const char* special : {"a folder", "a link that leads to itself", "a link that leads nowhere", "a fifo",
                                "a file of gigabytes", "a path through a file"})
      row(special);
  }
  void whatIsNoDictionaryIsRefusedAndKept() {
    QFETCH(QByteArray, content);
    const QByteArray label = QTest::currentDataTag();
    const TemporaryHome home;
    FolderItem bad = home.item(u"bad"_s);
    const QByteArray path = bad.bytes();
    if (label == "a folder")
      home.makeFolder(u"bad"_s);
    else if (label == "a fifo")
      QCOMPARE(mkfifo(path.constData(), 0600), 0);
    else if (label == "a file of gigabytes")
      QVERIFY(QFile(home.writeFile(u"bad"_s, "A")).resize(5LL << 30));
    else if (label.endsWith("itself"))
      QCOMPARE(symlink(path.constData(), path.constData()), 0);
    else if (label.endsWith("nowhere"))
      QCOMPARE(symlink("gone", path.constData()), 0);
    else
      home.writeFile(u"bad"_s, content);
    if (label == "a path through a file") bad = bad.Child(u"task.vnt"_s);

    struct stat before, after;
    QCOMPARE(lstat(path.constData(), &before), 0);
    DictionaryFile file;
    file.setStringValue(u"old"_s, u"value"_s);
    const IoResult read = file.open(bad);
    QVERIFY2(!read.message().isEmpty() && !read.message().contains(u"hush"), qPrintable(read.message()));
    QCOMPARE(file.Keys(), QStringList());
    QVERIFY2(!file.save() && !file.save(bad) && !file.Export(bad), "a file that was not understood was written over");
    QVERIFY(!file.lastFailure().ok());
    QVERIFY(lstat(path.constData(), &after) == 0 && before.st_ino == after.st_ino && before.st_size == after.st_size);
  }

  void noCutAndNoFlippedBitGoesUnnoticed() {
    const QByteArray whole = sampleFile(m_home);
    const auto letters = [](const QByteArray& text) { return text.simplified().replace(" ", ""); };
    const auto judge = [&](const QByteArray& damaged) {
      Dictionary read;
      const bool ok = DictionaryFormat::read(damaged, u"FifteenLetters!"_s, read).ok();
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
};

VANTRY_TEST(tst_DictionaryFile);
#include "tst_DictionaryFile.moc"
