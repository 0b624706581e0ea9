#include <QApplication>
#include <QFont>

#include "support/TestRunner.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  // Of the usual fonts the widest, so that what fits here fits on a customer's desk.
  QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 10));
  return TestRunner::runAllTests(argc, argv);
}
