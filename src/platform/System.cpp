#include "platform/System.h"

#include <pthread.h>

#include <QCoreApplication>
#include <QDebug>
#include <cstring>

#include "platform/Languages.h"

void System::DebugLog(const QString& line) {
  QString oneLine = line;
  for (QChar& c : oneLine)
    if (c.category() == QChar::Other_Control) c = u' ';
  qInfo().noquote() << oneLine;
}

QString System::_GetLocalizedString(const char* key, const char* defaultText, const QString& language) {
  const QString found = language.isEmpty() ? qtTrId(key) : Languages::lookUp(language, key);
  const bool translated = !found.isEmpty() && found != QLatin1String(key);
  return translated ? found : QString::fromUtf8(defaultText);
}

void System::nameThisThread(const char* name) {
  char shortName[16] = {};  // the kernel refuses a longer one
  std::strncpy(shortName, name, sizeof shortName - 1);
  pthread_setname_np(pthread_self(), shortName);  // a name is a comfort: a failure changes nothing
}
