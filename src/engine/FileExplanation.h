#pragma once
// Why one file was or was not taken by a task, rule by rule, by the same judgement as a batch. Any thread; blocks for
// the file.

#include <vector>

#include "engine/UploaderTask.h"

struct FileExplanation {
  struct Answer {
    Verdict rule;  ///< the rule that was asked
    bool keepsOut;
  };
  QByteArray name;         ///< of the file
  bool elsewhere = false;  ///< not in the task's input folder; the rules are answered for where it is
  bool taskDisabled = false;
  bool folderFault = false;            ///< the task can't use its folders at the moment
  IoResult result;                     ///< why the file's folder could not be read
  double dateLimit = 0;                ///< seconds since 1970 UTC; 0: none
  std::optional<FileVersion> version;  ///< as far as it could be seen
  std::vector<Answer> answers;  ///< in the order in which they are asked; a rule that could not be asked is missing

  /// True when the next run takes the file.
  [[nodiscard]] bool due() const;
};

[[nodiscard]] FileExplanation explainFile(const UploaderTask& task, const FolderItem& file);
