// The task editor's controls: where they stand, what they are called and in which order they are reached.

#include <QFontInfo>

#include "editor/EditTaskWindow.h"
#include "text/VTULocalization.h"
#include "widgets/Captions.h"

using namespace Qt::Literals::StringLiterals;
using namespace VTULocalization;

constexpr int CheckMarkWidth = 24;  // what a check box takes up before its caption

void EditTaskWindow::place(QWidget* control, const char* name, const QString& spoken, QRect at) {
  control->setObjectName(QString::fromLatin1(name));
  control->setAccessibleName(spoken);
  control->setGeometry(at);
}

QLabel* EditTaskWindow::label(const char* name, const QString& caption, QRect at) {
  auto* const made = new QLabel(this);
  made->setTextFormat(Qt::PlainText);
  place(made, name, caption, at);
  if (!fitFont(*made, caption, at.width())) made->setToolTip(plainToolTip(caption));
  made->setText(caption);
  return made;
}

QLabel* EditTaskWindow::label(const char* name, const QString& caption, QRect at, QWidget* field) {
  QLabel* const made = label(name, caption, at);
  made->setBuddy(field);
  made->setText(field->isEnabled() ? m_letters.mark(caption) : caption);
  if (field->accessibleName().isEmpty()) field->setAccessibleName(caption);
  return made;
}

template <>
QPushButton* EditTaskWindow::button(const char* name, const QString& caption, QRect at, const QString& spoken) {
  auto* const made = new QPushButton(this);
  made->setAutoDefault(false);  // Return belongs to OK
  place(made, name, spoken.isEmpty() ? caption : spoken, at);
  setFittedCaption(*made, caption);
  return made;
}

template <>
QCheckBox* EditTaskWindow::button(const char* name, const QString& caption, QRect at, const QString& spoken) {
  auto* const made = new QCheckBox(this);
  place(made, name, spoken.isEmpty() ? caption : spoken, at);
  if (!fitFont(*made, caption, at.width() - CheckMarkWidth)) made->setToolTip(plainToolTip(caption));
  made->setText(caption);
  return made;
}

void EditTaskWindow::separator(const char* name, QRect at) {
  auto* const line = new QFrame(this);
  line->setFrameShape(at.width() > at.height() ? QFrame::HLine : QFrame::VLine);
  m_separators << line;
  place(line, name, {}, at);
}

template <typename Field>
static Field* field(QWidget* window, const char* name, QRect at) {
  auto* const made = new Field(window);
  made->setObjectName(QString::fromLatin1(name));
  made->setGeometry(at);
  if constexpr (std::is_same_v<Field, QComboBox>) (void)fitFont(*made, {}, at.width());
  return made;
}

void EditTaskWindow::buildLeftColumn() {
  TaskName = field<QLineEdit>(this, "TaskName", {20, 44, 228, 22});
  TaskNameLabel = label("TaskNameLabel", klTaskName(), {20, 20, 228, 20}, TaskName);
  TaskDescription = field<QPlainTextEdit>(this, "TaskDescription", {20, 98, 228, 68});
  TaskDescription->setTabChangesFocus(true);
  TaskDescriptionLabel = label("TaskDescriptionLabel", klTaskDescription(), {20, 76, 228, 20}, TaskDescription);
  Warden = field<QComboBox>(this, "Warden", {20, 196, 228, 20});
  Warden->addItems({KLPrint(), klInstrument()});
  wardenLabel = label("wardenLabel", klWarden(), {20, 172, 228, 20}, Warden);
  separator("Separator5", {13, 239, 235, 4});

  FileRecognitionHelpButton = field<QToolButton>(this, "FileRecognitionHelpButton", {20, 255, 22, 22});
  FileRecognitionHelpButton->setText(u"?"_s);
  FileRecognitionHelpButton->setAccessibleName(klFileRecognitionHelp());
  FileRecognitionHelpButton->setToolTip(klFileRecognitionHelp());
  FileRecognitionHelpButton->setFocusPolicy(Qt::StrongFocus);
  FileName = field<QLineEdit>(this, "FileName", {20, 279, 228, 22});
  FileNameLabel = label("FileNameLabel", EditTaskWindowText::klFileNameRecognition(), {47, 255, 201, 20}, FileName);
  Extension = field<QComboBox>(this, "Extension", {20, 333, 85, 20});
  Extension->addItems(extensions());
  ExtensionLabel = label("ExtensionLabel", EditTaskWindowText::klExtension(), {20, 309, 85, 20}, Extension);
  FileNameExclusion = field<QLineEdit>(this, "FileNameExclusion", {20, 389, 228, 22});
  FileNameExclusion->setPlaceholderText(klRegExCue());
  FileNameExclusionLabel =
      label("FileNameExclusionLabel", EditTaskWindowText::klFileNameExclusion(), {20, 365, 201, 20}, FileNameExclusion);
  separator("Separator6", {20, 423, 235, 4});

  AutoRecognition = button<QCheckBox>("AutoRecognition", EditTaskWindowText::klAutoRecognition(), {20, 444, 228, 20});
  AutoRecognition->setText(m_letters.mark(AutoRecognition->text()));
  TrackList1 = field<QComboBox>(this, "TrackList1", {20, 496, 228, 20});
  SelectTrackLabel = label("SelectTrackLabel", klSelectPress(), {20, 473, 228, 20}, TrackList1);
  TrackList2 = field<QComboBox>(this, "TrackList2", {20, 551, 228, 20});
  SelectTargetLabel = label("SelectTargetLabel", EditTaskWindowText::klSelectTrack(), {20, 528, 228, 20}, TrackList2);
}

