#include "platform/RegEx.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

// PCRE2 counts its effort anew at every place where a match may begin, so a name of 255 characters may cost 255
// times the limit. A first search with a small limit answers for most patterns; what it gives up on is searched again
// with all places inside one match, where the larger limit bounds the sum. Both measured for about 0.1 ms.
struct Effort {
  int perPlace, inAll;
};
constexpr Effort kUsual{31, 8000};
constexpr Effort kWithLongSteps{5, 1300};  // each goes over a piece of the name
constexpr int kPerPlaceAlone = 160;        // of a pattern that can't be searched the second way
constexpr int kDepth = 4000;

QString limits(int effort) { return u"(*LIMIT_MATCH=%1)(*LIMIT_DEPTH=%2)"_s.arg(effort).arg(kDepth); }

QRegularExpression compiled(const QString& pattern) {
  QRegularExpression expression(pattern, QRegularExpression::CaseInsensitiveOption);
  if (expression.isValid()) expression.optimize();
  return expression;
}

// Verbs act on the search as a whole, and recursion into "the whole pattern" would take in what stands around it.
bool dependsOnWholePattern(const QString& pattern) {
  for (const auto& sign : {"(*"_L1, "(?R"_L1, "(?0"_L1, "\\g"_L1})
    if (pattern.contains(sign)) return true;
  return false;
}

// Back references, characters with their marks, and single units, for which nothing is compiled.
bool hasLongSteps(const QString& pattern) {
  static const QRegularExpression longStep(u"\\\\[1-9gkXC]|\\(\\?P="_s);
  return longStep.match(pattern).hasMatch();
}

// The \E ends a quotation that the pattern left open; the line end ends a comment in it.
QRegularExpression withPlacesInside(const QString& pattern, int effort) {
  const QString begin = limits(effort) + u"\\A(?s:.*?)\\K(?:"_s + pattern;
  QRegularExpression expression = compiled(begin + u"\\E)"_s);
  if (!expression.isValid()) expression = compiled(begin + u"\\E\n)"_s);
  return expression;
}

}  // namespace

RegEx::RegEx(const QString& pattern) : m_patternLength(pattern.size()) {
  const Effort effort = hasLongSteps(pattern) ? kWithLongSteps : kUsual;
  m_perPlace = compiled(limits(effort.perPlace) + pattern);
  if (!m_perPlace.isValid()) return;
  if (!dependsOnWholePattern(pattern)) m_inAll = withPlacesInside(pattern, effort.inAll);
  // Groups numbered otherwise would mean that the pattern was not what it seemed.
  if (m_inAll && m_inAll->isValid() && m_inAll->captureCount() == m_perPlace.captureCount()) return;
  m_inAll.reset();
  m_perPlace = compiled(limits(kPerPlaceAlone) + pattern);
}

bool RegEx::isValid() const { return m_perPlace.isValid(); }

QString RegEx::errorString() const { return isValid() ? QString() : m_perPlace.errorString(); }

qsizetype RegEx::errorOffset() const {
  if (isValid()) return -1;
  const qsizetype before = m_perPlace.pattern().size() - m_patternLength;
  return std::clamp<qsizetype>(m_perPlace.patternErrorOffset() - before, 0, m_patternLength);
}

RegExMatch RegEx::Search(const QString& subject) const {
  RegExMatch found;
  if (!isValid()) return found;
  QRegularExpressionMatch match = m_perPlace.match(subject);
  // A search that was broken off has no match either; only its validity tells the two apart.
  if (!match.isValid() && m_inAll) match = m_inAll->match(subject);
  if (!match.isValid()) found.outcome = RegExMatch::Outcome::TooCostly;
  if (!match.hasMatch()) return found;
  found.outcome = RegExMatch::Outcome::Match;
  found.texts = match.capturedTexts();
  return found;
}
