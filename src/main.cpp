// Wires the rooms together: one instance, the order of coming up, the order of going down.

#include <unistd.h>

#include <QApplication>
#include <QLocale>
#include <QMessageBox>
#include <QSessionManager>
#include <QTimer>

#include "EndSignals.h"
#include "SingleInstance.h"
#include "admin/AdminPasswordWindow.h"
#include "admin/AdminWindow.h"
#include "editor/EditTaskWindow.h"
#include "engine/App.h"
#include "engine/StartUp.h"
#include "engine/UploadThread.h"
#include "monitor/SystemLogWindow.h"
#include "monitor/VTUploaderMainWIndow.h"
#include "platform/Languages.h"
#include "platform/SpecialFolder.h"
#include "storage/LogEntry.h"
#include "text/Placeholders.h"
#include "text/VTULocalization.h"
#include "version.h"
#include "widgets/BackgroundCall.h"
#include "widgets/Pictures.h"

using namespace Qt::Literals::StringLiterals;

static constexpr int StopLimitMs = 2000;
static constexpr int CallsLimitMs = 300;  // of windows, whose answers nobody waits for any more

static void tell(const QString& text) { QMessageBox::warning(nullptr, QString::fromLatin1(AppDisplayName), text); }

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setApplicationName(QString::fromLatin1(AppId));
  QApplication::setApplicationDisplayName(QString::fromLatin1(AppDisplayName));
  QApplication::setApplicationVersion(u"%1.%2.%3"_s.arg(MajorVersion).arg(MinorVersion).arg(BugVersion));
  QApplication::setDesktopFileName(QString::fromLatin1(AppId));
  QApplication::setWindowIcon(Pictures::programIcon());
  QApplication::setQuitOnLastWindowClosed(false);  // the main window quits by itself; a message box must not

  Languages::install(Languages::choose(QLocale::system().uiLanguages()));

  const FolderItem dataFolder = SpecialFolder::ApplicationData();
  const IoResult made = SpecialFolder::createPrivate(dataFolder);
  if (!made.ok()) {
    tell(fillPlaceholders(VTULocalization::klStartFailed(), {made.message()}));
    return 1;
  }
  SingleInstance instance(dataFolder);
  switch (instance.start()) {
    case SingleInstance::Start::First:
      break;
    case SingleInstance::Start::HandedOver:
      return 0;
    case SingleInstance::Start::Silent:
      tell(VTULocalization::klAlreadyRunning());
      return 1;
    case SingleInstance::Start::Forbidden:
      tell(fillPlaceholders(VTULocalization::klStartFailed(), {dataFolder.NativePath()}));
      return 1;
  }

  MainWindowCommands commands;
  VTUploaderMainWIndow* shown = nullptr;
  commands.createNewTask = [&shown] { return EditTaskWindow::CreateNewTask(shown); };
  commands.checkAdminPassword = [&shown] { return AdminPasswordWindow::CheckAdminPassword(shown); };
  commands.showAdminWindow = [&shown] { return AdminWindow::ShowModal(shown); };
  commands.editTask = [&shown](const TaskPointer& task) { return EditTaskWindow::EditTask(task, shown); };
  VantryUtil::LogEntry::setRowObserver(&SystemLogWindow::add);
  VTUploaderMainWIndow window(commands);
  shown = &window;
  QObject::connect(&instance, &SingleInstance::showRequested, &window, [&window] {
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);  // one that fills the screen stays so
    window.show();
    window.raise();
    window.activateWindow();
  });
  const EndSignals signalsEnd([&window] { window.quitWithoutAsking(); });
  QObject::connect(&application, &QGuiApplication::commitDataRequest, &window,
                   [&window](QSessionManager&) { window.expectSessionEnd(); });

  const QString notice = App::Event_Open([&window] { window.show(); });
  if (!notice.isEmpty()) QTimer::singleShot(0, &window, [notice] { tell(notice); });

  const int exitCode = QApplication::exec();
  instance.close();
  UploadThread::Enabled = false;
  delete SystemLogWindow::openOne();  // an export that is under way leaves nothing behind
  const bool startUpEnded = StartUp::stop(StopLimitMs);
  const bool uploadEnded = UploadThread::stop(StopLimitMs);
  const bool callsEnded = BackgroundCall::waitForAll(CallsLimitMs);
  if (!uploadEnded) UploaderTask::keepLedgersUnderWay();  // a batch that can't be waited for must not go out again
  App::Event_Close();
  // A thread that hangs in the kernel on a dead share can't be waited for, and nothing may be torn down under it.
  if (!startUpEnded || !uploadEnded || !callsEnded) _exit(exitCode);
  return exitCode;
}
