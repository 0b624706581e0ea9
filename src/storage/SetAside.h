#pragma once
// Moving a damaged file out of the way of a new one, so that nothing of the user's is destroyed. Any thread.

#include <QString>
#include <QStringList>

#include "platform/FolderItem.h"
#include "platform/IoResult.h"

struct SetAsideResult {
  IoResult result;
  QString name;  ///< the file's new name; empty when it stands where it stood
};

/// Renames "Name.end" to a free name that tells the moment, "Name damaged 2026-11-22 20.35.10.end". Files beside it
/// that belong to it, "Name.end" and a suffix each, go with it under the new name and the same suffix; they go first,
/// for without its file one of them could be taken for part of a new one. A failure moves all of them back.
[[nodiscard]] SetAsideResult setAside(const FolderItem& file, const QStringList& suffixes = {});
