#include "engine/DueRules.h"

#include <QStringList>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;

static bool isAscii(QByteArrayView bytes) {
  return std::all_of(bytes.begin(), bytes.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

EndingTest::EndingTest(const QString& extension)
    : m_text(extension), m_bytes(extension.toUtf8()), m_ascii(isAscii(m_bytes)) {}

EndingTest::Answer EndingTest::ask(QByteArrayView name) const {
  if (!m_ascii) return Answer::NeedsText;
  if (name.size() < m_bytes.size()) return isAscii(name) ? Answer::No : Answer::NeedsText;
  const QByteArrayView tail = name.last(m_bytes.size());
  if (!isAscii(tail)) return Answer::NeedsText;
  return qstrnicmp(tail.data(), m_bytes.constData(), m_bytes.size()) == 0 ? Answer::Yes : Answer::No;
}

bool EndingTest::isWhole() const {
  return m_bytes.startsWith('.') && m_bytes.lastIndexOf('.') == 0 && !m_bytes.mid(1).trimmed().isEmpty();
}

static bool takesPieces(const QString& pattern, QStringView base) {
  for (const QStringView piece : QStringView(pattern).split(u'*')) {
    if (piece.trimmed().isEmpty()) continue;
    const qsizetype at = base.indexOf(piece, 0, Qt::CaseInsensitive);
    if (at < 0) return false;
    base = base.mid(at + piece.size());
  }
  return true;
}

bool patternTakes(const QString& pattern, const QString& extension, const QString& name) {
  QString ext = name.mid(name.lastIndexOf(u'.') + 1);
  if (!ext.trimmed().isEmpty()) ext.prepend(u'.');
  if (pattern.trimmed().isEmpty()) return extension.compare(ext, Qt::CaseInsensitive) == 0;
  const QStringView base = QStringView(name).left(std::max<qsizetype>(0, name.size() - ext.size()));
  return pattern.contains(u'*') ? takesPieces(pattern, base) : base.contains(pattern, Qt::CaseInsensitive);
}

std::optional<RegEx> exclusionOf(const QString& pattern) {
  const QString trimmed = pattern.trimmed();
  return trimmed.isEmpty() ? std::nullopt : std::optional<RegEx>(trimmed);
}

Verdict exclusionVerdict(const std::optional<RegEx>& exclusion, const QString& name) {
  if (!exclusion || !exclusion->isValid()) return Verdict::Due;
  const RegExMatch match = exclusion->Search(name);
  switch (match.outcome) {
    case RegExMatch::Outcome::NoMatch:
      return Verdict::Due;
    case RegExMatch::Outcome::Match:
      return match.SubExpressionString(0).isEmpty() ? Verdict::Due : Verdict::Excluded;
    case RegExMatch::Outcome::TooCostly:
      return Verdict::ExclusionTooCostly;  // the user wanted some files kept back, and this may be one of them
  }
  return Verdict::Due;
}

DueRules::DueRules(const QString& extension, const QString& pattern, std::optional<RegEx> exclusion)
    : m_extension(extension),
      m_pattern(pattern),
      m_ending(extension),
      m_exclusion(std::move(exclusion)),
      m_endingDecides(m_ending.isWhole() && pattern.trimmed().isEmpty() && !m_exclusion) {}

Verdict DueRules::judgeName(QByteArrayView raw, std::vector<Verdict>* all) const {
  Verdict first = Verdict::Due;
  const auto keepsOut = [&](Verdict why) {  // true: nothing more is asked
    if (first == Verdict::Due) first = why;
    if (all) all->push_back(why);
    return all == nullptr;
  };
  const EndingTest::Answer ending = m_ending.ask(raw);
  if (m_endingDecides && ending == EndingTest::Answer::Yes) return Verdict::Due;
  const bool mayPass = ending != EndingTest::Answer::No;
  if (!mayPass && keepsOut(Verdict::Ending)) return first;
  const QString name = QString::fromUtf8(raw);
  if (mayPass && !m_ending.passes(name) && keepsOut(Verdict::Ending)) return first;
  // Without a pattern another ending is no second reason.
  const bool patternAsked = first == Verdict::Due || !m_pattern.trimmed().isEmpty();
  if (patternAsked && !patternTakes(m_pattern, m_extension, name) && keepsOut(Verdict::Pattern)) return first;
  const Verdict excluded = exclusionVerdict(m_exclusion, name);  // the costliest test last
  if (excluded != Verdict::Due) keepsOut(excluded);
  return first;
}

static Verdict verdictOf(LeftOut why) {
  switch (why) {
    case LeftOut::Hidden:
      return Verdict::Hidden;
    case LeftOut::NotPlainFile:
      return Verdict::NotAFile;
    case LeftOut::Empty:
      return Verdict::Empty;
    case LeftOut::Date:
      return Verdict::Older;
    case LeftOut::Unreadable:
      return Verdict::Unreadable;
  }
  return Verdict::Unreadable;
}

FolderScanResult DueRules::list(const FolderItem& folder, double above, const std::function<bool()>& stop,
                                const KeptOut& keptOut) const {
  FolderScanRules rules;
  rules.nameWanted = [&](QByteArrayView name) {
    const Verdict verdict = judgeName(name);
    if (verdict != Verdict::Due && keptOut) keptOut(name, verdict);
    return verdict == Verdict::Due;
  };
  rules.dateWanted = [above](qint64 mtimeNs) { return secondsOf(mtimeNs) > above; };
  rules.stopRequested = stop;
  if (keptOut) rules.leftOut = [&keptOut](QByteArrayView name, LeftOut why) { keptOut(name, verdictOf(why)); };
  return scanFolder(folder, rules);
}

FolderScanResult DueRules::one(const FolderItem& folder, const QByteArray& name, double above,
                               std::vector<Verdict>& against) const {
  FolderScanRules rules;
  rules.nameWanted = [&](QByteArrayView raw) {
    (void)judgeName(raw, &against);  // its finds stand in `against`
    return true;
  };
  rules.dateWanted = [&](qint64 mtimeNs) {
    if (secondsOf(mtimeNs) <= above) against.push_back(Verdict::Older);
    return true;
  };
  rules.leftOut = [&](QByteArrayView, LeftOut why) { against.push_back(verdictOf(why)); };
  return scanFile(folder, name, rules);
}
