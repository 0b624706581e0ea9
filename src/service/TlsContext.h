#pragma once
// What all TLS connections of one trust setting share: TLS 1.2 and later, the system's store of authorities beside an
// extra file, and the sessions that can be taken up again (RFC 5077, RFC 8446 2.2), a server each. Any thread.

#include <QByteArray>
#include <QString>
#include <map>
#include <memory>
#include <mutex>
#include <vector>

struct ssl_ctx_st;
struct ssl_st;
struct ssl_session_st;

class TlsContext {
 public:
  /// The context that trusts the system's store and, if it isn't empty, the PEM file `extraCaFile`. Loaded once; anew
  /// when that file has changed. Nothing, with the reason in `error`, when the file can't be loaded.
  static std::shared_ptr<TlsContext> shared(const QString& extraCaFile, QString& error);

  ~TlsContext();
  TlsContext(const TlsContext&) = delete;
  TlsContext& operator=(const TlsContext&) = delete;

  /// A client that will accept no certificate but a trusted one for `host`, with the newest session of that
  /// server, if there is one. The caller frees it, before this context. nullptr if OpenSSL refuses.
  [[nodiscard]] ssl_st* newClient(const QString& host, int port);
  void forgetSession(const QString& host, int port);

 private:
  explicit TlsContext(ssl_ctx_st* context) : m_context(context) {}
  static std::shared_ptr<TlsContext> load(const QString& extraCaFile, QString& error);
  void useSession(ssl_st* ssl, const QByteArray& server);
  void keepSession(const QByteArray& server, ssl_session_st* session);
  static int sessionArrived(ssl_st* ssl, ssl_session_st* session);

  using SessionPointer = std::unique_ptr<ssl_session_st, void (*)(ssl_session_st*)>;

  ssl_ctx_st* m_context;
  std::mutex m_mutex;                                            // guards m_sessions
  std::map<QByteArray, std::vector<SessionPointer>> m_sessions;  // the newest last
};
