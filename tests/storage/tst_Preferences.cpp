#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTest>
#include <memory>

#include "platform/Problems.h"
#include "platform/SpecialFolder.h"
#include "storage/Preferences.h"
#include "support/TemporaryHome.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;
using namespace VantryUtil;

class tst_Preferences : public QObject {
  Q_OBJECT
 private slots:
  void init();
  void cleanup();

  void aFirstStartIsEmptyAndMakesThePrivateFolder();
  void theLoginIsKeptAsItWasAtStart();
  void theProxyComesFromTheFile_data();
  void theProxyComesFromTheFile();
  void aDamagedFileIsSetAside_data();
  void aDamagedFileIsSetAside();
  void filesDamagedInTheSameSecondAreAllKept();
  void aFileThatCantBeReadIsNeverWrittenOver_data();
  void aFileThatCantBeReadIsNeverWrittenOver();

 private:
  [[nodiscard]] static QString fileInFolder(const QString& name) {
    return SpecialFolder::Preferences().Child(name).NativePath();
  }
  [[nodiscard]] static QString prefFile() { return fileInFolder(u"VTUploaderAdmin.pref"_s); }
  [[nodiscard]] static QStringList filesInFolder() {
    return QDir(SpecialFolder::Preferences().NativePath())
        .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
  }
  [[nodiscard]] static QString detailOf(Problem::Kind kind);
  std::unique_ptr<TemporaryHome> m_home;
};

void tst_Preferences::init() {
  m_home = std::make_unique<TemporaryHome>();
  DictionaryFile::setSolutionKey(u"FifteenLetters!"_s);
}

void tst_Preferences::cleanup() {
  m_home.reset();
  prefs.reset();
  setProxy({});
  DictionaryFile::setSolutionKey({});
  for (const Problem& problem : Problems::present()) Problems::clearKind(problem.kind);
}

QString tst_Preferences::detailOf(Problem::Kind kind) {
  for (const Problem& problem : Problems::present())
    if (problem.kind == kind) return problem.subject + u'|' + problem.detail;
  return {};
}

void tst_Preferences::aFirstStartIsEmptyAndMakesThePrivateFolder() {
  const mode_t mask = umask(0);
  const QString setAsideAs = loadAccountPreferences();
  umask(mask);
  loadProxySettings();
  QCOMPARE(setAsideAs, QString());
  QCOMPARE(SoapUserName() + SoapPassword() + proxy().address, QString());
  QCOMPARE(proxy().port, 0);
  QVERIFY(Problems::present().isEmpty() && filesInFolder().isEmpty());
  struct stat info;
  QCOMPARE(stat(SpecialFolder::Preferences().bytes().constData(), &info), 0);
  QCOMPARE(info.st_mode & 0777, 0700u);
  prefs->setStringValue(u"SoapLogin"_s, u"first"_s);
  QVERIFY(prefs->save());
  QCOMPARE(filesInFolder(), QStringList{u"VTUploaderAdmin.pref"_s});
}

void tst_Preferences::theLoginIsKeptAsItWasAtStart() {
  static_cast<void>(loadAccountPreferences());
  prefs->setStringValue(u"SoapLogin"_s, u" printer "_s);
  prefs->setStringValue(u"SoapPassword"_s, u"hush"_s);
  QVERIFY(prefs->save());
  QCOMPARE(SoapUserName(), QString());
  static_cast<void>(loadAccountPreferences());
  QCOMPARE(SoapUserName(), u" printer "_s);
  QCOMPARE(SoapPassword(), u"hush"_s);
}

void tst_Preferences::theProxyComesFromTheFile_data() {
  QTest::addColumn<qint64>("stored");
  QTest::addColumn<int>("port");
  QTest::newRow("a port") << qint64{3128} << 3128;
  QTest::newRow("the last one") << qint64{65535} << 65535;
  QTest::newRow("beyond the last: none") << qint64{65536} << 0;
  QTest::newRow("not cut to a port by chance") << (qint64{1} << 32) + 80 << 0;
  QTest::newRow("negative: none") << qint64{-1} << 0;
}

