#include <QApplication>

#include "support/TestRunner.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  return TestRunner::runAllTests(argc, argv);
}
