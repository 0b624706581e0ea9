#pragma once
// The catalogue of the program's texts: each constant is a key and an English text, looked up in the language tables
// that are loaded at that moment. Any thread.

#include <QList>
#include <QString>

namespace VTULocalization {

struct Entry {
  const char* key;      ///< "owner.constant", under which a translation is filed
  const char* english;  ///< UTF-8
};

/// Every constant of the catalogue, for tests and translators.
[[nodiscard]] QList<Entry> entries();

/// The text of `key` in the user's language, or `defaultText` when the tables hold none. `language` is accepted for
/// the catalogue's form; empty, as all callers give it, stands for the user's own.
[[nodiscard]] QString _GetLocalizedString(const char* key, const char* defaultText, const QString& language = {});

#define VTU_CONSTANT(name, english) [[nodiscard]] QString name(const QString& language = {});
#include "text/VTULocalization.inc"
#undef VTU_CONSTANT

}  // namespace VTULocalization
