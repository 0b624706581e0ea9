// The log viewer's rows: what it shows, when, and what its commands do to the view and to the table.

#include <QScrollBar>
#include <thread>

#include "LogFixture.h"

using namespace Qt::Literals::StringLiterals;

class tst_SystemLogWindow : public QObject {
  Q_OBJECT
 private slots:
  void rowsStandInOrderWithTheirFieldsBelowUntilTheyAreDeleted() {
    LogFixture fixture;
    for (const QString& name : {u"b"_s, u"a\tx"_s, u"c"_s}) LogFixture::write(name);
    fixture.open();
    QTRY_COMPARE(fixture.names(), u"b|a x|c"_s);
    fixture.list()->setListIndex(1);
    fixture.list()->selectionModel()->setCurrentIndex(fixture.list()->model()->index(2, 0),
                                                      QItemSelectionModel::Select | QItemSelectionModel::Rows);
    QCOMPARE(fixture.details(),
             u"OriginalName|NewName|InputFolder|OutputFolder|Track|EventTime|Notes=c|n/a|n/a|n/a|n/a|"_s +
                 fixture.table("EventTime").last() + u'|' + QLatin1String(LogFixture::Good));
    fixture.press("CearLogButton");
    QCOMPARE(fixture.details(), u"="_s);
    QVERIFY2(fixture.note().startsWith(u"The view is cleared."_s), qPrintable(fixture.note()));
    QCOMPARE(fixture.table().size(), 3);
    fixture.press("REfreshLogButton");
    QTRY_COMPARE(fixture.rows(), 3);
    for (const char* const button : {"DeleteLogs", "REfreshLogButton"}) fixture.press(button);
    QCOMPARE(fixture.rows(), 0);
    QTRY_COMPARE(fixture.note(), u"The log is empty."_s);
    QCOMPARE(fixture.table(), QStringList());
    fixture.run("drop table log");
    const BoxAnswer ok(QMessageBox::Ok);
    fixture.press("DeleteLogs");
    QTRY_COMPARE(ok.text(), u"VantryUploader.db: no such table: log"_s);
  }

  void anEmptyListSaysWhy() {
    const QString unreadable = u"The log can't be read. VantryUploader.db: "_s;
    for (const auto& [fault, note] :
         {std::pair(u"none"_s, u"The log is empty."_s),
          {u"drop"_s, unreadable + u"no such table: log"_s},
          {u"damage"_s, unreadable + u"file is not a database"_s},
          {u"no log"_s,
           u"There is no log. Uploads go on, but nothing is logged: the disk. When this is repaired, "
           "start the program again."_s}}) {
      LogFixture fixture;
      if (fault == u"drop"_s) fixture.run("drop table log");
      if (fault == u"damage"_s) {
        QFile file(fixture.file().NativePath());
        QVERIFY(file.open(QIODevice::ReadWrite) && file.write(QByteArray(100, 'x')) == 100);
      }
      if (fault == u"no log"_s) {
        VantryUtil::logDB.reset();
        Problems::raise(Problem::Kind::LogUnavailable, {}, u"the disk"_s);
      }
      fixture.open();
      QTRY_COMPARE(fixture.note(), note);
      for (const char* const button : {"REfreshLogButton", "CearLogButton"}) fixture.press(button);
      const BoxAnswer ok(QMessageBox::Ok);
      fixture.press("ExportToText");
      QCOMPARE(ok.text(), u"No records availble"_s);
    }
  }

  void newRowsComeInOrderAndNoneTwice() {
    LogFixture fixture;
    fixture.open();
    QTRY_COMPARE(fixture.note(), u"The log is empty."_s);
    LogFixture::write(u"0"_s);
    fixture.press("REfreshLogButton");  // shows what is queued too
    QTRY_COMPARE(fixture.names(), u"0"_s);
    auto* const timer = fixture.control<QTimer>("LogAddTimer");
    QVERIFY(timer->interval() == 2000 && !timer->isActive());
    std::thread([] {
      for (int i = 1; i <= 3; ++i) LogFixture::write(QString::number(i));
    }).join();
    SystemLogWindow::add(99);  // a row that is deleted by the time it is shown
    LogFixture::write(u"4"_s);
    QCOMPARE(fixture.rows(), 1);
    fixture.takeQueue(1);
    QTRY_COMPARE(fixture.names(), u"0|1|2|3|4"_s);
    fixture.press("AutoRefreshCheckBox");
    QVERIFY(!timer->isActive());
  }

