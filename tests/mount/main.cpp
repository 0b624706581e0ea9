#include <QCoreApplication>
#include <cstdio>

#include "PrivateSession.h"
#include "platform/Mount.h"
#include "support/TestRunner.h"

/// For a test that needs a program which has met no session bus yet: the error of a mount within a limit.
static int mountWithin(const QStringList& arguments) {
  MountRequest request;
  request.url = arguments.value(3);
  int error = 0;
  (void)mountShare(request, error, arguments.value(2).toInt());
  return std::printf("%d", error) < 0;
}

int main(int argc, char** argv) {
  QCoreApplication application(argc, argv);
  if (QCoreApplication::arguments().value(1) == QLatin1String("mount-within"))
    return mountWithin(QCoreApplication::arguments());
  const QString missing = PrivateSession::missing();
  if (!missing.isEmpty()) {
    std::printf(
        "********************************************************************\n"
        "NOT TESTED: mounting real shares. %s.\n"
        "********************************************************************\n",
        qPrintable(missing));
    return 77;  // as CMakeLists.txt tells ctest
  }
  const PrivateSession session;
  return TestRunner::runAllTests(argc, argv);
}
