// What is due in a task's input folder.

#include "engine/EngineClock.h"
#include "engine/UploadThread.h"
#include "engine/UploaderTask.h"
#include "platform/FolderScan.h"
#include "platform/Problems.h"
#include "storage/Preferences.h"

using namespace Qt::Literals::StringLiterals;

static QString limitKey(const QString& name) { return name + u"lastprocessed"_s; }

// The ledger belongs to a folder as much as to a name: tasks of one name share their limit, not their files.
static QString ledgerKey(const UploaderTask& task) { return task.Name + u"lastversions "_s + task.inputFolderPath; }

namespace {

bool isAscii(QByteArrayView bytes) {
  return std::all_of(bytes.begin(), bytes.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

/// Judges names by their raw bytes as far as these tell, which spares nearly all names the conversion to text.
class RawNameTest {
 public:
  enum class Verdict { Fails, Passes, NeedsText };

  explicit RawNameTest(const UploaderTask& task)
      : m_ending(task.Extension.toUtf8()),
        m_ascii(isAscii(m_ending)),
        m_endingDecides(isWholeEnding(m_ending) && task.FileName.trimmed().isEmpty() &&
                        task.ExclusionPattern().trimmed().isEmpty()) {}

  [[nodiscard]] Verdict judge(QByteArrayView name) const {
    if (!m_ascii) return Verdict::NeedsText;
    if (name.size() < m_ending.size()) return isAscii(name) ? Verdict::Fails : Verdict::NeedsText;
    const QByteArrayView tail = name.last(m_ending.size());
    if (!isAscii(tail)) return Verdict::NeedsText;
    if (qstrnicmp(tail.data(), m_ending.constData(), m_ending.size()) != 0) return Verdict::Fails;
    return m_endingDecides ? Verdict::Passes : Verdict::NeedsText;
  }

 private:
  /// A name that ends so has this ending, from its last dot on, as FileNameMatch() takes it.
  static bool isWholeEnding(const QByteArray& ending) {
    return ending.startsWith('.') && ending.lastIndexOf('.') == 0 && !ending.mid(1).trimmed().isEmpty();
  }

  QByteArray m_ending;
  bool m_ascii;
  bool m_endingDecides;
};

FolderScanResult listFolder(const UploaderTask& task, double above) {
  const RawNameTest rawTest(task);
  FolderScanRules rules;
  rules.nameWanted = [&](QByteArrayView raw) {
    const RawNameTest::Verdict verdict = rawTest.judge(raw);
    if (verdict != RawNameTest::Verdict::NeedsText) return verdict == RawNameTest::Verdict::Passes;
    const QString name = QString::fromUtf8(raw);
    return name.endsWith(task.Extension, Qt::CaseInsensitive) && task.FileNameMatch(name);
  };
  rules.dateWanted = [above](qint64 mtimeNs) { return secondsOf(mtimeNs) > above; };
  rules.stopRequested = [] { return UploadThread::stopping(); };
  return scanFolder(*task.inputFolder, rules);
}

}  // namespace

void UploaderTask::getDateLimit() { dateLimit = VantryUtil::prefs ? VantryUtil::prefs->DoubleValue(limitKey(Name)) : 0; }

QList<FolderItem> UploaderTask::EvaluateInputFolder() {
  getDateLimit();
  QList<FolderItem> due;
  if (!inputFolder || !inputFolder->Exists()) return due;
  for (const ScannedFile& scanned : listFolder(*this, dateLimit).files)
    due.append(inputFolder->ChildBytes(scanned.name));
  return due;
}

BatchLedger& UploaderTask::ledger() {
  if (!m_ledgerRead && VantryUtil::prefs && VantryUtil::prefs->HasKey(ledgerKey(*this)))
    m_ledger.fromText(VantryUtil::prefs->StringValue(ledgerKey(*this)));
  m_ledgerRead = true;
  return m_ledger;
}

UploaderTask::FolderLook UploaderTask::lookAtInputFolder() {
  getDateLimit();
  const Clock& clock = engineClock();
  FolderLook look;
  look.began = clock.now();
  if (!inputFolder) {
    look.result = IoResult::failure(ENOENT, u"the task has no input folder"_s);
    return look;
  }
  m_exclusionTooCostly = false;
  const FolderScanResult listing = listFolder(*this, BatchLedger::cutoff(dateLimit, look.began));
  look.result = listing.result;
  if (!listing.result.ok()) {
    if (listing.result.error != ECANCELED)
      Problems::raise(Problem::Kind::InputFolderUnreadable, Name, listing.result.message());
    return look;
  }
  Problems::clear(Problem::Kind::InputFolderUnreadable, Name);
  if (!m_exclusionTooCostly) Problems::clear(Problem::Kind::ExclusionTooCostly, Name);
  look.files = ledger().look(listing.files, dateLimit, look.began, clock.monotonicMs());
  return look;
}

qint64 UploaderTask::getFileCount() { return static_cast<qint64>(lookAtInputFolder().files.due.size()); }

void UploaderTask::updateDateLimit(bool clear, double seconds) {
  if (!VantryUtil::prefs) return;
  DictionaryFile& prefs = *VantryUtil::prefs;
  prefs.setDoubleValue(limitKey(Name), clear ? 0 : seconds);
  if (clear) prefs.Remove(ledgerKey(*this));
  else prefs.setStringValue(ledgerKey(*this), ledger().toText());
  if (prefs.save()) Problems::clear(Problem::Kind::PreferencesNotSaved, {});
  else Problems::raise(Problem::Kind::PreferencesNotSaved, {}, prefs.lastFailure().message());
}
