#include "service/SpareConnection.h"

void SpareConnection::begin(const Connection& model, std::shared_ptr<TlsContext> tls, const QString& host, int port) {
  m_connection.reset();
  const SocketAddress address = model.peerAddress();
  if (address.length == 0) return;
  m_tls = std::move(tls);
  m_host = host;
  m_port = port;
  m_until = std::chrono::steady_clock::now() + Life;
  m_connection = std::make_unique<Connection>();
  m_connection->begin(address, *m_tls, host, port);
}

std::unique_ptr<Connection> SpareConnection::take(const std::shared_ptr<TlsContext>& tls, const QString& host,
                                                  int port) {
  std::unique_ptr<Connection> connection = std::move(m_connection);
  if (!connection || m_tls != tls || m_host != host || m_port != port) return nullptr;
  if (std::chrono::steady_clock::now() >= m_until) return nullptr;
  if (!connection->advance() && !connection->peerStays()) return nullptr;
  return connection;
}
