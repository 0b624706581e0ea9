#include <QGuiApplication>

#include "support/TestRunner.h"

int main(int argc, char** argv) {
  QGuiApplication application(argc, argv);
  return TestRunner::runAllTests(argc, argv);
}
