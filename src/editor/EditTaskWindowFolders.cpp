// The task editor's folders.

#include "editor/EditTaskWindow.h"
#include "text/VTULocalization.h"
#include "widgets/Messages.h"

using namespace Qt::Literals::StringLiterals;
using namespace VTULocalization;

constexpr int SameFolderLimitMs = 1000;

void EditTaskWindow::connectFolderControls() {
  for (const bool input : {true, false}) {
    connect(input ? InputFolderSetButton : OutputFOlderSetButton, &QPushButton::clicked, this,
            [this, input] { chooseFolder(input); });
    connect(input ? ClearInputButton : ClearOutPutButton, &QPushButton::clicked, this,
            [this, input] { clearFolder(input); });
    connect(input ? AutoMountInput : autoMountOutput, &QCheckBox::toggled, this,
            [this, input] { AutoMount_Action(input); });
    connect(input ? TestAutoMountInput : TestAutoMountOUtput, &QPushButton::clicked, this,
            [this, input] { TestAutoMount_Action(input); });
  }
}

/// The paths as they are stored; the handles in the task belong to the upload thread.
void EditTaskWindow::takeOverFolders() {
  const auto input = FolderItem::fromNativePath(Task->inputFolderPath);
  System::DebugLog(input ? u"InputFolder <> nil, checking if it exists"_s : u"InputFolder = nil"_s);
  InputFolder->setFile(input);
  m_inputTakenOver = input.has_value();
  theInputFolder.take(input);

  const auto output = FolderItem::fromNativePath(Task->outputFolderPath);
  OutputFolder->setFile(output);
  m_outputTakenOver = output.has_value();
  theOutPutFolder.take(output);
}

void EditTaskWindow::inputAnswered() {
  const FolderState state = theInputFolder.state();
  if (m_inputTakenOver && state == FolderState::There)
    System::DebugLog(u"Input folder exists, setting it up fot the task"_s);
  if (m_inputTakenOver && state == FolderState::Missing) {
    System::DebugLog(u"InputFolder does not exist"_s);
    theInputFolder.take({});
    InputFolder->setFile({});
    m_inputForgotten = true;
  }
  // A share that doesn't answer is not gone: its path is kept until it says so.
  if (state != FolderState::NoAnswer) m_inputTakenOver = false;
  paintCheck();
  updateSample();
}

void EditTaskWindow::outputAnswered() {
  const FolderState state = theOutPutFolder.state();
  if (m_outputTakenOver && state == FolderState::Missing) {
    theOutPutFolder.take({});
    OutputFolder->setFile({});
    m_outputForgotten = true;
  }
  if (state != FolderState::NoAnswer) m_outputTakenOver = false;
}

void EditTaskWindow::chooseFolder(bool input) {
  const PathChooser::Texts texts{input ? klInputFolder() : klOutputFolder(), klSelect(), klCancel(),
                                 input ? klInputFolderPrompt() : klOutputFolderPrompt()};
  const auto& known = (input ? theInputFolder : theOutPutFolder).folder();
  m_chooser.choose(PathChooser::What::Folder, texts, known ? known : input ? m_inputMount : m_outputMount,
                   [this, input](const std::optional<FolderItem>& chosen) {
                     const auto other = (input ? theOutPutFolder : theInputFolder).folder();
                     if (!chosen) return CheckCanSave();
                     if (!isSameFolder(*chosen, other)) return takeChosenFolder(input, *chosen);
                     const auto refuse = [this] { Messages::tell(this, klSameFolders()); };
                     m_sameFolderTest.run<bool>(
                         SameFolderLimitMs, [folder = *other](const auto&) { return folder.Exists(); },
                         [=, this, folder = *chosen](bool exists) {
                           if (exists)
                             refuse();
                           else
                             takeChosenFolder(input, folder);
                         },
                         [=, this] {
                           m_sameFolderTest.cancel();
                           refuse();
                         });
                   });
}

void EditTaskWindow::takeChosenFolder(bool input, const FolderItem& chosen) {
  (input ? m_inputTakenOver : m_outputTakenOver) = false;
  (input ? m_inputForgotten : m_outputForgotten) = false;
  (input ? m_inputChosen : m_outputChosen) = true;
  (input ? InputFolder : OutputFolder)->setFile(chosen);
  (input ? theInputFolder : theOutPutFolder).take(chosen);
  CheckCanSave();
  updateSample();
}

void EditTaskWindow::clearFolder(bool input) {
  (input ? m_inputForgotten : m_outputForgotten) = false;
  (input ? InputFolder : OutputFolder)->showNothing();
  (input ? theInputFolder : theOutPutFolder).take({});
  CheckCanSave();
  updateSample();
}
