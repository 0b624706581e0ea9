#pragma once
// A client that does what a test tells it, byte by byte, so that the practice service is judged by what it puts on the
// wire. Blocks; one object per connection.

#include <QSslSocket>
#include <QString>

class PracticeClient {
 public:
  /// Trusts `caFile` alone; empty: trusts nobody. Verifies the certificate for "localhost".
  explicit PracticeClient(const QString& caFile);

  [[nodiscard]] bool connectTo(quint16 port, int timeoutMs = 10000);
  /// True once all is in the hands of the kernel; false if the other side went away or takes no more.
  bool send(const QByteArray& bytes, int timeoutMs = 10000);
  /// Everything up to the end of the connection, or what came within `timeoutMs` of silence.
  [[nodiscard]] QByteArray readToEnd(int timeoutMs = 10000);
  /// At least `count` bytes, or what came within `timeoutMs`.
  [[nodiscard]] QByteArray readSome(qsizetype count, int timeoutMs = 10000);
  /// True if the connection ended, by whichever side.
  [[nodiscard]] bool ended() const { return m_socket.state() == QAbstractSocket::UnconnectedState; }
  [[nodiscard]] bool endedInOrder() const;  ///< with a TLS goodbye, or at least without an error
  QSslSocket& socket() { return m_socket; }

  /// A request as the uploader makes it.
  [[nodiscard]] static QByteArray post(const QByteArray& body, const QByteArray& path = "/api");
  [[nodiscard]] static QByteArray call(const QByteArray& method, const QByteArray& login = "practice",
                                       const QByteArray& password = "gray-balance-21");
  /// SendFile or SendIWFile; `base64` stands in the envelope as it is.
  [[nodiscard]] static QByteArray file(const QByteArray& method, const QByteArray& name, const QByteArray& destination,
                                       const QByteArray& base64);

 private:
  QSslSocket m_socket;
};

/// Sends a body to the service over a connection of its own and gives the whole reply.
QByteArray exchange(const class PracticeService& service, const QByteArray& body);
/// The text of the first `return` of a reply; null if it has none or its body isn't XML.
[[nodiscard]] QString returnOf(const QByteArray& reply);
