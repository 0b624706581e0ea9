#include <sys/stat.h>
#include <unistd.h>

#include <QRegularExpression>

#include "platform/Problems.h"
#include "platform/SpecialFolder.h"
#include "storage/Preferences.h"
#include "support/TemporaryHome.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;
using namespace VantryUtil;

class tst_Preferences : public QObject {
  Q_OBJECT
  std::optional<TemporaryHome> m_home;
  const QString PrefFile = u"config/vantry-uploader/VTUploaderAdmin.pref"_s;

 private slots:
  void init() { m_home.emplace(); }
  void cleanup() {
    prefs.reset();
    setProxy({});
    for (const Problem& problem : Problems::present()) Problems::clearKind(problem.kind);
  }

  void aFirstStartIsEmptyAndItsLoginHoldsFromTheNext() {
    const mode_t mask = umask(0);
    QCOMPARE(loadAccountPreferences(), QString());
    umask(mask);
    loadProxySettings();
    QCOMPARE(SoapUserName() + SoapPassword() + proxy().address, QString());
    QVERIFY(proxy().port == 0 && Problems::present().isEmpty());
    struct stat info;
    QVERIFY(stat(SpecialFolder::Preferences().bytes().constData(), &info) == 0 && (info.st_mode & 0777) == 0700);
    prefs->setStringValue(u"SoapLogin"_s, u" printer "_s);
    prefs->setStringValue(u"SoapPassword"_s, u"hush"_s);
    QVERIFY(prefs->save());
    QVERIFY(SoapUserName().isEmpty() && loadAccountPreferences().isEmpty());
    QCOMPARE(SoapUserName() + SoapPassword(), u" printer hush"_s);
    prefs->setStringValue(u"ProxyAddress"_s, u" proxy.example"_s);
    for (const qint64 port : {qint64{65535}, qint64{65536}, qint64{-1}, (qint64{1} << 32) + 80}) {
      prefs->setIntegerValue(u"ProxyPort"_s, port);
      loadProxySettings();
      QCOMPARE(proxy().port, port == 65535 ? 65535 : 0);
    }
    QCOMPARE(proxy().address, u" proxy.example"_s);
  }

  void damagedFilesAreAllSetAside() {
    static const QRegularExpression form(
        u"^VTUploaderAdmin damaged 2\\d{3}-\\d\\d-\\d\\d \\d\\d(.\\d\\d){2}( \\d)?.pref$"_s);
    QStringList names;
    for (const QByteArray& content : {""_ba, "[settings]\nlogin=x\n"_ba, "two"_ba}) {  // in one second, most likely
      m_home->writeFile(PrefFile, content);
      names << loadAccountPreferences();
      QVERIFY2(form.match(names.last()).hasMatch(), qPrintable(names.last()));
      QVERIFY(Problems::present().last().kind == Problem::Kind::PreferencesSetAside);
      QCOMPARE(Problems::present().last().subject, names.last());
    }
    m_home->makeFolder(PrefFile + u"/inside"_s);
    QVERIFY(!loadAccountPreferences().isEmpty());
    QByteArray kept;
    for (const QString& name : names)
      kept += TemporaryHome::readFile(m_home->path(u"config/vantry-uploader/"_s + name));
    QCOMPARE(kept, "[settings]\nlogin=x\ntwo"_ba);
    prefs->setStringValue(u"SoapLogin"_s, u"again"_s);
    QVERIFY(prefs->save() && loadAccountPreferences().isEmpty());
    QCOMPARE(SoapUserName(), u"again"_s);
  }

  void aFileThatCantBeReadIsNeverWrittenOver() {
    const QByteArray path = m_home->item(PrefFile).bytes();
    m_home->makeFolder(u"config/vantry-uploader"_s);
    for (const char* target : {"/nowhere/VTUploaderAdmin.pref", "VTUploaderAdmin.pref"}) {  // a share, itself
      QCOMPARE(symlink(target, path.constData()), 0);
      QCOMPARE(loadAccountPreferences(), QString());
      QVERIFY(Problems::present().value(0).kind == Problem::Kind::PreferencesNotSaved);
      QVERIFY(Problems::present()[0].detail.contains(u"VTUploaderAdmin.pref"));
      QVERIFY(!prefs->save());
      char now[100] = {};
      QVERIFY(readlink(path.constData(), now, sizeof now - 1) > 0 && qstrcmp(target, now) == 0);
      unlink(path.constData());
    }
  }
};

VANTRY_TEST(tst_Preferences);
#include "tst_Preferences.moc"
