#include "engine/KeepSent.h"

#include <cerrno>
#include <memory>

#include "platform/Problems.h"
#include "platform/Reasons.h"
#include "platform/SafeFile.h"
#include "text/Placeholders.h"
#include "text/VTULocalization.h"

using namespace Qt::Literals::StringLiterals;

namespace {

class Keeping {
 public:
  Keeping(const UploaderTask& task, SentFile& sent) : m_task(task), m_sent(sent) { startCopy(); }

  [[nodiscard]] SafeCopy* copy() const { return m_copy.get(); }
  void place();
  /// What comes behind the copy, once its name is on the disk as well.
  void finish();
  [[nodiscard]] const VantryUtil::LogEntry& entry() const { return m_entry; }

 private:
  void startCopy();
  void finishGood();
  void finishRefused();
  void deleteInput(const QString& notes);
  /// Of the copy that is wanted; one that can't be begun has failed.
  [[nodiscard]] IoResult copied() const;
  /// False without a whole copy, after telling so.
  bool tellCopy();

  const UploaderTask& m_task;
  SentFile& m_sent;
  std::optional<FolderItem> m_wanted;  // the copy's place, if it is free; none where no folder takes one
  std::unique_ptr<SafeCopy> m_copy;    // none where the share has gone on which it should lie
  std::optional<FolderItem> m_target;
  VantryUtil::LogEntry m_entry;
};

void Keeping::startCopy() {
  if (m_task.outputFolderPath.isEmpty()) return;
  const bool good = m_sent.outcome == SentFile::Outcome::Good;
  const bool refused = m_sent.outcome == SentFile::Outcome::Refused;
  if (good && m_task.outputFolder) m_wanted = m_task.outputFolder->Child(m_sent.newName);
  if (refused && m_task.ErrorFolder) m_wanted = m_task.ErrorFolder->Child(m_sent.file.Name());
  if (m_wanted && m_task.outputIsThere())
    m_copy = std::make_unique<SafeCopy>(m_sent.file, m_sent.scanned.version, m_wanted->Parent());
}

void Keeping::place() {
  if (!m_copy) return;
  for (int tries = 0; tries < 100; ++tries) {
    FolderItem target = *m_wanted;
    UploaderTask::DistinctName(target);
    m_target = target;
    if (m_copy->place(target)) m_sent.copy = target;
    if (m_sent.copy || m_copy->state().error != EEXIST) return;  // else somebody took the name in between
  }
}

IoResult Keeping::copied() const {
  if (m_copy) return m_copy->state();
  const FolderItem folder = m_wanted->Parent();
  // Where a folder stands, it is the bare one under a share that went away.
  return IoResult::failure(folder.Exists() ? ENOTCONN : ENOENT,
                           fillPlaceholders(Reasons::klCopying(), {m_sent.file.NativePath(), folder.NativePath()}));
}

bool Keeping::tellCopy() {
  if (copied().ok()) {
    Problems::clear(Problem::Kind::CopyFailed, m_task.Name);
    return true;
  }
  Problems::raise(Problem::Kind::CopyFailed, m_task.Name, m_sent.file.Name() + u": "_s + copied().message());
  return false;
}

void Keeping::finish() {
  m_entry.setValue(u"InputFolder"_s, m_task.inputFolder->NativePath());
  m_entry.setValue(u"OutputFolder"_s, m_task.outputFolder ? m_task.outputFolder->NativePath() : u"n/a"_s);
  m_entry.setValue(u"OriginalName"_s, m_sent.file.Name());
  m_entry.setValue(u"Track"_s, m_task.Track);
  switch (m_sent.outcome) {
    case SentFile::Outcome::Gone:
      m_entry.setValue(u"Notes"_s, u"File not accessible"_s);
      break;
    case SentFile::Outcome::Good:
      Problems::clear(Problem::Kind::UploadFailed, m_task.Name);
      finishGood();
      break;
    case SentFile::Outcome::Refused:
      finishRefused();
      break;
  }
}

void Keeping::finishGood() {
  QString notes = u"Uploaded to "_s + m_task.Warden;
  if (m_wanted) {
    notes += u" Warden - Saved"_s;
    m_entry.setValue(u"Notes"_s, notes);
    if (!tellCopy()) {
      // Without a whole copy the input is all there is: it stays.
      m_entry.setValue(u"Notes"_s, notes + fillPlaceholders(VTULocalization::klCopyFailedNote(), {copied().message()}));
      return;
    }
    m_entry.setValue(u"NewName"_s, m_target->Name());
  }
  if (m_task.DeleteAfterSave) deleteInput(notes);
}

void Keeping::deleteInput(const QString& notes) {
  const auto version = versionAtServer(m_sent.file);
  if (version && version != m_sent.scanned.version) return;  // a newer one took its place, and is due by itself
  IoResult deleted;
  if (version)
    deleted = m_sent.file.Delete();
  else if (!m_task.inputIsThere() || !isGone(m_sent.file))
    deleted = IoResult::failure(ENOTCONN, m_sent.file.NativePath());
  if (deleted.ok()) {
    Problems::clear(Problem::Kind::DeleteFailed, m_task.Name);
    m_entry.setValue(u"Notes"_s, u"Uploaded to "_s + m_task.Warden + u" - Deleted Locally"_s);
    m_entry.setValue(u"NewName"_s, u"n/a"_s);
    return;
  }
  Problems::raise(Problem::Kind::DeleteFailed, m_task.Name, m_sent.file.Name() + u": "_s + deleted.message());
  m_entry.setValue(u"Notes"_s, notes + fillPlaceholders(VTULocalization::klDeleteFailedNote(), {deleted.message()}));
}

void Keeping::finishRefused() {
  QString notes = u"Failed to upload to "_s + m_task.Warden + u" - moved to error folder. Error Reported: "_s +
                  m_sent.error + m_sent.detail;
  if (m_wanted && tellCopy())
    m_entry.setValue(u"NewName"_s, m_target->Name());
  else if (m_wanted)
    notes += fillPlaceholders(VTULocalization::klCopyFailedNote(), {copied().message()});
  m_entry.setValue(u"Notes"_s, notes);
  const QString reason = m_sent.error.isEmpty() ? m_sent.transport : m_sent.error + m_sent.detail;
  Problems::raise(Problem::Kind::UploadFailed, m_task.Name, m_sent.file.Name() + u": "_s + reason);
}

}  // namespace

std::vector<VantryUtil::LogEntry> keepSent(const UploaderTask& task, std::vector<SentFile>& sent) {
  std::vector<Keeping> group;
  group.reserve(sent.size());
  std::vector<SafeCopy*> copies;
  for (SentFile& file : sent)
    if (SafeCopy* const copy = group.emplace_back(task, file).copy()) copies.push_back(copy);
  for (SafeCopy* const copy : copies) copy->sync();
  for (Keeping& keeping : group) keeping.place();
  SafeCopy::flushFolders(copies);
  std::vector<VantryUtil::LogEntry> entries;
  for (Keeping& keeping : group) {
    keeping.finish();
    entries.push_back(keeping.entry());
  }
  return entries;
}
