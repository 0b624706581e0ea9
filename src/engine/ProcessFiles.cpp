// One batch of one task: every due file is sent, copied, deleted if the task says so, and logged; then the date limit
// moves. Files are sent on the upload thread; what follows is done in the same order on a thread beside it, so that the
// next file is on its way while a copy and a row reach the disk.

#include <utility>

#include "engine/EngineActivity.h"
#include "engine/EngineClock.h"
#include "engine/OrderedWork.h"
#include "engine/UploadThread.h"
#include "engine/UploaderTask.h"
#include "platform/Problems.h"
#include "platform/SafeFile.h"
#include "service/VantryUtil.h"
#include "storage/LogEntry.h"
#include "text/Placeholders.h"
#include "text/VTULocalization.h"

using namespace Qt::Literals::StringLiterals;

namespace {

class BusyFlag {
 public:
  explicit BusyFlag(std::atomic<bool>& flag) : m_flag(flag) { m_flag = true; }
  ~BusyFlag() {
    setEngineActivity({});
    m_flag = false;
  }
  BusyFlag(const BusyFlag&) = delete;
  BusyFlag& operator=(const BusyFlag&) = delete;

 private:
  std::atomic<bool>& m_flag;
};

class Batch {
 public:
  explicit Batch(UploaderTask& task) : m_task(task) {}
  void run() {
    try {
      sendAll();
    } catch (...) {
      tellLedger();
      throw;
    }
  }

 private:
  enum class Sent { Good, Refused, Gone, Moving, Stopped };
  struct Attempt {
    Sent outcome = Sent::Gone;
    QString error;      // as the service or the exchange named it
    QString detail;     // " - " and the words of a service code
    QString transport;  // how the exchange failed, for the window
  };

  void sendAll();
  /// False when the batch was broken off: the file counts as not dealt with.
  bool process(const ScannedFile& scanned);
  /// All that is to be done with a file after it was sent, the log row last.
  void keep(const FolderItem& file, const ScannedFile& scanned, const QString& newName, const Attempt& attempt);
  /// Waits until all that was sent is kept, and tells the ledger.
  void tellLedger();
  /// The same; throws what a keeping threw.
  void settle();
  Attempt send(const FolderItem& file, const ScannedFile& scanned, const QString& newName);
  void keepGood(const FolderItem& file, const ScannedFile& scanned, const QString& newName, VantryUtil::LogEntry& entry);
  void keepFailed(const FolderItem& file, const ScannedFile& scanned, const Attempt& attempt,
                  VantryUtil::LogEntry& entry);
  IoResult copy(const FolderItem& file, const ScannedFile& scanned, FolderItem& target) const;

