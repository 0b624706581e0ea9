#pragma once
// The program's own folders (XDG Base Directory Specification 0.8). Any thread.

#include "platform/FolderItem.h"
#include "platform/IoResult.h"

namespace SpecialFolder {
/// $XDG_DATA_HOME/vantry-uploader, default ~/.local/share/vantry-uploader. Not made by this call.
[[nodiscard]] FolderItem ApplicationData();
/// $XDG_CONFIG_HOME/vantry-uploader, default ~/.config/vantry-uploader. Not made by this call.
[[nodiscard]] FolderItem Preferences();
/// Makes the folder and its missing parents, private to the user (0700); an existing folder is left as it is.
IoResult createPrivate(const FolderItem& folder);
}  // namespace SpecialFolder
