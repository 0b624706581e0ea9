// Backup and restore of the task files, by the window's buttons, on real folders.

#include <QDir>

#include "AdminFixture.h"
#include "support/HangingShare.h"
#include "text/VTULocalization.h"

using namespace Qt::Literals::StringLiterals;
using namespace VTULocalization;

class tst_TaskBackup : public QObject {
  Q_OBJECT

  static QString taskPath(const QString& name) { return UploaderTask::TaskDirectory().Child(name).NativePath(); }
  static void write(const QString& path, const QByteArray& content) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) qFatal("can't write");
  }
  /// A task file whose task has that name.
  static void store(const QString& path, const QString& name) {
    UploaderTask task;
    task.Name = name;
    if (!task.save(*FolderItem::fromNativePath(path))) qFatal("can't store a task");
  }
  static QString names(const QString& folder) { return QDir(folder).entryList(QDir::Files, QDir::Name).join(u'|'); }
  /// The name of the task in that file of the task folder; the content of a file that holds none.
  static QString task(const QString& name) {
    UploaderTask read;
    if (read.open(*FolderItem::fromNativePath(taskPath(name))).ok()) return read.Name;
    return QString::fromUtf8(TemporaryHome::readFile(taskPath(name)));
  }
  /// Presses a button, chooses that folder and waits for the end.
  static void copy(AdminFixture& fixture, const char* button, const QString& folder, const QString& line) {
    const Choice choice(folder);
    fixture.press(button);
    QTRY_VERIFY(choice.made());
    QTRY_VERIFY(fixture.enabled(button) && fixture.line("BackupLine") == line);
    const bool save = qstrcmp(button, "saveConfigurationButton") == 0;
    QCOMPARE(choice.title + u'|' + choice.action, u"Backup Directory|"_s + (save ? u"Save"_s : u"Load"_s));
    QCOMPARE(choice.prompt, save ? klBackupDescription() : klLoadConfigurationDescription());
  }

 private slots:
  void aBackupNeverOverwritesAndARestoreMerges() {
    AdminFixture fixture;
    const QString backup = fixture.home.makeFolder(u"backup"_s);
    fixture.open();
    const BoxAnswer none(QMessageBox::Ok);
    fixture.press("saveConfigurationButton");
    QTRY_COMPARE(none.text(), u"There are no tasks avaible to backup"_s);
    store(taskPath(u"press.vnt"_s), u"press"_s);
    store(taskPath(u"Other.VNT"_s), u"other"_s);
    write(taskPath(u"gone.del"_s), "gone");
    copy(fixture, "saveConfigurationButton", {}, {});
    QCOMPARE(names(backup), QString());
    for (int time = 0; time < 2; ++time) copy(fixture, "saveConfigurationButton", backup, klBackupDone());
    QCOMPARE(names(backup), u"1 Other.VNT|1 press.vnt|Other.VNT|press.vnt"_s);
    QVERIFY(!fixture.window().outcome().tasksRestored);

    store(taskPath(u"press.vnt"_s), u"changed"_s);
    store(taskPath(u"new.vnt"_s), u"new"_s);
    copy(fixture, "LoadConfigurationButton", backup, klRestoreDone());
    QCOMPARE(names(UploaderTask::TaskDirectory().NativePath()),
             u"1 Other.VNT|1 press.vnt|Other.VNT|gone.del|new.vnt|press.vnt"_s);
    QCOMPARE(task(u"press.vnt"_s), u"press"_s);
    QVERIFY(fixture.window().outcome().tasksRestored);
  }

  void copiesThatFailAreNamedInOneMessage() {
    AdminFixture fixture;
    const QString backup = fixture.home.makeFolder(u"backup"_s);
    write(backup + u"/huge.vnt"_s, QByteArray(17 << 20, 'x'));
    store(backup + u"/z.vnt"_s, u"z"_s);
    write(backup + u"/empty.vnt"_s, {});
    write(backup + u"/part.vnt"_s, TemporaryHome::readFile(backup + u"/z.vnt"_s).chopped(40));
    QVERIFY(QFile::link(u"/nowhere"_s, backup + u"/lost.vnt"_s));
    for (const QString& name : {u"huge"_s, u"empty"_s, u"part"_s}) store(taskPath(name + u".vnt"_s), name);
    fixture.open();
    const BoxAnswer told(QMessageBox::Ok);
    copy(fixture, "LoadConfigurationButton", backup, {});
    QTRY_VERIFY2(told.text().startsWith(klRestoreFailed()), qPrintable(told.text()));
    for (const QString& name : {u"huge"_s, u"lost"_s, u"empty"_s, u"part"_s})
      QVERIFY2(told.text().contains(u'\n' + name + u".vnt: "_s), qPrintable(name + told.text()));
    for (const QString& name : {u"huge"_s, u"empty"_s, u"part"_s, u"z"_s}) QCOMPARE(task(name + u".vnt"_s), name);

    const QString other = fixture.home.makeFolder(u"other"_s);
    QVERIFY(QFile::link(u"/nowhere"_s, other + u"/huge.vnt"_s));
    for (const QString& folder : {u"/proc/sys"_s, other}) {
      const BoxAnswer second(QMessageBox::Ok);
      copy(fixture, "saveConfigurationButton", folder, {});
      QTRY_VERIFY2(second.text().startsWith(klBackupFailed()), qPrintable(second.text()));
      QVERIFY(second.text().contains(u"\nhuge.vnt: "_s) && second.text().contains(u"\nz.vnt: "_s) != (folder == other));
    }
  }

  void aShareThatHangsHoldsNothingUp_data() {
    addColumns<bool, HangingShare::Calls, QString>("save", "calls", "missing");
    QTest::newRow("a backup into it") << true << HangingShare::Calls::All << u"a.vnt\nb.vnt"_s;
    QTest::newRow("a restore from it") << false << HangingShare::Calls::All << QString();
    QTest::newRow("a restore that reads a file") << false << HangingShare::Calls::Opening << u"a.vnt"_s;
  }
  void aShareThatHangsHoldsNothingUp() {
    QFETCH(bool, save);
    QFETCH(HangingShare::Calls, calls);
    QFETCH(QString, missing);
    AdminFixture fixture;
    const QString share = fixture.home.makeFolder(u"hanging-share"_s);
    store(share + u"/a.vnt"_s, u"of the share"_s);
    for (const char* const name : {"a.vnt", "b.vnt"}) store(taskPath(QLatin1String(name)), u"here"_s);
    fixture.open();
    const Choice choice(share);
    {
      const HangingShare hanging(calls);
      const LoopWatch watch;
      fixture.press(save ? "saveConfigurationButton" : "LoadConfigurationButton");
      QTRY_COMPARE(fixture.line("BackupLine"), klBackupSlow());
      QVERIFY(HangingShare::waiting() > 0 && !fixture.enabled("saveConfigurationButton"));
      QVERIFY2(watch.longestMs() < 500, qPrintable(QString::number(watch.longestMs())));  // the chooser's opening
      const BoxAnswer told(QMessageBox::Ok);
      fixture.press("CancelAdminButton");
      QVERIFY(!fixture.window().isVisible());
      QCOMPARE(told.text(), missing.isEmpty() ? QString() : klCopyingStopped() + u"\n\n"_s + missing);
      QCOMPARE(fixture.window().outcome().tasksRestored, !save);
    }
    QVERIFY(BackgroundCall::waitForAll(60'000));
    QVERIFY(!QFile::exists(share + u"/b.vnt"_s));
    QCOMPARE(task(u"a.vnt"_s), u"here"_s);
  }
};

VANTRY_TEST(tst_TaskBackup);
#include "tst_TaskBackup.moc"
