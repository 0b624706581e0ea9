#include "engine/BatchLedger.h"

#include <QCryptographicHash>
#include <QtEndian>
#include <algorithm>
#include <cmath>
#include <cstring>
#include <utility>

// A local kernel dates a file up to one tick before the moment of writing, in seconds.
static constexpr double KernelTick = 0.01;

static constexpr double FarAhead = 86'400;

// The step in which this date was probably kept, in milliseconds: a finer file system seldom hits a whole second.
static qint64 dateStepMs(qint64 mtimeNs) {
  constexpr qint64 second = 1'000'000'000;
  if (mtimeNs % second != 0) return 0;
  return mtimeNs % (2 * second) == 0 ? 2000 : 1000;
}

double BatchLedger::cutoff(double dateLimit, const Date& now) {
  if (dateLimit <= 0) return dateLimit;
  return std::min(dateLimit, now.TotalSeconds()) - WindowSeconds;
}

BatchLedger::Fingerprint BatchLedger::fingerprint(const ScannedFile& file) {
  QCryptographicHash hash(QCryptographicHash::Blake2b_160);
  const qint64 numbers[2] = {file.version.size, file.version.mtimeNs};
  hash.addData(QByteArrayView(reinterpret_cast<const char*>(numbers), sizeof numbers));
  hash.addData(file.name);
  return qFromLittleEndian<quint64>(hash.result().constData());
}

BatchLedger::Rest BatchLedger::rest(const ScannedFile& file, const Date& began, qint64 monotonicMs) const {
  // Within one step of the date a change of content may not show, so the rest begins a step later.
  const qint64 stepMs = dateStepMs(file.version.mtimeNs);
  const auto known = m_observed.constFind(file.name);
  if (known != m_observed.cend()) {
    const Observation seen = known->version == file.version ? *known : Observation{file.version, monotonicMs};
    return {seen, monotonicMs - seen.movedAtMs >= RestMs + stepMs};
  }
  // Seen for the first time: its date tells how long it has been at rest, unless the date can't be trusted. A file
  // that appeared since the last look but is dated before it comes from a clock that runs behind, or was copied with
  // its date; one dated ahead of us comes from a clock ahead.
  const double date = secondsOf(file.version.mtimeNs);
  const auto ageMs = static_cast<qint64>((began.TotalSeconds() - date) * 1000);
  const double lastLook = m_lastLook > 0 ? m_lastLook : m_limit;
  const bool trusted = ageMs >= 0 && date >= lastLook - static_cast<double>(stepMs) / 1000 - KernelTick;
  const qint64 restedMs = trusted ? ageMs : 0;
  return {{file.version, monotonicMs - restedMs}, restedMs >= RestMs + stepMs};
}

void BatchLedger::takeLimit(double dateLimit) {
  if (dateLimit < m_limit) {
    m_dealtWith.clear();
    m_observed.clear();
    m_lastLook = 0;
  }
  m_limit = dateLimit;
}

BatchLedger::Judgement BatchLedger::judgeVersion(const ScannedFile& file, const Date& began, qint64 monotonicMs) const {
  const Fingerprint print = fingerprint(file);
  if (m_dealtWith.contains(print)) return {Verdict::DealtWith, print, {}};
  // A date ahead of us by more than any share's clock is, and passed by the limit: our clock was set far back, and the
  // file is as old as it was.
  const double date = secondsOf(file.version.mtimeNs);
  if (date > began.TotalSeconds() + FarAhead && date <= m_limit - WindowSeconds) return {Verdict::Older, print, {}};
  // Without a memory the limit is all that an earlier run left us.
  if (!m_hasMemory && date <= m_limit) return {Verdict::Older, print, {}};
  const Rest found = rest(file, began, monotonicMs);
  return {found.longEnough ? Verdict::Due : Verdict::StillMoving, print, found};
}

Verdict BatchLedger::judge(const ScannedFile& file, double dateLimit, const Date& began, qint64 monotonicMs) const {
  if (dateLimit == m_limit) return judgeVersion(file, began, monotonicMs).verdict;
  BatchLedger then(*this);
  then.takeLimit(dateLimit);
  return then.judgeVersion(file, began, monotonicMs).verdict;
}

