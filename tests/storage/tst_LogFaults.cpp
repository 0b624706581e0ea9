#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QElapsedTimer>

#include "storage/LogDatabase.h"
#include "support/FullDisk.h"
#include "support/Sql.h"
#include "support/TemporaryHome.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;

/// The log on a machine that lets it down.
class tst_LogFaults : public QObject {
  Q_OBJECT
  std::optional<TemporaryHome> m_home;
  QByteArray m_whole;  // a sound log of some pages
  [[nodiscard]] LogDatabase::OpenResult open() const { return LogDatabase::open(m_home->item(u"log.db"_s)); }
  [[nodiscard]] QString path() const { return m_home->path(u"log.db"_s); }

  /// Opens `content` as a log: it must take a row or explain why not, and be kept byte by byte unless it is used.
  LogDatabase::OpenResult openAndJudge(const QByteArray& content, const QByteArray& journal = {}) {
    m_home.emplace().writeFile(u"log.db"_s, content);
    if (!journal.isEmpty()) m_home->writeFile(u"log.db-wal"_s, journal);
    auto log = open();
    const QString kept = m_home->path(log.setAsideAs.isEmpty() ? u"log.db"_s : log.setAsideAs);
    const bool keptWhole =
        TemporaryHome::readFile(kept) == content && TemporaryHome::readFile(kept + u"-wal"_s) == journal;
    if (!keptWhole && !(log.database && log.setAsideAs.isEmpty())) QTest::qFail("not kept", __FILE__, __LINE__);
    const bool takesRows = log.database && log.database->insert({}, &log.error);
    if (!takesRows && log.error.isEmpty()) QTest::qFail("refused without a word", __FILE__, __LINE__);
    return log;
  }

 private slots:
  void initTestCase() {
    m_home.emplace();
    auto log = open();
    for (int i = 0; i < 60; ++i) QVERIFY(log.database->insert({.Notes = QString(100, u'x')}, nullptr));
    log.database.reset();
    m_whole = TemporaryHome::readFile(path());
    QVERIFY(m_whole.size() >= 3 * 4096);
  }
  void init() { m_home.emplace(); }

  void aDamagedLogIsSetAsideWithItsJournal() {
    const QByteArray text = "not a database, but long enough to be looked at as one: "_ba.repeated(20);
    const QByteArray pageShort = m_whole.chopped(4096);
    const QByteArray schema = QByteArray(m_whole).replace(100, 3900, QByteArray(3900, 'z'));
    for (const QByteArray& content : {text, QByteArray(), pageShort, schema, pageShort + QByteArray(4096, 'z')}) {
      const auto log = openAndJudge(content, "journal of the damaged one");
      QVERIFY2(log.setAsideAs.startsWith(u"log damaged 2") && log.setAsideAs.endsWith(u".db"), content.left(20));
      QCOMPARE(log.database->insert({}, nullptr), 2);
    }
  }

  void aLogCutOrWithAFlippedHeaderIsUsedOrKept() {
    for (qsizetype length = 99; length < m_whole.size(); length += length < 600 ? 99 : 1999) {
      const auto log = openAndJudge(m_whole.first(length));
      QVERIFY2(log.database && !log.setAsideAs.isEmpty(), qPrintable(u"cut at %1"_s.arg(length)));
    }
    // Magic, page size and versions, then the first page of the schema's tree; what lies between are counters.
    for (int at = 0; at < 108 && !QTest::currentTestFailed(); at = at == 31 ? 100 : at + 1) {
      QByteArray flipped = m_whole;
      flipped[at] = static_cast<char>(flipped[at] ^ (1 << (at % 8)));
      openAndJudge(flipped);
    }
  }

  void aLogThatCantBeUsedStaysAndIsExplained() {
    m_home->makeFolder(u"taken/log.db"_s);
    m_home->writeFile(u"file"_s, "x");
    QCOMPARE(symlink("/nowhere/log.db", m_home->item(u"link.db"_s).bytes().constData()), 0);
    QCOMPARE(mkfifo(m_home->item(u"fifo.db"_s).bytes().constData(), 0600), 0);
    const auto names = [this] {
      return QDir(m_home->path()).entryList(QDir::AllEntries | QDir::System | QDir::Hidden);
    };
    const QStringList before = names();
    for (const QString& path : {u"taken/log.db"_s, u"file/log.db"_s, u"gone/log.db"_s, u"link.db"_s, u"fifo.db"_s}) {
      const auto log = LogDatabase::open(m_home->item(path));
      QVERIFY2(!log.database && log.setAsideAs.isEmpty() && log.error.contains(path.section(u'/', -1)),
               qPrintable(path));
      QCOMPARE(names(), before);
    }
  }

  void aLockIsWaitedForTwoSecondsAndCostsOneRowOrTheLog() {
    for (const bool whileOpening : {true, false}) {
      init();
      auto log = open();
      if (whileOpening) log.database.reset();
      Sql other(path());
      if (whileOpening) other.run("PRAGMA locking_mode=EXCLUSIVE");
      other.run("begin immediate");
      QElapsedTimer timer;
      timer.start();
      if (whileOpening)
        log = open();
      else
        QVERIFY(!log.database->insert({}, &log.error));
      QVERIFY2(timer.elapsed() > 1500 && timer.elapsed() < 4000, qPrintable(QString::number(timer.elapsed())));
      QVERIFY2(log.error.contains(u"locked"), qPrintable(log.error));
      QVERIFY(log.setAsideAs.isEmpty() && !log.database == whileOpening);
      other.run("rollback");
      if (!whileOpening) QCOMPARE(log.database->insert({}, nullptr), 1);
    }
  }

  void aFullDiskLosesRowsAndNothingElse() {
    auto log = open();
    std::optional<FullDisk> full(200'000);
    qint64 told = 0;
    while (const auto rowid = log.database->insert({.Notes = QString(1000, u'x')}, &log.error)) told = *rowid;
    QVERIFY2(told > 3 && log.error.startsWith(u"log.db: "_s), qPrintable(log.error));
    full.reset();
    QCOMPARE(log.database->insert({}, nullptr), told + 1);
    log.database.reset();
    log = open();
    QVERIFY2(log.database && log.setAsideAs.isEmpty(), qPrintable(log.error));
    QCOMPARE(Sql(path()).text("PRAGMA integrity_check; select count(*) from log"), u"ok %1"_s.arg(told + 1));
  }
};

VANTRY_TEST(tst_LogFaults);
#include "tst_LogFaults.moc"
