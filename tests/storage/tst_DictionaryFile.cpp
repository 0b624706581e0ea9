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

/// What stands in a dictionary file and what comes out of it.
class tst_DictionaryFile : public QObject {
  Q_OBJECT
 private slots:
  void init() { DictionaryFile::setSolutionKey(u"FifteenLetters!"_s); }
  void cleanup() { DictionaryFile::setSolutionKey({}); }

  void everyTypeComesBack();
  void theFileIsBase64InLinesOverACipherOverJson();
  void anEmptyKeyGivesPlainJson();
  void anyLineEndIsTaken_data();
  void anyLineEndIsTaken();
  void aValueOfAnotherTypeIsConverted_data();
  void aValueOfAnotherTypeIsConverted();
  void whatIsNoDictionaryIsRefusedAndKept_data();
  void whatIsNoDictionaryIsRefusedAndKept();
  void noCutAndNoFlippedBitGoesUnnoticed();

 private:
  TemporaryHome m_home;
};

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
  file.setDoubleValue(u"Press 1lastprocessed"_s, 1'700'000'000);
  return file.save(home.item(u"sample"_s)) ? TemporaryHome::readFile(home.path(u"sample"_s)) : QByteArray();
}

void tst_DictionaryFile::everyTypeComesBack() {
  const FolderItem at = m_home.item(u"types.vnt"_s);
  DictionaryFile written;
  written.setStringValue(u"text"_s, u"a\u2028b\U0001F5A8"_s);
  written.setBooleanValue(u"flag"_s, true);
  written.setIntegerValue(u"least"_s, std::numeric_limits<qint64>::min());
  written.setDoubleValue(u"date"_s, 1'700'000'000.1234567);
  written.setDoubleValue(u"infinite"_s, std::numeric_limits<double>::infinity());
  written.setFileValue(u"folder"_s, m_home.item(u"In & out/ä"_s));
  written.setFileValue(u"none"_s, std::nullopt);
  QVERIFY(written.save(at));
  DictionaryFile read;
  QVERIFY(read.open(at).ok());
  QCOMPARE(read.Keys(), written.Keys());
  QCOMPARE(read.StringValue(u"text"_s), u"a\u2028b\U0001F5A8"_s);
  QCOMPARE(read.BooleanValue(u"flag"_s), true);
  QCOMPARE(read.integerValue(u"least"_s), std::numeric_limits<qint64>::min());
  QCOMPARE(read.DoubleValue(u"date"_s), 1'700'000'000.1234567);
  QCOMPARE(read.DoubleValue(u"infinite"_s), 0.0);
  QVERIFY(read.FileValue(u"folder"_s) == m_home.item(u"In & out/ä"_s));
  QVERIFY(!read.FileValue(u"none"_s) && !read.FileValue(u"missing"_s));
}

void tst_DictionaryFile::theFileIsBase64InLinesOverACipherOverJson() {
  const QByteArray content = sampleFile(m_home);
  const QList<QByteArray> lines = content.split('\n');
  QVERIFY(lines.size() > 2);
  for (qsizetype i = 0; i < lines.size(); ++i)
    QVERIFY(i + 1 < lines.size() ? lines[i].size() == 76 : lines[i].size() > 0 && lines[i].size() <= 76);
  FileCipher cipher;
  cipher.Init(u"FifteenLetters!"_s);
  const auto json = cipher.Decode(QByteArray::fromBase64(lines.join()));
  QVERIFY(json);
  QCOMPARE(*json, QByteArray(R"({"SoapPassword":"hush\/\"quiet\" ünd\n","Lock":true,"ProxyPort":8080,)"
                             R"("Press 1lastprocessed":1700000000.0})"));
  QVERIFY2(content != sampleFile(m_home), "the nonce is not fresh");
}

void tst_DictionaryFile::anEmptyKeyGivesPlainJson() {
  DictionaryFile::setSolutionKey({});
  DictionaryFile file;
  file.setStringValue(u"Name"_s, u"/in"_s);
  QVERIFY(file.save(m_home.item(u"plain"_s)));
  QCOMPARE(TemporaryHome::readFile(m_home.path(u"plain"_s)), R"({"Name":"\/in"})"_ba);
  m_home.writeFile(u"plain"_s, "\r\n{ \"Name\" :\t\"other\" }\n");
  QVERIFY(file.open(m_home.item(u"plain"_s)).ok());
  QCOMPARE(file.StringValue(u"Name"_s), u"other"_s);
}

void tst_DictionaryFile::anyLineEndIsTaken_data() {
  QTest::addColumn<QByteArray>("lineEnd");
  QTest::addColumn<QByteArray>("last");
  QTest::newRow("LF, and one at the end") << "\n"_ba
                                          << "\n"_ba;
  QTest::newRow("CR LF") << "\r\n"_ba
                         << ""_ba;
  QTest::newRow("CR, and one at the end") << "\r"_ba
                                          << "\r"_ba;
  QTest::newRow("none") << ""_ba
                        << ""_ba;
  QTest::newRow("an editor's blanks and empty lines") << " \t\n\n  "_ba
                                                      << "\n \n"_ba;
}

void tst_DictionaryFile::anyLineEndIsTaken() {
  QFETCH(QByteArray, lineEnd);
  QFETCH(QByteArray, last);
  m_home.writeFile(u"lines"_s, sampleFile(m_home).replace("\n", lineEnd) + last);
  DictionaryFile file;
  const IoResult read = file.open(m_home.item(u"lines"_s));
  QVERIFY2(read.ok(), qPrintable(read.message()));
  QCOMPARE(file.integerValue(u"ProxyPort"_s), 8080);
}

void tst_DictionaryFile::aValueOfAnotherTypeIsConverted_data() {
  QTest::addColumn<QByteArray>("json");
  QTest::addColumn<QString>("text");
  QTest::addColumn<bool>("boolean");
  QTest::addColumn<qint64>("integer");
  QTest::addColumn<double>("real");
  const auto row = [](const char* json, const char* text, bool boolean, qint64 integer, double real) {
    QTest::newRow(json) << QByteArray(json) << QString::fromUtf8(text) << boolean << integer << real;
  };
  row("true", "true", true, 1, 1);
  row("false", "false", false, 0, 0);
  row("8080", "8080", true, 8080, 8080);
  row("0", "0", false, 0, 0);
  row("-1.75", "-1.75", true, -1, -1.75);
  row("1e3", "1000.0", true, 1000, 1000);
  row("9223372036854775808", "9223372036854775808.0", true, std::numeric_limits<qint64>::max(), 9223372036854775808.0);
  row("-1e300", nullptr, true, std::numeric_limits<qint64>::min(), -1e300);
  row(R"("")", "", false, 0, 0);
  row(R"(" 8080 ")", " 8080 ", true, 8080, 8080);
  row(R"("9007199254740993")", "9007199254740993", true, 9007199254740993, 9007199254740992.0);
  row(R"("2.5")", "2.5", true, 2, 2.5);
  row(R"("True")", "True", true, 0, 0);
  row(R"("false")", "false", false, 0, 0);
  row(R"("80 or so")", "80 or so", false, 0, 0);
  row(R"("inf")", "inf", false, 0, 0);
  row("null", "", false, 0, 0);
  row("[1]", "", false, 0, 0);
}

void tst_DictionaryFile::aValueOfAnotherTypeIsConverted() {
  QFETCH(QByteArray, json);
  m_home.writeFile(u"value"_s, enciphered("{\"k\":" + json + '}'));
  DictionaryFile file;
  QVERIFY(file.open(m_home.item(u"value"_s)).ok());
  QFETCH(QString, text);
  if (!text.isNull()) QCOMPARE(file.StringValue(u"k"_s), text);
  QTEST(file.BooleanValue(u"k"_s), "boolean");
  QTEST(file.integerValue(u"k"_s), "integer");
  QTEST(file.DoubleValue(u"k"_s), "real");
  // What was read and not understood is still written as it was.
  if (json != "[1]") return;
  QVERIFY(file.save());
  QVERIFY(file.open(m_home.item(u"value"_s)).ok());
  QVERIFY(file.HasKey(u"k"_s));
}

void tst_DictionaryFile::whatIsNoDictionaryIsRefusedAndKept_data() {
  QTest::addColumn<QByteArray>("content");
  QTest::addColumn<QString>("special");
  const auto row = [](const char* label, const QByteArray& content) { QTest::newRow(label) << content << QString(); };
  row("an empty file", "");
  row("nothing but a line end", "\n");
  row("plain JSON under a key", R"({"SoapPassword":"hush"})");
  row("another key", enciphered(R"({"SoapPassword":"hush"})", u"another"_s));
  row("an array", enciphered(R"(["hush"])"));
  row("a lone text", enciphered(R"("hush")"));
  row("JSON that breaks off behind a secret", enciphered(R"({"SoapPassword":"hush",)"));
  row("nothing enciphered", enciphered(""));
  row("too short for a cipher", "AAAA");
  for (const char* special : {"a folder", "a link that leads to itself", "a link that leads nowhere", "a fifo",
                              "a file of gigabytes", "a path through a file"})
    QTest::newRow(special) << QByteArray() << QString::fromUtf8(special);
}

void tst_DictionaryFile::whatIsNoDictionaryIsRefusedAndKept() {
  QFETCH(QByteArray, content);
  QFETCH(QString, special);
  const TemporaryHome home;
  const QByteArray path = QFile::encodeName(home.path(u"bad"_s));
  FolderItem bad = home.item(u"bad"_s);
  if (special.isEmpty() || special == u"a path through a file")
    home.writeFile(u"bad"_s, content);
  else if (special == u"a folder")
    home.makeFolder(u"bad"_s);
  else if (special == u"a fifo")
    QCOMPARE(mkfifo(path.constData(), 0600), 0);
  else if (special == u"a file of gigabytes")
    QVERIFY(QFile(home.writeFile(u"bad"_s, "A")).resize(5LL << 30));
  else
    QCOMPARE(symlink(special.endsWith(u"nowhere") ? "gone" : path.constData(), path.constData()), 0);
  if (special == u"a path through a file") bad = bad.Child(u"task.vnt"_s);

  struct stat before, after;
  QCOMPARE(lstat(path.constData(), &before), 0);
  DictionaryFile file;
  file.setStringValue(u"old"_s, u"value"_s);
  const IoResult read = file.open(bad);
  QVERIFY(!read.ok());
  QVERIFY2(!read.message().isEmpty() && !read.message().contains(u"hush"), qPrintable(read.message()));
  QCOMPARE(file.Keys(), QStringList());
  QVERIFY2(!file.save() && !file.save(bad) && !file.Export(bad), "a file that was not understood was written over");
  QVERIFY(!file.lastFailure().ok());
  QCOMPARE(lstat(path.constData(), &after), 0);
  QVERIFY(before.st_ino == after.st_ino && before.st_size == after.st_size);
}

void tst_DictionaryFile::noCutAndNoFlippedBitGoesUnnoticed() {
  const QByteArray whole = sampleFile(m_home);
  const auto letters = [](const QByteArray& text) { return text.simplified().replace(" ", ""); };
  const auto judge = [&](const QByteArray& damaged) {
    Dictionary read;
    const bool ok = DictionaryFormat::read(damaged, u"FifteenLetters!"_s, read).ok();
    // Another white space in place of a line end is no damage.
    return ok == (letters(damaged) == letters(whole)) && read.Count() == (ok ? 4 : 0);
  };
  QVERIFY(judge(whole));
  for (qsizetype length = 0; length < whole.size(); ++length)
    QVERIFY2(judge(whole.first(length)), qPrintable(u"cut at %1"_s.arg(length)));
  for (qsizetype at = 0; at < whole.size(); ++at) {
    for (int bit = 0; bit < 8; ++bit) {
      QByteArray flipped = whole;
      flipped[at] = static_cast<char>(flipped[at] ^ (1 << bit));
      QVERIFY2(judge(flipped), qPrintable(u"bit %1 of byte %2"_s.arg(bit).arg(at)));
    }
  }
}

VANTRY_TEST(tst_DictionaryFile);
#include "tst_DictionaryFile.moc"
