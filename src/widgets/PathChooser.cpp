#include "widgets/PathChooser.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileIconProvider>
#include <QGridLayout>
#include <QLabel>

#include "widgets/GuardedFileDialog.h"

using namespace Qt::Literals::StringLiterals;

constexpr int LimitMs = 400;

PathChooser::PathChooser(QWidget* window) : QObject(window), m_window(window), m_question("chooser", this) {}

PathChooser::~PathChooser() {
  if (!m_dialog) return;
  m_dialog->disconnect(this);
  m_dialog->retire();
}

void PathChooser::choose(What what, const Texts& texts, const std::optional<FolderItem>& initial,
                         std::function<void(const std::optional<FolderItem>&)> done) {
  if (m_dialog || m_question.running()) return;
  m_done = std::move(done);
  if (!initial) return open(what, texts, QDir::homePath());
  m_question.run<bool>(
      LimitMs, [folder = *initial](const auto&) { return folder.Directory() && folder.IsReadable(); },
      [=, this](bool usable) { open(what, texts, usable ? initial->NativePath() : QDir::homePath()); },
      [=, this] {
        m_question.cancel();
        open(what, texts, QDir::homePath());
      });
}

namespace {
/// The toolkit's own looks into each file to tell its type, on the main thread.
class PlainIcons : public QFileIconProvider {
 public:
  [[nodiscard]] QIcon icon(const QFileInfo& info) const override {
    return QFileIconProvider::icon(info.isDir() ? Folder : File);
  }
  [[nodiscard]] QString type(const QFileInfo& info) const override {
    // The words of the toolkit's own provider, which are translated where these are not.
    return QCoreApplication::translate("QAbstractFileIconProvider", info.isDir() ? "Folder" : "File");
  }
};
}  // namespace

/// Puts the prompt above everything else in the toolkit's own dialog, which knows none.
static void addPrompt(QFileDialog& dialog, const QString& prompt) {
  auto* const grid = qobject_cast<QGridLayout*>(dialog.layout());
  if (prompt.isEmpty() || !grid) return;
  auto* const label = new QLabel(prompt, &dialog);
  label->setObjectName(u"PromptText"_s);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  grid->addWidget(label, grid->rowCount(), 0, 1, grid->columnCount());
}

void PathChooser::open(What what, const Texts& texts, const QString& directory) {
  auto* const dialog = new GuardedFileDialog(m_window, texts.title, directory);
  m_dialog = dialog;
  dialog->setOption(QFileDialog::DontUseCustomDirectoryIcons);
  static auto* const icons = new PlainIcons;  // never destroyed: the dialog's thread asks it, too
  dialog->setIconProvider(icons);
  dialog->setOption(QFileDialog::ShowDirsOnly, what == What::Folder);
  switch (what) {
    case What::Folder:
      dialog->setFileMode(QFileDialog::Directory);
      break;
    case What::File:
      dialog->setFileMode(QFileDialog::ExistingFile);
      break;
    case What::NewFile:
      dialog->setAcceptMode(QFileDialog::AcceptSave);
      dialog->setFileMode(QFileDialog::AnyFile);
      dialog->selectFile(texts.proposedName);
      break;
  }
  dialog->setLabelText(QFileDialog::Accept, texts.actionButton);
  dialog->setLabelText(QFileDialog::Reject, texts.cancelButton);
  addPrompt(*dialog, texts.prompt);
  connect(dialog, &QFileDialog::finished, this, [this, dialog](int result) {
    std::optional<FolderItem> chosen;
    if (result == QDialog::Accepted)  // to ask what is selected is to look at it
      if (const QStringList files = dialog->selectedFiles(); !files.isEmpty())
        chosen = FolderItem::fromNativePath(files.first());
    m_dialog = nullptr;
    // Retired behind it: what is done may show a message, whose loop would delete the dialog while it still closes.
    const QPointer<GuardedFileDialog> closing(dialog);
    if (const auto done = std::exchange(m_done, {})) done(chosen);
    if (closing) closing->retire();
  });
  dialog->open();
}
