#include "engine/FileExplanation.h"

#include <algorithm>

#include "engine/DueMemory.h"
#include "engine/EngineClock.h"

bool FileExplanation::due() const {
  return !elsewhere && !taskDisabled && !folderFault && result.ok() && !answers.empty() &&
         std::none_of(answers.begin(), answers.end(), [](const Answer& answer) { return answer.keepsOut; });
}

namespace {

/// Puts together which rules were asked and what each said.
class Questions {
 public:
  Questions(FileExplanation& explanation, const std::vector<Verdict>& against)
      : m_explanation(explanation), m_against(against) {}
  /// Adds the rule's answer; true if it keeps the file out.
  bool ask(Verdict rule) {
    const bool keepsOut = std::find(m_against.begin(), m_against.end(), rule) != m_against.end();
    m_explanation.answers.push_back({rule, keepsOut});
    return keepsOut;
  }

 private:
  FileExplanation& m_explanation;
  const std::vector<Verdict>& m_against;
};

bool isIn(const FolderItem& folder, const QString& path) {
  const auto input = FolderItem::fromNativePath(path);
  return input && input->bytes() == folder.bytes();
}

}  // namespace

FileExplanation explainFile(const UploaderTask& task, const FolderItem& file) {
  FileExplanation explanation;
  const FolderItem folder = file.Parent();
  explanation.name = file.nameBytes();
  explanation.elsewhere = !isIn(folder, task.inputFolderPath);
  explanation.taskDisabled = task.disabled;
  explanation.folderFault = task.Status == UploaderTask::Fault;
  explanation.dateLimit = storedDateLimit(task.Name);
  explanation.version = versionOf(file);

  std::vector<Verdict> against;
  const double cutoff = dueCutoff(task.Name, task.inputFolderPath, explanation.dateLimit, engineClock().now());
  const FolderScanResult found = task.dueRules().one(folder, explanation.name, cutoff, against);
  explanation.result = found.result;
  if (!found.result.ok()) return explanation;
  const bool older = std::find(against.begin(), against.end(), Verdict::Older) != against.end();
  if (!found.files.empty() && !older) against.push_back(task.judgeVersion(found.files.front(), explanation.dateLimit));

  Questions questions(explanation, against);
  if (questions.ask(Verdict::Hidden)) return explanation;
  for (const Verdict rule : {Verdict::Ending, Verdict::Pattern, Verdict::Excluded}) questions.ask(rule);
  if (std::find(against.begin(), against.end(), Verdict::ExclusionTooCostly) != against.end())
    explanation.answers.back() = {Verdict::ExclusionTooCostly, true};
  if (questions.ask(Verdict::NotAFile) || questions.ask(Verdict::Empty)) return explanation;
  const bool unreadable = questions.ask(Verdict::Unreadable);
  if (questions.ask(Verdict::Older) || unreadable) return explanation;
  // Whether a file of another folder is at rest is not known, since the task never saw it.
  if (!questions.ask(Verdict::DealtWith) && !explanation.elsewhere) questions.ask(Verdict::StillMoving);
  return explanation;
}
