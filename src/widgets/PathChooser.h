#pragma once
// Lets the user choose a folder, a file or the name of a new one, modal to one window, without ever waiting for a share
// on the main thread: the place where the dialog begins is asked for in the background, and left out if it doesn't
// answer; from then on the dialog guards itself. Main thread.

#include <QPointer>
#include <QWidget>
#include <functional>
#include <optional>

#include "platform/FolderItem.h"
#include "widgets/BackgroundCall.h"

class GuardedFileDialog;

class PathChooser : public QObject {
 public:
  enum class What { Folder, File, NewFile };
  struct Texts {
    QString title, actionButton, cancelButton, prompt;
    QString proposedName = {};  ///< of a new file
  };
  explicit PathChooser(QWidget* window);
  /// Closes an open dialog; `done` is not called.
  ~PathChooser() override;

  /// Shows the dialog, beginning in `initial` if that is a folder that answers. `done` is called once, with nothing
  /// when the user cancelled. While one is open another isn't begun.
  void choose(What what, const Texts& texts, const std::optional<FolderItem>& initial,
              std::function<void(const std::optional<FolderItem>&)> done);

 private:
  void open(What what, const Texts& texts, const QString& directory);

  QWidget* m_window;
  BackgroundCall m_question;
  QPointer<GuardedFileDialog> m_dialog;
  std::function<void(const std::optional<FolderItem>&)> m_done;
};
