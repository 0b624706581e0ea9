#pragma once
// What the preferences remember of the files that tasks dealt with. In memory; any thread.

#include "engine/BatchLedger.h"

/// The date limit of the tasks of that name, in seconds since 1970 UTC; 0 for none.
[[nodiscard]] double storedDateLimit(const QString& name);

/// The same, and how often it was cleared in this process: where it is 0 already, clearing doesn't show in it.
struct DueLimit {
  double seconds = 0;
  quint64 clearings = 0;
  bool operator==(const DueLimit&) const = default;
};
[[nodiscard]] DueLimit dueLimit(const QString& name);

/// Files dated later than this, in seconds since 1970 UTC, are looked at. After our clock was set back the limit lies
/// ahead until the next batch, so it reaches down to the moment at which that was first seen.
[[nodiscard]] double dueCutoff(const QString& name, const QString& inputFolderPath, double limit, const Date& now);

/// The ledger of a task as a new start would read it.
[[nodiscard]] BatchLedger storedLedger(const QString& name, const QString& inputFolderPath);
