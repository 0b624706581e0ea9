// What an agent with nothing to do costs.

#include "Benches.h"

namespace bench {

static constexpr int Tasks = 20;
static constexpr int FilesEach = 5000;
static constexpr int Passes = 5;
static constexpr double SecondsBetweenPasses = 4;

void benchIdle(Lab& lab, Table& table) {
  const double limit = now() - 3600;
  const std::string folders = lab.freshFolder("idle");
  const std::string out = lab.freshFolder("out");
  Command find{"find"};
  for (int i = 0; i < Tasks; ++i) {
    const std::string folder = lab.freshFolder("idle/" + std::to_string(i));
    lab.fillWithHoles(folder, FilesEach, limit - 86400, [](int) { return ".txt"; });
    find.push_back(folder);
  }
  const std::string limitText = text(limit, 3);
  for (const char* part : {"-maxdepth", "1", "-type", "f", "-newermt"}) find.push_back(part);
  find.push_back("@" + limitText);

  const auto median = inTurn({
      [&] {
        return runWorker("idle", {lab.freshFolder("home"), folders, out, limitText, std::to_string(Tasks),
                                  std::to_string(Passes)})["cpu"] /
               Passes;
      },
      [&] {
        double cpu = 0;
        for (int i = 0; i < Passes; ++i) cpu += runCommand(find).cpuSeconds;
        return cpu / Passes;
      },
  });
  table.add({.name = "idle",
             .work = "CPU of 20 idle tasks of 5,000 old files each, against one `find -newermt` over the "
                     "same folders for each pass",
             .measured = median[0] / median[1],
             .toReach = 1.0,
             .unit = {},
             .detail = "pass " + duration(median[0]) + " (" + text(100 * median[0] / SecondsBetweenPasses, 1) +
                       " % of a core at one every 4 s), find " + duration(median[1])});
  lab.remove("idle");
  lab.remove("out");
}

}  // namespace bench
