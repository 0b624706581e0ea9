#include "platform/System.h"

#include <pthread.h>

#include <QDebug>
#include <cstring>

void System::DebugLog(const QString& line) {
  QString oneLine = line;
  for (QChar& c : oneLine)
    if (c.category() == QChar::Other_Control) c = u' ';
  qInfo().noquote() << oneLine;
}

void System::nameThisThread(const char* name) {
  char shortName[16] = {};  // the kernel refuses a longer one
  std::strncpy(shortName, name, sizeof shortName - 1);
  pthread_setname_np(pthread_self(), shortName);  // a name is a comfort: a failure changes nothing
}
