#pragma once
// Lets one program hold several QtTest classes, a file each: VANTRY_TEST(ClassName) at the end of each file, and
// main.cpp, or a main() that makes another application object and calls runAllTests.

#include <QTest>
#include <functional>
#include <memory>

namespace TestRunner {
bool add(std::function<std::unique_ptr<QObject>()> make);
/// Runs every registered class; the exit code is the number of failed test functions. A class or function name on the
/// command line runs that alone: tst_room ClassName [function].
int runAllTests(int argc, char** argv);
}  // namespace TestRunner

/// The columns of a table of rows, in one line: addColumns<QString, int>("name", "error").
template <typename... Types>
void addColumns(auto... names) {
  (QTest::addColumn<Types>(names), ...);
}

#define VANTRY_TEST(Class) \
  static const bool registered_##Class = TestRunner::add([] { return std::unique_ptr<QObject>(new Class); })
