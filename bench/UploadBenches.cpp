// One large file over TLS 1.3, and the memory that a file costs.

#include "Benches.h"

namespace bench {

static constexpr qint64 MiB = 1 << 20;

static Command curl(const Server& server, const Command& body) {
  Command command{"curl",     "--silent",    "--fail", "--http1.0",
                  "--cacert", server.caFile, "-H",     "Content-Type: text/xml; charset=utf-8"};
  command.insert(command.end(), body.begin(), body.end());
  command.push_back(server.url);
  return command;
}

void benchUpload(Lab& lab, Table& table) {
  const Server& server = lab.server();
  const std::string file = lab.dataFile(256 * MiB);
  const std::string envelope = lab.path("envelope.xml");
  lab.writeEnvelope(file, envelope);

  const auto median = inTurn({
      [&] {
        return runWorker("send", {server.url, server.caFile, lab.freshFolder("home"), file})["wall"];
      },
      [&] {
        return runCommand(curl(server, {"--data-binary", "@" + envelope})).wallSeconds;
      },
      [&] {
        return runCommand(curl(server, {"-X", "POST", "-T", envelope})).wallSeconds;
      },
  });
  // Each of our runs says hello first.
  if (lab.requestsAnswered() != 4 * Turns) fail("the server did not get every upload");
  const std::string ours = "SendFile " + duration(median[0]) + ", curl ";
  table.add({.name = "upload",
             .work = "256 MiB file, TLS 1.3, against `curl --http1.0 --data-binary` of the ready envelope",
             .measured = median[0] / median[1],
             .toReach = 0.6,
             .unit = {},
             .detail = ours + duration(median[1])});
  table.add({.name = "upload-streamed",
             .work = "the same against `curl -T` of the ready envelope",
             .measured = median[0] / median[2],
             .toReach = 1.1,
             .unit = {},
             .detail = ours + duration(median[2])});
  lab.remove("envelope.xml");
}

void benchMemory(Lab& lab, Table& table) {
  const Server& server = lab.server();
  const std::string small = lab.sparseFile(MiB);
  const std::string large = lab.sparseFile(1024 * MiB);
  const auto peak = [&](const std::string& file) {
    return runWorker("send", {server.url, server.caFile, lab.freshFolder("home"), file})["peak"] / 1024;
  };
  const auto median = inTurn({[&] { return peak(small); }, [&] { return peak(large); }});
  table.add({.name = "memory",
             .work = "growth of peak memory from a 1 MiB to a 1 GiB file",
             .measured = median[1] - median[0],
             .toReach = 8,
             .unit = "MiB",
             .detail = "peak " + text(median[0], 1) + " MiB and " + text(median[1], 1) + " MiB"});
}

}  // namespace bench