void tst_Preferences::theProxyComesFromTheFile() {
  QFETCH(qint64, stored);
  static_cast<void>(loadAccountPreferences());
  prefs->setStringValue(u"ProxyAddress"_s, u"proxy.example"_s);
  prefs->setIntegerValue(u"ProxyPort"_s, stored);
  loadProxySettings();
  QCOMPARE(proxy().address, u"proxy.example"_s);
  QTEST(proxy().port, "port");
}

void tst_Preferences::aDamagedFileIsSetAside_data() {
  QTest::addColumn<QByteArray>("content");
  QTest::addColumn<qint64>("size");
  QTest::newRow("an empty file, as a crash may leave it") << QByteArray() << qint64{0};
  QTest::newRow("another program's text") << "[settings]\nlogin=x\n"_ba << qint64{19};
  QTest::newRow("gigabytes") << "A"_ba << (qint64{3} << 30);
  QTest::newRow("a folder") << QByteArray() << qint64{-1};
}

void tst_Preferences::aDamagedFileIsSetAside() {
  QFETCH(QByteArray, content);
  QFETCH(qint64, size);
  if (size < 0)
    QDir().mkpath(prefFile());
  else {
    QDir().mkpath(SpecialFolder::Preferences().NativePath());
    QFile file(prefFile());
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.resize(size));
  }
  const QString name = loadAccountPreferences();
  static const QRegularExpression form(
      u"^VTUploaderAdmin damaged \\d{4}-\\d\\d-\\d\\d \\d\\d\\.\\d\\d\\.\\d\\d\\.pref$"_s);
  QVERIFY2(form.match(name).hasMatch(), qPrintable(name));
  const QFileInfo kept(fileInFolder(name));
  QVERIFY(size < 0 ? kept.isDir() : kept.size() == size);
  if (size == content.size()) QCOMPARE(TemporaryHome::readFile(kept.filePath()), content);
  QCOMPARE(detailOf(Problem::Kind::PreferencesSetAside), name + u'|');
  QCOMPARE(Problems::present().size(), 1);
  prefs->setStringValue(u"SoapLogin"_s, u"again"_s);
  QVERIFY(prefs->save());
  QCOMPARE(loadAccountPreferences(), QString());
  QCOMPARE(SoapUserName(), u"again"_s);
}

void tst_Preferences::filesDamagedInTheSameSecondAreAllKept() {
  for (const char* content : {"one", "two", "three"}) {
    QDir().mkpath(SpecialFolder::Preferences().NativePath());
    QFile file(prefFile());
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) > 0);
    file.close();
    QVERIFY(!loadAccountPreferences().isEmpty());
  }
  QByteArrayList contents;
  for (const QString& name : filesInFolder()) contents << TemporaryHome::readFile(fileInFolder(name));
  std::sort(contents.begin(), contents.end());
  QCOMPARE(contents, (QByteArrayList{"one", "three", "two"}));
}

void tst_Preferences::aFileThatCantBeReadIsNeverWrittenOver_data() {
  QTest::addColumn<QByteArray>("target");
  QTest::newRow("a link to a share that is not connected") << "/nowhere/VTUploaderAdmin.pref"_ba;
  QTest::newRow("a link that leads to itself") << "VTUploaderAdmin.pref"_ba;
}

void tst_Preferences::aFileThatCantBeReadIsNeverWrittenOver() {
  QFETCH(QByteArray, target);
  QDir().mkpath(SpecialFolder::Preferences().NativePath());
  QCOMPARE(symlink(target.constData(), QFile::encodeName(prefFile()).constData()), 0);
  QCOMPARE(loadAccountPreferences(), QString());
  QVERIFY2(detailOf(Problem::Kind::PreferencesNotSaved).contains(u"VTUploaderAdmin.pref"),
           qPrintable(detailOf(Problem::Kind::PreferencesNotSaved)));
  prefs->setStringValue(u"SoapLogin"_s, u"default"_s);
  QVERIFY(!prefs->save());
  char now[100] = {};
  QVERIFY(readlink(QFile::encodeName(prefFile()).constData(), now, sizeof now - 1) > 0);
  QCOMPARE(QByteArray(now), target);
}

VANTRY_TEST(tst_Preferences);
#include "tst_Preferences.moc"
