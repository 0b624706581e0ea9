#include <fcntl.h>
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
    QTest::newRow("common") << "scan.txt"_ba << true;
    QTest::newRow("not UTF-8") << "sc\xe4n.txt"_ba << true;
    QTest::newRow("255 bytes") << QByteArray(255, 'n') << true;
    QTest::newRow("line end and quotes") << "a\n\"b'.txt"_ba << true;
    QTest::newRow("direction mark") << "\xe2\x80\xae"
                                       "txt.exe"_ba
                                    << true;
    QTest::newRow("two dots inside") << "a..b"_ba << true;
    QTest::newRow("hidden") << ".scan.txt"_ba << false;
  }
  void namesOfAnyKindAreFound() {
    QFETCH(QByteArray, name);
    QFETCH(bool, found);
    writeByBytes(name);
    QList<QByteArray> asked;
    FolderScanRules rules;
    rules.nameWanted = [&](QByteArrayView n) { return asked.append(n.toByteArray()), true; };
    const auto result = scanFolder(*m_folder, rules);
    QVERIFY(result.result.ok());
    QCOMPARE(namesOf(result), found ? QList{name} : QList<QByteArray>());
    QCOMPARE(asked, namesOf(result));
    if (found) QCOMPARE(result.files[0].version, versionOf(m_folder->ChildBytes(name)).value());
  }

  void onlyPlainFilesWithContentAreFound() {
    m_home->writeFile(u"in/plain"_s, "x");
    m_home->writeFile(u"in/empty"_s, "");
    m_home->makeFolder(u"in/folder"_s);
    m_home->writeFile(u"in/folder/below"_s, "x");
    link("plain", "in/link to a file");
    link("folder", "in/link to a folder");
    link("loop", "in/loop");
    link("gone", "in/broken link");
    link("fifo", "in/link to a fifo");
    QCOMPARE(::mkfifo(m_home->item(u"in/fifo"_s).bytes().constData(), 0600), 0);
    makeSocket();
    const auto result = scanFolder(*m_folder, {});
    QVERIFY(result.result.ok());
    QCOMPARE(namesOf(result), (QList<QByteArray>{"link to a file", "plain"}));
  }

  void filesThatCannotBeReadAreLeftOut() {
    m_home->writeFile(u"in/forbidden"_s, "x");
    m_home->writeFile(u"in/open"_s, "x");
    ::chmod(m_folder->Child(u"forbidden"_s).bytes().constData(), 0);
    const Unprivileged user(m_home->path());
    QCOMPARE(namesOf(scanFolder(*m_folder, {})), QList<QByteArray>{"open"});
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
    constexpr int kFiles = 3000;
    for (int i = 0; i < kFiles; ++i) writeByBytes(QByteArray::number(i).rightJustified(200, '0'));
    const auto result = scanFolder(*m_folder, {});
    QCOMPARE(result.files.size(), size_t{kFiles});
    for (int i = 0; i < kFiles; ++i) QCOMPARE(result.files[i].name.toInt(), i);
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
    QTest::newRow("a fifo") << u"fifo"_s << ENOTDIR;
    QTest::newRow("forbidden") << u"forbidden"_s << EACCES;
  }
  void foldersThatCannotBeListed() {
    QFETCH(QString, name);
    m_home->writeFile(u"file"_s, "x");
    QCOMPARE(::mkfifo(m_home->item(u"fifo"_s).bytes().constData(), 0600), 0);
    ::chmod(QFile::encodeName(m_home->makeFolder(u"forbidden"_s)).constData(), 0);
    const FolderItem folder = m_home->item(name);
    const Unprivileged user(m_home->path());
    QTEST(scanFolder(folder, {}).result.error, "error");
  }

 private:
  void writeByBytes(const QByteArray& name) const {
    const int fd = ::open(m_folder->ChildBytes(name).bytes().constData(), O_WRONLY | O_CREAT | O_CLOEXEC, 0644);
    QVERIFY(fd >= 0);
    QCOMPARE(::write(fd, "x", 1), ssize_t{1});
    QCOMPARE(::close(fd), 0);
  }
  void link(const char* to, const char* name) const {
    QCOMPARE(::symlink(to, m_home->item(QString::fromLatin1(name)).bytes().constData()), 0);
  }
  void makeSocket() const {
    const int fd = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const QByteArray path = m_folder->Child(u"socket"_s).bytes();
    QVERIFY(path.size() < static_cast<qsizetype>(sizeof address.sun_path));
    qstrcpy(address.sun_path, path.constData());
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
