#include "support/TestRunner.h"

#include <vector>

static auto& factories() {
  static std::vector<std::function<std::unique_ptr<QObject>()>> list;
  return list;
}

bool TestRunner::add(std::function<std::unique_ptr<QObject>()> make) {
  factories().push_back(std::move(make));
  return true;
}

int TestRunner::runAllTests(int argc, char** argv) {
  QStringList arguments;
  for (int i = 0; i < argc; ++i) arguments << QString::fromLocal8Bit(argv[i]);
  const QString wanted = argc > 1 ? arguments.takeAt(1) : QString();
  int failed = 0, run = 0;
  for (const auto& make : factories()) {
    const auto object = make();
    if (!wanted.isEmpty() && wanted != QLatin1String(object->metaObject()->className())) continue;
    failed += QTest::qExec(object.get(), arguments);
    ++run;
  }
  if (run > 0) return failed;
  qCritical("no test class ran");
  return 1;
}