BatchLedger::Selection BatchLedger::look(const std::vector<ScannedFile>& listing, double dateLimit, const Date& began,
                                         qint64 monotonicMs) {
  takeLimit(dateLimit);
  m_lastListing.clear();
  m_waiting.clear();

  Selection selection;
  QHash<QByteArray, Observation> stillObserved;
  for (const ScannedFile& file : listing) {
    const Judgement judged = judgeVersion(file, began, monotonicMs);
    m_lastListing.insert(judged.print);
    if (judged.verdict == Verdict::Older) m_dealtWith.insert(judged.print, file.version.mtimeNs);
    if (judged.verdict == Verdict::Due) selection.due.push_back(file);
    if (judged.verdict == Verdict::StillMoving) m_waiting.push_back(file);
    if (judged.verdict == Verdict::Due || judged.verdict == Verdict::StillMoving)
      stillObserved.insert(file.name, judged.rest.seen);
  }
  m_hasMemory = true;
  m_observed.swap(stillObserved);
  m_lastLook = began.TotalSeconds();
  selection.waiting = m_waiting;
  return selection;
}

void BatchLedger::dealtWith(const ScannedFile& file) {
  m_dealtWith.insert(fingerprint(file), file.version.mtimeNs);
  m_observed.remove(file.name);
}

void BatchLedger::foundMoving(const ScannedFile& file, qint64 monotonicMs) {
  m_observed.insert(file.name, {file.version, monotonicMs});
  m_waiting.push_back(file);
}

double BatchLedger::close(const Date& began) {
  double limit = began.TotalSeconds();
  for (const ScannedFile& file : m_waiting) {
    const double date = secondsOf(file.version.mtimeNs);
    limit = std::min(limit, std::nextafter(date, date - 1));
  }
  limit = std::max(limit, std::min(m_limit, began.TotalSeconds()));

  m_dealtWith.removeIf(
      [&](const auto& entry) { return secondsOf(entry.value()) > limit && !m_lastListing.contains(entry.key()); });
  forgetBelow(limit - WindowSeconds);
  m_limit = limit;
  return limit;
}

void BatchLedger::forgetBelow(double date) {
  std::vector<std::pair<qint64, Fingerprint>> below;
  for (auto it = m_dealtWith.cbegin(); it != m_dealtWith.cend(); ++it)
    if (secondsOf(it.value()) <= date) below.emplace_back(it.value(), it.key());
  if (below.size() <= MostBelowWindow) return;
  const auto kept = below.end() - MostBelowWindow;
  std::nth_element(below.begin(), kept, below.end());
  for (auto it = below.begin(); it != kept; ++it) m_dealtWith.remove(it->second);
}

QString BatchLedger::toText() const {
  QByteArray bytes;
  bytes.reserve(m_dealtWith.size() * 16);
  for (auto it = m_dealtWith.cbegin(); it != m_dealtWith.cend(); ++it) {
    const quint64 pair[2] = {qToLittleEndian(it.key()), qToLittleEndian(static_cast<quint64>(it.value()))};
    bytes.append(reinterpret_cast<const char*>(pair), sizeof pair);
  }
  return QString::fromLatin1(bytes.toBase64());
}

bool BatchLedger::addText(const QString& text) {
  const auto result = QByteArray::fromBase64Encoding(text.toLatin1(), QByteArray::AbortOnBase64DecodingErrors);
  if (!result || result.decoded.size() % 16 != 0) return false;
  for (qsizetype i = 0; i < result.decoded.size(); i += 16) {
    const char* pair = result.decoded.constData() + i;
    m_dealtWith.insert(qFromLittleEndian<quint64>(pair), qFromLittleEndian<qint64>(pair + 8));
  }
  return true;
}

void BatchLedger::fromText(const QString& text) {
  m_dealtWith.clear();
  m_hasMemory = addText(text);
}

void BatchLedger::takeOver(const QString& text, double dateLimit) {
  takeLimit(dateLimit);
  if (addText(text)) m_hasMemory = true;
}
