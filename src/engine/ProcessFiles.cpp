// One batch of one task: every due file is sent, copied, deleted if the task says so, and logged; then the date limit
// moves. Files are sent on the thread of the task's work; what follows is done in the same order on a thread beside it,
// so that the next file is on its way while a copy and a row reach the disk.

#include <algorithm>
#include <cerrno>
#include <utility>

#include "engine/EngineActivity.h"
#include "engine/EngineClock.h"
#include "engine/KeepSent.h"
#include "engine/OrderedWork.h"
#include "engine/UploadThread.h"
#include "engine/UploaderTask.h"
#include "platform/Problems.h"
#include "platform/SafeFile.h"
#include "service/SpareConnection.h"
#include "service/VantryUtil.h"

using namespace Qt::Literals::StringLiterals;

namespace {

class BusyFlag {
 public:
  explicit BusyFlag(UploaderTask& task) : m_task(task) { m_task.Busy = true; }
  ~BusyFlag() {
    tellBatchEnded(m_task);
    m_task.Busy = false;
  }
  BusyFlag(const BusyFlag&) = delete;
  BusyFlag& operator=(const BusyFlag&) = delete;

 private:
  UploaderTask& m_task;
};

/// A failure of the disk, the share or the machine and not of the file, which therefore waits for a later look. EAGAIN
/// is that of a file which another process holds a lease on, as a file server does for its clients.
bool mayPass(int error) {
  constexpr int known[] = {EIO,          ENOTCONN,   ESTALE, ETIMEDOUT, EHOSTDOWN, EREMOTEIO, EHOSTUNREACH, ENETUNREACH,
                           ECONNABORTED, ECONNRESET, EAGAIN, EBUSY,     ETXTBSY,   EMFILE,    ENFILE,       ENOMEM};
  return std::find(std::begin(known), std::end(known), error) != std::end(known);
}

class Batch {
 public:
  Batch(UploaderTask& task, quint64 loginNumber) : m_task(task), m_loginNumber(loginNumber) {}
  void run() {
    try {
      sendAll();
    } catch (...) {
      breakOff();
      throw;
    }
  }

 private:
  enum class Sent { Whole, Moving, Stopped, FolderLost };

  void sendAll();
  /// True when the batch is to end here: what is left waits for a later run.
  [[nodiscard]] bool over() const {
    return UploadThread::stopping() || m_task.leftBehind || m_outputLost || m_keeping.failed();
  }
  /// False when the batch was broken off: the file counts as not dealt with.
  bool process(const ScannedFile& scanned, bool anotherFollows);
  /// Waits until all that was sent is kept; throws what a keeping threw.
  void settle();
  /// Ends the batch before its time: what was sent is remembered, and the rest stays due.
  void breakOff();
  /// Fills the outcome in where the file, or its absence, is now dealt with.
  Sent send(SentFile& file, bool anotherFollows);
  /// What it means that a file can't be looked at. One that goes with its whole folder is sent when that is back, and
  /// one of which nothing can be told for the moment waits for a later look.
  [[nodiscard]] Sent missing(const FolderItem& file) const {
    if (!m_task.inputIsThere()) return Sent::FolderLost;
    return isGone(file) ? Sent::Whole : Sent::Moving;
  }
  void keep(std::vector<SentFile>& sent);

