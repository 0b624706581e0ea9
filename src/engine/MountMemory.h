#pragma once
// Which mount point a folder lay under when it was last in order, kept in the preferences: a share that isn't mounted
// leaves an ordinary empty folder behind, and nothing in that folder tells.

#include <functional>

#include "platform/FolderItem.h"
#include "platform/MountTable.h"

/// What is to be remembered of a folder that is in order, after `remembered`; empty for nothing. A folder that was
/// taken as it is ("/") stays so until what should be mounted there is.
[[nodiscard]] QByteArray toRemember(const MountTable& table, const QByteArray& path, const QByteArray& remembered);

/// The mount point under which the folder should lie and doesn't; empty if all is well, and then what it lies under is
/// remembered; `withoutLinks` gets the folder's path. Blocks for the folder and, when what it lies under has changed,
/// for a save of the preferences. Upload threads.
[[nodiscard]] QString missingMountPoint(const FolderItem& folder, QByteArray& withoutLinks);

/// The mount table as it is at the moment, or as a test has scripted it. Any thread.
[[nodiscard]] MountTable mountTableNow();
void setMountTable(std::function<MountTable()> source);
