#pragma once
// The rules of the task editor, apart from its window: what blocks saving, which rows a task's settings select, which
// folders may be chosen. Plain functions on values; any thread; none touches the disk.

#include <QString>
#include <QStringList>

#include "platform/FolderItem.h"

/// What is known of a folder of the form.
enum class FolderState {
  None,    ///< none is chosen
  Asking,  ///< just chosen, and not answered yet
  There,
  Missing,
  NoAnswer,  ///< its share does not answer
};

struct FormState {
  QString name;
  FolderState input = FolderState::None;
  bool autoRecognition = false;
  bool firstSelected = false;   ///< a row of TrackList1
  bool secondSelected = false;  ///< a row of TrackList2
};

/// What is missing, and shown in red.
struct SaveCheck {
  bool nameMissing = false;
  bool inputMissing = false;
  bool firstMissing = false;
  bool secondMissing = false;
  bool canSave = false;
  bool operator==(const SaveCheck&) const = default;
};
[[nodiscard]] SaveCheck checkCanSave(const FormState& form);

/// The endings that a task can be given, in their order.
[[nodiscard]] QStringList extensions();
/// The row of an ending, without regard to case; the first for one that isn't there.
[[nodiscard]] int extensionRow(const QString& extension);

/// The row of `Warden` that shows a stored text: 0 for "print", otherwise 1.
[[nodiscard]] int wardenRow(const QString& stored);
/// What a row of `Warden` stores in every language.
[[nodiscard]] QString storedWarden(int row);

/// Whether `chosen` is the other folder of the task by its path, without regard to case.
[[nodiscard]] bool isSameFolder(const FolderItem& chosen, const std::optional<FolderItem>& other);

/// Why a text is no exclusion pattern.
struct PatternError {
  QString message;   ///< for the user
  qsizetype at = 0;  ///< in the text as it was given
};
[[nodiscard]] std::optional<PatternError> exclusionError(const QString& pattern);
