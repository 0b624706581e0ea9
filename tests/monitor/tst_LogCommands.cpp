// What the log viewer does beyond showing rows: finding, exporting, copying, sending again, and its divider.

#include <QClipboard>
#include <QDir>
#include <QHeaderView>
#include <QMenu>

#include "LogFixture.h"
#include "support/EngineBench.h"
#include "support/HangingShare.h"
#include "text/VTULocalization.h"

using namespace Qt::Literals::StringLiterals;

class tst_LogCommands : public QObject {
  Q_OBJECT

  /// Presses Export and chooses that file; an empty path cancels.
  static void exportTo(LogFixture& fixture, const QString& path) {
    if (!BackgroundCall::waitForAll(60'000)) qFatal("a call did not end");
    QCoreApplication::processEvents();  // half a list is not exported
    QString proposed;
    const Inside<QFileDialog> chooser([&](QFileDialog& dialog) {
      proposed = dialog.selectedFiles().value(0);
      if (path.isEmpty()) return dialog.reject();
      dialog.selectFile(path);
      dialog.setOption(QFileDialog::DontConfirmOverwrite);
      QMetaObject::invokeMethod(&dialog, "accept");
    });
    fixture.press("ExportToText");
    QTRY_VERIFY2(proposed.endsWith(u"/log.txt"_s), qPrintable(proposed));
  }

 private slots:
  void aFailureIsToldByItsNotes() {
    for (const auto& [notes, failed] :
         {std::pair("Uploaded to Print Warden - Saved", false),
          {"Uploaded to Instrument - Deleted Locally", false},
          {"", false},
          {"n/a", false},
          {"Failed to upload to Print - moved to error folder. Error Reported: E002 - Deleted Locally", true},
          {"Uploaded to Print Warden - Saved Copy not saved: no space left", true},
          {"Uploaded to Print Input file not deleted: not permitted", true},
          {"File not accessible", true}})
      QVERIFY2(isFailure(notes) == failed, notes);
  }

  void findingNarrowsTheViewAndNeedsNoMouse() {
    LogFixture fixture;
    LogFixture::write(u"alpha.txt"_s);
    LogFixture::write(u"Alphaville"_s, u"Failed to upload to Print - moved to error folder. Error Reported: E008"_s);
    for (const QString& name : {u"mass é"_s, u"aaab"_s}) LogFixture::write(name);
    SystemLogWindow& window = fixture.open();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QTRY_COMPARE(fixture.names(), u"alpha.txt|Alphaville|mass é|aaab"_s);
    auto* const model = static_cast<LogModel*>(fixture.list()->model());
    QCOMPARE(model->index(1, 0).data(Qt::AccessibleTextRole).toString(), u"Failed: Alphaville"_s);
    fixture.list()->setListIndex(1);
    const std::tuple<QString, bool, QString> rows[] = {{u" ALPHA "_s, false, u"alpha.txt|Alphaville"_s},
                                                       {u"MASS É"_s, false, u"mass é"_s},
                                                       {u"e008"_s, false, u"Alphaville"_s},  // in the notes
                                                       {u"aab"_s, false, u"aaab"_s},  // begins anew inside itself
                                                       {u"alphaz"_s, false, {}},
                                                       {u"alpha.txt"_s, true, {}},
                                                       {{}, true, u"Alphaville"_s}};
    for (const auto& [text, failuresOnly, shown] : rows) {
      QTest::keyClick(&window, Qt::Key_F, Qt::ControlModifier);
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Delete);
      QTest::keyClicks(QApplication::focusWidget(), text);
      fixture.tick("FailuresOnlyCheckBox", failuresOnly);
      QTRY_COMPARE(fixture.names(), shown);
      QTRY_COMPARE(fixture.list()->ListIndex(), shown.split(u'|').indexOf(u"Alphaville"_s));
      QCOMPARE(fixture.note(), shown.isEmpty() ? u"No entry matches."_s : QString());
    }
    for (const char* const notes : {LogFixture::Good, "File not accessible"})
      LogFixture::write(u"new"_s, QString::fromLatin1(notes));
    fixture.takeQueue(1);
    QTRY_COMPARE(model->all().size(), 6);
    QTRY_COMPARE(fixture.names(), u"Alphaville|new"_s);
    fixture.press("REfreshLogButton");
    QTRY_COMPARE(fixture.names(), u"Alphaville|new"_s);
    fixture.tick("FailuresOnlyCheckBox", false);
    QTest::keyClicks(QApplication::focusWidget(), u"new"_s);
    QTRY_COMPARE(fixture.names(), u"new|new"_s);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    QTRY_COMPARE(fixture.rows(), 6);
    QCOMPARE(QApplication::focusWidget(), fixture.list());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    QTRY_VERIFY(fixture.details().size() > 1);
  }

  void aSearchThatFailsLeavesNothingToExport() {
    LogFixture fixture;
    fixture.fill(20'000);
    fixture.open();
    QTRY_COMPARE(fixture.rows(), 20'000);
    fixture.run("pragma wal_checkpoint(truncate)");
    QFile log(fixture.file().NativePath());
    QVERIFY(log.open(QIODevice::ReadWrite) && log.seek(log.size() / 2 & ~0xffff));
    QCOMPARE(log.write(QByteArray(0x10000, '\0')), 0x10000);
    log.close();
    int most = 0;
    connect(fixture.list()->model(), &QAbstractItemModel::modelReset, this, [&] { most = qMax(most, fixture.rows()); });
    fixture.type("FindField", u"row"_s);
    QTRY_VERIFY2(fixture.note().contains(u"malformed"_s), qPrintable(fixture.note()));
    QVERIFY(most > 0 && fixture.rows() == 0);
  }

  void anExportWritesWhatTheListShows() {
    LogFixture fixture;
    LogFixture::write(u"a\tb"_s, u"two\nlines"_s);
    LogFixture::write(u"left out"_s);
    LogFixture::write(u"é"_s, u"File not accessible"_s);
    fixture.open();
    fixture.press("FailuresOnlyCheckBox");
    QTRY_COMPARE(fixture.names(), u"a b|é"_s);
    const QString path = fixture.home.writeFile(u"log.txt"_s, "old");
    exportTo(fixture, {});
    QCOMPARE(TemporaryHome::readFile(path), "old");
    exportTo(fixture, path);
    const QStringList times = fixture.table("EventTime");
    const QString heading = u"OriginalName\tNewName\tInputFolder\tOutputFolder\tTrack\tEventTime\tNotes\n"_s;
    const QString wanted =
        u"a\tb\tn/a\tn/a\tn/a\tn/a\t%1\ttwo\nlines\né\tn/a\tn/a\tn/a\tn/a\t%2\tFile not "
        "accessible\n"_s.arg(times[0], times[2]);
    QTRY_COMPARE(QString::fromUtf8(TemporaryHome::readFile(path)), heading + wanted);
    fixture.list()->selectAll();
    QTest::keyClick(fixture.list(), Qt::Key_C, Qt::ControlModifier);
    QTRY_COMPARE(QGuiApplication::clipboard()->text(), wanted);
  }

  void anExportThatFailsOrIsCancelledLeavesTheOldFile() {
    for (const QString& fault : {u"gone"_s, u"cancelled"_s, u"closed"_s}) {
      LogFixture fixture;
      fixture.fill(300'000);
      fixture.open();
      QTRY_COMPARE(fixture.rows(), 300'000);
      const QString path = fixture.home.writeFile(u"out/log.txt"_s, "old");
      if (fault == u"gone"_s) fixture.run("delete from log where _rowid > 290000");
      bool begun = false;
      connect(fixture.window().findChild<LogExport*>(), &LogExport::changed, this, [&] {
        if (std::exchange(begun, true)) return;
        QVERIFY(!fixture.enabled("DeleteLogs"));
        if (fault == u"cancelled"_s) fixture.control("ExportProgress")->findChild<QPushButton*>()->click();
        if (fault == u"closed"_s) QVERIFY(fixture.window().close());
      });
      {
        const BoxAnswer box(fault == u"closed"_s ? QMessageBox::Yes : QMessageBox::Ok);
        exportTo(fixture, path);
        QTRY_VERIFY(begun);
        QTRY_COMPARE(box.text().isEmpty(), fault == u"cancelled"_s);
        QCOMPARE(box.text().contains(u"no longer in the log"_s), fault == u"gone"_s);
      }
      QTRY_VERIFY(!SystemLogWindow::openOne() || fixture.enabled("DeleteLogs"));
      QVERIFY(BackgroundCall::waitForAll(60'000));
      QCOMPARE(TemporaryHome::readFile(path), "old");
      QCOMPARE(QDir(fixture.home.path(u"out"_s)).entryList(QDir::Files | QDir::Hidden), QStringList{u"log.txt"_s});
    }
  }

  void sendingAgainMakesAFileDueForTheEngine() {
    EngineBench bench;
    const TaskPointer task = bench.makeTask();
    UploaderTask::addTask(task);
    for (const QString& name : {u"a.txt"_s, u"b.txt"_s, u"gone.txt"_s}) bench.drop(name);
    bench.process(*task);
    QVERIFY(QFile::remove(bench.home.path(u"in/gone.txt"_s)));
    bench.clock.advance(60);
    bench.process(*task);
    QCOMPARE(bench.received().size(), 3);

    SystemLogWindow::bringUp();
    SystemLogWindow& window = *SystemLogWindow::openOne();
    auto* const list = controlOf<LogListView>(window, "TheData");
    QTRY_COMPARE(list->model()->index(2, 0).data().toString(), u"gone.txt"_s);
    const auto choose = [&](QMessageBox::StandardButton button) {
      emit list->customContextMenuRequested({5, 5});
      const std::unique_ptr<QMenu> menu(controlOf<QMenu>(window, "LogRowMenu"));
      auto* const action = menu->findChild<QAction*>(u"SendAgainAction"_s);
      [&] { QTRY_VERIFY(action->isEnabled()); }();
      const BoxAnswer answer(button);
      action->trigger();
      return answer.text();
    };
    list->selectAll();
    QVERIFY(choose(QMessageBox::No).contains(u"\n\na.txt\nb.txt\n\n"_s));
    list->setListIndex(1);
    QVERIFY(choose(QMessageBox::Yes).contains(u"\n\nb.txt\n\n"_s));
    const FolderItem b = bench.home.item(u"in/b.txt"_s);
    QTRY_COMPARE(b.ModificationDate().nanoseconds(), bench.clock.now().nanoseconds());
    for (int pass = 0; pass < 2; ++pass) {
      bench.clock.advance(3);
      bench.process(*task);
      QCOMPARE(bench.received(), (QStringList{u"a.txt"_s, u"b.txt"_s, u"gone.txt"_s, u"b.txt"_s}));
    }
    QCOMPARE(bench.log().size(), 4);
    for (const EngineBench::Row& row : bench.log()) QVERIFY(!isFailure(row[u"Notes"_s].toUtf8()));

    LogFixture::close();
  }

  void theDividerKeepsBothListsUsableAndIsRemembered() {
    LogFixture fixture;
    fixture.fill(1);
    fixture.open();
    QTRY_COMPARE(fixture.rows(), 1);
    auto* const divider = fixture.control("WindowSplitter1");
    for (const int far : {4000, -4000}) {
      QTest::mousePress(divider, Qt::LeftButton, {}, {100, 6});
      QTest::mouseMove(divider, {100, far});
      QVERIFY(fixture.list()->height() >= 35 && fixture.control("LogDetails")->height() >= 35);
    }
    QTest::keyClick(divider, Qt::Key_Down);
    fixture.list()->setColumnWidth(2, 222);
    const int height = fixture.list()->height();
    fixture.close();
    fixture.open();
    QTRY_COMPARE(fixture.list()->columnWidth(2), 222);
    QVERIFY(height > 35 && fixture.list()->height() == height);
  }

  void whatCannotBeDoneNowSaysSo() {
    LogFixture fixture;
    const QString folder = fixture.home.makeFolder(u"hanging-share"_s);
    fixture.home.writeFile(u"hanging-share/a.txt"_s, "a");
    fixture.run("insert into log (OriginalName, InputFolder) values ('a.txt', '" + folder.toUtf8() + "')");
    fixture.open();
    QTRY_COMPARE(fixture.names(), u"a.txt"_s);
    const auto sendAgain = [&fixture] {
      delete fixture.window().findChild<QMenu*>(u"LogRowMenu"_s);
      emit fixture.list()->customContextMenuRequested({5, 5});
      return fixture.control<QMenu>("LogRowMenu")->actions().first();
    };
    fixture.list()->setListIndex(0);
    QAction* action = nullptr;
    {
      const HangingShare hangs;
      action = sendAgain();
      QTRY_COMPARE(action->toolTip(), VTULocalization::klLogBusy());
      QVERIFY(!action->isEnabled());
    }
    QTRY_VERIFY(action->isEnabled());
    fixture.fill(1000);
    fixture.press("REfreshLogButton");
    QTRY_COMPARE(fixture.rows(), 1001);
    fixture.list()->selectAll();
    action = sendAgain();
    QVERIFY(!action->isEnabled() && action->toolTip() == VTULocalization::klSendAgainTooMany());
  }
};

VANTRY_TEST(tst_LogCommands);
#include "tst_LogCommands.moc"
