// One start of the engine without windows, for a test that kills it: send_batch <CA file> <endpoint>. It opens the
// stores of the XDG folders, loads the tasks, processes what is due, and ends.

#include <QCoreApplication>
#include <QStringList>
#include <cstdio>

#include "engine/App.h"
#include "engine/UploaderTask.h"
#include "platform/Problems.h"
#include "service/VantryUtil.h"

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  const QStringList arguments = QCoreApplication::arguments();
  if (arguments.size() != 3) return 2;
  VantryUtil::setExtraCaFile(arguments[1]);
  VantryUtil::setAccountURL(arguments[2]);
  if (!App::Event_Open([] {}).isEmpty()) return 3;  // the preferences were found damaged
  UploaderTask::Load();
  UploaderTask::updateAllStatus();
  for (const TaskPointer& task : UploaderTask::allTasks())
    if (task->Status == UploaderTask::Ready && task->PrepareToUpload()) task->ProcessFiles();
  App::Event_Close();
  for (const Problem& problem : Problems::present())
    std::fprintf(stderr, "problem %d: %s %s\n", static_cast<int>(problem.kind), qPrintable(problem.subject),
                 qPrintable(problem.detail));
  return Problems::present().isEmpty() ? 0 : 4;
}
