// How cost grows: each quantity is doubled three times.

#include <algorithm>
#include <cmath>

#include "Benches.h"

namespace bench {

static constexpr int Doublings = 3;

// What a doubling may cost: a straight line doubles and some noise is allowed; what should not grow may only be noisy.
static constexpr double Linear = 2.3;
static constexpr double Flat = 1.2;

/// Measures all sizes in turn; `measure` gets the number of times that the first one was doubled.
static void addSeries(Table& table, const std::string& name, const std::string& work, double toReach,
                      const std::function<std::string(int)>& label, const std::function<double(int)>& measure) {
  std::vector<Side> sides;
  for (int i = 0; i <= Doublings; ++i) sides.push_back([&measure, i] { return measure(i); });
  const auto median = inTurn(sides);
  std::string detail = label(0) + " " + duration(median[0]);
  for (int i = 1; i <= Doublings; ++i)
    detail += ", " + label(i) + " " + duration(median[i]) + " (x" + text(median[i] / median[i - 1]) + ")";
  table.add({.name = name,
             .work = work,
             .measured = std::pow(median.back() / median.front(), 1.0 / Doublings),
             .toReach = toReach,
             .unit = {},
             .detail = detail});
}

static void growFileSize(Lab& lab, Table& table) {
  constexpr qint64 smallest = 32 << 20;
  const Server& server = lab.server();
  for (int i = 0; i <= Doublings; ++i) (void)lab.dataFile(smallest << i);
  addSeries(
      table, "growth-file-size", "time of an upload, per doubling of the file", Linear,
      [](int i) { return std::to_string(32 << i) + " MiB"; },
      [&](int i) {
        return runWorker("send",
                         {server.url, server.caFile, lab.freshFolder("home"), lab.dataFile(smallest << i)})["wall"];
      });
}

static void growFolder(Lab& lab, Table& table) {
  constexpr int smallest = 6'250;
  const double limit = now() - 3600;
  for (int i = 0; i <= Doublings; ++i)
    lab.fillWithHoles(lab.freshFolder("many-" + std::to_string(i)), smallest << i, limit - 86400,
                      [](int) { return ".txt"; });
  addSeries(
      table, "growth-folder", "time of a look at a folder, per doubling of its old files", Linear,
      [](int i) { return std::to_string(smallest << i); },
      [&](int i) {
        return runWorker("look", {lab.freshFolder("home"), lab.path("many-" + std::to_string(i)), ".txt",
                                  text(limit, 3), "0"})["wall"];
      });
  for (int i = 0; i <= Doublings; ++i) lab.remove("many-" + std::to_string(i));
}

static void growBatch(Lab& lab, Table& table) {
  constexpr int smallest = 50;
  const Server& server = lab.server();
  for (int i = 0; i <= Doublings; ++i)
    lab.fillFolder(lab.freshFolder("in-" + std::to_string(i)), smallest << i, now() - 3600, 10 << 10);
  addSeries(
      table, "growth-batch", "time of a batch, per doubling of its due files", Linear,
      [](int i) { return std::to_string(smallest << i); },
      [&](int i) {
        return runWorker("pipeline",
                         {server.url, server.caFile, lab.freshFolder("home"), lab.path("in-" + std::to_string(i)),
                          lab.freshFolder("out"), std::to_string(smallest << i)})["wall"];
      });
  for (int i = 0; i <= Doublings; ++i) lab.remove("in-" + std::to_string(i));
  lab.remove("out");
}

static void growLog(Lab& lab, Table& table) {
  constexpr int smallest = 100'000;
  constexpr int rows = 300;
  const std::string folder = lab.freshFolder("logs") + '/';
  for (int i = 0; i <= Doublings; ++i)
    (void)runWorker("fill-log", {folder + std::to_string(i) + ".db", std::to_string(smallest << i)});
  addSeries(
      table, "growth-log", "time of a log row, per doubling of the rows that are there", Flat,
      [](int i) { return std::to_string(smallest << i); },
      [&](int i) {
        return runWorker("insert", {folder + std::to_string(i) + ".db", "50", std::to_string(rows)})["wall"] / rows;
      });
  lab.remove("logs");
}

void benchGrowth(Lab& lab, Table& table) {
  growFileSize(lab, table);
  growFolder(lab, table);
  growBatch(lab, table);
  growLog(lab, table);
}

}  // namespace bench
