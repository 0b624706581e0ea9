#pragma once
// What both kinds of call take from the preferences at each call. Any thread.

#include <QString>

/// Milliseconds of patience with the service.
inline constexpr int ServiceTimeoutMs = 20'000;
inline constexpr char EnvelopeType[] = "text/xml; charset=utf-8";

/// The stored text under a key, without white space at its ends; empty if there is none.
[[nodiscard]] QString storedPreference(const QString& key);

/// Where calls go: the account's endpoint, or the default one while that is blank.
[[nodiscard]] QString endpointInForce();
