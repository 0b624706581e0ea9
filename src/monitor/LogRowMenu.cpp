#include "monitor/LogRowMenu.h"

#include <QAction>
#include <QClipboard>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QMenu>
#include <QPointer>

#include "monitor/SystemLogWindow.h"
#include "text/Placeholders.h"
#include "text/VTULocalization.h"
#include "widgets/Captions.h"
#include "widgets/Messages.h"

using namespace Qt::Literals::StringLiterals;
using namespace VTULocalization;

constexpr qsizetype MostCopied = 100'000;
constexpr qsizetype MostSentAgain = 1'000;
constexpr qsizetype MostNamed = 12;
constexpr qsizetype LongestName = 80;
constexpr int SlowMs = 2000;

LogRowMenu::LogRowMenu(LogListView* list)
    : QObject(list), m_list(list), m_copy("log-copy", this), m_look("log-files", this) {
  list->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(list, &QWidget::customContextMenuRequested, this, &LogRowMenu::show);
  connect(list, &LogListView::copyWanted, this, &LogRowMenu::copy);
}

void LogRowMenu::copy() {
  const QList<qint64> ids = m_list->selectedIds(MostCopied + 1);
  if (ids.isEmpty() || !m_log) return;
  if (ids.size() > MostCopied) return Messages::tell(m_list->window(), klLogCopyTooMany(), false);
  m_copy.run<CopiedLines>(
      0, [log = *m_log, ids](const Cancelled& cancelled) { return copyRows(log, ids, cancelled); },
      [this](const CopiedLines& copied) {
        if (copied.error.isEmpty()) return QGuiApplication::clipboard()->setText(QString::fromUtf8(copied.lines));
        Messages::tell(m_list->window(), fillPlaceholders(klLogUnreadable(), {copied.error}));
      },
      [this] { Messages::tell(m_list->window(), klLogBusy()); });
}

void LogRowMenu::show(QPoint place) {
  if (m_list->ListIndex() < 0) return;
  auto* const menu = new QMenu(m_list);
  menu->setObjectName(u"LogRowMenu"_s);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  menu->setToolTipsVisible(true);
  QAction* const again = menu->addAction(klSendAgain(), this, &LogRowMenu::sendAgain);
  again->setObjectName(u"SendAgainAction"_s);
  again->setEnabled(false);
  menu->addAction(klCopy(), QKeySequence::Copy, this, &LogRowMenu::copy);
  look(again);
  menu->popup(m_list->viewport()->mapToGlobal(place));
}

static QList<RepeatableFile> filesOf(const LogSource& log, const QList<qint64>& ids, const Cancelled& cancelled) {
  const LogReader::OpenResult opened = LogReader::open(log.file);
  const auto folder = static_cast<int>(log.headers.indexOf(u"InputFolder"_s));
  const auto name = static_cast<int>(log.headers.indexOf(u"OriginalName"_s));
  if (!opened.reader || folder < 0 || name < 0) return {};
  QList<LoggedFile> rows;
  const auto visitor = [&](qint64, const LogReader::Fields& row) {
    rows.append({QString::fromUtf8(row.text(folder)), QString::fromUtf8(row.text(name))});
  };
  QString error;
  if (!opened.reader->visit(ids, visitor, &error)) return {};
  return filesToSendAgain(rows, cancelled);
}

void LogRowMenu::look(QAction* sendAgain) {
  m_files.clear();
  const QList<qint64> ids = m_list->selectedIds(MostSentAgain + 1);
  if (!m_log) return;
  if (ids.size() > MostSentAgain) return sendAgain->setToolTip(klSendAgainTooMany());
  m_look.run<QList<RepeatableFile>>(
      SlowMs, [log = *m_log, ids](const Cancelled& cancelled) { return filesOf(log, ids, cancelled); },
      [this, action = QPointer<QAction>(sendAgain)](const QList<RepeatableFile>& files) {
        m_files = files;
        if (!action) return;
        action->setEnabled(!files.isEmpty());
        action->setToolTip(files.isEmpty() ? klSendAgainNone() : QString());
      },
      [action = QPointer<QAction>(sendAgain)] {
        if (action) action->setToolTip(klLogBusy());
      });
}

/// The files' names under one another, the last ones as a number.
static QString namesOf(const QList<FolderItem>& files) {
  QStringList names;
  for (const FolderItem& file : files.first(qMin(files.size(), MostNamed)))
    names << onOneLine(file.Name(), LongestName);
  if (files.size() > MostNamed)
    names << fillPlaceholders(klSendAgainMore(), {QString::number(files.size() - MostNamed)});
  return names.join(u'\n');
}

QString sendAgainQuestion(const QList<RepeatableFile>& files) {
  QList<FolderItem> all, notTaken;
  for (const RepeatableFile& one : files) {
    all << one.file;
    if (!one.taken) notTaken << one.file;
  }
  QString question =
      fillPlaceholders(all.size() == 1 ? klSendOneAgainQuestion() : klSendAgainQuestion(), {namesOf(all)});
  if (notTaken.isEmpty()) return question;
  const QString waiting = notTaken.size() == 1 ? klSendOneAgainNotTaken() : klSendAgainNotTaken();
  return question + u"\n\n"_s + fillPlaceholders(waiting, {namesOf(notTaken)});
}

/// Sets the dates. It doesn't go with the viewer, since a file that stays as it is must be told of in any case.
static BackgroundCall& touching() {
  static auto* const call = new BackgroundCall("send-again", qApp);
  return *call;
}

static void tellNotSentAgain(qsizetype files, const QString& reasons) {
  const QString text = files == 1 ? klSendOneAgainFailed() : klSendAgainFailed();
  Messages::tell(SystemLogWindow::openOne(), fillPlaceholders(text, {reasons}));
}

void LogRowMenu::sendAgain() {
  const QList<RepeatableFile> files = std::exchange(m_files, {});
  if (files.isEmpty()) return;
  if (touching().running()) return Messages::tell(m_list->window(), klLogBusy());  // it would drop the answer
  if (!Messages::askYesNo(m_list->window(), sendAgainQuestion(files))) return;
  touching().run<QStringList>(
      0,
      [files](const Cancelled&) {
        QStringList reasons;
        for (const RepeatableFile& one : files)
          if (const IoResult made = makeDueAgain(one.file); !made.ok()) reasons << made.message();
        return reasons;
      },
      [](const QStringList& reasons) {
        const QString shown = reasons.first(qMin(reasons.size(), MostNamed)).join(u'\n');
        if (!reasons.isEmpty()) tellNotSentAgain(reasons.size(), shown);
      },
      [count = files.size()] { tellNotSentAgain(count, klLogBusy()); });
}
