// The program as a whole: one of it per data folder, and a start that survives damaged stores.

#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <QSignalSpy>
#include <QTest>
#include <thread>

#include "SingleInstance.h"
#include "platform/SpecialFolder.h"
#include "support/TemporaryHome.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;

class tst_Program : public QObject {
  Q_OBJECT

 private slots:
  void aSecondStartShowsTheFirstOnesWindowAndEnds() {
    const TemporaryHome home;
    const FolderItem folder = home.item(u"data/vantry-uploader"_s);
    QVERIFY(SpecialFolder::createPrivate(folder).ok());
    SingleInstance first(folder);
    QSignalSpy shown(&first, &SingleInstance::showRequested);
    QCOMPARE(first.start(), SingleInstance::Start::First);
    std::atomic<int> answer{-1};
    std::thread second([&] { answer = static_cast<int>(SingleInstance(folder).start()); });
    QTRY_COMPARE_WITH_TIMEOUT(shown.count(), 1, 60'000);
    second.join();
    QCOMPARE(answer.load(), static_cast<int>(SingleInstance::Start::HandedOver));

    const FolderItem other = home.item(u"other/vantry-uploader"_s);
    QVERIFY(SpecialFolder::createPrivate(other).ok());
    QCOMPARE(SingleInstance(other).start(), SingleInstance::Start::First);
  }

  void aFirstThatDoesNotAnswerIsNotWaitedForLong() {
    const TemporaryHome home;
    const FolderItem folder = home.item(u"data"_s);
    QVERIFY(SpecialFolder::createPrivate(folder).ok());
    SingleInstance first(folder);  // whose event loop doesn't turn
    QCOMPARE(first.start(), SingleInstance::Start::First);
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(SingleInstance(folder).start(), SingleInstance::Start::Silent);
    QVERIFY(timer.elapsed() < 20'000);
  }

  void aFolderThatCannotBeLockedIsToldFromOneInUse() {
    const TemporaryHome home;
    home.writeFile(u"data"_s, "a file");
    QCOMPARE(SingleInstance(home.item(u"data"_s)).start(), SingleInstance::Start::Forbidden);
  }

  void damagedStoresDoNotKeepTheProgramFromRunning_data() {
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("setAside");  // pattern of a name that appears beside it; empty if none shall
    QTest::newRow("first start") << QString() << QString();
    QTest::newRow("damaged preferences") << u"config/vantry-uploader/VTUploaderAdmin.pref"_s
                                         << u"VTUploaderAdmin damaged*"_s;
    QTest::newRow("damaged log") << u"data/vantry-uploader/VantryUploader.db"_s << u"VantryUploader damaged*"_s;
    QTest::newRow("damaged task") << u"data/vantry-uploader/Uploader Tasks/x.vnt"_s << QString();
    QTest::newRow("a file in place of the task folder") << u"data/vantry-uploader/Uploader Tasks"_s << QString();
  }
  void damagedStoresDoNotKeepTheProgramFromRunning() {
    QFETCH(QString, file);
    QFETCH(QString, setAside);
    const TemporaryHome home;
    const QByteArray damage(5000, '\x5a');
    if (!file.isEmpty()) home.writeFile(file, damage);
    QProcess program;
    program.start(QCoreApplication::applicationDirPath() + u"/vantry-uploader"_s, {});
    QVERIFY(program.waitForStarted(60'000));
    const QString database = home.path(u"data/vantry-uploader/VantryUploader.db"_s);
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(database) && TemporaryHome::readFile(database).startsWith("SQLite"), 60'000);
    if (!setAside.isEmpty()) {
      const QDir folder(QFileInfo(home.path(file)).path());
      QTRY_COMPARE_WITH_TIMEOUT(folder.entryList({setAside}).size(), 1, 60'000);
      QCOMPARE(TemporaryHome::readFile(folder.filePath(folder.entryList({setAside}).first())), damage);
    } else if (!file.isEmpty()) {
      QCOMPARE(TemporaryHome::readFile(home.path(file)), damage);
    }
    program.terminate();
    QVERIFY(program.waitForFinished(60'000));
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program.exitCode(), 0);
  }

  void theProgramStartsInTheUsersLanguage() {
    const TemporaryHome home;
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"LANGUAGE"_s, u"fi:pt_PT:de"_s);
    environment.remove(u"LC_ALL"_s);
    program.setProcessEnvironment(environment);
    program.start(QCoreApplication::applicationDirPath() + u"/vantry-uploader"_s, {});
    QByteArray said;
    const auto speaks = [&] {
      return (said += program.readAllStandardError()).contains("\nLanguage table vantry_pt_BR in");
    };
    QTRY_VERIFY_WITH_TIMEOUT(speaks(), 60'000);
    program.kill();
    QVERIFY(program.waitForFinished());
  }
};

VANTRY_TEST(tst_Program);
#include "tst_Program.moc"
