#include "platform/SpecialFolder.h"

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <vector>

#include "platform/Reasons.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr auto kOwnName = "vantry-uploader";

QByteArray homePath() {
  QByteArray fromEnvironment = qgetenv("HOME");
  if (fromEnvironment.startsWith('/')) return fromEnvironment;
  std::vector<char> buffer(16384);
  passwd entry{};
  passwd* found = nullptr;
  if (getpwuid_r(geteuid(), &entry, buffer.data(), buffer.size(), &found) == 0 && found && found->pw_dir[0] == '/')
    return found->pw_dir;
  return "/";
}

// The XDG rules have relative paths ignored.
FolderItem ownFolder(const char* variable, const char* fallbackInHome) {
  QByteArray base = qgetenv(variable);
  if (!base.startsWith('/')) base = homePath() + '/' + fallbackInHome;
  return FolderItem::fromBytes(base + '/' + kOwnName).value();
}

}  // namespace

FolderItem SpecialFolder::ApplicationData() { return ownFolder("XDG_DATA_HOME", ".local/share"); }
FolderItem SpecialFolder::Preferences() { return ownFolder("XDG_CONFIG_HOME", ".config"); }

IoResult SpecialFolder::createPrivate(const FolderItem& folder) {
  std::vector<FolderItem> missing;
  for (FolderItem at = folder; !at.Directory(); at = at.Parent()) {
    missing.push_back(at);
    if (at == at.Parent()) break;
  }
  for (auto item = missing.rbegin(); item != missing.rend(); ++item) {
    if (::mkdir(item->bytes().constData(), 0700) == 0) continue;
    const int error = errno;
    // Another process may have made it meanwhile.
    if (error == EEXIST && item->Directory()) continue;
    return IoResult::failure(error == EEXIST ? ENOTDIR : error,
                             fillPlaceholders(Reasons::klMakingFolder(), {item->NativePath()}));
  }
  return {};
}
