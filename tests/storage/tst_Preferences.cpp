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
  std::unique_ptr<TemporaryHome> m_home;
  const QString PrefFile = u"config/vantry-uploader/VTUploaderAdmin.pref"_s;
  [[nodiscard]] QDir folder() const { return QDir(m_home->path(u"config/vantry-uploader"_s)); }

 private slots:
  void init() {
    m_home = std::make_unique<TemporaryHome>();
    DictionaryFile::setSolutionKey(u"FifteenLetters!"_s);
  }
  void cleanup() {
    m_home.reset();
    prefs.reset();
    setProxy({});
    DictionaryFile::setSolutionKey({});
    for (const Problem& problem : Problems::present()) Problems::clearKind(problem.kind);
  }

  void aFirstStartIsEmptyAndItsLoginHoldsFromTheNext() {
    const mode_t mask = umask(0);
    QCOMPARE(loadAccountPreferences(), QString());
    umask(mask);
    loadProxySettings();
    QCOMPARE(SoapUserName() + SoapPassword() + proxy().address, QString());
    QVERIFY(proxy().port == 0 && Problems::present().isEmpty() && folder().isEmpty());
    struct stat info;
    QCOMPARE(stat(SpecialFolder::Preferences().bytes().constData(), &info), 0);
    QCOMPARE(info.st_mode & 0777, 0700u);
    prefs->setStringValue(u"SoapLogin"_s, u" printer "_s);
    prefs->setStringValue(u"SoapPassword"_s, u"hush"_s);
    QVERIFY(prefs->save());
    QCOMPARE(SoapUserName(), QString());
    QCOMPARE(loadAccountPreferences(), QString());
    QCOMPARE(SoapUserName() + SoapPassword(), u" printer hush"_s);
  }

  void theProxyComesFromTheFileAndItsPortIsPossible() {
    QCOMPARE(loadAccountPreferences(), QString());
    prefs->setStringValue(u"ProxyAddress"_s, u" proxy.example"_s);
    const auto portFor = [](qint64 stored) {
      prefs->setIntegerValue(u"ProxyPort"_s, stored);
      loadProxySettings();
      return proxy().port;
    };
    QCOMPARE(portFor(65535), 65535);
    QCOMPARE(portFor(65536) + portFor(-1) + portFor((qint64{1} << 32) + 80), 0);
    QCOMPARE(proxy().address, u" proxy.example"_s);
  }

  void aDamagedFileIsSetAside_data() {
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("an empty file, as a crash may leave it") << QByteArray();
    QTest::newRow("another program's text") << "[settings]\nlogin=x\n"_ba;
    QTest::newRow("a folder") << "a folder"_ba;
  }
  void aDamagedFileIsSetAside() {
    QFETCH(QByteArray, content);
    if (content == "a folder")
      m_home->makeFolder(PrefFile + u"/inside"_s);
    else
      m_home->writeFile(PrefFile, content);
    const QString name = loadAccountPreferences();
    static const QRegularExpression form(
        u"^VTUploaderAdmin damaged 2\\d{3}-\\d\\d-\\d\\d \\d\\d(\\.\\d\\d){2}\\.pref$"_s);
    QVERIFY2(form.match(name).hasMatch(), qPrintable(name));
    QVERIFY(content == "a folder" ? folder().exists(name + u"/inside"_s)
                                  : TemporaryHome::readFile(folder().filePath(name)) == content);
    QCOMPARE(Problems::present().size(), 1);
    QVERIFY(Problems::present()[0].kind == Problem::Kind::PreferencesSetAside &&
            Problems::present()[0].subject == name);
    prefs->setStringValue(u"SoapLogin"_s, u"again"_s);
    QVERIFY(prefs->save());
    QCOMPARE(loadAccountPreferences(), QString());
    QCOMPARE(SoapUserName(), u"again"_s);
  }

  void filesDamagedInTheSameSecondAreAllKept() {
    QByteArrayList contents;
    for (const char* content : {"one", "three", "two"}) {
      m_home->writeFile(PrefFile, content);
      QVERIFY(!loadAccountPreferences().isEmpty());
    }
    for (const QString& name : folder().entryList(QDir::Files))
      contents << TemporaryHome::readFile(folder().filePath(name));
    std::sort(contents.begin(), contents.end());
    QCOMPARE(contents.join(' '), "one three two"_ba);
  }

  void aFileThatCantBeReadIsNeverWrittenOver_data() {
    QTest::addColumn<QByteArray>("target");
    QTest::newRow("a link to a share that is not connected") << "/nowhere/VTUploaderAdmin.pref"_ba;
    QTest::newRow("a link that leads to itself") << "VTUploaderAdmin.pref"_ba;
  }
  void aFileThatCantBeReadIsNeverWrittenOver() {
    QFETCH(QByteArray, target);
    m_home->makeFolder(u"config/vantry-uploader"_s);
    const QByteArray path = m_home->item(PrefFile).bytes();
    QCOMPARE(symlink(target.constData(), path.constData()), 0);
    QCOMPARE(loadAccountPreferences(), QString());
    QCOMPARE(Problems::present().size(), 1);
    const Problem problem = Problems::present()[0];
    QVERIFY2(problem.kind == Problem::Kind::PreferencesNotSaved && problem.detail.contains(u"VTUploaderAdmin.pref"),
             qPrintable(problem.detail));
    prefs->setStringValue(u"SoapLogin"_s, u"default"_s);
    QVERIFY(!prefs->save());
    char now[100] = {};
    QVERIFY(readlink(path.constData(), now, sizeof now - 1) > 0 && target == now);
  }
};

VANTRY_TEST(tst_Preferences);
#include "tst_Preferences.moc"
