#pragma once
// The catalogue of the program's texts: each constant is a key and an English text, looked up in the language table
// that is in force at that moment (platform/Languages). Any thread.
//
// A constant is a function of its owner, which is the first part of its key: VTULocalization::klAdmin() has the key
// "VTULocalization.klAdmin", VantryUtil::E002() the key "VantryUtil.E002". The task editor's own have the owner
// EditTaskWindow, which is a class; here they stand in the namespace EditTaskWindowText. Those of MainMenuBar stand in
// MenuText likewise.

#include <QList>
#include <QString>

#include "platform/Problems.h"

#define VTU_CONSTANT(name, english) [[nodiscard]] QString name(const QString& language = {});

namespace VTULocalization {

struct Entry {
  const char* key;      ///< "owner.constant", under which a translation is filed
  const char* english;  ///< UTF-8
};

/// Every constant of every owner, for tests and translators.
[[nodiscard]] QList<Entry> entries();

/// The text of `key` in `language` ("de", "pt-BR"), or `defaultText` when its table holds none. Empty, as the windows
/// give it, stands for the user's own language.
[[nodiscard]] QString _GetLocalizedString(const char* key, const char* defaultText, const QString& language = {});

#include "text/VTULocalization.inc"

#include "text/Messages.inc"

#include "text/TaskMessages.inc"

#include "text/LogMessages.inc"

#include "text/AdminMessages.inc"

#include "text/ServiceReasons.inc"

/// The foot strip's line for a problem, with its subject and detail filled in.
[[nodiscard]] QString problemText(const Problem& problem);
/// Why a share could not be mounted, for the code that the mount operation gave.
[[nodiscard]] QString mountFailureText(int errorCode);

}  // namespace VTULocalization

namespace EditTaskWindowText {
#include "text/EditTaskWindowText.inc"
}  // namespace EditTaskWindowText

namespace MenuText {
#include "text/MenuText.inc"
}  // namespace MenuText

namespace VantryUtil {
// To walk them as a table, define VTU_CONSTANT anew and include this file.
#include "text/ServiceErrors.inc"
}  // namespace VantryUtil

#undef VTU_CONSTANT
