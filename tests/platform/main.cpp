#include <QCoreApplication>

#include "support/TestRunner.h"

int main(int argc, char** argv) {
  QCoreApplication app(argc, argv);
  return TestRunner::runAllTests(argc, argv);
}
