#include "Workers.h"

#include <sqlite3.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <iostream>

#include "Agent.h"
#include "LogViewWorker.h"
#include "practice/PracticeSink.h"
#include "storage/LogDatabase.h"

using namespace Qt::Literals::StringLiterals;

namespace bench {

namespace {

double cpuSeconds() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return static_cast<double>(usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) +
         static_cast<double>(usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1e6;
}

/// Measures from its making to finish(), and prints.
class Work {
 public:
  Work() { (void)access(BeginMark, F_OK); }
  void finish() {
    const std::chrono::duration<double> wall = std::chrono::steady_clock::now() - m_begin;
    const double cpu = cpuSeconds() - m_cpuBefore;
    (void)access(EndMark, F_OK);
    std::cout << "wall " << wall.count() << "\ncpu " << cpu << '\n';
  }

 private:
  double m_cpuBefore = cpuSeconds();
  std::chrono::steady_clock::time_point m_begin = std::chrono::steady_clock::now();
};

int number(const std::string& text) { return std::stoi(text); }

void expect(qint64 found, qint64 wanted, const char* what) {
  if (found != wanted) fail(std::to_string(found) + " instead of " + std::to_string(wanted) + ' ' + what);
}

qint64 filesIn(const std::string& folder) {
  qint64 count = 0;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) count += entry.is_regular_file();
  return count;
}

void printPeak() {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);)
    if (line.starts_with("VmHWM:")) std::cout << "peak " << std::stol(line.substr(6)) << '\n';
}

/// url, file with certificates, home, file: sends the file.
void send(const Command& a) {
  Agent agent(a[2]);
  agent.meet({a[0], a[1]});
  Work work;
  Agent::send(a[3]);
  work.finish();
  printPeak();
}

/// url, file with certificates, home, input folder, output folder, number of files: one pass of the upload thread.
void pipeline(const Command& a) {
  Agent agent(a[2]);
  agent.meet({a[0], a[1]});
  UploaderTask::addTask(Agent::makeTask("Pipeline", a[3], a[4], ".txt", 0));
  Work work;
  UploaderTask::updateAllStatus();
  const TaskPointer task = UploaderTask::getNextTaskWithFiles();
  if (!task || !task->PrepareToUpload()) fail("the task finds no work");
  task->ProcessFiles();
  work.finish();
  expect(task->UploadedCount, number(a[5]), "files uploaded");
  expect(filesIn(a[4]), number(a[5]), "copies");
  expect(task->getFileCount(), 0, "files still due");
}

/// home, folder, ending, date limit, number due: one look at the folder.
void look(const Command& a) {
  const Agent agent(a[0]);
  const TaskPointer task = Agent::makeTask("Look", a[1], {}, a[2], std::stod(a[3]));
  task->updateStatus();
  Work work;
  const UploaderTask::FolderLook found = task->lookAtInputFolder();
  work.finish();
  expect(static_cast<qint64>(found.files.due.size()), number(a[4]), "files due");
}

/// home, folder of input folders, folder of output folders, date limit, number of tasks, passes: CPU of idle passes.
void idle(const Command& a) {
  const Agent agent(a[0]);
  for (int i = 0; i < number(a[4]); ++i) {
    const std::string name = std::to_string(i);
    UploaderTask::addTask(Agent::makeTask("Idle " + name, a[1] + '/' + name, a[2], ".txt", std::stod(a[3])));
  }
  const auto pass = [] {
    UploaderTask::updateAllStatus();
    if (UploaderTask::getNextTaskWithFiles()) fail("an idle task found work");
  };
  pass();
  Work work;
  for (int i = 0; i < number(a[5]); ++i) pass();
  work.finish();
}

/// Log file, rows before, rows: inserts one after another. The rows before bring the log into the state in which it
/// stays: its side file has its size and is written from its beginning again.
void insert(const Command& a) {
  const auto opened = LogDatabase::open(*FolderItem::fromBytes(QByteArray::fromStdString(a[0])));
  if (!opened.database) fail(opened.error.toStdString());
  QString error;
  const auto insertRows = [&](int count) {
    for (int i = 0; i < count; ++i)
      if (!opened.database->insert(sampleRow(i), &error)) fail(error.toStdString());
  };
  insertRows(number(a[1]));
  Work work;
  insertRows(number(a[2]));
  work.finish();
}

/// Log file, rows: fills the log up to that many rows, in one transaction.
void fillLog(const Command& a) {
  const FolderItem file = *FolderItem::fromBytes(QByteArray::fromStdString(a[0]));
  if (const auto opened = LogDatabase::open(file); !opened.database) fail(opened.error.toStdString());
  sqlite3* db = nullptr;
  sqlite3_open(a[0].c_str(), &db);
  const std::string sql =
      "with recursive n(i) as (select coalesce(max(_rowid), 0) + 1 from log union all select i + 1 from n where i < " +
      a[1] +
      ") insert into log select i, 'measurement ' || i || '.txt', 'P_measurement ' || i || '.txt', "
      "'/srv/instruments/spectro 1/out', '/srv/archive/measurements', '5f0c2a9e-press-4-coated', "
      "'2024-05-06 07:08:09', 'Uploaded to Print Warden - Saved' from n where i <= " +
      a[1] + "; pragma wal_checkpoint(truncate)";
  if (sqlite3_exec(db, sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) fail(sqlite3_errmsg(db));
  sqlite3_close(db);
}

/// Folder for the certificates: serves until its standard input ends, and tells the requests answered when asked.
void sink(const Command& a) {
  PracticeSink server(QString::fromStdString(a[0]));
  if (!server.start()) fail(server.errorString().toStdString());
  std::cout << server.url().toStdString() << '\n' << server.caFile().toStdString() << std::endl;
  for (std::string line; std::getline(std::cin, line);) std::cout << server.requests() << std::endl;
}

struct Worker {
  const char* name;
  size_t arguments;
  void (*run)(const Command& arguments);
};

constexpr std::array workers{
    Worker{"send", 4, send}, Worker{"pipeline", 6, pipeline}, Worker{"look", 5, look},
    Worker{"idle", 6, idle}, Worker{"insert", 3, insert},     Worker{"fill-log", 2, fillLog},
    Worker{"sink", 1, sink}, Worker{"view-log", 2, viewLog},  Worker{"export-log", 3, exportLog}};

}  // namespace

LogRow sampleRow(int i) {
  const QString name = u"measurement %1.txt"_s.arg(i);
  return {.OriginalName = name,
          .NewName = u"P_"_s + name,
          .InputFolder = u"/srv/instruments/spectro 1/out"_s,
          .OutputFolder = u"/srv/archive/measurements"_s,
          .Track = u"5f0c2a9e-press-4-coated"_s,
          .EventTime = u"2024-05-06 07:08:09"_s,
          .Notes = u"Uploaded to Print Warden - Saved"_s};
}

int runAsWorker(const Command& arguments) {
  const auto worker = std::find_if(workers.begin(), workers.end(), [&](const Worker& w) {
    return !arguments.empty() && arguments[0] == w.name && arguments.size() == w.arguments + 1;
  });
  if (worker == workers.end()) fail("no such worker");
  worker->run(Command(arguments.begin() + 1, arguments.end()));
  return 0;
}

}  // namespace bench