void EditTaskWindow::buildRightColumn() {
  separator("Separator2", {260, 20, 7, 547});
  InputFolder = field<folderField>(this, "InputFolder", {280, 44, 194, 22});
  inputFolderLabel = label("inputFolderLabel", klInputFolder(), {280, 19, 87, 20}, InputFolder);
  InputFolderSetButton = button<QPushButton>("InputFolderSetButton", klSEt(), {424, 20, 49, 20}, klSetInputFolder());
  ClearInputButton = button<QPushButton>("ClearInputButton", klClear(), {485, 46, 49, 20}, klClearInputFolder());
  buildMountGroup(true);
  separator("Separator3", {281, 210, 255, 4});

  OutputFolder = field<folderField>(this, "OutputFolder", {281, 248, 194, 22});
  outputFolderLabel = label("outputFolderLabel", klOutputFolder(), {281, 224, 87, 20}, OutputFolder);
  OutputFOlderSetButton =
      button<QPushButton>("OutputFOlderSetButton", klSEt(), {429, 224, 49, 20}, klSetOutputFolder());
  ClearOutPutButton = button<QPushButton>("ClearOutPutButton", klClear(), {486, 249, 49, 20}, klClearOutputFolder());
  buildMountGroup(false);
  separator("Separator4", {280, 423, 255, 4});

  ReplaceName = button<QCheckBox>("ReplaceName", klReplaceFileName(), {280, 439, 250, 20});
  Prefix = field<QLineEdit>(this, "Prefix", {280, 488, 218, 22});
  PrefixLabel = label("PrefixLabel", EditTaskWindowText::klPrefix(), {280, 464, 180, 20}, Prefix);
  AddDateToFileNameCheckBox =
      button<QCheckBox>("AddDateToFileNameCheckBox", EditTaskWindowText::klAddDatetoFileName(), {280, 522, 228, 20});
  DeleteFileAfterCopyCheckBox = button<QCheckBox>("DeleteFileAfterCopyCheckBox",
                                                  EditTaskWindowText::klDeleteFileAfterCopy(), {280, 547, 228, 20});
  for (QCheckBox* const box : {ReplaceName, AddDateToFileNameCheckBox, DeleteFileAfterCopyCheckBox})
    box->setText(m_letters.mark(box->text()));
}

