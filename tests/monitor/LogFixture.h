#pragma once
// The log viewer over a log of the test's own.

#include "WindowFixture.h"
#include "monitor/SystemLogWindow.h"
#include "platform/SpecialFolder.h"
#include "storage/LogDatabase.h"
#include "storage/LogEntry.h"
#include "support/Sql.h"

class LogFixture : public WindowControls {
 public:
  ProgramHome home;

  LogFixture() {
    if (!SpecialFolder::createPrivate(SpecialFolder::ApplicationData()).ok()) qFatal("no data folder");
    VantryUtil::ConnectToLogDatabase();
    VantryUtil::LogEntry::setRowObserver(&SystemLogWindow::add);
  }
  ~LogFixture() override {
    close();
    if (!BackgroundCall::waitForAll(60'000)) qFatal("a call did not end");
    VantryUtil::LogEntry::setRowObserver({});
    VantryUtil::logDB.reset();
  }

  static constexpr const char* Good = "Uploaded to Print Warden - Saved";
  static void write(const QString& name, const QString& notes = QString::fromLatin1(Good)) {
    VantryUtil::LogEntry entry;
    entry.setValue(QStringLiteral("OriginalName"), name);
    entry.setValue(QStringLiteral("Notes"), notes);
    entry.WriteToLog();
  }
  /// Rows "row 1" and on in one statement, of which the viewer is not told.
  static void fill(int rows) {
    run("with recursive n(i) as (select 1 union all select i + 1 from n where i < " + QByteArray::number(rows) +
        ") insert into log (OriginalName, InputFolder, Notes) select 'row ' || i, '/srv/instruments/out', '" + Good +
        "' from n");
  }
  static void run(const QByteArray& statement) { (void)Sql(file().NativePath()).run(statement.constData()); }
  [[nodiscard]] static FolderItem file() { return VantryUtil::logDB->file(); }
  [[nodiscard]] static QStringList table(const char* column = "OriginalName") {
    return Sql(file().NativePath()).run(QByteArray("select ") + column + " from log order by _rowid");
  }

  static SystemLogWindow& open() { return SystemLogWindow::bringUp(), window(); }
  static SystemLogWindow& window() { return *SystemLogWindow::openOne(); }
  static void close() { delete SystemLogWindow::openOne(); }
  LogListView* list() { return control<LogListView>("TheData"); }
  int rows() { return list()->model()->rowCount(); }
  QString note() {
    const auto* const label = control<QLabel>("ListNote");
    return label->isVisible() ? label->text() : QString();
  }
  /// Lets the queue's rows in, at this pace.
  void takeQueue(int interval) {
    control<QTimer>("LogAddTimer")->setInterval(interval);
    press("AutoRefreshCheckBox");
  }
  /// The first column of the shown rows, as far as they have been read.
  QString names() { return column(*list()->model(), 0).join(u'|'); }
  QString details() {
    const QAbstractItemModel& fields = *control<LogDetailsView>("LogDetails")->model();
    return column(fields, 0).join(u'|') + u'=' + column(fields, 1).join(u'|');
  }

 protected:
  QWidget& shownWindow() override { return window(); }

 private:
  static QStringList column(const QAbstractItemModel& model, int number) {
    QStringList shown;
    for (int row = 0; row < model.rowCount(); ++row) shown << model.index(row, number).data().toString();
    return shown;
  }
};
