#include <sys/resource.h>
#include <unistd.h>

#include <QCoreApplication>
#include <csignal>
#include <cstdio>

#include "storage/LogDatabase.h"
#include "support/TestRunner.h"

/// A process that a test may kill, or whose files may not grow beyond `largest` bytes, as on a full disk: prints
/// its id, then that of each row it has written into the log at `path`, and in the end why no more could be.
static int writeLog(const QString& path, const QString& largest) {
  if (!largest.isEmpty()) {
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{largest.toULong(), RLIM_INFINITY};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  std::printf("%d\n", static_cast<int>(getpid()));
  std::fflush(stdout);
  const auto opened = LogDatabase::open(*FolderItem::fromNativePath(path));
  if (!opened.database) return 1;
  QString error;
  while (const auto rowid = opened.database->insert({}, &error)) {
    std::printf("%lld\n", static_cast<long long>(*rowid));
    std::fflush(stdout);
  }
  std::printf("%s\n", qPrintable(error));
  return 0;
}

int main(int argc, char** argv) {
  QCoreApplication app(argc, argv);
  const QStringList arguments = app.arguments();
  if (arguments.value(1) == QLatin1String("--write-log")) return writeLog(arguments.value(2), arguments.value(3));
  return TestRunner::runAllTests(argc, argv);
}
