// The program as a whole: one of it per data folder, and a start that survives damaged stores.

#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <QSignalSpy>
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
    const FolderItem folder = home.item(u"data/vantry-uploader"_s), other = home.item(u"other/vantry-uploader"_s);
    QVERIFY(SpecialFolder::createPrivate(folder).ok() && SpecialFolder::createPrivate(other).ok());
    SingleInstance first(folder);
    QSignalSpy shown(&first, &SingleInstance::showRequested);
    QCOMPARE(first.start(), SingleInstance::Start::First);
    std::atomic<SingleInstance::Start> answer{SingleInstance::Start::Silent};
    std::thread second([&] { answer = SingleInstance(folder).start(); });
    QTRY_COMPARE(shown.count(), 1);
    second.join();
    QCOMPARE(answer.load(), SingleInstance::Start::HandedOver);
    QCOMPARE(SingleInstance(other).start(), SingleInstance::Start::First);
    // From now on the first one's event loop doesn't turn.
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(SingleInstance(folder).start(), SingleInstance::Start::Silent);
    QVERIFY(timer.elapsed() < 20'000);
    home.writeFile(u"file"_s, "can't be locked, which is not the same as in use");
    QCOMPARE(SingleInstance(home.item(u"file"_s)).start(), SingleInstance::Start::Forbidden);
  }

  void theProgramStartsInTheUsersLanguageOverDamagedStores() {
    const TemporaryHome home;
    const QByteArray damage(5000, '\x5a');
    const QString task = home.writeFile(u"data/vantry-uploader/Uploader Tasks/x.vnt"_s, damage);
    // Each with the pattern of the name under which it is set aside.
    const std::pair<QString, QString> damaged[] = {
        {home.writeFile(u"config/vantry-uploader/VTUploaderAdmin.pref"_s, damage), u"VTUploaderAdmin damaged*"_s},
        {home.writeFile(u"data/vantry-uploader/VantryUploader.db"_s, damage), u"VantryUploader damaged*.db"_s}};
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
    QTRY_VERIFY(speaks());
    const QString database = damaged[1].first;
    QTRY_VERIFY(QFile::exists(database) && TemporaryHome::readFile(database).startsWith("SQLite"));
    for (const auto& [file, pattern] : damaged) {
      const QDir folder(QFileInfo(file).path());
      QTRY_COMPARE(folder.entryList({pattern}).size(), 1);
      QCOMPARE(TemporaryHome::readFile(folder.filePath(folder.entryList({pattern}).first())), damage);
    }
    program.terminate();
    QVERIFY(program.waitForFinished(60'000));
    QVERIFY(program.exitStatus() == QProcess::NormalExit && program.exitCode() == 0);
    QCOMPARE(TemporaryHome::readFile(task), damage);
  }
};

VANTRY_TEST(tst_Program);
#include "tst_Program.moc"
