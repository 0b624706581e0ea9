#pragma once
// What both kinds of call have in common. Any thread.

#include <QString>

#include "storage/Preferences.h"

/// Milliseconds of patience with the service.
inline constexpr int ServiceTimeoutMs = 20'000;
inline constexpr char EnvelopeType[] = "text/xml; charset=utf-8";

/// Where calls of that account go: to its endpoint, or to the default one as long as that isn't known.
[[nodiscard]] QString endpointFor(const VantryUtil::Account& account);
