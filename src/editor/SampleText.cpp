#include "editor/SampleText.h"

#include "text/Placeholders.h"
#include "text/VTULocalization.h"
#include "widgets/Captions.h"

using namespace Qt::Literals::StringLiterals;
using namespace VTULocalization;

constexpr qsizetype LongestName = 60;

QString verdictWords(Verdict verdict) {
  switch (verdict) {
    case Verdict::Due:
      return {};
    case Verdict::Hidden:
      return klWhyHidden();
    case Verdict::NotAFile:
      return klWhyNotAFile();
    case Verdict::Ending:
      return klWhyEnding();
    case Verdict::Pattern:
      return klWhyPattern();
    case Verdict::Excluded:
      return klWhyExcluded();
    case Verdict::ExclusionTooCostly:
      return klWhyExclusionTooCostly();
    case Verdict::Empty:
      return klWhyEmpty();
    case Verdict::Older:
      return klWhyOlder();
    case Verdict::Unreadable:
      return klWhyUnreadable();
    case Verdict::StillMoving:
      return klWhyStillMoving();
    case Verdict::DealtWith:
      return klWhyDealtWith();
  }
  return {};
}

QString sampleLine(const FolderSample& sample) {
  if (!sample.result.ok()) return fillPlaceholders(klSampleFailed(), {sample.result.message()});
  if (sample.files == 0) return klSampleNoFiles();
  if (sample.matching == 0)
    return sample.files == 1 ? klSampleOneFails() : fillPlaceholders(klSampleNone(), {QString::number(sample.files)});
  QStringList names;
  for (const QString& name : sample.firstMatching) names << onOneLine(name, LongestName);
  if (sample.matching > names.size()) names << u"…"_s;
  const QString listed = names.join(u", "_s);
  if (sample.files == 1) return fillPlaceholders(klSampleOneMatches(), {listed});
  if (sample.matching == 1) return fillPlaceholders(klSampleOneOf(), {QString::number(sample.files), listed});
  return fillPlaceholders(klSampleMatching(),
                          {QString::number(sample.matching), QString::number(sample.files), listed});
}

QString sampleDetails(const FolderSample& sample) {
  if (sample.others.empty()) return {};
  QStringList lines{klSampleKeptOut()};
  for (const FolderSample::Other& other : sample.others)
    lines << onOneLine(QString::fromUtf8(other.name), LongestName) + u" – "_s + verdictWords(other.why);
  const qint64 more = sample.files - sample.matching - static_cast<qint64>(sample.others.size());
  if (more > 0) lines << fillPlaceholders(klSampleAndMore(), {QString::number(more)});
  return lines.join(u'\n');
}
