#include "monitor/WhyText.h"

#include "text/Placeholders.h"
#include "text/VTULocalization.h"
#include "widgets/Captions.h"

using namespace Qt::Literals::StringLiterals;
using namespace VTULocalization;

static QString moment(double seconds) {
  return Date::fromTotalSeconds(seconds).local().toString(u"yyyy-MM-dd HH:mm:ss"_s);
}

QString spanText(double seconds) {
  const auto span = [](const QString& text, double count) {
    return fillPlaceholders(text, {QString::number(static_cast<qint64>(count))});
  };
  if (seconds < 60) return span(klSpanSeconds(), seconds);
  if (seconds < 3600) return span(klSpanMinutes(), seconds / 60);
  if (seconds < 2 * 86400) return span(klSpanHours(), seconds / 3600);
  return span(klSpanDays(), seconds / 86400);
}

namespace {

class Sentences {
 public:
  Sentences(const FileExplanation& explanation, const UploaderTask& task)
      : m_explanation(explanation),
        m_task(task),
        m_changed(explanation.version ? secondsOf(explanation.version->mtimeNs) : 0),
        m_pattern(!task.FileName.trimmed().isEmpty()) {}

  [[nodiscard]] QString of(const FileExplanation::Answer& answer) const {
    return fillPlaceholders(answer.keepsOut ? no(answer.rule) : yes(answer.rule), values(answer.rule));
  }

 private:
  [[nodiscard]] QString yes(Verdict rule) const {
    switch (rule) {
      case Verdict::Due:
        return {};
      case Verdict::Hidden:
        return klYesHidden();
      case Verdict::NotAFile:
        return klYesAFile();
      case Verdict::Ending:
        return klYesEnding();
      case Verdict::Pattern:
        return m_pattern ? klYesPattern() : klYesNoPattern();
      case Verdict::Excluded:
      case Verdict::ExclusionTooCostly:
        return m_task.ExclusionPattern().trimmed().isEmpty() ? klYesNoExclusion() : klYesExcluded();
      case Verdict::Empty:
        return klYesEmpty();
      case Verdict::Older:
        return m_explanation.dateLimit > 0 ? klYesNewer() : klYesNeverProcessed();
      case Verdict::Unreadable:
        return klYesReadable();
      case Verdict::StillMoving:
        return klYesAtRest();
      case Verdict::DealtWith:
        return klYesDealtWith();
    }
    return {};
  }

  [[nodiscard]] QString no(Verdict rule) const {
    switch (rule) {
      case Verdict::Due:
        return {};
      case Verdict::Hidden:
        return klNoHidden();
      case Verdict::NotAFile:
        return klNoAFile();
      case Verdict::Ending:
        return klNoEnding();
      case Verdict::Pattern:
        return m_pattern ? klNoPattern() : klNoNoPattern();
      case Verdict::Excluded:
        return klNoExcluded();
      case Verdict::ExclusionTooCostly:
        return klNoExclusionTooCostly();
      case Verdict::Empty:
        return klNoEmpty();
      case Verdict::Older:
        return klNoOlder();
      case Verdict::Unreadable:
        return klNoReadable();
      case Verdict::StillMoving:
        return klNoAtRest();
      case Verdict::DealtWith:
        return klNoDealtWith();
    }
    return {};
  }

  [[nodiscard]] QStringList values(Verdict rule) const {
    switch (rule) {
      case Verdict::Ending:
        return {m_task.Extension};
      case Verdict::Pattern:
        return {m_pattern ? m_task.FileName : m_task.Extension};
      case Verdict::Excluded:
      case Verdict::ExclusionTooCostly:
        return {m_task.ExclusionPattern().trimmed()};
      case Verdict::Older:
      case Verdict::DealtWith:
        return {moment(m_changed), moment(m_explanation.dateLimit), spanText(m_explanation.dateLimit - m_changed)};
      case Verdict::Due:
      case Verdict::Hidden:
      case Verdict::NotAFile:
      case Verdict::Empty:
      case Verdict::Unreadable:
      case Verdict::StillMoving:
        return {};
    }
    return {};
  }

  const FileExplanation& m_explanation;
  const UploaderTask& m_task;
  double m_changed;
  bool m_pattern;
};

bool concerns(const Problem& problem, const UploaderTask& task) {
  switch (problem.kind) {
    case Problem::Kind::NoLogin:
    case Problem::Kind::ServiceUnreachable:
    case Problem::Kind::ServiceRefuses:
      return true;
    case Problem::Kind::CopyFailed:
    case Problem::Kind::DeleteFailed:
    case Problem::Kind::UploadFailed:
    case Problem::Kind::FileWaits:
    case Problem::Kind::RunFailed:
    case Problem::Kind::InputFolderUnreadable:
    case Problem::Kind::FolderSilent:
    case Problem::Kind::NothingMounted:
    case Problem::Kind::ExclusionInvalid:
      return problem.subject == task.Name;
    case Problem::Kind::ShareNotMounted:
      return (task.AutoMountInputFolder && problem.subject == shareForDisplay(task.inputfolderURL)) ||
             (task.autoMountOutputFolder && problem.subject == shareForDisplay(task.outputFolderUrl));
    case Problem::Kind::ExclusionTooCostly:
    case Problem::Kind::TaskFileSkipped:
    case Problem::Kind::TaskFolderUnreadable:
    case Problem::Kind::PreferencesSetAside:
    case Problem::Kind::PreferencesNotSaved:
    case Problem::Kind::LogSetAside:
    case Problem::Kind::LogUnavailable:
    case Problem::Kind::LogRowLost:
      return false;
  }
  return false;
}

}  // namespace

WhyAnswer whyAnswer(const FileExplanation& explanation, const UploaderTask& task, const QList<Problem>& problems,
                    bool enabled) {
  WhyAnswer answer;
  int reasons = 0;
  const auto add = [&](bool keepsBack, const QString& text) {
    answer.lines.append({keepsBack ? WhyLine::Tone::KeepsBack : WhyLine::Tone::Good, onOneLine(text)});
    reasons += keepsBack ? 1 : 0;
  };
  add(explanation.elsewhere,
      explanation.elsewhere ? fillPlaceholders(klNoPlace(), {task.inputFolderPath}) : klYesPlace());
  add(explanation.taskDisabled, explanation.taskDisabled ? klNoEnabled() : klYesEnabled());
  if (explanation.folderFault) add(true, klNoFolders());
  if (!explanation.result.ok()) add(true, fillPlaceholders(klWhyFailed(), {explanation.result.message()}));
  const Sentences sentences(explanation, task);
  for (const FileExplanation::Answer& rule : explanation.answers) add(rule.keepsOut, sentences.of(rule));

  if (!enabled) answer.lines.append({WhyLine::Tone::Note, klUploadingHeld()});
  for (const Problem& problem : problems)
    if (concerns(problem, task))
      answer.lines.append({WhyLine::Tone::Note, fillPlaceholders(klWhyReported(), {problemText(problem)})});

  if (reasons == 0)
    answer.verdict = klWhyDue();
  else if (reasons == 1)
    answer.verdict = klWhyNotDue();
  else
    answer.verdict = fillPlaceholders(klWhyNotDueSeveral(), {QString::number(reasons)});
  return answer;
}
