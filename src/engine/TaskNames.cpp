// The rules for names: which file names a task takes, and under which name a file goes out.

#include <QStringList>

#include "engine/UploaderTask.h"
#include "platform/Problems.h"

using namespace Qt::Literals::StringLiterals;

void UploaderTask::setExclusionPattern(const QString& pattern) {
  mExclusionPattern = pattern;
  buildExclusionRegEx();
}

void UploaderTask::buildExclusionRegEx() { exclusionRegEx = exclusionOf(mExclusionPattern); }

bool UploaderTask::matchesExclusion(const QString& name) const {
  const Verdict verdict = exclusionVerdict(exclusionRegEx, name);
  if (verdict == Verdict::ExclusionTooCostly) Problems::raise(Problem::Kind::ExclusionTooCostly, Name, name);
  return verdict != Verdict::Due;
}

bool UploaderTask::FileNameMatch(const QString& name) const {
  return patternTakes(FileName, Extension, name) && !matchesExclusion(name);
}

DueRules UploaderTask::dueRules() const { return {Extension, FileName, exclusionRegEx}; }

QString UploaderTask::Rename(const QString& name, const Date& now) const {
  QStringList parts;
  if (!Prefix.isEmpty() && !name.startsWith(Prefix, Qt::CaseInsensitive)) parts << Prefix;
  if (!AddDateToFilename) return (parts << name).join(u'_');

  const QString ext = name.mid(name.lastIndexOf(u'.') + 1).trimmed();
  if (!ReplaceName) parts << name.left(std::max<qsizetype>(0, name.size() - (ext.size() + 1)));
  parts << u"%1-%2"_s.arg(now.Year(), 4, 10, QLatin1Char('0')).arg(now.Month(), 2, 10, QLatin1Char('0'));
  parts << u"%1h%2m%3s"_s.arg(now.Hour(), 2, 10, QLatin1Char('0')).arg(now.Minute()).arg(now.Second());
  parts << u'.' + ext;
  return parts.join(u'_');
}
