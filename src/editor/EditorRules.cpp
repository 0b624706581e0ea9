#include "editor/EditorRules.h"

#include "platform/RegEx.h"
#include "text/Placeholders.h"
#include "text/VTULocalization.h"

using namespace Qt::Literals::StringLiterals;

SaveCheck checkCanSave(const FormState& form) {
  SaveCheck check;
  check.nameMissing = form.name.trimmed().isEmpty();
  check.inputMissing = form.input != FolderState::There && form.input != FolderState::Asking;
  check.firstMissing = !form.autoRecognition && !form.firstSelected;
  check.secondMissing = !form.autoRecognition && !form.secondSelected;
  check.canSave = !check.nameMissing && form.input == FolderState::There && !check.firstMissing && !check.secondMissing;
  return check;
}

QStringList extensions() {
  return {u".txt"_s,  u".xml"_s, u".it8"_s, u".svf"_s, u".cxf"_s, u".csv"_s,
          u".clf2"_s, u".mxf"_s, u".jxf"_s, u".pmv"_s, u".qtx"_s};
}

int extensionRow(const QString& extension) {
  const QStringList all = extensions();
  for (int row = 0; row < all.size(); ++row)
    if (all[row].compare(extension, Qt::CaseInsensitive) == 0) return row;
  return 0;
}

int wardenRow(const QString& stored) { return stored.compare(u"print"_s, Qt::CaseInsensitive) == 0 ? 0 : 1; }

QString storedWarden(int row) { return row == 0 ? u"Print"_s : u"Instrument"_s; }

bool isSameFolder(const FolderItem& chosen, const std::optional<FolderItem>& other) {
  return other && chosen.NativePath().compare(other->NativePath(), Qt::CaseInsensitive) == 0;
}

std::optional<PatternError> exclusionError(const QString& pattern) {
  const QString trimmed = pattern.trimmed();
  if (trimmed.isEmpty()) return {};
  const RegEx expression(trimmed);
  if (expression.isValid()) return {};
  const qsizetype at = pattern.indexOf(trimmed) + expression.errorOffset();
  return PatternError{
      fillPlaceholders(VTULocalization::klExclusionInvalid(), {expression.errorString(), QString::number(at + 1)}), at};
}
