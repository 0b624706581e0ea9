// The task editor's test for OK, and its ways out.

#include "editor/EditTaskWindow.h"
#include "platform/Problems.h"
#include "storage/Preferences.h"
#include "text/Placeholders.h"
#include "text/VTULocalization.h"
#include "widgets/Captions.h"
#include "widgets/Colours.h"
#include "widgets/Messages.h"

using namespace Qt::Literals::StringLiterals;
using namespace VTULocalization;

void EditTaskWindow::paintQuietParts() {
  paintSample();
  FileNameExclusion->setPalette(readableCue(palette()));
  for (QFrame* const line : std::as_const(m_separators)) line->setPalette(quieter(palette(), 6));
}

void EditTaskWindow::paintSample() {
  const bool wrong = theInputFolder.state() == FolderState::Missing || exclusionError(FileNameExclusion->text());
  Sample->setPalette(noteColours(palette(), wrong));
}

void EditTaskWindow::CheckCanSave() {
  theInputFolder.ask();
  paintCheck();
}

void EditTaskWindow::paintCheck() {
  FormState form;
  form.name = TaskName->text();
  form.input = theInputFolder.state();
  form.autoRecognition = AutoRecognition->isChecked();
  form.firstSelected = TrackList1->currentIndex() >= 0;
  form.secondSelected = TrackList2->currentIndex() >= 0;
  const SaveCheck check = checkCanSave(form);

  QStringList required;
  const auto paint = [&](QLabel* label, bool missing) {
    QPalette colours;
    colours.setColor(QPalette::WindowText, missing ? requiredColor(palette()) : plainColor(palette()));
    label->setPalette(colours);
    label->buddy()->setAccessibleDescription(missing ? klRequired() : QString());
    if (missing) required << label->accessibleName();
  };
  paint(TaskNameLabel, check.nameMissing);
  paint(outputFolderLabel, false);
  paint(inputFolderLabel, check.inputMissing);
  paint(SelectTrackLabel, check.firstMissing);
  paint(SelectTargetLabel, check.secondMissing);
  OkButton->setEnabled(check.canSave);
  OkButton->setToolTip(requiredToolTip(klRequired(), required));
}

void EditTaskWindow::updateSample() {
  paintSample();
  const FolderState state = theInputFolder.state();
  if (const auto error = exclusionError(FileNameExclusion->text())) return Sample->say(error->message);
  if (state == FolderState::None) return Sample->say({});
  if (state == FolderState::Missing) return Sample->say(klSampleFolderGone());
  if (state == FolderState::NoAnswer) return Sample->say(klSampleSlow());
  Sample->follow({*theInputFolder.folder(), TaskName->text().trimmed(), Extension->currentText(),
                  FileName->text().trimmed(), FileNameExclusion->text()});
}

void EditTaskWindow::OkButton_Action() {
  if (const auto error = exclusionError(FileNameExclusion->text())) {
    Messages::tell(this, error->message);
    FileNameExclusion->setFocus();
    FileNameExclusion->setCursorPosition(static_cast<int>(error->at));
    return;
  }
  const FolderItem directory = UploaderTask::TaskDirectory();
  if (!saveTask(UploaderTask::newTaskFile(directory, TaskName->text().trimmed()))) return;
  Result = true;
  done(QDialog::Accepted);
}

// On the main thread: a task file is a few hundred bytes in the user's own data folder, and a dialog that could be
// left while its task is half saved would leave a task behind that nobody wanted.
bool EditTaskWindow::saveTask(const FolderItem& f) {
  const auto saved = std::make_shared<UploaderTask>();
  saved->Name = TaskName->text().trimmed();
  saved->Description = TaskDescription->toPlainText();
  saved->Warden = storedWarden(Warden->currentIndex());
  saved->FileName = FileName->text().trimmed();
  saved->setExclusionPattern(FileNameExclusion->text());
  saved->Extension = Extension->currentText();
  saved->AutoRecognition = AutoRecognition->isChecked();
  if (!saved->AutoRecognition) saved->Track = TrackList2->currentData().toString();
  saved->ReplaceName = ReplaceName->isChecked();
  saved->inputFolder = theInputFolder.folder();
  saved->inputFolderPath = saved->inputFolder ? saved->inputFolder->NativePath() : QString();
  saved->outputFolder = theOutPutFolder.folder();
  saved->outputFolderPath = saved->outputFolder ? saved->outputFolder->NativePath() : QString();
  storeMounts(*saved);
  saved->Prefix = Prefix->text().trimmed();
  saved->AddDateToFilename = AddDateToFileNameCheckBox->isChecked();
  saved->DeleteAfterSave = DeleteFileAfterCopyCheckBox->isChecked();
  saved->disabled = DisableTaskButton->isChecked();

  IoResult failure;
  if (!saved->save(f, &failure)) {
    Messages::tell(this, klTaskNotSaved() + u"\n\n"_s + failure.message());
    return false;
  }
  if (m_inputChosen) UploaderTask::takeAsItIs(saved->inputFolderPath);
  if (m_outputChosen) UploaderTask::takeAsItIs(saved->outputFolderPath);
  if (m_inputChosen || m_outputChosen)
    // The window doesn't wait for the disk: what it stores is in force already.
    BackgroundCall("save", nullptr)
        .run<bool>(0, [prefs = VantryUtil::prefs](const auto&) { return VantryUtil::savePreferences(*prefs); }, {});
  if (!Task) {
    UploaderTask::addTask(saved);
    return true;
  }
  m_hold.keepForGood();
  const IoResult removed = UploaderTask::replaceTask(Task, saved);
  if (!removed.ok()) Messages::tell(this, fillPlaceholders(klOldTaskNotRemoved(), {removed.message()}));
  return true;
}

void EditTaskWindow::CancelDialogButton_Action() {
  m_hold.letGo();
  Result = false;
  done(QDialog::Rejected);
}

static QString preferencesProblem() {
  for (const Problem& problem : Problems::present())
    if (problem.kind == Problem::Kind::PreferencesNotSaved) return problemText(problem);
  return {};
}

void EditTaskWindow::ClearProcessDateStampButton_Action() {
  if (!Task || !Messages::askYesNo(this, klVerifyDateStamp())) return;
  ClearProcessDateStampButton->setEnabled(false);
  const auto end = [this] {
    ClearProcessDateStampButton->setEnabled(true);
    updateSample();
    const QString problem = preferencesProblem();
    if (!problem.isEmpty()) Messages::tell(this, problem);
  };
  m_clearing.run<bool>(
      0,
      [task = Task](const auto&) {
        task->updateDateLimit(true);
        return true;
      },
      [end](bool) { end(); }, end);
}
