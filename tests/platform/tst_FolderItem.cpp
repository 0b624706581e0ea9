#include <sys/stat.h>

#include <QFile>
#include <QTest>

#include "Unprivileged.h"
#include "platform/FolderItem.h"
#include "support/TemporaryHome.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;

class tst_FolderItem : public QObject {
  Q_OBJECT
 private slots:
  void init() { m_home.emplace(); }

  void pathsAreTakenOrRefused_data() {
    QTest::addColumn<QString>("path");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("absolute, umlaut") << u"/srv/ü"_s << "/srv/\xc3\xbc"_ba;
    QTest::newRow("spare slashes and dots") << u"//srv/./in/"_s << "/srv/in"_ba;
    QTest::newRow("two dots stay, for links") << u"/srv/../in"_s << "/srv/../in"_ba;
    QTest::newRow("empty") << QString() << QByteArray();
    QTest::newRow("relative") << u"in"_s << QByteArray();
    QTest::newRow("zero inside") << u"/srv"_s + QChar(0) + u"in"_s << QByteArray();
    QTest::newRow("half a pair") << u"/srv/"_s + QChar(0xd83d) << QByteArray();
  }
  void pathsAreTakenOrRefused() {
    QFETCH(QString, path);
    const auto item = FolderItem::fromNativePath(path);
    QTEST(item ? item->bytes() : QByteArray(), "bytes");
  }

