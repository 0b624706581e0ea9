#pragma once
// A connection made ahead: while an exchange awaits its reply, the one that the next exchange will need is brought up
// to the same server, so that small files don't each wait for TCP and TLS. Nothing but the handshake is sent on it.
// One at a time, young or not at all: a server that closed it must not cost a file its exchange. One thread.

#include <chrono>
#include <memory>

#include "service/Connection.h"
#include "service/TlsContext.h"

class SpareConnection {
 public:
  /// Older ones are not used: servers close what stays silent, five seconds being the shortest wait in use.
  static constexpr std::chrono::seconds Life{2};

  /// Begins one to where `model` leads, in the place of what there was.
  void begin(const Connection& model, std::shared_ptr<TlsContext> tls, const QString& host, int port);
  /// The one coming up, or nothing.
  [[nodiscard]] Connection* get() const { return m_connection.get(); }
  /// Hands over the one for this server, standing or coming up; nothing if there is none that can be relied on.
  [[nodiscard]] std::unique_ptr<Connection> take(const std::shared_ptr<TlsContext>& tls, const QString& host, int port);

 private:
  std::shared_ptr<TlsContext> m_tls;  // outlives the connection
  std::unique_ptr<Connection> m_connection;
  QString m_host;
  int m_port = 0;
  Deadline m_until;
};
