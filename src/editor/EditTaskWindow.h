#pragma once
// The modal dialog that creates a task or changes one. It never changes the fields of the task that it edits, apart
// from Busy and the date limit: saving makes a new task, which takes the old one's place. Main thread; lives for one
// edit. Whatever looks at a folder, asks the service or saves the preferences runs on threads of their own.

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QToolButton>

#include "editor/AskedFolder.h"
#include "editor/CatalogueFetch.h"
#include "editor/LiveSample.h"
#include "editor/TrackChoices.h"
#include "editor/folderField.h"
#include "engine/UploaderTask.h"
#include "widgets/Mnemonics.h"
#include "widgets/PathChooser.h"

/// Keeps the upload thread away from a task until it is let go, or the object ends.
class BusyHold {
 public:
  explicit BusyHold(TaskPointer task) : m_task(std::move(task)) { set(true); }
  ~BusyHold() { set(false); }
  BusyHold(const BusyHold&) = delete;
  BusyHold& operator=(const BusyHold&) = delete;
  void letGo() { set(false); }
  /// Leaves the task busy for good: it has been replaced.
  void keepForGood() { m_task.reset(); }

 private:
  void set(bool busy) const {
    if (m_task) m_task->Busy = busy;
  }
  TaskPointer m_task;
};

class EditTaskWindow : public QDialog {
  Q_OBJECT
 public:
  /// Lets the user make a task; true if one was added to the list.
  [[nodiscard]] static bool CreateNewTask(QWidget* parent);
  /// Lets the user change a task; true if it was replaced in the list. The task is Busy meanwhile.
  [[nodiscard]] static bool EditTask(const TaskPointer& task, QWidget* parent);

  explicit EditTaskWindow(QWidget* parent);
  EditTaskWindow(const TaskPointer& task, QWidget* parent);

  /// True once the dialog has saved.
  bool Result = false;

  void reject() override;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  explicit EditTaskWindow(TaskPointer task, QWidget* parent, int);
  void buildLeftColumn();
  void buildRightColumn();
  void buildMountGroup(bool input);
  void buildFoot();
  void setTabOrderOfControls();
  void connectControls();
  void connectFolderControls();
  void place(QWidget* control, const char* name, const QString& spoken, QRect at);
  QLabel* label(const char* name, const QString& caption, QRect at);
  /// A label that leads to its field by a letter.
  QLabel* label(const char* name, const QString& caption, QRect at, QWidget* field);
  template <typename Button>
  Button* button(const char* name, const QString& caption, QRect at, const QString& spoken = {});
  void separator(const char* name, QRect at);

  void CheckCanSave();
  void paintCheck();
  void paintQuietParts();
  void paintSample();
  void Warden_Change();
  void UpdateTrackSelectionOptions();
  void TrackList1_Change();
  void UpdateSelectTargetList();
  void AutoRecognition_Action();
  void restoreStoredTrack();
  void catalogueFetched(TrackChoices::Kind kind);
  void updateSample();

  void takeOverFolders();
  void inputAnswered();
  void outputAnswered();
  void chooseFolder(bool input);
  void takeChosenFolder(bool input, const FolderItem& chosen);
  void clearFolder(bool input);
  // One mount group each; src/editor/EditTaskWindowMounts.cpp.
  struct MountGroup {
    QCheckBox* box;
    QPushButton* test;
    QLineEdit *url, *login, *password;
  };
  [[nodiscard]] MountGroup mountGroup(bool input) const;
  void takeOverMounts();
  void storeMounts(UploaderTask& saved) const;
  void AutoMount_Action(bool input);
  void TestAutoMount_Action(bool input);
  void endMountTest(bool input);
  void mountTested(bool input, const QString& path, int errorCode);

  void FileRecognitionHelpButton_Action();
  void ClearProcessDateStampButton_Action();
  void OkButton_Action();
  void CancelDialogButton_Action();
  [[nodiscard]] bool saveTask(const FolderItem& f);

  [[nodiscard]] TrackChoices::Kind kind() const;
  [[nodiscard]] QString storedTrack() const;

  BusyHold m_hold;
  TaskPointer Task;  // nullptr for a new one
  Mnemonics m_letters;
  AskedFolder theInputFolder, theOutPutFolder;
  bool m_inputTakenOver = false, m_outputTakenOver = false;  // as the task had it: forgotten if it is gone
  bool m_inputForgotten = false, m_outputForgotten = false;  // so it was; a good mount may bring it back
  bool m_inputChosen = false, m_outputChosen = false;        // by hand: taken as it is, mounted or not
  std::optional<FolderItem> m_inputMount, m_outputMount;     // of a good test, where a choice begins
  PathChooser m_chooser;
  BackgroundCall m_sameFolderTest, m_inputMountTest, m_outputMountTest, m_clearing;
  CatalogueFetch m_catalogues;

  QLabel *TaskNameLabel, *TaskDescriptionLabel, *wardenLabel, *FileNameLabel, *ExtensionLabel, *FileNameExclusionLabel,
      *SelectTrackLabel, *SelectTargetLabel, *inputFolderLabel, *inputFolderURLLabel, *inputLoginLabel,
      *inputPasswordLabel, *outputFolderLabel, *outputfolderURLLabel, *outputLoginLabel, *outputPasswordLabel,
      *PrefixLabel;
  QLineEdit *TaskName, *FileName, *FileNameExclusion, *inputFolderUrl, *inputLogin, *InputPassword, *OutputFolderURL,
      *outputLogin, *outputPassword, *Prefix;
  QPlainTextEdit* TaskDescription;
  QComboBox *Warden, *Extension, *TrackList1, *TrackList2;
  folderField *InputFolder, *OutputFolder;
  QCheckBox *AutoRecognition, *AutoMountInput, *autoMountOutput, *ReplaceName, *AddDateToFileNameCheckBox,
      *DeleteFileAfterCopyCheckBox, *DisableTaskButton;
  QPushButton *InputFolderSetButton, *ClearInputButton, *TestAutoMountInput, *OutputFOlderSetButton, *ClearOutPutButton,
      *TestAutoMountOUtput, *ClearProcessDateStampButton, *CancelDialogButton, *OkButton = nullptr;
  QToolButton* FileRecognitionHelpButton;
  LiveSample* Sample;
  QList<QFrame*> m_separators;
};
