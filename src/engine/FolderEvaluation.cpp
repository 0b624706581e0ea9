// What is due in a task's input folder, and what is remembered of it.

#include <QHash>
#include <algorithm>

#include "engine/DueMemory.h"
#include "engine/EngineClock.h"
#include "engine/UploadThread.h"
#include "engine/UploaderTask.h"
#include "platform/Problems.h"
#include "storage/Preferences.h"
#include "text/VTULocalization.h"

using namespace Qt::Literals::StringLiterals;

static QString limitKey(const QString& name) { return name + u"lastprocessed"_s; }

// The ledger belongs to a folder as much as to a name: tasks of one name share their limit, and their files only where
// they share the folder.
static QString ledgerKey(const QString& name, const QString& folder) { return name + u"lastversions "_s + folder; }

/// Since when the limit lies ahead of us, in seconds since 1970 UTC.
static QString setBackKey(const QString& name, const QString& folder) { return name + u"clocksetback "_s + folder; }

static std::mutex memoryMutex;  // guards the one below, and holds limit and ledger of prefs together while they change

static QHash<QString, quint64>& clearings() {
  static auto* const byName = new QHash<QString, quint64>;  // a thread that hangs may outlive main()
  return *byName;
}

double storedDateLimit(const QString& name) {
  return VantryUtil::prefs ? VantryUtil::prefs->DoubleValue(limitKey(name)) : 0;
}

static DueLimit lockedDueLimit(const QString& name) { return {storedDateLimit(name), clearings().value(name)}; }

DueLimit dueLimit(const QString& name) {
  const std::lock_guard lock(memoryMutex);
  return lockedDueLimit(name);
}

/// A null string if nothing is stored.
static QString storedText(const QString& name, const QString& inputFolderPath) {
  const QString key = ledgerKey(name, inputFolderPath);
  if (!VantryUtil::prefs || !VantryUtil::prefs->HasKey(key)) return {};
  const QString text = VantryUtil::prefs->StringValue(key);
  return text.isNull() ? u""_s : text;
}

static BatchLedger ledgerFrom(const QString& text) {
  BatchLedger ledger;
  if (!text.isNull()) ledger.fromText(text);
  return ledger;
}

BatchLedger storedLedger(const QString& name, const QString& inputFolderPath) {
  return ledgerFrom(storedText(name, inputFolderPath));
}

static void savePreferences() {
  if (VantryUtil::prefs->save())
    Problems::clear(Problem::Kind::PreferencesNotSaved, {});
  else
    Problems::raise(Problem::Kind::PreferencesNotSaved, {}, VantryUtil::prefs->lastFailure().message());
}

double dueCutoff(const QString& name, const QString& inputFolderPath, double limit, const Date& now) {
  const double since = VantryUtil::prefs ? VantryUtil::prefs->DoubleValue(setBackKey(name, inputFolderPath)) : 0;
  return BatchLedger::cutoff(since > 0 ? std::min(limit, since) : limit, now);
}

void UploaderTask::noteClockSetBack(const Date& now) const {
  if (!VantryUtil::prefs || dateLimit <= now.TotalSeconds() + BatchLedger::WindowSeconds) return;
  const QString key = setBackKey(Name, inputFolderPath);
  const double since = VantryUtil::prefs->DoubleValue(key);
  if (since > 0 && since <= now.TotalSeconds()) return;
  VantryUtil::prefs->setDoubleValue(key, now.TotalSeconds());
  savePreferences();
}

void UploaderTask::getDateLimit() {
  const DueLimit stored = dueLimit(Name);
  const std::lock_guard lock(m_ledgerMutex);
  dateLimit = stored.seconds;
  m_clearings = stored.clearings;
}

FolderScanResult UploaderTask::listInputFolder(double above, bool& tooCostly) {
  tooCostly = false;
  const auto keptOut = [&](QByteArrayView name, Verdict why) {
    if (why != Verdict::ExclusionTooCostly) return;
    tooCostly = true;
    Problems::raise(Problem::Kind::ExclusionTooCostly, Name, QString::fromUtf8(name));
  };
  FolderScanResult listing = dueRules().list(*inputFolder, above, &UploadThread::stopping, keptOut);
  if (listing.result.ok() && !tooCostly) Problems::clear(Problem::Kind::ExclusionTooCostly, Name);
  return listing;
}

QList<FolderItem> UploaderTask::EvaluateInputFolder() {
  getDateLimit();
  QList<FolderItem> due;
  if (!inputFolder || !inputFolder->Exists()) return due;
  bool tooCostly = false;
  for (const ScannedFile& scanned : listInputFolder(dateLimit, tooCostly).files)
    due.append(inputFolder->ChildBytes(scanned.name));
  return due;
}

