#pragma once
// The log viewer at work, offscreen, in a process of its own.

#include "Process.h"

namespace bench {

/// Home with a log, number of rows: opens the viewer, scrolls, searches. Prints seconds as `first` (the first page is
/// painted), `ids` (all rows are in the list) and `find` (a search over all rows has ended), the longest pause of the
/// event loop as `pause`, and the growth of peak memory since before the window as `growth`, in KiB.
void viewLog(const Command& arguments);
/// Home with a log, number of rows, file: exports all rows and prints `wall`.
void exportLog(const Command& arguments);

}  // namespace bench