  UploaderTask& m_task;
  const quint64 m_loginNumber;
  std::atomic<bool> m_outputLost{false};
  SpareConnection m_spare;
  std::atomic<bool> m_dealtWith{false};  // with any file
  bool m_copiesComeBack = false;         // the output folder is the input folder, by another path
  // Ends before what it uses.
  OrderedWork<SentFile> m_keeping{"upload-keep", [this](std::vector<SentFile>& sent) { keep(sent); }};
};

void Batch::sendAll() {
  UploaderTask::FolderLook look = m_task.lookAtInputFolder();
  if (look.files.due.empty()) return;
  m_copiesComeBack = m_task.outputFolder && m_task.outputFolder->isSameAs(*m_task.inputFolder);
  m_keeping.start();  // first: a file that is sent and can't be kept would go out again at every run
  Date limit = look.began;
  while (look.result.ok() && !look.files.due.empty()) {
    limit = look.began;
    for (const ScannedFile& scanned : look.files.due)
      if (over() || !process(scanned, &scanned != &look.files.due.back())) {
        breakOff();
        return m_keeping.throwFailure();
      }
    settle();
    if (m_task.leftBehind || m_outputLost) break;
    // What lands from here on is dated past this look. It waits for the next run, or for the task that took this one's
    // place.
    if (!UploadThread::Enabled || m_task.retired) break;
    look = m_task.lookAtInputFolder();
  }
  if (look.result.ok() && look.files.due.empty()) limit = look.began;
  m_task.closeBatch(look.partial ? Date::fromTotalSeconds(m_task.dateLimit) : limit);
}

void Batch::settle() {
  m_keeping.wait();
  m_keeping.throwFailure();
}

void Batch::breakOff() {
  m_keeping.wait();
  if (m_dealtWith.exchange(false)) m_task.keepLedger();
}

bool Batch::process(const ScannedFile& scanned, bool anotherFollows) {
  SentFile file(m_task.inputFolder->ChildBytes(scanned.name), scanned);
  file.newName = m_task.Rename(file.file.Name(), engineClock().now());
  switch (send(file, anotherFollows)) {
    case Sent::Stopped:
    case Sent::FolderLost:
      return false;
    case Sent::Moving:
      m_task.foundMoving(scanned);
      return true;
    case Sent::Whole:
      break;
  }
  if (file.outcome == SentFile::Outcome::Good) ++m_task.UploadedCount;
  m_keeping.add(std::move(file));
  return true;
}

void Batch::keep(std::vector<SentFile>& sent) {
  const HeldUpCalls::Count counted(m_task.keepingCalls);
  const std::vector<VantryUtil::LogEntry> entries = keepSent(m_task, sent);
  if (!m_task.outputIsThere()) m_outputLost = true;
  for (const SentFile& file : sent) {
    // One that was away at its turn may come back as it was.
    if (file.outcome != SentFile::Outcome::Gone) m_task.dealtWith(file.scanned);
    if (!m_copiesComeBack || !file.copy) continue;
    if (const auto version = versionOf(*file.copy)) m_task.dealtWith({file.copy->nameBytes(), *version});
  }
  m_dealtWith = true;
  VantryUtil::LogEntry::writeAll(entries);
}

Batch::Sent Batch::send(SentFile& file, bool anotherFollows) {
  const auto version = versionOf(file.file);
  if (!version) return missing(file.file);
  if (!m_task.outputIsThere()) return Sent::FolderLost;
  if (m_task.leftBehind) return Sent::Stopped;
  if (*version != file.scanned.version) return Sent::Moving;

  tellSending(m_task, file.file.Name(), version->size);
  VantryUtil::SendFileWatch watch;
  watch.version = *version;
  watch.progress = [this](qint64 sent, qint64 total) { tellProgress(m_task, sent, total); };
  watch.spare = &m_spare;
  watch.anotherFollows = anotherFollows;
  watch.loginNumber = m_loginNumber;
  const bool instrument = m_task.Warden.compare(u"Instrument"_s, Qt::CaseInsensitive) == 0;
  const auto reply = VantryUtil::SendFile(file.newName, m_task.Track, file.file, instrument, file.error, watch);

  if (watch.otherLogin) return Sent::Stopped;
  if (!reply && (UploadThread::stopping() || watch.failure.phase == HttpFailure::Phase::Stopped)) return Sent::Stopped;
  // The share held it up, and the service has not got it whole: it stays due.
  if (!reply && m_task.leftBehind && watch.failure.requestCut) return Sent::Stopped;
  if (!reply && watch.fileChanged) return versionOf(file.file) ? Sent::Moving : missing(file.file);
  if (!reply && watch.failure.phase == HttpFailure::Phase::Source) {
    if (!m_task.inputIsThere()) return Sent::FolderLost;
    if (watch.failure.code == ENOENT) return missing(file.file);
    if (mayPass(watch.failure.code)) {
      m_task.tellThatItWaits(file.scanned.name, watch.failure.detail);
      return Sent::Moving;
    }
  }
  file.outcome = reply ? SentFile::Outcome::Good : SentFile::Outcome::Refused;
  file.transport = watch.failure.detail;
  if (file.error.startsWith(u'E', Qt::CaseInsensitive)) {
    const QString words = VantryUtil::errToString(file.error);
    if (!words.isEmpty()) file.detail = u" - "_s + words;
  }
  return Sent::Whole;
}

}  // namespace

void UploaderTask::ProcessFiles() { ProcessFiles(VantryUtil::account().loginNumber); }

void UploaderTask::ProcessFiles(quint64 loginNumber) {
  const BusyFlag busy(*this);
  Batch(*this, loginNumber).run();
}
