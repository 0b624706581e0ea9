#include "support/TestRunner.h"

#include <QTest>
#include <vector>

namespace TestRunner {

static std::vector<std::function<std::unique_ptr<QObject>()>>& factories() {
  static std::vector<std::function<std::unique_ptr<QObject>()>> list;
  return list;
}

bool add(std::function<std::unique_ptr<QObject>()> make) {
  factories().push_back(std::move(make));
  return true;
}

int runAllTests(int argc, char** argv) {
  QStringList arguments;
  for (int i = 0; i < argc; ++i) arguments << QString::fromLocal8Bit(argv[i]);
  const QString wanted = arguments.value(1);
  int failed = 0, run = 0;
  for (const auto& make : factories()) {
    const auto object = make();
    QStringList own = arguments;
    if (argc > 1) {
      if (wanted != QLatin1String(object->metaObject()->className())) continue;
      own.removeAt(1);
    }
    failed += QTest::qExec(object.get(), own);
    ++run;
  }
  if (run == 0) {
    qCritical("no test class ran");
    return 1;
  }
  return failed;
}

}  // namespace TestRunner
