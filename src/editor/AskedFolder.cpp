#include "editor/AskedFolder.h"

constexpr int LimitMs = 1000;

AskedFolder::AskedFolder(std::function<void()> changed, QObject* parent)
    : QObject(parent), m_changed(std::move(changed)), m_question("folder-test", this) {}

void AskedFolder::take(const std::optional<FolderItem>& folder) {
  m_question.cancel();
  m_folder = folder;
  m_state = folder ? FolderState::Asking : FolderState::None;
  ask();
}

void AskedFolder::ask() {
  if (!m_folder) return;
  if (m_question.running()) {
    m_askAgain = true;
    return;
  }
  m_askAgain = false;
  m_question.run<bool>(
      LimitMs, [folder = *m_folder](const auto&) { return folder.Exists(); },
      [this](bool there) { answered(there ? FolderState::There : FolderState::Missing); },
      [this] { answered(FolderState::NoAnswer); });
}

void AskedFolder::answered(FolderState state) {
  const bool changed = m_state != state;
  m_state = state;
  if (m_askAgain && !m_question.running()) ask();
  if (changed) m_changed();
}
