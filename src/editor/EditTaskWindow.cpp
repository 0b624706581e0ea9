#include "editor/EditTaskWindow.h"

#include <QCloseEvent>
#include <QDesktopServices>
#include <QFontInfo>
#include <QUrl>
#include <exception>

#include "build_settings.h"
#include "text/Placeholders.h"
#include "text/VTULocalization.h"
#include "widgets/Captions.h"
#include "widgets/Messages.h"

using namespace Qt::Literals::StringLiterals;
using namespace VTULocalization;
using TrackChoices::Kind;

constexpr int LargestPixels = 13;  // of text that stands in a control 20 pixels high

template <typename... Arguments>
static bool runDialog(QWidget* parent, const Arguments&... arguments) {
  try {
    EditTaskWindow dialog(arguments..., parent);
    dialog.exec();
    return dialog.Result;
  } catch (const std::exception& e) {
    Messages::tell(parent, fillPlaceholders(klEditorFailed(), {QString::fromUtf8(e.what())}));
    return false;
  }
}

bool EditTaskWindow::CreateNewTask(QWidget* parent) { return runDialog(parent); }

bool EditTaskWindow::EditTask(const TaskPointer& task, QWidget* parent) { return runDialog(parent, task); }

EditTaskWindow::EditTaskWindow(TaskPointer task, QWidget* parent, int)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint),
      m_hold(task),
      Task(std::move(task)),
      theInputFolder([this] { inputAnswered(); }, nullptr),
      theOutPutFolder([this] { outputAnswered(); }, nullptr),
      m_chooser(this),
      m_sameFolderTest("folder-test", nullptr),
      m_inputMountTest("mount-test", nullptr),
      m_outputMountTest("mount-test", nullptr),
      m_clearing("clear-date", nullptr),
      m_catalogues([this](Kind fetched) { catalogueFetched(fetched); }, nullptr) {
  setObjectName(u"EditTaskWindow"_s);
  setWindowTitle(klEditTask());
  setFixedSize(555, 654);
  QFont text = font();
  if (QFontInfo(text).pixelSize() > LargestPixels) text.setPixelSize(LargestPixels);
  setFont(text);
  buildLeftColumn();
  buildRightColumn();
  buildFoot();
  // Last, as their fields are enabled by a check mark only, and the letters may not last for all.
  for (QLabel* const shown : {inputFolderURLLabel, inputLoginLabel, inputPasswordLabel, outputfolderURLLabel,
                              outputLoginLabel, outputPasswordLabel})
    shown->setText(m_letters.mark(shown->text()));
  paintQuietParts();
  setTabOrderOfControls();
  connectControls();
  connectFolderControls();
  ClearProcessDateStampButton->setEnabled(Task != nullptr);
  m_catalogues.begin();
}

EditTaskWindow::EditTaskWindow(QWidget* parent) : EditTaskWindow(nullptr, parent, 0) {
  UpdateTrackSelectionOptions();
  CheckCanSave();
  updateSample();
}

EditTaskWindow::EditTaskWindow(const TaskPointer& task, QWidget* parent) : EditTaskWindow(task, parent, 0) {
  DisableTaskButton->setChecked(Task->disabled);
  TaskName->setText(Task->Name);
  TaskDescription->setPlainText(Task->Description);
  {
    const QSignalBlocker quiet(Warden);
    Warden->setCurrentIndex(wardenRow(Task->Warden));
  }
  Warden_Change();  // also when the row stays: what follows needs the lists filled
  FileName->setText(Task->FileName);
  FileNameExclusion->setText(Task->ExclusionPattern());
  Extension->setCurrentIndex(extensionRow(Task->Extension));
  AutoRecognition->setChecked(Task->AutoRecognition);
  restoreStoredTrack();
  takeOverFolders();
  takeOverMounts();
  ReplaceName->setChecked(Task->ReplaceName);
  Prefix->setText(Task->Prefix);
  AddDateToFileNameCheckBox->setChecked(Task->AddDateToFilename);
  DeleteFileAfterCopyCheckBox->setChecked(Task->DeleteAfterSave);
  CheckCanSave();
  updateSample();
}

void EditTaskWindow::connectControls() {
  using Self = EditTaskWindow;
  for (QLineEdit* const field :
       {TaskName, inputLogin, InputPassword, outputLogin, outputPassword, inputFolderUrl, OutputFolderURL})
    connect(field, &QLineEdit::textChanged, this, &Self::CheckCanSave);
  for (QCheckBox* const box : {DeleteFileAfterCopyCheckBox, DisableTaskButton, ReplaceName})
    connect(box, &QCheckBox::toggled, this, &Self::CheckCanSave);
  for (QLineEdit* const field : {TaskName, FileName, FileNameExclusion})
    connect(field, &QLineEdit::textChanged, this, &Self::updateSample);
  connect(Extension, &QComboBox::currentIndexChanged, this, &Self::updateSample);
  connect(AutoRecognition, &QCheckBox::toggled, this, &Self::AutoRecognition_Action);
  connect(Warden, &QComboBox::currentIndexChanged, this, &Self::Warden_Change);
  connect(TrackList1, &QComboBox::currentIndexChanged, this, &Self::TrackList1_Change);
  connect(TrackList2, &QComboBox::currentIndexChanged, this, &Self::CheckCanSave);
  connect(FileRecognitionHelpButton, &QToolButton::clicked, this, &Self::FileRecognitionHelpButton_Action);
  connect(ClearProcessDateStampButton, &QPushButton::clicked, this, &Self::ClearProcessDateStampButton_Action);
  connect(OkButton, &QPushButton::clicked, this, &Self::OkButton_Action);
  connect(CancelDialogButton, &QPushButton::clicked, this, &Self::CancelDialogButton_Action);
}

