// Many small files through the whole pipeline.

#include <unistd.h>

#include <fstream>

#include "Benches.h"

namespace bench {

static constexpr int Files = 200;
static constexpr int FileBytes = 10 << 10;

/// One transfer per envelope in one process of curl; HTTP/1.0 makes it a connection each.
static std::string writeCurlConfig(const Lab& lab, const Server& server, const std::string& in) {
  const std::string envelopes = lab.freshFolder("envelopes");
  const std::string config = lab.path("curl.config");
  std::ofstream out(config);
  int count = 0;
  for (const auto& entry : std::filesystem::directory_iterator(in)) {
    const std::string envelope = envelopes + '/' + entry.path().filename().string() + ".xml";
    lab.writeEnvelope(entry.path().string(), envelope);
    if (count++ > 0) out << "next\n";
    out << "silent\nfail\nhttp1.0\noutput = /dev/null\ncacert = \"" << server.caFile << "\"\nurl = \"" << server.url
        << "\"\nheader = \"Content-Type: text/xml; charset=utf-8\"\ndata-binary = \"@" << envelope << "\"\n";
  }
  if (!out.flush()) fail("could not write " + config);
  return config;
}

void benchPipeline(Lab& lab, Table& table) {
  const Server& server = lab.server();
  const std::string in = lab.freshFolder("in");
  lab.fillFolder(in, Files, now() - 3600, FileBytes);
  const std::string config = writeCurlConfig(lab, server, in);

  const int before = lab.requestsAnswered();
  // A folder of its own for each turn of each run, all removed at the end: so each lies elsewhere on the disk.
  const std::string mark = '-' + std::to_string(getpid()) + '-';
  int turn = 0;
  const auto median = inTurn({
      [&] {
        const std::string number = mark + std::to_string(turn++);
        return runWorker("pipeline", {server.url, server.caFile, lab.freshFolder("home" + number), in,
                                      lab.freshFolder("out" + number), std::to_string(Files)})["wall"];
      },
      [&] {
        return runCommand({"curl", "--config", config}).wallSeconds;
      },
  });
  // Each of our runs says hello first.
  if (lab.requestsAnswered() - before != (2 * Files + 1) * Turns) fail("the server did not get every file");
  table.add({.name = "pipeline",
             .work = "200 files of 10 KiB through the whole pipeline, copy and log row included, "
                     "against one curl process sending 200 ready envelopes, a connection each",
             .measured = median[0] / median[1],
             .toReach = 1.0,
             .unit = {},
             .detail = "agent " + duration(median[0]) + ", curl " + duration(median[1])});
  for (const char* folder : {"in", "envelopes"}) lab.remove(folder);
  for (int i = 0; i < turn; ++i) lab.remove("out" + mark + std::to_string(i));
}

}  // namespace bench
