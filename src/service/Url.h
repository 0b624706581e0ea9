#pragma once
// The parts of a service address, taken apart as the transport needs them. A value; any thread.

#include <QByteArray>
#include <QString>
#include <optional>

struct Url {
  QByteArray whole;       ///< as it was given, UTF-8, without white space at its ends
  QByteArray serverPart;  ///< between "://" and the path, unchanged; for the Host field
  QByteArray path;        ///< from the first "/" on; "/" when there is none
  QString host;           ///< to look up; without the brackets of an IPv6 address
  int port = 0;

  /// Everything up to the first "://" is dropped; the scheme itself is not looked at. Nothing for an address without a
  /// host, with a port that is no number from 1 to 65535, or with white space or control characters in it.
  static std::optional<Url> parse(const QString& text, int defaultPort);

  /// host:port, with an IPv6 address in brackets.
  [[nodiscard]] QString authority() const;
};

/// host:port for messages and CONNECT, with an IPv6 address in brackets.
[[nodiscard]] QString hostAndPort(const QString& host, int port);
