#pragma once
// The language tables that are built into the program, from catalogue key to text, and which of them is the user's.
// English has none: its texts stand in the code.

#include <QString>
#include <QStringList>

namespace Languages {

/// The tables by name: a language, with a territory where the program needs one ("de", "pt_BR"). Any thread.
[[nodiscard]] QStringList shipped();

/// The table of the first language that the program speaks, the most wanted first, given as QLocale::uiLanguages does
/// or as in an environment ("zh-Hans-CN", "pt_PT"). A table serves its language in every territory that writes it in
/// the same script. Empty for English, which ends the search, and when nothing fits. Any thread.
[[nodiscard]] QString choose(const QStringList& wanted);

/// What the table for `language` (any form that `choose` takes) holds for a key; null when it holds nothing. All
/// tables are loaded by the first call. Any thread.
[[nodiscard]] QString lookUp(const QString& language, const char* key);

/// Puts a table in force for the whole program, with Qt's own texts in that language, in place of any before; empty
/// is English. Main thread, before the first window is made and before another thread starts.
void install(const QString& table);

}  // namespace Languages