Kind EditTaskWindow::kind() const { return Warden->currentIndex() == 1 ? Kind::Instrument : Kind::Print; }

QString EditTaskWindow::storedTrack() const { return Task && !Task->AutoRecognition ? Task->Track : QString(); }

void EditTaskWindow::Warden_Change() {
  const bool print = Warden->currentIndex() == 0;
  const auto rename = [this](QLabel* shown, const QString& caption) {
    shown->setAccessibleName(caption);
    shown->buddy()->setAccessibleName(caption);
    shown->setText(m_letters.replace(shown->text(), caption));
  };
  rename(SelectTrackLabel, print ? klSelectPress() : KLSelectInstrument());
  rename(SelectTargetLabel, print ? EditTaskWindowText::klSelectTrack() : klSelectTarget());
  UpdateTrackSelectionOptions();
}

void EditTaskWindow::UpdateTrackSelectionOptions() {
  const QStringList rows = TrackChoices::devices(kind());
  {
    const QSignalBlocker quiet(TrackList1);
    TrackList1->clear();
    TrackList1->addItems(rows);
    TrackList1->setCurrentIndex(TrackChoices::deviceWhileFilling(kind(), rows, storedTrack()));
  }
  const QString whyEmpty = plainToolTip(m_catalogues.reason(kind()));
  TrackList1->setToolTip(whyEmpty);
  TrackList2->setToolTip(whyEmpty);
  TrackList1_Change();
}

void EditTaskWindow::TrackList1_Change() {
  UpdateSelectTargetList();
  CheckCanSave();
}

void EditTaskWindow::UpdateSelectTargetList() {
  const QSignalBlocker quiet(TrackList2);
  TrackList2->clear();
  if (TrackList1->currentIndex() < 0) return;
  const QString device = TrackList1->currentText();
  const QList<TrackChoices::Target> rows = TrackChoices::targets(kind(), device);
  for (const TrackChoices::Target& row : rows) TrackList2->addItem(row.text, row.workflowName);
  TrackList2->setCurrentIndex(TrackChoices::targetWhileFilling(kind(), device, rows, storedTrack()));
}

void EditTaskWindow::AutoRecognition_Action() {
  TrackList1->setEnabled(!AutoRecognition->isChecked());
  TrackList2->setEnabled(!AutoRecognition->isChecked());
  CheckCanSave();
}

void EditTaskWindow::restoreStoredTrack() {
  const bool instrument = Task->Warden.compare(u"Instrument"_s, Qt::CaseInsensitive) == 0;
  const Kind taskKind = instrument ? Kind::Instrument : Kind::Print;
  QStringList devices;
  for (int row = 0; row < TrackList1->count(); ++row) devices << TrackList1->itemText(row);
  const int device = TrackChoices::deviceOfTask(taskKind, devices, Task->Track);
  if (device >= 0) TrackList1->setCurrentIndex(device);
  QList<TrackChoices::Target> targets;
  for (int row = 0; row < TrackList2->count(); ++row)
    targets.append({TrackList2->itemText(row), TrackList2->itemData(row).toString()});
  const int target = TrackChoices::targetOfTask(taskKind, targets, Task->Track);
  if (target >= 0) TrackList2->setCurrentIndex(target);
}

void EditTaskWindow::catalogueFetched(Kind fetched) {
  // Lists that another fetch has filled meanwhile may hold the user's choice.
  if (fetched != kind() || TrackList1->count() > 0) return;
  UpdateTrackSelectionOptions();
  if (Task) restoreStoredTrack();
}

void EditTaskWindow::FileRecognitionHelpButton_Action() {
  const QString address = u"https://%1/other_tools/en/manual/uploader#autorec"_s.arg(QString::fromUtf8(ManualHost));
  if (!QDesktopServices::openUrl(QUrl(address))) Messages::tell(this, fillPlaceholders(klManualAddress(), {address}));
}

void EditTaskWindow::reject() { CancelDialogButton->click(); }

void EditTaskWindow::closeEvent(QCloseEvent* event) {
  // The window has no close button: its two buttons are the ways out, until the program itself closes it.
  if (event->spontaneous())
    event->ignore();
  else
    QDialog::closeEvent(event);
}

void EditTaskWindow::changeEvent(QEvent* event) {
  QDialog::changeEvent(event);
  if (event->type() != QEvent::PaletteChange || !OkButton) return;
  paintCheck();
  paintQuietParts();
}
