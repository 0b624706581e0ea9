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

// What is waited for may take a minute on a loaded machine, above all under sanitizers.
#undef QTRY_VERIFY
#undef QTRY_VERIFY2
#undef QTRY_COMPARE
#define QTRY_VERIFY(condition) QTRY_VERIFY_WITH_TIMEOUT((condition), 60'000)
#define QTRY_VERIFY2(condition, message) QTRY_VERIFY2_WITH_TIMEOUT((condition), (message), 60'000)
#define QTRY_COMPARE(actual, expected) QTRY_COMPARE_WITH_TIMEOUT((actual), (expected), 60'000)

#define VANTRY_TEST(Class) \
  static const bool registered_##Class = TestRunner::add([] { return std::unique_ptr<QObject>(new Class); })
