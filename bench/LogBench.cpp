// One row of the log, durable.

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <chrono>

#include "Benches.h"
#include "Workers.h"
#include "storage/LogDatabase.h"

namespace bench {

// A turn holds about one checkpoint.
static constexpr int RowsPerTurn = 600;

namespace {

class Overwriting {
 public:
  explicit Overwriting(const std::string& file) : m_file(open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600)) {}
  ~Overwriting() { close(m_file); }
  Overwriting(const Overwriting&) = delete;
  Overwriting& operator=(const Overwriting&) = delete;

  void once() {
    ++m_block[0];
    if (pwrite(m_file, m_block.data(), m_block.size(), 0) != static_cast<ssize_t>(m_block.size()) ||
        fdatasync(m_file) != 0)
      fail("could not overwrite 4 KiB");
  }

 private:
  int m_file;
  std::array<char, 4096> m_block{};
};

double secondsEach(const std::function<void()>& once) {
  const auto begin = std::chrono::steady_clock::now();
  for (int i = 0; i < RowsPerTurn; ++i) once();
  const std::chrono::duration<double> wall = std::chrono::steady_clock::now() - begin;
  return wall.count() / RowsPerTurn;
}

}  // namespace

void benchLog(Lab& lab, Table& table) {
  const std::string folder = lab.freshFolder("log");
  auto opened = LogDatabase::open(*FolderItem::fromBytes(QByteArray::fromStdString(folder + "/log.db")));
  if (!opened.database) fail(opened.error.toStdString());
  int number = 0;
  const auto insert = [&] {
    QString error;
    if (!opened.database->insert(sampleRow(number++), &error)) fail(error.toStdString());
  };
  Overwriting overwriting(folder + "/block");
  // Both files get their size first; the log then stays in the state in which it is for months.
  (void)secondsEach(insert);
  overwriting.once();

  const auto median =
      inTurn({[&] { return secondsEach(insert); }, [&] { return secondsEach([&] { overwriting.once(); }); }});
  table.add({.name = "log",
             .work = "a log row, durable, against overwriting 4 KiB and fdatasync",
             .measured = median[0] / median[1],
             .toReach = 2.0,
             .unit = {},
             .detail = "row " + duration(median[0]) + ", overwriting " + duration(median[1])});
  opened.database.reset();
  lab.remove("log");
}

}  // namespace bench
