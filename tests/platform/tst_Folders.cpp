#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include "Unprivileged.h"
#include "platform/FolderScan.h"
#include "support/TemporaryHome.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;

/// Paths, names and folders: what they may be, and what a look at a folder finds.
class tst_Folders : public QObject {
  Q_OBJECT
 private slots:
  void init() {
    m_home.emplace();
    m_home->makeFolder(u"in"_s);
    m_folder = m_home->item(u"in"_s);
  }

  void onlyPathsThatAFileCanHaveAreTaken() {
    const auto taken = [](const QString& path) {
      const auto item = FolderItem::fromNativePath(path);
      return item ? item->bytes() : QByteArray();
    };
    QCOMPARE(taken(u"//srv/./ü/"_s), "/srv/\xc3\xbc"_ba);
    QCOMPARE(taken(u"/srv/../in"_s), "/srv/../in"_ba);  // with links it is not the same as /in
    for (const QString& path : {QString(), u"in"_s, u"/srv"_s + QChar(0) + u"in"_s, u"/srv/"_s + QChar(0xd83d)})
      QCOMPARE(taken(path), QByteArray());
  }

  void childrenStayInTheirFolder() {
    QStringList children;
    for (const QString& name :
         {u"../../etc"_s, u"a"_s + QChar(0) + u"b"_s, u".."_s, QString(), QChar(0xdc00) + u"😀"_s}) {
      children << m_folder->Child(name).Name();
      QCOMPARE(m_folder->Child(name).Parent(), *m_folder);
      QCOMPARE(FolderItem::fromNativePath(u"/"_s)->Child(name).Parent().bytes(), "/"_ba);
    }
    QCOMPARE(children.join(u' '), u".._.._etc a_b __ _ _😀"_s);
  }

  void renamingReplacesNothing() {
    const std::tuple<QString, QString, int, QString> rows[] = {{u"a"_s, u"new"_s, 0, u"b link new"_s},
                                                               {u"a"_s, u"b"_s, EEXIST, u"a b link"_s},
                                                               {u"a"_s, u"../x"_s, 0, u".._x b link"_s},
                                                               {u"link"_s, u"new"_s, 0, u"a b new"_s},
                                                               {u"gone"_s, u"b"_s, 0, u"a b link"_s}};
    for (const auto& [from, to, error, present] : rows) {
      init();
      write({"a", "b"});
      QVERIFY(QFile::link(u"nowhere"_s, m_home->path(u"in/link"_s)));
      FolderItem item = m_folder->Child(from);
      QCOMPARE(item.setName(to).error, error);
      QCOMPARE(item.Name(), error ? from : QString(to).replace(u'/', u'_'));
      QStringList names;
      for (const FolderItem& found : m_folder->Items()) names << found.Name();
      QCOMPARE(names.join(u' '), present);
      QCOMPARE(TemporaryHome::readFile(m_home->path(u"in/b"_s)), "b"_ba);
    }
  }

  void accessFollowsTheKernelAndWhatIsNotThereIsNothing() {
    write({"file"});
    m_home->makeFolder(u"in/folder"_s);
    const auto access = [this](const QString& name, mode_t mode) {
      const FolderItem item = m_folder->Child(name);
      ::chmod(item.bytes().constData(), mode);
      const Unprivileged user(m_home->path());
      return QString(item.IsReadable() ? u"r"_s : u"-"_s) + (item.IsWriteable() ? u"w"_s : u"-"_s);
    };
    QCOMPARE(access(u"file"_s, 0444) + access(u"file"_s, 0), u"r---"_s);
    QCOMPARE(access(u"folder"_s, 0777) + access(u"folder"_s, 0666), u"rw--"_s);  // the second can't be entered
    QCOMPARE(access(u"folder"_s, 0333) + access(u"folder"_s, 0555), u"-wr-"_s);
    QVERIFY(QFile::link(u"loop"_s, m_home->path(u"in/loop"_s)));
    for (const FolderItem& item : {m_folder->Child(u"gone"_s), m_folder->Child(u"loop"_s)}) {
      QVERIFY(!item.Exists() && !item.Directory() && !item.IsReadable() && !item.IsWriteable());
      QVERIFY(item.Length() == 0 && item.ModificationDate().nanoseconds() == 0 && item.Items().isEmpty());
    }
  }

  void namesHaveOneOrder() {
    const QList<QByteArray> sorted = {"",           "1.txt",      "A.txt",      "a.txt",    "a.txt2",  "b",
                                      "\xc3\xa4-x", "\xc3\x84-y", "\xc3\xa4-y", "\xc3\xb6", "\xff\x01"};
    for (qsizetype i = 1; i < sorted.size(); ++i)
      QVERIFY2(compareFileNames(sorted[i - 1], sorted[i]) < 0 && compareFileNames(sorted[i], sorted[i - 1]) > 0 &&
                   compareFileNames(sorted[i], sorted[i]) == 0,
               sorted[i].constData());
  }

