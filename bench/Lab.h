#pragma once
// Where benchmarks work: a folder of their own that is emptied before and after, files and folders to work on, and the
// server that both sides of a comparison send to. One thread.

#include <QtGlobal>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "Process.h"
#include "Table.h"

namespace bench {

/// Each side is measured this often, in turn with the others.
inline constexpr int Turns = 5;

struct Server {
  std::string url, caFile;
};

class Lab {
 public:
  /// `folder` is removed with all that is in it, now and at the end.
  explicit Lab(std::filesystem::path folder);
  ~Lab();
  Lab(const Lab&) = delete;
  Lab& operator=(const Lab&) = delete;

  [[nodiscard]] std::string path(const std::string& relative) const { return (m_folder / relative).string(); }
  /// An empty folder of that name, made anew.
  std::string freshFolder(const std::string& relative) const;
  void remove(const std::string& relative) const;

  /// A file of that many bytes that don't repeat, at rest on the disk and in the page cache; kept from call to call.
  std::string dataFile(qint64 bytes);
  /// A file that is one hole: it costs no disk.
  [[nodiscard]] std::string sparseFile(qint64 bytes) const;
  /// The envelope that SendFile makes of a file, as a file ready for another client.
  void writeEnvelope(const std::string& from, const std::string& to) const;
  /// `count` files named 00000 and on with the ending that `ending` gives for each number, all of one date. Those of
  /// fillWithHoles have a size and no blocks, since who only looks at them can't tell and the disk has less to do.
  void fillFolder(const std::string& folder, int count, double date, int bytes) const;
  void fillWithHoles(const std::string& folder, int count, double date,
                     const std::function<std::string(int)>& ending) const;

  /// The practice service in its plainest form, in a process of its own, started when first asked for.
  const Server& server();
  /// Requests that the server has answered. It must be running.
  [[nodiscard]] int requestsAnswered();

 private:
  std::filesystem::path m_folder;
  std::unique_ptr<BackgroundProcess> m_sink;
  Server m_server;
};

void setDate(const std::string& file, double secondsSince1970);
[[nodiscard]] double now();
/// "@…", as find takes a date.
[[nodiscard]] std::string findDate(double secondsSince1970);

using Side = std::function<double()>;
/// Measures all sides once, then all again, and gives the median of each.
[[nodiscard]] std::vector<double> inTurn(const std::vector<Side>& sides, int turns = Turns);

}  // namespace bench
