#include <sys/stat.h>

#include <QTest>

#include "platform/SpecialFolder.h"
#include "support/TemporaryHome.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;

class tst_SpecialFolder : public QObject {
  Q_OBJECT
 private slots:
  void init() { m_home.emplace(); }
  void cleanup() { m_home.reset(); }

  void foldersFollowTheEnvironment_data() {
    QTest::addColumn<QByteArray>("variable");  // null: not set
    QTest::addColumn<QString>("data");
    QTest::addColumn<QString>("config");
    const QString inHome = u"HOME/.local/share/vantry-uploader"_s;
    const QString configInHome = u"HOME/.config/vantry-uploader"_s;
    QTest::newRow("absolute") << "/srv/x"_ba << u"/srv/x/vantry-uploader"_s << u"/srv/x/vantry-uploader"_s;
    QTest::newRow("not set") << QByteArray() << inHome << configInHome;
    QTest::newRow("empty") << ""_ba << inHome << configInHome;
    QTest::newRow("relative") << "share"_ba << inHome << configInHome;
  }
  void foldersFollowTheEnvironment() {
    QFETCH(QByteArray, variable);
    QFETCH(QString, data);
    QFETCH(QString, config);
    for (const char* name : {"XDG_DATA_HOME", "XDG_CONFIG_HOME"}) {
      if (variable.isNull())
        qunsetenv(name);
      else
        qputenv(name, variable);
    }
    QCOMPARE(SpecialFolder::ApplicationData().NativePath(), data.replace(u"HOME"_s, m_home->path()));
    QCOMPARE(SpecialFolder::Preferences().NativePath(), config.replace(u"HOME"_s, m_home->path()));
  }

  void missingParentsAreMadePrivate() {
    m_home->makeFolder(u"old"_s);
    ::chmod(m_home->item(u"old"_s).bytes().constData(), 0755);
    const FolderItem folder = m_home->item(u"old"_s).Child(u"new"_s).Child(u"newer"_s);
    QVERIFY(SpecialFolder::createPrivate(folder).ok());
    QVERIFY(SpecialFolder::createPrivate(folder).ok());
    QCOMPARE(modeOf(folder), 0700u);
    QCOMPARE(modeOf(folder.Parent()), 0700u);
    QCOMPARE(modeOf(m_home->item(u"old"_s)), 0755u);
  }

  void aFileInTheWayIsToldAndKept() {
    m_home->writeFile(u"file"_s, "the user's");
    QCOMPARE(SpecialFolder::createPrivate(m_home->item(u"file"_s)).error, ENOTDIR);
    QCOMPARE(SpecialFolder::createPrivate(m_home->item(u"file"_s).Child(u"below"_s)).error, ENOTDIR);
    QCOMPARE(TemporaryHome::readFile(m_home->path(u"file"_s)), "the user's"_ba);
  }

 private:
  static unsigned modeOf(const FolderItem& item) {
    struct stat info {};
    return ::stat(item.bytes().constData(), &info) == 0 ? info.st_mode & 07777 : 0;
  }
  std::optional<TemporaryHome> m_home;
};

VANTRY_TEST(tst_SpecialFolder);
#include "tst_SpecialFolder.moc"
