#pragma once
// A folder of the form, and whether it is there, asked on a thread of its own so that a share that hangs holds nothing
// up. Main thread.

#include <functional>
#include <optional>

#include "editor/EditorRules.h"
#include "widgets/BackgroundCall.h"

class AskedFolder : public QObject {
 public:
  /// `changed` is called when an answer differs from what was known.
  AskedFolder(std::function<void()> changed, QObject* parent);

  /// Takes another folder over, or none, and asks for it.
  void take(const std::optional<FolderItem>& folder);
  /// Asks again; what is known holds until the answer comes.
  void ask();

  [[nodiscard]] const std::optional<FolderItem>& folder() const { return m_folder; }
  [[nodiscard]] FolderState state() const { return m_state; }

 private:
  void answered(FolderState state);

  std::function<void()> m_changed;
  BackgroundCall m_question;
  std::optional<FolderItem> m_folder;
  FolderState m_state = FolderState::None;
  bool m_askAgain = false;
};
