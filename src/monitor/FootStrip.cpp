#include "monitor/FootStrip.h"

#include <QLocale>
#include <algorithm>

#include "monitor/MonitorText.h"
#include "text/Placeholders.h"
#include "text/VTULocalization.h"
#include "widgets/Captions.h"

using namespace Qt::Literals::StringLiterals;

constexpr qsizetype MostTold = 12;

/// The lower, the sooner a person must know.
enum class Rank { NothingIsSent, SomethingAtStake, OneTaskHindered, ToKnow, NoLogin, WaitsForLogin };

static Rank rankOf(Problem::Kind kind) {
  switch (kind) {
    case Problem::Kind::TaskFolderUnreadable:
    case Problem::Kind::ServiceUnreachable:
    case Problem::Kind::ServiceRefuses:
      return Rank::NothingIsSent;
    case Problem::Kind::UploadFailed:
    case Problem::Kind::CopyFailed:
    case Problem::Kind::DeleteFailed:
    case Problem::Kind::RunFailed:
    case Problem::Kind::LogUnavailable:
    case Problem::Kind::LogRowLost:
    case Problem::Kind::PreferencesNotSaved:
      return Rank::SomethingAtStake;
    case Problem::Kind::TaskFileSkipped:
    case Problem::Kind::ExclusionInvalid:
    case Problem::Kind::ExclusionTooCostly:
    case Problem::Kind::InputFolderUnreadable:
    case Problem::Kind::FolderSilent:
    case Problem::Kind::NothingMounted:
    case Problem::Kind::ShareNotMounted:
    case Problem::Kind::FileWaits:
      return Rank::OneTaskHindered;
    case Problem::Kind::PreferencesSetAside:
    case Problem::Kind::LogSetAside:
      return Rank::ToKnow;
    case Problem::Kind::NoLogin:
      return Rank::NoLogin;
  }
  return Rank::ToKnow;
}

/// True for what says already why a task can't use its folders.
static bool tellsOfFolders(Problem::Kind kind) {
  return kind == Problem::Kind::InputFolderUnreadable || kind == Problem::Kind::FolderSilent ||
         kind == Problem::Kind::NothingMounted;
}

/// Everything that is wrong, in words, the most serious first and the oldest first among equals.
static QStringList wrongs(const StripInput& input) {
  struct Wrong {
    Rank rank;
    QString text;
  };
  QList<Wrong> found;
  QStringList toldTasks;
  const bool noLogin = std::any_of(input.problems.begin(), input.problems.end(),
                                   [](const Problem& problem) { return problem.kind == Problem::Kind::NoLogin; });
  for (const Problem& problem : input.problems) {
    const Problem cleaned{problem.kind, onOneLine(problem.subject), onOneLine(problem.detail)};
    // Whoever has not entered a login yet doesn't miss the service.
    const bool waits = noLogin && problem.kind == Problem::Kind::ServiceUnreachable;
    found.append({waits ? Rank::WaitsForLogin : rankOf(problem.kind), VTULocalization::problemText(cleaned)});
    if (tellsOfFolders(problem.kind)) toldTasks << problem.subject;
  }
  for (const QString& task : input.faultyTasks)
    if (!toldTasks.contains(task))
      found.append({Rank::OneTaskHindered, fillPlaceholders(MonitorText::klStripFolderFault(), {onOneLine(task)})});
  std::stable_sort(found.begin(), found.end(), [](const Wrong& a, const Wrong& b) { return a.rank < b.rank; });
  QStringList texts;
  for (const Wrong& wrong : std::as_const(found)) texts << wrong.text;
  return texts;
}

/// Under one another, the last ones as a number: a tool tip must not outgrow the screen.
static QString listed(const QStringList& lines) {
  if (lines.size() <= MostTold) return lines.join(u'\n');
  const QString more = QString::number(lines.size() - MostTold);
  return lines.first(MostTold).join(u'\n') + u'\n' + fillPlaceholders(MonitorText::klStripAndMore(), {more});
}

static QString sendingText(const EngineActivity& activity) {
  const qint64 total = std::max<qint64>(activity.totalBytes, 1);
  const qint64 sent = std::clamp<qint64>(activity.sentBytes, 0, total);
  const auto percent = static_cast<int>(100.0 * static_cast<double>(sent) / static_cast<double>(total));
  return fillPlaceholders(VTULocalization::klStripSending(),
                          {onOneLine(activity.task), onOneLine(activity.file), QString::number(percent)});
}

static QString momentText(const QDateTime& moment, const QDateTime& now) {
  const QLocale locale;
  return moment.date() == now.date() ? locale.toString(moment.time(), QLocale::ShortFormat)
                                     : locale.toString(moment, QLocale::ShortFormat);
}

bool isWell(const StripInput& input) { return input.problems.isEmpty() && input.faultyTasks.isEmpty() && !input.held; }

StripLine composeStrip(const StripInput& input) {
  using Tone = StripLine::Tone;
  const QStringList wrong = wrongs(input);
  const auto withDetails = [&wrong](Tone tone, const QString& text) {
    return StripLine{tone, text, {}, listed(QStringList(text) + wrong)};
  };
  if (!input.notice.isEmpty()) return withDetails(Tone::Quiet, onOneLine(input.notice));
  if (input.activity.sending) return withDetails(Tone::Sending, sendingText(input.activity));
  if (!wrong.isEmpty()) {
    const QString more = wrong.size() == 1
                             ? QString()
                             : fillPlaceholders(MonitorText::klStripAndMore(), {QString::number(wrong.size() - 1)});
    return {Tone::Wrong, wrong.first(), more, listed(wrong)};
  }
  switch (input.phase) {
    case StartPhase::Connecting:  // held or not, as nothing is sent before the tasks are there
      return withDetails(Tone::Quiet, VTULocalization::klStripConnecting());
    case StartPhase::Checking:
      if (input.held) break;
      return withDetails(Tone::Quiet, VTULocalization::klStripChecking());
    case StartPhase::Running:
      break;
  }
  if (input.held) return withDetails(Tone::Quiet, VTULocalization::klUploadingHeld());
  return withDetails(Tone::Well,
                     fillPlaceholders(VTULocalization::klStripAllWell(), {momentText(input.wellSince, input.now)}));
}

QDateTime WellSince::update(const StripInput& input) {
  if (input.phase != StartPhase::Running || !isWell(input))
    m_since = QDateTime();
  else if (!m_since.isValid())
    m_since = input.now;
  return m_since;
}
