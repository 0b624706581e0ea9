#pragma once
// Asks the service whether a login works, by way of a proxy of the caller's, and puts the outcome into words. It
// changes nothing that lasts.

#include <QString>

#include "service/HTTPSocket.h"
#include "storage/Preferences.h"

struct ConnectionRequest {
  QString login, password;  ///< neither blank
  VantryUtil::ProxySetting proxy;
};

struct ConnectionAnswer {
  enum class Kind { Succeeded, ErrorAnswered, NoAnswer, NotTheService };
  Kind kind = Kind::NoAnswer;
  QString err;          ///< of ErrorAnswered, for errToString
  HttpFailure failure;  ///< of NoAnswer
};

/// Blocks for the exchange, a minute at most; any thread but the main one.
[[nodiscard]] ConnectionAnswer testConnection(const ConnectionRequest& request);

/// What the window says beside its button.
struct ConnectionLine {
  QString text;
  QString detail;  ///< how the exchange failed, for the tool tip
};
/// `proxy` is the one of the request. Any thread.
[[nodiscard]] ConnectionLine connectionLine(const ConnectionAnswer& answer, const VantryUtil::ProxySetting& proxy);

/// The proxy that two fields stand for: a port that none can be counts as 0, which is no proxy.
[[nodiscard]] VantryUtil::ProxySetting proxyOfFields(const QString& address, const QString& port);
