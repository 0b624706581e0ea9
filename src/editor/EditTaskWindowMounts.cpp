// The task editor's mount groups: what the task holds, and the test that mounts at once.

#include "editor/EditTaskWindow.h"
#include "platform/Placeholders.h"
#include "text/VTULocalization.h"
#include "widgets/Captions.h"
#include "widgets/Messages.h"

using namespace Qt::Literals::StringLiterals;
using namespace VTULocalization;

static QString asSentence(QString words) {
  if (!words.isEmpty()) words[0] = words[0].toUpper();
  return fillPlaceholders(klMountReason(), {words});
}

EditTaskWindow::MountGroup EditTaskWindow::mountGroup(bool input) const {
  if (input) return {AutoMountInput, TestAutoMountInput, inputFolderUrl, inputLogin, InputPassword};
  return {autoMountOutput, TestAutoMountOUtput, OutputFolderURL, outputLogin, outputPassword};
}

void EditTaskWindow::takeOverMounts() {
  const auto fill = [](const MountGroup& group, bool on, const QString& url, const QString& login,
                       const QString& password) {
    group.url->setText(url);
    group.login->setText(login);
    group.password->setText(password);
    group.box->setChecked(on);
  };
  fill(mountGroup(true), Task->AutoMountInputFolder, Task->inputfolderURL, Task->InputLogin, Task->inputPassword);
  fill(mountGroup(false), Task->autoMountOutputFolder, Task->outputFolderUrl, Task->outputLogin, Task->outputPassword);
}

void EditTaskWindow::storeMounts(UploaderTask& saved) const {
  const auto store = [](const MountGroup& group, bool& on, QString& url, QString& login, QString& password) {
    on = group.box->isChecked();
    if (!on) return;
    url = group.url->text().trimmed();
    login = group.login->text().trimmed();
    password = group.password->text().trimmed();
  };
  store(mountGroup(true), saved.AutoMountInputFolder, saved.inputfolderURL, saved.InputLogin, saved.inputPassword);
  store(mountGroup(false), saved.autoMountOutputFolder, saved.outputFolderUrl, saved.outputLogin, saved.outputPassword);
}

void EditTaskWindow::AutoMount_Action(bool input) {
  const MountGroup group = mountGroup(input);
  const bool on = group.box->isChecked();
  if (!on) endMountTest(input);
  for (QWidget* const control : std::initializer_list<QWidget*>{group.test, group.url, group.login, group.password})
    control->setEnabled(on);
  CheckCanSave();
}

/// Brings the button back to what it was before the test, and drops a test that is under way.
void EditTaskWindow::endMountTest(bool input) {
  (input ? m_inputMountTest : m_outputMountTest).cancel();
  QPushButton* const test = mountGroup(input).test;
  test->setFont(font());  // the other caption may have made it smaller
  setFittedCaption(*test, kltest());
  test->setAccessibleName(input ? klTestMountInput() : klTestMountOutput());
}

void EditTaskWindow::TestAutoMount_Action(bool input) {
  BackgroundCall& call = input ? m_inputMountTest : m_outputMountTest;
  if (call.running()) return endMountTest(input);
  const MountGroup group = mountGroup(input);
  MountRequest request;
  request.url = group.url->text().trimmed();
  request.userName = group.login->text().trimmed();
  request.password = group.password->text().trimmed();
  if (request.url.isEmpty() || request.userName.isEmpty() || request.password.isEmpty())
    return Messages::tell(this, klPleaseEnterAutoMountDetails());

  setFittedCaption(*group.test, klStop());
  group.test->setAccessibleName(klStopMountTest());
  struct Outcome {
    QString path;
    int errorCode = 0;
  };
  call.run<Outcome>(
      0,
      [request](const BackgroundCall::Cancelled& cancelled) mutable {
        Outcome outcome;
        request.cancelled = cancelled;
        outcome.path = UploaderTask::mountNow(request, outcome.errorCode).trimmed();
        return outcome;
      },
      [this, input](const Outcome& outcome) { mountTested(input, outcome.path, outcome.errorCode); },
      [this, input] { mountTested(input, {}, ENOMEM); });
}

void EditTaskWindow::mountTested(bool input, const QString& path, int errorCode) {
  endMountTest(input);
  const QString number = QString::number(errorCode);
  if (path.isEmpty())
    return Messages::tell(this, klCouldNotMount() + u"\nERR:"_s + number, true, asSentence(mountFailureText(errorCode)));
  UploaderTask::setTriedAutoMount(false);
  (input ? m_inputMount : m_outputMount) = FolderItem::fromNativePath(path);
  bool& forgotten = input ? m_inputForgotten : m_outputForgotten;
  if (std::exchange(forgotten, false)) {
    const auto stored = FolderItem::fromNativePath(input ? Task->inputFolderPath : Task->outputFolderPath);
    (input ? InputFolder : OutputFolder)->setFile(stored);
    (input ? m_inputTakenOver : m_outputTakenOver) = true;
    (input ? theInputFolder : theOutPutFolder).take(stored);
    CheckCanSave();
  }
  Messages::tell(this, u"OK"_s + number, false);
}
