#pragma once
// What this program does in processes of its own, so that each measurement starts from the same state and has its own
// peak of memory. A worker prepares untimed, works between two marks, checks what it did, and prints "key value" lines:
// seconds as `wall` and `cpu`, memory as `peak` in KiB.

#include "Process.h"

namespace bench {

/// Runs the worker that `arguments` names, with what follows for it; gives the exit code of the process.
int runAsWorker(const Command& arguments);

/// The path of an access() call that fails; it stands in a trace of system calls where the work begins and ends.
inline constexpr const char* BeginMark = "/bench-begins";
inline constexpr const char* EndMark = "/bench-ends";

}  // namespace bench
