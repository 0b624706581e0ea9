#include "Process.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <sstream>

namespace bench {

namespace {

struct Pipe {
  int reading = -1, writing = -1;
};

Pipe makePipe() {
  std::array<int, 2> ends{};
  if (pipe2(ends.data(), O_CLOEXEC) != 0) fail(std::string("no pipe: ") + strerror(errno));
  return {ends[0], ends[1]};
}

std::string inWords(const Command& command) {
  std::string words;
  for (const std::string& part : command) words += (words.empty() ? "" : " ") + part;
  return words.substr(0, 200);
}

/// `input` and `output` become the child's standard input and output; -1 leaves the parent's.
pid_t start(const Command& command, int input, int output) {
  std::vector<char*> arguments;
  for (const std::string& part : command) arguments.push_back(const_cast<char*>(part.c_str()));
  arguments.push_back(nullptr);
  const pid_t pid = fork();
  if (pid < 0) fail(std::string("no process: ") + strerror(errno));
  if (pid > 0) return pid;
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  if (input >= 0) dup2(input, STDIN_FILENO);
  if (output >= 0) dup2(output, STDOUT_FILENO);
  execvp(arguments[0], arguments.data());
  _exit(127);
}

double seconds(const timeval& time) {
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

}  // namespace

void fail(const std::string& reason) {
  fprintf(stderr, "bench: %s\n", reason.c_str());
  exit(2);
}

Finished runCommand(const Command& command) {
  Finished finished;
  const Pipe out = makePipe();
  const auto begin = std::chrono::steady_clock::now();
  const pid_t pid = start(command, -1, out.writing);
  close(out.writing);
  std::array<char, 64 << 10> buffer;
  for (ssize_t count = 0; (count = read(out.reading, buffer.data(), buffer.size())) > 0;)
    finished.output.append(buffer.data(), static_cast<size_t>(count));
  close(out.reading);
  int status = 0;
  rusage usage{};
  if (wait4(pid, &status, 0, &usage) != pid) fail("lost the child: " + inWords(command));
  const std::chrono::duration<double> wall = std::chrono::steady_clock::now() - begin;
  if (status != 0) fail("failed with status " + std::to_string(status) + ": " + inWords(command));
  finished.wallSeconds = wall.count();
  finished.cpuSeconds = seconds(usage.ru_utime) + seconds(usage.ru_stime);
  return finished;
}

Command workerCommand(const std::string& name, const Command& arguments) {
  std::array<char, 4096> self{};
  if (readlink("/proc/self/exe", self.data(), self.size() - 1) <= 0) fail("this program's own file is not known");
  Command command{self.data(), "worker", name};
  command.insert(command.end(), arguments.begin(), arguments.end());
  return command;
}

std::map<std::string, double> runWorker(const std::string& name, const Command& arguments) {
  std::istringstream lines(runCommand(workerCommand(name, arguments)).output);
  std::map<std::string, double> values;
  std::string key;
  for (double value = 0; lines >> key >> value;) values[key] = value;
  return values;
}

BackgroundProcess::BackgroundProcess(const Command& command) {
  const Pipe in = makePipe();
  const Pipe out = makePipe();
  m_pid = start(command, in.reading, out.writing);
  close(in.reading);
  close(out.writing);
  m_input = in.writing;
  m_output = fdopen(out.reading, "r");
}

BackgroundProcess::~BackgroundProcess() {
  close(m_input);
  fclose(m_output);
  waitpid(m_pid, nullptr, 0);
}

std::string BackgroundProcess::readLine() {
  std::array<char, 4096> line{};
  if (!fgets(line.data(), line.size(), m_output)) fail("the server has ended");
  return std::string(line.data(), strcspn(line.data(), "\n"));
}

std::string BackgroundProcess::ask(const std::string& line) {
  const std::string text = line + '\n';
  if (write(m_input, text.data(), text.size()) != static_cast<ssize_t>(text.size())) fail("the server does not listen");
  return readLine();
}

}  // namespace bench
