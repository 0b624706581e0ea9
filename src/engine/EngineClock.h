#pragma once
// The clock that the engine reads: the machine's, until a test puts its own there before the engine runs.

#include "platform/Clock.h"

[[nodiscard]] const Clock& engineClock();
/// nullptr brings the machine's clock back. The clock must outlive its use.
void setEngineClock(const Clock* clock);
