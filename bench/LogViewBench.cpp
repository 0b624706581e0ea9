// The log viewer over a log of a million rows, against the database's own tool over the same file.

#include <array>
#include <filesystem>
#include <map>

#include "Benches.h"
#include "LogViewWorker.h"

namespace bench {

static constexpr const char* Rows = "1000000";
static constexpr std::array Columns{"OriginalName", "NewName",   "InputFolder", "OutputFolder",
                                    "Track",        "EventTime", "Notes"};

static Command tool(const std::string& log, const std::string& sql, const std::string& output = "/dev/null") {
  return {"sqlite3", "-readonly", "-tabs", "-cmd", ".output " + output, log, sql};
}

/// The tool flushes nothing; an export that is to survive a power loss does.
static double toolExport(const std::string& log, const std::string& to) {
  std::string columns = Columns[0];
  for (size_t i = 1; i < Columns.size(); ++i) columns += std::string(", ") + Columns[i];
  const double written = runCommand(tool(log, "select " + columns + " from log order by _rowid", to)).wallSeconds;
  return written + runCommand({"sync", to}).wallSeconds;
}

void benchLogViewer(Lab& lab, Table& table) {
  const std::string home = lab.freshFolder("log-viewer");
  std::filesystem::create_directories(home + "/vantry-uploader");
  const std::string log = home + "/vantry-uploader/VantryUploader.db";
  (void)runWorker("fill-log", {log, Rows});
  std::string search = "select _rowid from log where 0";
  for (const char* const column : Columns)
    search += std::string(" or ") + column + " like '%measurement " + Rows + ".txt%'";
  std::map<std::string, double> view;
  const auto value = [&](const char* key) { return [&view, key] { return view[key]; }; };
  const auto median =
      inTurn({[&] {
                return (view = runWorker("view-log", {home, Rows}))["first"];
              },
              value("ids"), value("find"), value("pause"), value("growth"),
              [&] { return runCommand(tool(log, "select _rowid from log order by _rowid")).wallSeconds; },
              [&] { return runCommand(tool(log, search)).wallSeconds; },
              [&] {
                return runWorker("export-log", {home, Rows, home + "/a.txt"})["wall"];
              },
              [&] { return toolExport(log, home + "/b.txt"); }});
  const auto add = [&table](const char* name, const char* work, double measured, double toReach, const char* unit,
                            const std::string& detail) {
    table.add({name, work, measured, toReach, Goal::AtMost, unit, detail});
  };
  add("log-viewer", "the first page of a log of 1,000,000 rows is painted, from the opening of the window",
      median[0] * 1000, 500, "ms", "all rows are in the list after " + duration(median[1]));
  add("log-viewer-ids", "all rows are in the list, against sqlite3 printing their row ids", median[1] / median[5], 1.5,
      "", "viewer " + duration(median[1]) + ", sqlite3 " + duration(median[5]));
  add("log-viewer-find", "a text in any of seven columns of 1,000,000 rows, against sqlite3 with like on each",
      median[2] / median[6], 1.5, "", "viewer " + duration(median[2]) + ", sqlite3 " + duration(median[6]));
  add("log-viewer-pause", "longest pause of the event loop while it loads, scrolls and searches", median[3] * 1000, 50,
      "ms", "200 places of the list looked at");
  add("log-viewer-memory", "growth of peak memory by the window and all rows", median[4] / 1024, 100, "MiB",
      "8 MiB of row ids among it");
  add("log-viewer-export", "1,000,000 rows exported and flushed, against sqlite3 printing them to a file, and sync",
      median[7] / median[8], 1.5, "", "export " + duration(median[7]) + ", sqlite3 " + duration(median[8]));
  lab.remove("log-viewer");
}

}  // namespace bench