  void namesOfAnyKindAreFoundAndTheCheapRulesComeFirst() {
    QList<QByteArray> asked, names = {"a\n\"b'\xe2\x80\xae.txt", QByteArray(255, 'n'), "sc\xe4n.txt"};
    write(names + QList<QByteArray>{".hidden.txt", "c.xml", "old.txt"});
    TemporaryHome::setDate(m_home->path(u"in/old.txt"_s), 1'000'000'000.5);
    int dated = 0;
    FolderScanRules rules;
    rules.nameWanted = [&](QByteArrayView name) { return asked << name.toByteArray(), !name.endsWith(".xml"); };
    rules.dateWanted = [&](qint64 ns) { return ++dated, ns != 1'000'000'000'500'000'000; };
    QCOMPARE(namesOf(rules), names);
    QVERIFY(asked.size() == 5 && dated == 4 && !asked.contains(".hidden.txt"));
    FolderItem odd = m_folder->ChildBytes(names[2]);
    QVERIFY(m_folder->Items().contains(odd) && odd.setName(u"scan.txt"_s).ok());
    QCOMPARE(m_folder->Child(u"scan.txt"_s).Length(), names[2].size());
  }

  void onlyReadablePlainFilesWithContentAreFoundAndFoldersThatCannotBeListedAreTold() {
    write({"plain", "forbidden", "empty"});
    m_home->writeFile(u"in/folder/below"_s, "x");
    m_home->writeFile(u"in/empty"_s, "");
    m_home->makeFolder(u"in/closed folder"_s);
    for (const char* const name : {"forbidden", "closed folder"})
      ::chmod(m_folder->ChildBytes(name).bytes().constData(), 0);
    for (const auto& name : {"plain", "folder", "link to loop", "gone", "fifo", "forbidden"})
      QCOMPARE(::symlink(name, m_folder->ChildBytes("link to "_ba + name).bytes().constData()), 0);
    QCOMPARE(::symlink("loop", m_folder->ChildBytes("loop").bytes().constData()), 0);
    QCOMPARE(::mkfifo(m_folder->ChildBytes("fifo").bytes().constData(), 0666), 0);
    const int fd = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_un address{AF_UNIX, {}};
    qstrncpy(address.sun_path, m_folder->Child(u"socket"_s).bytes().constData(), sizeof address.sun_path);
    QCOMPARE(::bind(fd, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
    ::close(fd);
    const Unprivileged user(m_home->path());
    QCOMPARE(namesOf({}), (QList<QByteArray>{"link to plain", "plain"}));
    for (const auto& [name, error] : {std::pair("gone", ENOENT), {"plain", ENOTDIR}, {"closed folder", EACCES}})
      QCOMPARE(scanFolder(m_folder->ChildBytes(name), {}).result.error, error);
  }

  // Longer than what the kernel hands out at once, so that no name is lost where one piece ends.
  void aFolderOfManyNamesIsListedWholeUnlessItIsStopped() {
    QList<QByteArray> names;
    for (int i = 0; i < 1500; ++i) names << QByteArray::number(i).rightJustified(200, '0');
    write(names);
    QCOMPARE(namesOf({}), names);
    FolderScanRules rules;
    rules.stopRequested = [asked = 0]() mutable { return ++asked > 10; };
    const auto stopped = scanFolder(*m_folder, rules);
    QVERIFY(stopped.result.error == ECANCELED && stopped.files.size() <= 10);
  }

 private:
  /// Files of the folder, by the bytes of their names, each with its name as content.
  void write(const QList<QByteArray>& names) const {
    for (const QByteArray& name : names) {
      const QByteArray plain = QFile::encodeName(m_home->writeFile(u"plain"_s, name));
      QCOMPARE(::rename(plain.constData(), m_folder->ChildBytes(name).bytes().constData()), 0);
    }
  }
  [[nodiscard]] QList<QByteArray> namesOf(const FolderScanRules& rules) const {
    QList<QByteArray> names;
    for (const ScannedFile& file : scanFolder(*m_folder, rules).files)
      if (versionOf(m_folder->ChildBytes(file.name)) == file.version) names << file.name;
    return names;
  }
  std::optional<TemporaryHome> m_home;
  std::optional<FolderItem> m_folder;
};

VANTRY_TEST(tst_Folders);
#include "tst_Folders.moc"
