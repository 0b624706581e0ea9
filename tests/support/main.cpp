#include <QCoreApplication>

#include "support/TestRunner.h"

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  return TestRunner::runAllTests(argc, argv);
}
