#include "Table.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <fstream>

#include "Process.h"

namespace bench {

std::string text(double value, int digits) {
  std::array<char, 64> buffer{};
  snprintf(buffer.data(), buffer.size(), "%.*f", digits, value);
  return buffer.data();
}

std::string duration(double seconds) {
  if (seconds >= 1) return text(seconds) + " s";
  if (seconds >= 1e-3) return text(seconds * 1e3, seconds < 0.01 ? 2 : 0) + " ms";
  return text(seconds * 1e6, 1) + " us";
}

static std::string figure(double value, const Row& row) {
  return text(value) + (row.unit.empty() ? "" : " " + row.unit);
}

static std::string target(const Row& row) {
  return (row.goal == Goal::AtMost ? "at most " : "at least ") + figure(row.toReach, row);
}

void Table::add(const Row& row) {
  m_rows.push_back(row);
  printf("%-22s %10s   to reach: %-17s %-11s %s\n", row.name.c_str(), figure(row.measured, row).c_str(),
         target(row).c_str(), row.reached() ? "reached" : "NOT REACHED", row.detail.c_str());
  fflush(stdout);
}

bool Table::allReached() const {
  return std::all_of(m_rows.begin(), m_rows.end(), [](const Row& row) { return row.reached(); });
}

void Table::write(const std::string& file) const {
  std::ofstream page(file);
  page << "| Name | Work | Measured | To reach | | Figures |\n|---|---|---|---|---|---|\n";
  for (const Row& row : m_rows)
    page << "| `" << row.name << "` | " << row.work << " | " << figure(row.measured, row) << " | " << target(row)
         << " | " << (row.reached() ? "reached" : "not reached") << " | " << row.detail << " |\n";
  if (!page.flush()) fail("could not write " + file);
}

}  // namespace bench
