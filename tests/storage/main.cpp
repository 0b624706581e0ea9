#include <QCoreApplication>
#include <cstdio>

#include "storage/LogDatabase.h"
#include "support/TestRunner.h"

/// A process that a test may kill: writes rows into the log at `path` and prints each id once its row is written.
static int writeLogForEver(const QString& path) {
  const auto opened = LogDatabase::open(*FolderItem::fromNativePath(path));
  if (!opened.database) return 1;
  while (const auto rowid = opened.database->insert({}, nullptr)) {
    std::printf("%lld\n", static_cast<long long>(*rowid));
    std::fflush(stdout);
  }
  return 1;
}

int main(int argc, char** argv) {
  QCoreApplication app(argc, argv);
  const QStringList arguments = app.arguments();
  if (arguments.value(1) == QLatin1String("--write-log")) return writeLogForEver(arguments.value(2));
  return TestRunner::runAllTests(argc, argv);
}
