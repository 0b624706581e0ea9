#pragma once
// What the preferences remember of the files that tasks dealt with. In memory; any thread.

#include "engine/BatchLedger.h"

/// The date limit of the tasks of that name, in seconds since 1970 UTC; 0 for none.
[[nodiscard]] double storedDateLimit(const QString& name);
/// The ledger of a task as a new start would read it.
[[nodiscard]] BatchLedger storedLedger(const QString& name, const QString& inputFolderPath);
