// Looking for the due files of a large folder.

#include <algorithm>

#include "Benches.h"

namespace bench {

static constexpr int Files = 100'000;
static constexpr int Due = 100;

/// `every`: each how many-th file has the right ending.
static void benchLook(Lab& lab, Table& table, int every, Row row) {
  const double limit = now() - 3600;
  const std::string folder = lab.freshFolder("many");
  const auto ending = [every](int i) { return i % every == 0 ? ".txt" : ".tmp"; };
  lab.fillWithHoles(folder, Files, limit - 86400, ending);
  for (int i = 0; i < Due; ++i) {
    const std::string number = std::to_string(i * (Files / Due));
    setDate(folder + '/' + std::string(5 - number.size(), '0') + number + ".txt", limit + 1800);
  }

  const std::string limitText = text(limit, 3);
  const auto median = inTurn({
      [&] {
        return runWorker("look", {lab.freshFolder("home"), folder, ".txt", limitText, std::to_string(Due)})["wall"];
      },
      [&] {
        const Finished find = runCommand({"find", folder, "-maxdepth", "1", "-type", "f", "-newermt", "@" + limitText});
        if (std::count(find.output.begin(), find.output.end(), '\n') != Due) fail("find found other files");
        return find.wallSeconds;
      },
  });
  row.measured = median[0] / median[1];
  row.detail = "look " + duration(median[0]) + ", find " + duration(median[1]);
  table.add(row);
  lab.remove("many");
}

void benchFolder(Lab& lab, Table& table) {
  benchLook(lab, table, 1,
            {.name = "folder",
             .work = "a look at a folder of 100,000 files, 100 due, every file with the right ending, "
                     "against `find -maxdepth 1 -type f -newermt`",
             .toReach = 1.0,
             .unit = {},
             .detail = {}});
}

void benchFolderEndings(Lab& lab, Table& table) {
  benchLook(lab, table, 10,
            {.name = "folder-endings",
             .work = "the same, one in ten with the right ending, against that `find`",
             .toReach = 0.35,
             .unit = {},
             .detail = {}});
}

}  // namespace bench
