// One row of the log, durable.

#include "Benches.h"

namespace bench {

static constexpr int Rows = 1000;
static constexpr int RowsBefore = 1000;  // past the first checkpoint

void benchLog(Lab& lab, Table& table) {
  const std::string folder = lab.freshFolder("log");
  const std::string rows = std::to_string(Rows);
  const auto median = inTurn({
      [&] {
        return runWorker("insert", {folder + "/log.db", std::to_string(RowsBefore), rows})["wall"] / Rows;
      },
      [&] {
        return runWorker("overwrite", {folder + "/block", rows})["wall"] / Rows;
      },
  });
  table.add({.name = "log",
             .work = "a log row, durable, against overwriting 4 KiB and fdatasync",
             .measured = median[0] / median[1],
             .toReach = 2.0,
             .unit = {},
             .detail = "row " + duration(median[0]) + ", overwriting " + duration(median[1])});
  lab.remove("log");
}

}  // namespace bench
