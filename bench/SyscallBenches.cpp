// System calls, counted with strace between the marks of a worker.

#include <fstream>
#include <iterator>

#include "Benches.h"
#include "Workers.h"

namespace bench {

namespace {

class Trace {
 public:
  /// Runs the worker under strace, which records `calls`.
  Trace(const Lab& lab, const std::string& calls, const std::string& worker, const Command& arguments) {
    const std::string file = lab.path("trace");
    Command command{"strace", "-f", "-qq", "-s", "300", "-o", file, "-e", "trace=access," + calls};
    const Command traced = workerCommand(worker, arguments);
    command.insert(command.end(), traced.begin(), traced.end());
    (void)runCommand(command);
    bool between = false;
    std::ifstream lines(file);
    for (std::string line; std::getline(lines, line);) {
      if (line.find(BeginMark) != std::string::npos)
        between = true;
      else if (line.find(EndMark) != std::string::npos)
        return;
      else if (between && line.find(" resumed>") == std::string::npos)
        m_lines.push_back(line);
    }
    fail("no marks in the trace of " + worker);
  }

  /// Calls whose line holds the text; all for an empty one.
  [[nodiscard]] int count(const std::string& part = {}) const {
    int found = 0;
    for (const std::string& line : m_lines) found += line.find(part) != std::string::npos;
    return found;
  }

 private:
  std::vector<std::string> m_lines;
};

constexpr const char* MetadataCalls =
    "stat,lstat,fstat,newfstatat,statx,access,faccessat,faccessat2,readlink,readlinkat,open,openat,getxattr,lgetxattr";
// Not sync_file_range, with which a copy is started on its way: it waits for nothing and promises nothing.
constexpr const char* SyncCalls = "fsync,fdatasync,sync,syncfs,msync";

void countLooks(Lab& lab, Table& table) {
  constexpr int files = 2000;  // of which each second is filtered out by its name
  constexpr int due = 10;
  const double limit = now() - 3600;
  const std::string folder = lab.freshFolder("traced");
  lab.fillWithHoles(folder, files, limit - 86400, [](int i) { return i % 2 ? ".skip" : ".take"; });
  for (int i = 0; i < due; ++i) setDate(folder + "/0000" + std::to_string(i) + (i % 2 ? ".skip" : ".take"), limit + 60);
  const Trace trace(lab, MetadataCalls, "look",
                    {lab.freshFolder("home"), folder, ".take", text(limit, 3), std::to_string(due / 2)});
  const int candidates = files / 2;
  const int looks = trace.count(".take");
  table.add({.name = "syscalls-candidate",
             .work = "metadata calls per candidate file that isn't due",
             .measured = static_cast<double>(looks - due / 2) / candidates,
             .toReach = 1.0,
             .unit = {},
             .detail = std::to_string(looks) + " calls for " + std::to_string(candidates) + " candidates, of which " +
                       std::to_string(due / 2) + " are due and cost one more (may it be read?); " +
                       std::to_string(trace.count() - looks - trace.count(".skip")) + " for the folder"});
  table.add({.name = "syscalls-filtered",
             .work = "metadata calls per name that is filtered out",
             .measured = static_cast<double>(trace.count(".skip")) / candidates,
             .toReach = 0,
             .unit = {},
             .detail = std::to_string(trace.count(".skip")) + " calls for " + std::to_string(candidates) + " names"});
  lab.remove("traced");
}

void countSyncsOfRows(Lab& lab, Table& table) {
  constexpr int rows = 2000;
  const std::string folder = lab.freshFolder("log");
  const Trace trace(lab, SyncCalls, "insert", {folder + "/log.db", "1000", std::to_string(rows)});
  table.add({.name = "syscalls-log",
             .work = "syncs per log row, checkpoints included",
             .measured = static_cast<double>(trace.count()) / rows,
             .toReach = 1.05,
             .unit = {},
             .detail = std::to_string(trace.count()) + " syncs for " + std::to_string(rows) + " rows"});
  lab.remove("log");
}

void countSyncsOfFiles(Lab& lab, Table& table) {
  const Server& server = lab.server();
  const auto syncsOf = [&](int files) {
    const std::string in = lab.freshFolder("in");
    lab.fillFolder(in, files, now() - 3600, 1024);
    return Trace(
               lab, SyncCalls, "pipeline",
               {server.url, server.caFile, lab.freshFolder("home"), in, lab.freshFolder("out"), std::to_string(files)})
        .count();
  };
  constexpr int few = 20;
  constexpr int many = 60;
  const int first = syncsOf(few);
  const double perFile = static_cast<double>(syncsOf(many) - first) / (many - few);
  table.add({.name = "syscalls-upload",
             .work = "syncs per uploaded file: its copy, the copy's folder, its log row",
             .measured = perFile,
             .toReach = 3.0,
             .unit = {},
             .detail = text(first - few * perFile, 0) + " more for each batch"});
  lab.remove("in");
  lab.remove("out");
}

}  // namespace

void benchSyscalls(Lab& lab, Table& table) {
  countLooks(lab, table);
  countSyncsOfRows(lab, table);
  countSyncsOfFiles(lab, table);
}

}  // namespace bench
