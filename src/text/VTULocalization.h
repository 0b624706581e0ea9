#pragma once
// The catalogue of the program's texts: each constant is a key and an English text, looked up in the language tables
// that are loaded at that moment. Any thread.
//
// A constant is a function of its owner, which is the first part of its key: VTULocalization::klAdmin() has the key
// "VTULocalization.klAdmin", VantryUtil::E002() the key "VantryUtil.E002". The task editor's own have the owner
// EditTaskWindow, which is a class; here they stand in the namespace EditTaskWindowText.

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

/// The text of `key` in the user's language, or `defaultText` when the tables hold none. `language` is accepted for
/// the catalogue's form; empty, as all callers give it, stands for the user's own.
[[nodiscard]] QString _GetLocalizedString(const char* key, const char* defaultText, const QString& language = {});

#include "text/VTULocalization.inc"

#include "text/Messages.inc"

#include "text/TaskMessages.inc"

/// The foot strip's line for a problem, with its subject and detail filled in.
[[nodiscard]] QString problemText(const Problem& problem);

}  // namespace VTULocalization

namespace EditTaskWindowText {
#include "text/EditTaskWindowText.inc"
}  // namespace EditTaskWindowText

namespace VantryUtil {
// To walk them as a table, define VTU_CONSTANT anew and include this file.
#include "text/ServiceErrors.inc"
}  // namespace VantryUtil

#undef VTU_CONSTANT
