#pragma once
// Child processes of a benchmark: run to their end and measured, or kept running beside it. One thread. A child that
// can't be started or fails ends the benchmark with a message, for a figure without the work behind it is worthless.

#include <sys/types.h>

#include <cstdio>
#include <map>
#include <string>
#include <vector>

namespace bench {

using Command = std::vector<std::string>;

struct Finished {
  double wallSeconds = 0;  ///< from before the fork until the end was collected
  double cpuSeconds = 0;   ///< user and system
  std::string output;
};

[[noreturn]] void fail(const std::string& reason);

[[nodiscard]] Finished runCommand(const Command& command);
/// Runs this program as the worker of that name (see Workers.h) and gives the values that it prints.
[[nodiscard]] std::map<std::string, double> runWorker(const std::string& name, const Command& arguments);
[[nodiscard]] Command workerCommand(const std::string& name, const Command& arguments);

/// Runs until the object goes; it then ends with its standard input.
class BackgroundProcess {
 public:
  explicit BackgroundProcess(const Command& command);
  ~BackgroundProcess();
  BackgroundProcess(const BackgroundProcess&) = delete;
  BackgroundProcess& operator=(const BackgroundProcess&) = delete;

  [[nodiscard]] std::string readLine();
  /// Writes one line and gives the line that answers it.
  [[nodiscard]] std::string ask(const std::string& line);

 private:
  pid_t m_pid = -1;
  int m_input = -1;
  FILE* m_output = nullptr;
};

}  // namespace bench
