// Measures our work against public tools; see docs/performance.md. bench/run builds and calls it:
//   vantry-bench <folder to work in> <page to write> [name…]

#include <algorithm>
#include <array>
#include <cstdio>
#include <string>

#include "Benches.h"
#include "Workers.h"

namespace {

struct Group {
  const char* name;
  void (*run)(bench::Lab& lab, bench::Table& table);
};

constexpr std::array groups{Group{"upload", bench::benchUpload},
                            Group{"memory", bench::benchMemory},
                            Group{"pipeline", bench::benchPipeline},
                            Group{"folder", bench::benchFolder},
                            Group{"folder-endings", bench::benchFolderEndings},
                            Group{"log", bench::benchLog},
                            Group{"log-viewer", bench::benchLogViewer},
                            Group{"idle", bench::benchIdle},
                            Group{"base64", bench::benchBase64},
                            Group{"growth", bench::benchGrowth},
                            Group{"syscalls", bench::benchSyscalls}};

void checkNames(const bench::Command& names) {
  for (const std::string& name : names)
    if (std::none_of(groups.begin(), groups.end(), [&](const Group& group) { return name == group.name; })) {
      std::string known;
      for (const Group& group : groups) known += std::string(" ") + group.name;
      bench::fail("no benchmark " + name + "; there are" + known);
    }
}

}  // namespace

int main(int argc, char** argv) {
  const bench::Command arguments(argv + 1, argv + argc);
  if (!arguments.empty() && arguments[0] == "worker")
    return bench::runAsWorker(bench::Command(arguments.begin() + 1, arguments.end()));
  if (arguments.size() < 2) bench::fail("usage: vantry-bench <folder> <page> [name…]");
  const bench::Command names(arguments.begin() + 2, arguments.end());
  checkNames(names);

  bench::Table table;
  {
    bench::Lab lab(arguments[0]);
    for (const Group& group : groups)
      if (names.empty() || std::find(names.begin(), names.end(), group.name) != names.end()) group.run(lab, table);
  }
  table.write(arguments[1]);
  return table.allReached() ? 0 : 1;
}
