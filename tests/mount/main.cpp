#include <QCoreApplication>
#include <cstdio>

#include "PrivateSession.h"
#include "support/TestRunner.h"

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  const QString missing = PrivateSession::missing();
  if (!missing.isEmpty()) {
    std::printf("NOT TESTED: mounting real shares. %s.\n", qPrintable(missing));
    return 77;  // as CMakeLists.txt tells ctest
  }
  const PrivateSession session;
  return TestRunner::runAllTests(argc, argv);
}
