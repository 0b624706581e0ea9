#pragma once
// HTTP/1.0 for one exchange on a connection of its own (RFC 1945, RFC 9112 framing by Content-length): plain TCP, or
// TLS 1.2 and later through OpenSSL with the host's certificate checked. A socket belongs to the thread that calls
// it; no connection is reused. Every phase (name, connect, proxy, TLS, request, reply) has its limit, and a stop ends
// each within a second.

#include <QByteArray>
#include <QList>
#include <QString>
#include <functional>
#include <memory>
#include <utility>

class SpareConnection;

/// Ordered header fields; names are compared without regard to case (RFC 9110).
class InternetHeaders {
 public:
  void append(const QByteArray& name, const QByteArray& value) { m_fields.append({name, value}); }
  void set(const QByteArray& name, const QByteArray& value);  ///< replaces the first of that name, else appends
  [[nodiscard]] QByteArray value(const QByteArray& name) const;
  [[nodiscard]] int Count() const { return static_cast<int>(m_fields.size()); }
  [[nodiscard]] const QList<std::pair<QByteArray, QByteArray>>& fields() const { return m_fields; }

 private:
  QList<std::pair<QByteArray, QByteArray>> m_fields;
};

/// How an exchange ended when it did not end with a whole page.
struct HttpFailure {
  enum class Phase { None, Name, Connect, Proxy, Tls, Request, Reply, TooLarge, TimedOut, Source, Stopped };
  Phase phase = Phase::None;
  int code = 0;             ///< errno or library code; -1 for a time-out
  QString detail;           ///< words for a person; names the peer, never a secret
  QString peer{};           ///< host:port that was spoken to; empty before the first step
  bool atProxy = false;     ///< `peer` is the proxy
  bool requestCut = false;  ///< the service had not got the request, whole
  [[nodiscard]] bool failed() const { return phase != Phase::None; }
};

/// The content of a request, read piece by piece while it is sent.
class RequestSource {
 public:
  virtual ~RequestSource() = default;
  /// Bytes in all, known before the first is read.
  [[nodiscard]] virtual qint64 size() const = 0;
  /// Appends the next piece (about 64 KiB) to `buffer`; false breaks the exchange off. Nothing appended: the end.
  [[nodiscard]] virtual bool read(QByteArray& buffer) = 0;
};

/// Bounds of a client; the defaults are the product's, tests shorten them.
struct HttpLimits {
  qint64 maxReplyBytes = 64LL << 20;
  qint64 maxHeaderBytes = 64LL << 10;
};

class HTTPSocket {
 public:
  HTTPSocket();
  virtual ~HTTPSocket();
  HTTPSocket(const HTTPSocket&) = delete;
  HTTPSocket& operator=(const HTTPSocket&) = delete;

  QString HTTPProxyAddress;  ///< blank for none
  int HTTPProxyPort = 0;
  int DefaultPort = 80;
  InternetHeaders requestHeaders;  ///< starts with Accept and Accept-Language
  HttpLimits limits;
  SpareConnection* spare = nullptr;  ///< the caller's, for a row of exchanges with one server over TLS
  bool anotherFollows = false;       ///< a further exchange comes right behind the next one

  /// The content is wiped when it is replaced or the socket goes; a secret in it needs no other copy by then.
  void SetRequestContent(const QByteArray& content, const QByteArray& mimeType);
  /// For one Post: a source can be read once.
  void SetRequestSource(std::unique_ptr<RequestSource> source, const QByteArray& mimeType);

  /// Posts and gives the reply's body as it came, whatever its status; a part of it, or nothing, when the exchange
  /// failed; failure() then tells why. A reply that came before the request was out, or in the place of a tunnel from
  /// a proxy, is given too, with that failure. `timeoutMs` bounds the time until the connection stands, then the time
  /// from there to the first body byte, then each silence of the body. Sending is no sign of life.
  [[nodiscard]] QByteArray Post(const QString& url, int timeoutMs);
  /// The same with GET and without content.
  [[nodiscard]] QByteArray Get(const QString& url, int timeoutMs);

  [[nodiscard]] int HTTPStatusCode() const;
  [[nodiscard]] const InternetHeaders& PageHeaders() const;
  [[nodiscard]] const HttpFailure& failure() const;

 protected:
  explicit HTTPSocket(bool secure);

 private:
  struct Exchange;
  QByteArray perform(const QByteArray& method, const QString& url, int timeoutMs, RequestSource* content);

  std::unique_ptr<Exchange> m_exchange;
};

/// The same over TLS, port 443 by default.
class HTTPSecureSocket : public HTTPSocket {
 public:
  HTTPSecureSocket();
};

namespace VantryUtil {
struct ProxySetting;
/// Sets the proxy in force on a new socket, if there is one (address not blank, port 1 or more).
void ConfigureProxy(HTTPSocket& socket);
/// The same with a proxy of the caller's.
void ConfigureProxy(HTTPSocket& socket, const ProxySetting& setting);
/// A PEM file trusted beside the system's store for connections made from now on; empty for none. The build's own
/// setting holds until this is called. For the practice build's tests. Any thread.
void setExtraCaFile(const QString& pemFile);
}  // namespace VantryUtil
