#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <QFile>
#include <QTest>

#include "Unprivileged.h"
#include "platform/FolderScan.h"
#include "support/TemporaryHome.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;

class tst_FolderScan : public QObject {
  Q_OBJECT
 private slots:
  void init() {
    m_home.emplace();
    m_home->makeFolder(u"in"_s);
    m_folder = m_home->item(u"in"_s);
  }

  void namesOfAnyKindAreFound_data() {
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<bool>("found");
    QTest::newRow("not UTF-8") << "sc\xe4n.txt"_ba << true;
    QTest::newRow("255 bytes") << QByteArray(255, 'n') << true;
    QTest::newRow("line end, quotes, direction mark") << "a\n\"b'\xe2\x80\xae.txt"_ba << true;
    QTest::newRow("hidden") << ".scan.txt"_ba << false;
  }
  void namesOfAnyKindAreFound() {
    QFETCH(QByteArray, name);
    QFETCH(bool, found);
    const FolderItem item = writeByBytes(name);
    QList<QByteArray> asked;
    FolderScanRules rules;
    rules.nameWanted = [&](QByteArrayView n) { return asked.append(n.toByteArray()), true; };
    const auto result = scanFolder(*m_folder, rules);
    QCOMPARE(namesOf(result), found ? QList{name} : QList<QByteArray>());
    QCOMPARE(asked, namesOf(result));
    if (found) QCOMPARE(result.files[0].version, versionOf(item).value());
  }

  void onlyReadablePlainFilesWithContentAreFound() {
    for (const auto& name : {u"plain"_s, u"forbidden"_s, u"folder/below"_s}) m_home->writeFile(u"in/"_s + name, "x");
    m_home->writeFile(u"in/empty"_s, "");
    ::chmod(m_folder->Child(u"forbidden"_s).bytes().constData(), 0);
    for (const auto& name : {"plain", "folder", "link to loop", "gone", "fifo", "forbidden"})
      QCOMPARE(::symlink(name, m_folder->ChildBytes("link to "_ba + name).bytes().constData()), 0);
    QCOMPARE(::symlink("loop", m_folder->ChildBytes("loop").bytes().constData()), 0);
    QCOMPARE(::mkfifo(m_folder->ChildBytes("fifo").bytes().constData(), 0666), 0);
    makeSocket();
    const Unprivileged user(m_home->path());
    const auto result = scanFolder(*m_folder, {});
    QVERIFY(result.result.ok());
    QCOMPARE(namesOf(result), (QList<QByteArray>{"link to plain", "plain"}));
  }

  void rulesLeaveFilesOut() {
    for (const auto& name : {u"b.txt"_s, u"A.TXT"_s, u"c.xml"_s, u"d.txt"_s}) m_home->writeFile(u"in/"_s + name, "x");
    TemporaryHome::setDate(m_home->path(u"in/d.txt"_s), 1'000'000'000.5);
    int dated = 0;
    FolderScanRules rules;
    rules.nameWanted = [](QByteArrayView name) { return !name.endsWith(".xml"); };
    rules.dateWanted = [&](qint64 ns) { return ++dated, ns != 1'000'000'000'500'000'000; };
    QCOMPARE(namesOf(scanFolder(*m_folder, rules)), (QList<QByteArray>{"A.TXT", "b.txt"}));
    QCOMPARE(dated, 3);
  }

  // Longer than what the kernel hands out at once, so that no name is lost where one piece ends.
  void aFolderOfManyNamesIsListedWhole() {
    constexpr size_t kFiles = 1500;
    for (size_t i = 0; i < kFiles; ++i) (void)writeByBytes(QByteArray::number(i).rightJustified(200, '0'));
    const auto result = scanFolder(*m_folder, {});
    QCOMPARE(result.files.size(), kFiles);
    for (size_t i = 0; i < kFiles; ++i) QCOMPARE(result.files[i].name.toULongLong(), i);
  }

  void aStopEndsThePass() {
    for (int i = 0; i < 20; ++i) m_home->writeFile(u"in/%1"_s.arg(i), "x");
    int asked = 0;
    FolderScanRules rules;
    rules.stopRequested = [&] { return ++asked > 10; };
    const auto result = scanFolder(*m_folder, rules);
    QCOMPARE(result.result.error, ECANCELED);
    QVERIFY(result.files.size() <= 10);
  }

  void foldersThatCannotBeListed_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("error");
    QTest::newRow("gone") << u"gone"_s << ENOENT;
    QTest::newRow("a file") << u"file"_s << ENOTDIR;
    QTest::newRow("forbidden") << u"forbidden"_s << EACCES;
  }
  void foldersThatCannotBeListed() {
    QFETCH(QString, name);
    m_home->writeFile(u"file"_s, "x");
    ::chmod(QFile::encodeName(m_home->makeFolder(u"forbidden"_s)).constData(), 0);
    const Unprivileged user(m_home->path());
    QTEST(scanFolder(m_home->item(name), {}).result.error, "error");
  }

 private:
  [[nodiscard]] FolderItem writeByBytes(const QByteArray& name) const {
    m_home->writeFile(u"plain"_s, "x");
    const FolderItem item = m_folder->ChildBytes(name);
    if (::rename(m_home->item(u"plain"_s).bytes().constData(), item.bytes().constData()) != 0) qFatal("no such name");
    return item;
  }
  void makeSocket() const {
    const int fd = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    qstrncpy(address.sun_path, m_folder->Child(u"socket"_s).bytes().constData(), sizeof address.sun_path);
    QCOMPARE(::bind(fd, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
    ::close(fd);
  }
  static QList<QByteArray> namesOf(const FolderScanResult& result) {
    QList<QByteArray> names;
    for (const auto& file : result.files) names.append(file.name);
    return names;
  }

  std::optional<TemporaryHome> m_home;
  std::optional<FolderItem> m_folder;
};

VANTRY_TEST(tst_FolderScan);
#include "tst_FolderScan.moc"
