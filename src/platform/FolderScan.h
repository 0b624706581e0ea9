#pragma once
// One pass over a folder that may hold a hundred thousand files: names are tested before any metadata is fetched,
// and each file that passes costs one look at its metadata (a round trip on a share). Linux: getdents64 and fstatat.

#include <QByteArrayView>
#include <functional>
#include <vector>

#include "platform/FolderItem.h"
#include "platform/IoResult.h"
#include "platform/SafeFile.h"

struct ScannedFile {
  QByteArray name;  ///< native bytes
  FileVersion version;
};

struct FolderScanResult {
  IoResult result;                 ///< why the folder could not be listed to its end; the files are then incomplete
  std::vector<ScannedFile> files;  ///< in order of their names (case-insensitive, ties by exact bytes)
  QByteArray unseen;               ///< a file that could not be looked at, so that nothing is known of it; may be empty
  int unseenError = 0;             ///< why
};

/// Why the scan left an entry out, beside its name.
enum class LeftOut { Hidden, NotPlainFile, Empty, Date, Unreadable };

struct FolderScanRules {
  /// Called with each visible name (no leading dot), in no order; false leaves the file out without looking at it.
  std::function<bool(QByteArrayView name)> nameWanted;
  /// Called with the date of each non-empty plain file that passed by name; false leaves it out.
  std::function<bool(qint64 mtimeNs)> dateWanted;
  /// Asked between files; true ends the pass early with ECANCELED.
  std::function<bool()> stopRequested;
  /// Told of each entry that is left out for another reason than nameWanted. A name that is gone, or a link that
  /// leads nowhere, is no plain file.
  std::function<void(QByteArrayView name, LeftOut why)> leftOut;
};

/// The visible, readable, non-empty plain files (links followed, folders not descended into) that pass the rules.
/// Blocks for the folder.
[[nodiscard]] FolderScanResult scanFolder(const FolderItem& folder, const FolderScanRules& rules);
/// The same judgement for the one entry of that name; `files` holds it if it passes.
[[nodiscard]] FolderScanResult scanFile(const FolderItem& folder, const QByteArray& name, const FolderScanRules& rules);
