#pragma once
// The lines of a run: what was measured, what is to be reached, and whether it was. One thread.

#include <string>
#include <vector>

namespace bench {

enum class Goal { AtMost, AtLeast };

struct Row {
  std::string name;  ///< by which bench/run takes it
  std::string work;  ///< in words, with what it is measured against
  double measured = 0;
  double toReach = 0;
  Goal goal = Goal::AtMost;
  std::string unit;    ///< empty for a ratio
  std::string detail;  ///< the figures behind it

  [[nodiscard]] bool reached() const { return goal == Goal::AtMost ? measured <= toReach : measured >= toReach; }
};

class Table {
 public:
  /// Prints the row at once.
  void add(const Row& row);
  [[nodiscard]] bool allReached() const;
  /// The table for a page, in Markdown.
  void write(const std::string& file) const;

 private:
  std::vector<Row> m_rows;
};

/// A number with `digits` decimals.
[[nodiscard]] std::string text(double value, int digits = 2);
/// A duration in the unit that suits it.
[[nodiscard]] std::string duration(double seconds);

}  // namespace bench
