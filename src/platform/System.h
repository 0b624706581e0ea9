#pragma once
// Small services of the machine. Any thread.

#include <QString>

namespace System {
/// One line to the debug log (standard error, journal). Never holds a secret.
void DebugLog(const QString& line);
/// The text that the language tables hold for a catalogue key, or `defaultText` when they hold none. An empty language
/// stands for the one in force (Languages::install). Any thread; nothing is waited for.
[[nodiscard]] QString _GetLocalizedString(const char* key, const char* defaultText, const QString& language = {});
/// Names the calling thread for debuggers and process lists (15 bytes at most).
void nameThisThread(const char* name);
}  // namespace System
