#pragma once
// What rules that are not a task yet would select in a folder now, by the same judgement as a batch. Any thread;
// blocks for the folder.

#include <QStringList>

#include "engine/DueRules.h"
#include "platform/FolderItem.h"

struct SampleRequest {
  FolderItem folder;
  QString taskName;  ///< date limit and memory are kept under it
  QString extension, pattern, exclusion;
};

struct FolderSample {
  static constexpr int MostMatching = 3, MostOthers = 20;
  struct Other {
    QByteArray name;
    Verdict why;
  };
  IoResult result;            ///< why the folder could not be listed to its end; ECANCELED when `stop` ended it
  qint64 files = 0;           ///< plain files and what may be one
  qint64 matching = 0;        ///< of them; those that still move are counted, for they go out in a moment
  QStringList firstMatching;  ///< by name
  std::vector<Other> others;  ///< the first by name that are kept out
};

[[nodiscard]] FolderSample sampleInputFolder(const SampleRequest& request, const std::function<bool()>& stop);
