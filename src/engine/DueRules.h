#pragma once
// The rules by which files of an input folder are due, in one place: what a batch takes, what the editor's sample
// shows and what a user is told about one file are all judged here. A value; any thread; list() and one() block for
// the folder.

#include <functional>
#include <optional>
#include <vector>

#include "platform/FolderScan.h"
#include "platform/RegEx.h"

/// The rule that keeps a file out.
enum class Verdict {
  Due,  ///< none does
  Hidden,
  NotAFile,  ///< a folder or a device, or gone
  Ending,
  Pattern,
  Excluded,
  ExclusionTooCostly,  ///< kept back, for nobody can say in time whether it is excluded
  Empty,
  Older,  ///< not changed since the date limit
  Unreadable,
  StillMoving,  ///< its size or date has moved a moment ago
  DealtWith,    ///< this version was sent, or refused by the service
};

/// Tests a name's ending on the raw bytes where both are plain ASCII, which spares nearly all names the conversion.
class EndingTest {
 public:
  enum class Answer { No, Yes, NeedsText };

  explicit EndingTest(const QString& extension);
  /// Never allocates.
  [[nodiscard]] Answer ask(QByteArrayView name) const;
  [[nodiscard]] bool passes(const QString& name) const { return name.endsWith(m_text, Qt::CaseInsensitive); }
  /// True if a name that passes has just this ending, from its last dot on.
  [[nodiscard]] bool isWhole() const;

 private:
  QString m_text;
  QByteArray m_bytes;
  bool m_ascii;
};

/// The name pattern of a task: pieces between stars in order, or one piece, in the name without its ending; without a
/// pattern the whole ending must be the extension.
[[nodiscard]] bool patternTakes(const QString& pattern, const QString& extension, const QString& name);
/// Due, Excluded or ExclusionTooCostly. An invalid expression excludes nothing.
[[nodiscard]] Verdict exclusionVerdict(const std::optional<RegEx>& exclusion, const QString& name);
/// The expression of a pattern as the user wrote it; none for a blank one.
[[nodiscard]] std::optional<RegEx> exclusionOf(const QString& pattern);

class DueRules {
 public:
  DueRules(const QString& extension, const QString& pattern, std::optional<RegEx> exclusion);

  /// Judges a name, the cheapest rule first: the first that keeps it out, or Due. With `all` every rule is asked, and
  /// each that keeps it out is appended.
  [[nodiscard]] Verdict judgeName(QByteArrayView name, std::vector<Verdict>* all = nullptr) const;

  using KeptOut = std::function<void(QByteArrayView name, Verdict why)>;
  /// The files of a folder that pass by name and are dated above `above` seconds, with one look at the metadata of
  /// each whose name passes. `keptOut` is told of every other entry, and `stop` is asked between two.
  [[nodiscard]] FolderScanResult list(const FolderItem& folder, double above, const std::function<bool()>& stop,
                                      const KeptOut& keptOut) const;
  /// The same for the one entry of that name, but every rule on names is asked, and the date keeps nothing out that
  /// could still be asked for more.
  [[nodiscard]] FolderScanResult one(const FolderItem& folder, const QByteArray& name, double above,
                                     std::vector<Verdict>& against) const;

 private:
  QString m_extension, m_pattern;
  EndingTest m_ending;
  std::optional<RegEx> m_exclusion;
  bool m_endingDecides;  ///< a name that passes by its ending passes
};