void EditTaskWindow::buildMountGroup(bool input) {
  QCheckBox*& box = input ? AutoMountInput : autoMountOutput;
  QPushButton*& test = input ? TestAutoMountInput : TestAutoMountOUtput;
  QLineEdit*& url = input ? inputFolderUrl : OutputFolderURL;
  QLineEdit*& login = input ? inputLogin : outputLogin;
  QLineEdit*& password = input ? InputPassword : outputPassword;
  if (input) {
    box = button<QCheckBox>("AutoMountInput", klAutoMount(), {279, 78, 106, 20}, klAutoMountInput());
    test = button<QPushButton>("TestAutoMountInput", kltest(), {485, 76, 49, 20}, klTestMountInput());
    url = field<QLineEdit>(this, "inputFolderUrl", {280, 124, 254, 22});
    login = field<QLineEdit>(this, "inputLogin", {281, 176, 121, 22});
    password = field<QLineEdit>(this, "InputPassword", {414, 175, 121, 22});
  } else {
    box = button<QCheckBox>("autoMountOutput", klAutoMount(), {280, 282, 100, 20}, klAutoMountOutput());
    test = button<QPushButton>("TestAutoMountOUtput", kltest(), {486, 280, 49, 20}, klTestMountOutput());
    url = field<QLineEdit>(this, "OutputFolderURL", {280, 333, 254, 22});
    login = field<QLineEdit>(this, "outputLogin", {280, 389, 121, 22});
    password = field<QLineEdit>(this, "outputPassword", {413, 389, 121, 22});
  }
  password->setEchoMode(QLineEdit::Password);
  for (QWidget* const control : std::initializer_list<QWidget*>{test, url, login, password})
    control->setEnabled(false);
  if (input) {
    inputFolderURLLabel = label("inputFolderURLLabel", KLInputFolderURL(), {280, 100, 169, 20}, url);
    inputLoginLabel = label("inputLoginLabel", klInputLogin(), {281, 153, 121, 20}, login);
    inputPasswordLabel = label("inputPasswordLabel", klInputPassword(), {414, 153, 121, 20}, password);
  } else {
    outputfolderURLLabel = label("outputfolderURLLabel", klOutputFolderURL(), {280, 309, 169, 20}, url);
    outputLoginLabel = label("outputLoginLabel", klOutputLogin(), {280, 365, 121, 20}, login);
    outputPasswordLabel = label("outputPasswordLabel", klOutputPassword(), {413, 365, 121, 20}, password);
  }
}

void EditTaskWindow::buildFoot() {
  Sample = field<LiveSample>(this, "Sample", {20, 576, 515, 17});
  Sample->setAccessibleName(klSampleName());
  QFont small = font();
  small.setPixelSize(QFontInfo(small).pixelSize() - 1);
  Sample->setFont(small);
  separator("Separator1", {20, 594, 494, 8});
  DisableTaskButton = button<QCheckBox>("DisableTaskButton", klDisableTask(), {20, 614, 119, 20});
  DisableTaskButton->setText(m_letters.mark(DisableTaskButton->text()));
  const QRect stamp{151, 614, 179, 20};
  ClearProcessDateStampButton = button<QPushButton>(
      "ClearProcessDateStampButton", m_letters.mark(klClearProcessDateStamp()), stamp, klClearProcessDateStamp());
  CancelDialogButton = button<QPushButton>("CancelDialogButton", klCancel(), {342, 614, 80, 20});
  OkButton = button<QPushButton>("OkButton", klOK(), {434, 614, 80, 20});
  OkButton->setDefault(true);
}

void EditTaskWindow::setTabOrderOfControls() {
  QWidget* const order[] = {TaskName, TaskDescription, Warden, FileName, Extension, FileNameExclusion, AutoRecognition,
                            TrackList1, InputFolder, InputFolderSetButton, OutputFolder, OutputFOlderSetButton, Prefix,
                            AddDateToFileNameCheckBox, DeleteFileAfterCopyCheckBox, OkButton, CancelDialogButton,
                            // and the rest in the order of the form
                            FileRecognitionHelpButton, TrackList2, ClearInputButton, AutoMountInput, TestAutoMountInput,
                            inputFolderUrl, inputLogin, InputPassword, ClearOutPutButton, autoMountOutput,
                            TestAutoMountOUtput, OutputFolderURL, outputLogin, outputPassword, ReplaceName,
                            DisableTaskButton, ClearProcessDateStampButton};
  for (size_t i = 1; i < std::size(order); ++i) setTabOrder(order[i - 1], order[i]);
  TaskName->setFocus();
}
