#include "monitor/LogRowMenu.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QMenu>
#include <QPointer>

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
    : QObject(list), m_list(list), m_copy("log-copy", this), m_look("log-files", this), m_touch("send-again", this) {
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
  QString question = fillPlaceholders(klSendAgainQuestion(), {namesOf(all)});
  if (!notTaken.isEmpty()) question += u"\n\n"_s + fillPlaceholders(klSendAgainNotTaken(), {namesOf(notTaken)});
  return question;
}

void LogRowMenu::sendAgain() {
  const QList<RepeatableFile> files = std::exchange(m_files, {});
  if (files.isEmpty() || !Messages::askYesNo(m_list->window(), sendAgainQuestion(files))) return;
  m_touch.run<QStringList>(
      0,
      [files](const Cancelled&) {
        QStringList reasons;
        for (const RepeatableFile& one : files)
          if (const IoResult made = makeDueAgain(one.file); !made.ok()) reasons << made.message();
        return reasons;
      },
      [this](const QStringList& reasons) {
        if (reasons.isEmpty()) return;
        const QString shown = reasons.first(qMin(reasons.size(), MostNamed)).join(u'\n');
        Messages::tell(m_list->window(), fillPlaceholders(klSendAgainFailed(), {shown}));
      },
      [this] { Messages::tell(m_list->window(), fillPlaceholders(klSendAgainFailed(), {klLogBusy()})); });
}