UploaderTask::FolderLook UploaderTask::lookAtInputFolder() {
  getDateLimit();
  const Clock& clock = engineClock();
  FolderLook look;
  look.began = clock.now();
  if (!inputFolder) {
    look.result = IoResult::failure(ENOENT, VTULocalization::klNoInputFolder());
    return look;
  }
  noteClockSetBack(look.began);
  bool tooCostly = false;
  FolderScanResult listing = listInputFolder(dueCutoff(Name, inputFolderPath, dateLimit, look.began), tooCostly);
  // The bare folder under a share that went away would pass for an empty one.
  if (listing.result.ok() && !inputIsThere()) listing.result = IoResult::failure(ENOTCONN, inputFolder->NativePath());
  look.result = listing.result;
  if (!listing.result.ok()) {
    if (listing.result.error != ECANCELED)
      Problems::raise(Problem::Kind::InputFolderUnreadable, Name, listing.result.message());
    return look;
  }
  Problems::clear(Problem::Kind::InputFolderUnreadable, Name);
  look.partial = tooCostly || !listing.unseen.isEmpty();
  if (!listing.unseen.isEmpty())
    tellThatItWaits(listing.unseen, IoResult::failure(listing.unseenError, inputFolder->NativePath()).message());
  const std::lock_guard lock(m_ledgerMutex);
  // An empty memory, and not none: a limit that another folder's task has set since tells nothing of this one's files.
  if (m_ledgerClearings != *m_clearings) m_ledger = ledgerFrom(u""_s);
  m_ledgerClearings = *m_clearings;
  takeOverStored(dateLimit);
  look.files = readLedger().look(listing.files, dateLimit, look.began, clock.monotonicMs());
  const auto stillWaits = [this](const ScannedFile& found) { return found.name == m_waitsFor; };
  if (listing.unseen.isEmpty() && std::none_of(look.files.due.begin(), look.files.due.end(), stillWaits) &&
      std::none_of(look.files.waiting.begin(), look.files.waiting.end(), stillWaits))
    Problems::clear(Problem::Kind::FileWaits, Name);
  return look;
}

qint64 UploaderTask::getFileCount() { return static_cast<qint64>(lookAtInputFolder().files.due.size()); }

BatchLedger& UploaderTask::readLedger() {
  if (!m_ledgerRead) {
    m_ledgerText = storedText(Name, inputFolderPath);
    m_ledger = ledgerFrom(m_ledgerText);
  }
  m_ledgerRead = true;
  return m_ledger;
}

void UploaderTask::takeOverStored(double limit) {
  BatchLedger& ledger = readLedger();
  const QString stored = storedText(Name, inputFolderPath);
  if (stored == m_ledgerText) return;
  m_ledgerText = stored;
  if (!stored.isNull()) ledger.takeOver(stored, limit);
}

void UploaderTask::dealtWith(const ScannedFile& scanned) {
  TaskPointer heir;
  {
    const std::lock_guard lock(m_ledgerMutex);
    readLedger().dealtWith(scanned);
    heir = m_heir;
  }
  if (heir) heir->dealtWith(scanned);
}

void UploaderTask::foundMoving(const ScannedFile& scanned) {
  const std::lock_guard lock(m_ledgerMutex);
  readLedger().foundMoving(scanned, engineClock().monotonicMs());
}

void UploaderTask::tellThatItWaits(const QByteArray& name, const QString& reason) {
  {
    const std::lock_guard lock(m_ledgerMutex);
    m_waitsFor = name;
  }
  Problems::raise(Problem::Kind::FileWaits, Name, QString::fromUtf8(name) + u": "_s + reason);
}

void UploaderTask::closeBatch(const Date& began) {
  double limit = 0;
  {
    const std::lock_guard lock(m_ledgerMutex);
    limit = readLedger().close(began);
  }
  updateDateLimit(false, limit);
}

Verdict UploaderTask::judgeVersion(const ScannedFile& scanned, double limit) const {
  const Clock& clock = engineClock();
  const std::lock_guard lock(m_ledgerMutex);
  // Until the upload thread has read it, what is stored may still change: it isn't kept here.
  const BatchLedger& ledger = m_ledgerRead ? m_ledger : storedLedger(Name, inputFolderPath);
  return ledger.judge(scanned, limit, clock.now(), clock.monotonicMs());
}

void UploaderTask::keepLedger() { storeLedger(std::nullopt); }

void UploaderTask::keepLedgersUnderWay() {
  for (const TaskPointer& task : allTasks())
    if (task->Busy) task->keepLedger();
}

void UploaderTask::storeLedger(std::optional<double> limit) {
  if (!VantryUtil::prefs) return;
  {
    const std::lock_guard lock(m_ledgerMutex);
    if (m_heir) return;  // it knows more by now
    const std::lock_guard storing(memoryMutex);
    const DueLimit stored = lockedDueLimit(Name);
    const bool cleared = m_clearings && stored.clearings != *m_clearings;
    if (cleared || stored.seconds < dateLimit) return;  // all is due again
    // Another of this name may have moved it on while this one's work was left behind.
    const double since = stored.seconds == dateLimit ? 0 : stored.seconds;
    if (limit) VantryUtil::prefs->setDoubleValue(limitKey(Name), std::max(*limit, since));
    if (limit) VantryUtil::prefs->Remove(setBackKey(Name, inputFolderPath));
    takeOverStored(limit.value_or(dateLimit));
    m_ledgerText = readLedger().toText();
    VantryUtil::prefs->setStringValue(ledgerKey(Name, inputFolderPath), m_ledgerText);
  }
  savePreferences();
}

void UploaderTask::updateDateLimit(bool clear, double seconds) {
  if (!clear) return storeLedger(seconds);
  if (!VantryUtil::prefs) return;
  {
    const std::lock_guard lock(memoryMutex);
    VantryUtil::prefs->setDoubleValue(limitKey(Name), 0);
    VantryUtil::prefs->Remove(ledgerKey(Name, inputFolderPath));
    ++clearings()[Name];
  }
  savePreferences();
}
