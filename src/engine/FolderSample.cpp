#include "engine/FolderSample.h"

#include <algorithm>

#include "engine/DueMemory.h"
#include "engine/EngineClock.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// Keeps the first few by name of any number.
class FirstByName {
 public:
  explicit FirstByName(std::vector<FolderSample::Other>& kept) : m_kept(kept) {}
  void add(QByteArrayView name, Verdict why) {
    const auto before = [](const FolderSample::Other& a, QByteArrayView b) { return compareFileNames(a.name, b) < 0; };
    const bool full = m_kept.size() == FolderSample::MostOthers;
    if (full && !(compareFileNames(name, m_kept.back().name) < 0)) return;
    if (full) m_kept.pop_back();
    m_kept.insert(std::lower_bound(m_kept.begin(), m_kept.end(), name, before), {name.toByteArray(), why});
  }

 private:
  std::vector<FolderSample::Other>& m_kept;
};

}  // namespace

FolderSample sampleInputFolder(const SampleRequest& request, const std::function<bool()>& stop) {
  FolderSample sample;
  FirstByName others(sample.others);
  const auto keptOut = [&](QByteArrayView name, Verdict why) {
    if (why == Verdict::NotAFile || name == "."_ba || name == ".."_ba) return;
    ++sample.files;
    others.add(name, why);
  };
  const Clock& clock = engineClock();
  const Date began = clock.now();
  const double limit = storedDateLimit(request.taskName);
  const DueRules rules(request.extension, request.pattern, exclusionOf(request.exclusion));
  const double cutoff = dueCutoff(request.taskName, request.folder.NativePath(), limit, began);
  const FolderScanResult listing = rules.list(request.folder, cutoff, stop, keptOut);
  sample.result = listing.result;

  const BatchLedger ledger = storedLedger(request.taskName, request.folder.NativePath());
  for (const ScannedFile& file : listing.files) {
    const Verdict verdict = ledger.judge(file, limit, began, clock.monotonicMs());
    if (verdict != Verdict::Due && verdict != Verdict::StillMoving) {
      keptOut(file.name, verdict);
      continue;
    }
    ++sample.files;
    if (++sample.matching <= FolderSample::MostMatching) sample.firstMatching << QString::fromUtf8(file.name);
  }
  return sample;
}