  void childrenStayInTheirFolder_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("child");
    QTest::newRow("slashes") << u"../../etc/passwd"_s << u".._.._etc_passwd"_s;
    QTest::newRow("zero") << u"a"_s + QChar(0) + u"b"_s << u"a_b"_s;
    QTest::newRow("the folder's parent") << u".."_s << u"__"_s;
    QTest::newRow("nothing") << QString() << u"_"_s;
    QTest::newRow("half a pair, a whole one") << QChar(0xdc00) + u"😀"_s << u"_😀"_s;
  }
  void childrenStayInTheirFolder() {
    QFETCH(QString, name);
    const FolderItem item = m_home->item({}).Child(name);
    QTEST(item.Name(), "child");
    QCOMPARE(item.Parent(), m_home->item({}));
    QCOMPARE(FolderItem::fromNativePath(u"/"_s)->Child(name).Parent().bytes(), "/"_ba);
  }

  void renaming_data() {
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    QTest::addColumn<int>("error");
    QTest::addColumn<QString>("nameAfter");
    QTest::addColumn<QString>("present");
    QTest::newRow("a file") << u"a"_s << u"new"_s << 0 << u"new"_s << u"b folder link new"_s;
    QTest::newRow("over another file") << u"a"_s << u"b"_s << EEXIST << u"a"_s << u"a b folder link"_s;
    QTest::newRow("to its own name") << u"a"_s << u"a"_s << 0 << u"a"_s << u"a b folder link"_s;
    QTest::newRow("out of its folder") << u"a"_s << u"../x"_s << 0 << u".._x"_s << u".._x b folder link"_s;
    QTest::newRow("a broken link") << u"link"_s << u"new"_s << 0 << u"new"_s << u"a b folder new"_s;
    QTest::newRow("what doesn't exist") << u"gone"_s << u"b"_s << 0 << u"b"_s << u"a b folder link"_s;
  }
  void renaming() {
    QFETCH(QString, from);
    QFETCH(QString, to);
    QFETCH(QString, present);
    m_home->writeFile(u"in/a"_s, "a");
    m_home->writeFile(u"in/b"_s, "b");
    m_home->makeFolder(u"in/folder"_s);
    QVERIFY(QFile::link(u"nowhere"_s, m_home->path(u"in/link"_s)));
    FolderItem item = m_home->item(u"in"_s).Child(from);
    QTEST(item.setName(to).error, "error");
    QTEST(item.Name(), "nameAfter");
    QCOMPARE(namesIn(u"in"_s), present.split(u' '));
    QCOMPARE(TemporaryHome::readFile(m_home->path(u"in/b"_s)), "b"_ba);
  }

  void aNameThatIsNotUtf8IsReachable() {
    FolderItem item = m_home->item(u"in"_s).ChildBytes("sc\xe4n.txt");
    m_home->writeFile(u"in/plain"_s, "content");
    QCOMPARE(::rename(m_home->item(u"in/plain"_s).bytes().constData(), item.bytes().constData()), 0);
    QCOMPARE(m_home->item(u"in"_s).Items(), QList{item});
    QCOMPARE(item.Length(), 7);
    QVERIFY(item.setName(u"scan.txt"_s).ok());
    QCOMPARE(namesIn(u"in"_s), QStringList{u"scan.txt"_s});
  }

  void accessFollowsTheKernel_data() {
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("isFolder");
    QTest::addColumn<QString>("access");
    QTest::newRow("file for reading") << 0444 << false << u"r-"_s;
    QTest::newRow("file for nobody") << 0 << false << u"--"_s;
    QTest::newRow("folder for all") << 0777 << true << u"rw"_s;
    QTest::newRow("folder that can't be entered") << 0666 << true << u"--"_s;
    QTest::newRow("folder for putting in") << 0333 << true << u"-w"_s;
    QTest::newRow("folder for reading") << 0555 << true << u"r-"_s;
  }
  void accessFollowsTheKernel() {
    QFETCH(int, mode);
    QFETCH(bool, isFolder);
    const FolderItem item = m_home->item(u"thing"_s);
    if (isFolder)
      QVERIFY(item.CreateAsFolder().ok());
    else
      m_home->writeFile(u"thing"_s, "x");
    QCOMPARE(::chmod(item.bytes().constData(), static_cast<mode_t>(mode)), 0);
    const Unprivileged user(m_home->path());
    QTEST(QString(item.IsReadable() ? u"r"_s : u"-"_s) + (item.IsWriteable() ? u"w"_s : u"-"_s), "access");
  }

  void whatDoesNotExistIsToldAsNothing_data() {
    QTest::addColumn<QString>("name");
    QTest::newRow("gone") << u"gone"_s;
    QTest::newRow("a link to itself") << u"loop"_s;
  }
  void whatDoesNotExistIsToldAsNothing() {
    QFETCH(QString, name);
    QVERIFY(QFile::link(u"loop"_s, m_home->path(u"loop"_s)));
    const FolderItem item = m_home->item(name);
    QVERIFY(!item.Exists() && !item.Directory() && !item.IsReadable() && !item.IsWriteable());
    QVERIFY(item.Length() == 0 && item.ModificationDate().nanoseconds() == 0 && item.Items().isEmpty());
  }

  void makingAndDeletingFolders() {
    const FolderItem folder = m_home->item(u"folder"_s);
    QVERIFY(folder.CreateAsFolder().ok());
    QVERIFY2(folder.CreateAsFolder().ok(), "a folder that exists is what was wanted");
    m_home->writeFile(u"folder/file"_s, "x");
    QCOMPARE(folder.Delete().error, ENOTEMPTY);
    QCOMPARE(folder.Child(u"file"_s).CreateAsFolder().error, EEXIST);
    QVERIFY(folder.Child(u"file"_s).Delete().ok() && folder.Delete().ok());
  }

  void namesHaveOneOrder() {
    const QList<QByteArray> sorted = {"",           "1.txt",      "A.txt",      "a.txt",    "a.txt2",  "b",
                                      "\xc3\xa4-x", "\xc3\x84-y", "\xc3\xa4-y", "\xc3\xb6", "\xff\x01"};
    for (qsizetype a = 0; a < sorted.size(); ++a)
      for (qsizetype b = 0; b < sorted.size(); ++b) {
        const int order = compareFileNames(sorted[a], sorted[b]);
        QVERIFY2((order < 0) == (a < b) && (order == 0) == (a == b), (sorted[a] + " and " + sorted[b]).constData());
      }
  }

 private:
  [[nodiscard]] QStringList namesIn(const QString& folder) const {
    QStringList names;
    for (const FolderItem& item : m_home->item(folder).Items()) names.append(item.Name());
    return names;
  }
  std::optional<TemporaryHome> m_home;
};

VANTRY_TEST(tst_FolderItem);
#include "tst_FolderItem.moc"
