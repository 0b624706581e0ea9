// The rules for names: which file names a task takes, and under which name a file goes out.

#include <QStringList>

#include "engine/UploaderTask.h"
#include "platform/Problems.h"

using namespace Qt::Literals::StringLiterals;

void UploaderTask::setExclusionPattern(const QString& pattern) {
  mExclusionPattern = pattern;
  buildExclusionRegEx();
}

void UploaderTask::buildExclusionRegEx() {
  exclusionRegEx.reset();
  const QString pattern = mExclusionPattern.trimmed();
  if (!pattern.isEmpty()) exclusionRegEx.emplace(pattern);
}

bool UploaderTask::matchesExclusion(const QString& name) const {
  if (!exclusionRegEx || !exclusionRegEx->isValid()) return false;
  const RegExMatch match = exclusionRegEx->Search(name);
  switch (match.outcome) {
    case RegExMatch::Outcome::NoMatch:
      return false;
    case RegExMatch::Outcome::Match:
      return !match.SubExpressionString(0).isEmpty();
    case RegExMatch::Outcome::TooCostly:
      // The user wanted some files kept back, and this may be one of them.
      m_exclusionTooCostly = true;
      Problems::raise(Problem::Kind::ExclusionTooCostly, Name, name);
      return true;
  }
  return false;
}

static bool matchesPieces(const QString& pattern, QStringView base) {
  for (const QStringView piece : QStringView(pattern).split(u'*')) {
    if (piece.trimmed().isEmpty()) continue;
    const qsizetype at = base.indexOf(piece, 0, Qt::CaseInsensitive);
    if (at < 0) return false;
    base = base.mid(at + piece.size());
  }
  return true;
}

bool UploaderTask::FileNameMatch(const QString& name) const {
  QString ext = name.mid(name.lastIndexOf(u'.') + 1);
  if (!ext.trimmed().isEmpty()) ext.prepend(u'.');
  const QStringView base = QStringView(name).left(std::max<qsizetype>(0, name.size() - ext.size()));

  bool matches = false;
  if (FileName.trimmed().isEmpty()) matches = Extension.compare(ext, Qt::CaseInsensitive) == 0;
  else if (!FileName.contains(u'*')) matches = base.contains(FileName, Qt::CaseInsensitive);
  else matches = matchesPieces(FileName, base);
  return matches && !matchesExclusion(name);  // the costliest test last
}

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