  UploaderTask& m_task;
  std::vector<ScannedFile> m_kept;  // of the keeping thread until settle() has waited for it
  OrderedWork m_keeping;            // ends before what it uses
};

void Batch::sendAll() {
  UploaderTask::FolderLook look = m_task.lookAtInputFolder();
  if (look.files.due.empty()) return;
  Date limit = look.began;
  while (look.result.ok() && !look.files.due.empty()) {
    limit = look.began;
    for (const ScannedFile& scanned : look.files.due)
      if (UploadThread::stopping() || m_keeping.failed() || !process(scanned)) return settle();
    settle();
    if (!UploadThread::Enabled) break;  // what lands from here on is dated past this look, and waits for the next run
    look = m_task.lookAtInputFolder();
  }
  if (look.result.ok() && look.files.due.empty()) limit = look.began;
  m_task.closeBatch(limit);
}

void Batch::tellLedger() {
  m_keeping.wait();
  for (const ScannedFile& scanned : std::exchange(m_kept, {})) m_task.dealtWith(scanned);
}

void Batch::settle() {
  tellLedger();
  m_keeping.throwFailure();
}

bool Batch::process(const ScannedFile& scanned) {
  const FolderItem file = m_task.inputFolder->ChildBytes(scanned.name);
  const QString newName = m_task.Rename(file.Name(), engineClock().now());
  const Attempt attempt = send(file, scanned, newName);
  if (attempt.outcome == Sent::Stopped) return false;
  if (attempt.outcome == Sent::Moving) {
    m_task.foundMoving(scanned);
    return true;
  }
  if (attempt.outcome == Sent::Good) ++m_task.UploadedCount;
  m_keeping.add([=, this] { keep(file, scanned, newName, attempt); });
  return true;
}

void Batch::keep(const FolderItem& file, const ScannedFile& scanned, const QString& newName, const Attempt& attempt) {
  VantryUtil::LogEntry entry;
  entry.setValue(u"InputFolder"_s, m_task.inputFolder->NativePath());
  entry.setValue(u"OutputFolder"_s, m_task.outputFolder ? m_task.outputFolder->NativePath() : u"n/a"_s);
  entry.setValue(u"OriginalName"_s, file.Name());
  entry.setValue(u"Track"_s, m_task.Track);
  switch (attempt.outcome) {
    case Sent::Stopped:
    case Sent::Moving:
      return;  // nothing was sent whole
    case Sent::Gone:
      entry.setValue(u"Notes"_s, u"File not accessible"_s);
      break;
    case Sent::Good:
      Problems::clear(Problem::Kind::UploadFailed, m_task.Name);
      keepGood(file, scanned, newName, entry);
      break;
    case Sent::Refused:
      keepFailed(file, scanned, attempt, entry);
      break;
  }
  m_kept.push_back(scanned);
  entry.WriteToLog();
}

Batch::Attempt Batch::send(const FolderItem& file, const ScannedFile& scanned, const QString& newName) {
  Attempt attempt;
  const auto version = versionOf(file);
  if (!version) return attempt;
  attempt.outcome = Sent::Moving;
  if (*version != scanned.version) return attempt;

  setEngineActivity({true, m_task.Name, file.Name(), 0, scanned.version.size});
  VantryUtil::SendFileWatch watch;
  watch.version = scanned.version;
  watch.progress = setEngineProgress;
  const bool instrument = m_task.Warden.compare(u"Instrument"_s, Qt::CaseInsensitive) == 0;
  const auto reply = VantryUtil::SendFile(newName, m_task.Track, file, instrument, attempt.error, watch);

  if (reply) attempt.outcome = Sent::Good;
  else if (UploadThread::stopping() || watch.failure.phase == HttpFailure::Phase::Stopped)
    attempt.outcome = Sent::Stopped;
  else if (watch.fileChanged) attempt.outcome = versionOf(file) ? Sent::Moving : Sent::Gone;
  else attempt.outcome = Sent::Refused;

  attempt.transport = watch.failure.detail;
  if (attempt.error.startsWith(u'E', Qt::CaseInsensitive)) {
    const QString words = VantryUtil::errToString(attempt.error);
    if (!words.isEmpty()) attempt.detail = u" - "_s + words;
  }
  return attempt;
}

IoResult Batch::copy(const FolderItem& file, const ScannedFile& scanned, FolderItem& target) const {
  IoResult result;
  const FolderItem wanted = target;
  for (int tries = 0; tries < 100; ++tries) {
    target = wanted;
    UploaderTask::DistinctName(target);
    result = copyFileSafely(file, scanned.version, target);
    if (result.error != EEXIST) break;  // somebody else took the name in between
  }
  if (result.ok()) Problems::clear(Problem::Kind::CopyFailed, m_task.Name);
  else Problems::raise(Problem::Kind::CopyFailed, m_task.Name, file.Name() + u": "_s + result.message());
  return result;
}

void Batch::keepGood(const FolderItem& file, const ScannedFile& scanned, const QString& newName,
                     VantryUtil::LogEntry& entry) {
  QString notes = u"Uploaded to "_s + m_task.Warden;
  if (!m_task.outputFolderPath.isEmpty() && m_task.outputFolder) {
    notes += u" Warden - Saved"_s;
    FolderItem target = m_task.outputFolder->Child(newName);
    const IoResult copied = copy(file, scanned, target);
    entry.setValue(u"Notes"_s, notes);
    if (!copied.ok()) {
      // Without a whole copy the input is all there is: it stays.
      entry.setValue(u"Notes"_s, notes + fillPlaceholders(VTULocalization::klCopyFailedNote(), {copied.message()}));
      return;
    }
    entry.setValue(u"NewName"_s, target.Name());
  }
  if (!m_task.DeleteAfterSave) return;

  const auto version = versionOf(file);
  IoResult deleted = version == scanned.version ? file.Delete() : IoResult();
  if (version && version != scanned.version) return;  // a newer version took its place, and is due by itself
  if (deleted.ok()) {
    entry.setValue(u"Notes"_s, u"Uploaded to "_s + m_task.Warden + u" - Deleted Locally"_s);
    entry.setValue(u"NewName"_s, u"n/a"_s);
  } else {
    Problems::raise(Problem::Kind::CopyFailed, m_task.Name, file.Name() + u": "_s + deleted.message());
    entry.setValue(u"Notes"_s, notes + fillPlaceholders(VTULocalization::klDeleteFailedNote(), {deleted.message()}));
  }
}

void Batch::keepFailed(const FolderItem& file, const ScannedFile& scanned, const Attempt& attempt,
                       VantryUtil::LogEntry& entry) {
  QString notes = u"Failed to upload to "_s + m_task.Warden + u" - moved to error folder. Error Reported: "_s +
                  attempt.error + attempt.detail;
  if (!m_task.outputFolderPath.isEmpty() && m_task.ErrorFolder) {
    FolderItem target = m_task.ErrorFolder->Child(file.Name());
    const IoResult copied = copy(file, scanned, target);
    if (copied.ok()) entry.setValue(u"NewName"_s, target.Name());
    else notes += fillPlaceholders(VTULocalization::klCopyFailedNote(), {copied.message()});
  }
  entry.setValue(u"Notes"_s, notes);
  const QString reason = attempt.error.isEmpty() ? attempt.transport : attempt.error + attempt.detail;
  Problems::raise(Problem::Kind::UploadFailed, m_task.Name, file.Name() + u": "_s + reason);
}

}  // namespace

void UploaderTask::ProcessFiles() {
  const BusyFlag busy(Busy);
  Batch(*this).run();
}