  void aRefreshKeepsTheSelectedRowAndOnlyThenGoesToTheEnd() {
    LogFixture fixture;
    fixture.fill(3000);
    fixture.open();
    auto* const list = fixture.list();
    // At once, before the list has laid out what has just come in.
    const auto place =
        connect(list->model(), &QAbstractItemModel::rowsInserted, list, [list] { list->setScrollPosition(700); });
    QTRY_COMPARE(fixture.rows(), 3000);
    disconnect(place);
    LogFixture::write(u"new"_s);
    fixture.press("REfreshLogButton");
    QTRY_COMPARE(fixture.rows(), 3001);
    QTRY_COMPARE(list->ScrollPosition(), 700);
    list->setListIndex(700);
    fixture.press("REfreshLogButton");
    QTRY_COMPARE(list->ScrollPosition(), list->verticalScrollBar()->maximum());
    QTRY_COMPARE(list->ListIndex(), 700);
    QTRY_VERIFY(fixture.details().contains(u"=row 701|"_s));
  }

  void oneViewerOpensFromTheMainWindowAndForgetsItsQueueAndLateAnswers() {
    LogFixture fixture;
    LogFixture::write(u"1"_s);
    VTUploaderMainWIndow main;
    auto* const button = controlOf<QPushButton>(main, "ShowLogbutton");
    button->click();
    auto* const first = SystemLogWindow::openOne();
    first->setWindowState(Qt::WindowMaximized | Qt::WindowMinimized);
    button->click();
    QVERIFY(SystemLogWindow::openOne() == first && !first->isMinimized() && first->isMaximized());
    QTRY_COMPARE(fixture.names(), u"1"_s);
    SystemLogWindow::add(1);
    QVERIFY(fixture.window().close());
    SystemLogWindow::add(1);
    QTRY_VERIFY(!SystemLogWindow::openOne());
    LogFixture::write(u"2"_s);
    button->click();
    QTRY_COMPARE(fixture.names(), u"1|2"_s);
    fixture.fill(50'000);
    for (int i = 0; i < 20; ++i) {
      fixture.close();
      fixture.open();
      for (int round = 0; round < i; ++round) QCoreApplication::processEvents();
    }
  }

  void neitherTheEventLoopNorAWriterWaitsForALongLog() {
    LogFixture fixture;
    constexpr int rows = 400'000;
    fixture.fill(rows);
    const LoopWatch watch;
    std::atomic<bool> end{false};
    qint64 longestInsert = 0;
    std::thread writer([&] {
      for (QElapsedTimer one; !end;) {
        one.start();
        LogFixture::write(u"row of a batch"_s);
        longestInsert = qMax(longestInsert, one.elapsed());
      }
    });
    fixture.open();
    QTRY_VERIFY(fixture.rows() >= rows);
    for (int i = 0; i < 30; ++i) {
      fixture.list()->setScrollPosition(i * 7919 % rows);
      QCoreApplication::processEvents();
    }
    fixture.list()->selectAll();
    fixture.type("FindField", u"INSTRUMENTS"_s);
    QTRY_COMPARE(fixture.rows(), rows);
    fixture.press("REfreshLogButton");
    QTRY_COMPARE(fixture.rows(), rows);
    end = true;
    writer.join();
    QVERIFY2(watch.longestMs() < 250, qPrintable(QString::number(watch.longestMs())));
    QVERIFY2(longestInsert < 5000, qPrintable(QString::number(longestInsert)));
    QVERIFY(Problems::present().isEmpty());
  }
};

VANTRY_TEST(tst_SystemLogWindow);
#include "tst_SystemLogWindow.moc"
