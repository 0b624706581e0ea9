#pragma once
// The toolkit's own file dialog, made safe for shares that hang. The toolkit looks at files on the main thread at each
// step: here a step that leads to a share is taken once the share has answered a question that is asked in the
// background, and while it hasn't, a line says so and everything else goes on. Steps on local disks go straight ahead.
// Main thread.

#include <QFileDialog>
#include <QSet>
#include <QTimer>
#include <functional>

#include "widgets/BackgroundCall.h"

class QCompleter;
class QFileSystemModel;
class QLabel;
class QLineEdit;

class GuardedFileDialog : public QFileDialog {
  Q_OBJECT
 public:
  /// Begins in `directory`, which must have answered just now if it lies on a share. With a toolkit that is built
  /// otherwise it is a plain dialog.
  GuardedFileDialog(QWidget* window, const QString& title, const QString& directory);

  /// Closes the dialog for good. It belongs to nobody then and is deleted once its thread, which may hang, is free.
  void retire();
  /// Chooses what is selected or typed, once it answers.
  void accept() override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private slots:
  void goToUrl(const QUrl& url);

 private:
  [[nodiscard]] bool toolkitIsKnown() const;
  void guardViews();
  void guardName();
  void guardPlaces();
  void guardButtons();
  /// Calls `then` at once for a local path, or when the share that `path` lies on has answered.
  void ask(const QString& path, std::function<void()> then);
  void enter(const QString& path);
  void enterParent();
  void createFolder();
  void enterVisited(qsizetype at);
  void handleActivated(const QModelIndex& index);
  void handleSelection();
  void handleText();
  void handleEntered(const QString& path);
  void handleLoaded(const QString& path);
  void tellSilent(const QString& path);
  void enableVisited();
  void callToolkit(const char* slot);
  [[nodiscard]] QString target() const;

  BackgroundCall m_question;
  QTimer m_listing;
  QFileSystemModel* m_model = nullptr;
  QLineEdit* m_name = nullptr;
  QCompleter* m_completer = nullptr;
  QLabel* m_line = nullptr;
  bool m_guarded = false;
  QString m_silent;        // what the line is about
  QSet<QString> m_loaded;  // folders whose files have been listed
  QStringList m_visited;
  qsizetype m_at = -1;  // in m_visited
};
