#include "service/TlsContext.h"

#include <arpa/inet.h>
#include <openssl/err.h>
#include <openssl/ssl.h>
#include <openssl/x509v3.h>

#include <QByteArrayList>
#include <QFile>
#include <QUrl>
#include <cstring>

#include "platform/SafeFile.h"
#include "service/Url.h"
#include "text/Placeholders.h"
#include "text/VTULocalization.h"

using namespace Qt::Literals::StringLiterals;

// The servers of an account are one or two; more than this is somebody's test.
static constexpr size_t MaxServers = 64;
static constexpr size_t MaxSessions = 4;  // of one server; two come with each connection

/// Where an SSL object keeps the name under which its sessions are filed.
static int serverNameIndex() {
  static const int index = SSL_get_ex_new_index(
      0, nullptr, nullptr, nullptr,
      [](void*, void* name, CRYPTO_EX_DATA*, int, long, void*) { delete static_cast<QByteArray*>(name); });
  return index;
}

/// Puts the suite that every implementation of TLS 1.3 has (RFC 8446, 9.1) before the others that the system allows: its
/// SHA-256 makes a handshake cheaper on both sides than the SHA-384 of the one that OpenSSL names first.
static void preferCommonSuite(SSL_CTX* context) {
  static const QByteArray Common = "TLS_AES_128_GCM_SHA256";
  QByteArrayList suites;
  const STACK_OF(SSL_CIPHER)* const allowed = SSL_CTX_get_ciphers(context);
  for (int i = 0; i < sk_SSL_CIPHER_num(allowed); ++i) {
    const SSL_CIPHER* const suite = sk_SSL_CIPHER_value(allowed, i);
    if (qstrcmp(SSL_CIPHER_get_version(suite), "TLSv1.3") == 0) suites << SSL_CIPHER_get_name(suite);
  }
  if (!suites.removeOne(Common)) return;
  suites.prepend(Common);
  SSL_CTX_set_ciphersuites(context, suites.join(':').constData());
}

std::shared_ptr<TlsContext> TlsContext::load(const QString& extraCaFile, QString& error) {
  const std::unique_ptr<SSL_CTX, void (*)(SSL_CTX*)> context(SSL_CTX_new(TLS_client_method()), SSL_CTX_free);
  if (!context || SSL_CTX_set_min_proto_version(context.get(), TLS1_2_VERSION) != 1) {
    error = VTULocalization::klTlsLibraryFailed();
    return nullptr;
  }
  preferCommonSuite(context.get());
  SSL_CTX_set_default_verify_paths(context.get());
  if (!extraCaFile.isEmpty() &&
      SSL_CTX_load_verify_file(context.get(), QFile::encodeName(extraCaFile).constData()) != 1) {
    error = fillPlaceholders(VTULocalization::klTrustFileUnusable(), {extraCaFile});
    ERR_clear_error();
    return nullptr;
  }
  SSL_CTX_set_verify(context.get(), SSL_VERIFY_PEER, nullptr);
  SSL_CTX_set_options(context.get(), SSL_OP_NO_RENEGOTIATION | SSL_OP_NO_COMPRESSION);
  SSL_CTX_set_mode(context.get(), SSL_MODE_ENABLE_PARTIAL_WRITE | SSL_MODE_ACCEPT_MOVING_WRITE_BUFFER);
  SSL_CTX_set_read_ahead(context.get(), 1);
  SSL_CTX_set_session_cache_mode(context.get(), SSL_SESS_CACHE_CLIENT | SSL_SESS_CACHE_NO_INTERNAL_STORE);
  SSL_CTX_sess_set_new_cb(context.get(), sessionArrived);
  SSL_CTX_up_ref(context.get());
  std::shared_ptr<TlsContext> result(new TlsContext(context.get()));
  SSL_CTX_set_app_data(context.get(), result.get());
  return result;
}

std::shared_ptr<TlsContext> TlsContext::shared(const QString& extraCaFile, QString& error) {
  struct Loaded {
    std::optional<FileVersion> version;
    std::shared_ptr<TlsContext> context;
  };
  static std::mutex mutex;  // guards contexts
  static auto& contexts = *new std::map<QString, Loaded>;

  std::optional<FileVersion> version;
  if (const auto item = FolderItem::fromNativePath(extraCaFile)) version = versionOf(*item);
  const std::lock_guard lock(mutex);
  Loaded& loaded = contexts[extraCaFile];
  if (!loaded.context || loaded.version != version) loaded = {version, load(extraCaFile, error)};
  return loaded.context;
}

TlsContext::~TlsContext() {
  SSL_CTX_set_app_data(m_context, nullptr);
  SSL_CTX_free(m_context);
}

static QByteArray serverName(const QString& host, int port) { return hostAndPort(host.toLower(), port).toUtf8(); }

/// Both checks of a name that OpenSSL leaves off unless told: that the certificate is for it, and that the server
/// knows which name is meant.
static bool expectHost(SSL* ssl, const QByteArray& host) {
  in6_addr ignored;
  const bool isAddress =
      inet_pton(AF_INET, host.constData(), &ignored) == 1 || inet_pton(AF_INET6, host.constData(), &ignored) == 1;
  X509_VERIFY_PARAM* parameters = SSL_get0_param(ssl);
  if (isAddress) return X509_VERIFY_PARAM_set1_ip_asc(parameters, host.constData()) == 1;
  X509_VERIFY_PARAM_set_hostflags(parameters, X509_CHECK_FLAG_NO_PARTIAL_WILDCARDS);
  return SSL_set1_host(ssl, host.constData()) == 1 && SSL_set_tlsext_host_name(ssl, host.constData()) == 1;
}

ssl_st* TlsContext::newClient(const QString& host, int port) {
  SSL* ssl = SSL_new(m_context);
  if (!ssl) return nullptr;
  const QByteArray name = host.contains(u':') ? host.toLatin1() : QUrl::toAce(host);
  if (name.isEmpty() || !expectHost(ssl, name)) {
    SSL_free(ssl);
    return nullptr;
  }
  const QByteArray server = serverName(host, port);
  SSL_set_ex_data(ssl, serverNameIndex(), new QByteArray(server));
  useSession(ssl, server);
  return ssl;
}

/// A session of TLS 1.3 serves once (RFC 8446 C.4), and OpenSSL holds to it.
void TlsContext::useSession(ssl_st* ssl, const QByteArray& server) {
  const std::lock_guard lock(m_mutex);
  const auto found = m_sessions.find(server);
  if (found == m_sessions.end() || found->second.empty()) return;
  SSL_SESSION* const newest = found->second.back().get();
  SSL_set_session(ssl, newest);
  if (SSL_SESSION_get_protocol_version(newest) >= TLS1_3_VERSION) found->second.pop_back();
}

int TlsContext::sessionArrived(ssl_st* ssl, ssl_session_st* session) {
  auto* context = static_cast<TlsContext*>(SSL_CTX_get_app_data(SSL_get_SSL_CTX(ssl)));
  const auto* server = static_cast<const QByteArray*>(SSL_get_ex_data(ssl, serverNameIndex()));
  if (!context || !server) return 0;
  context->keepSession(*server, session);
  return 1;  // the reference is ours now
}

void TlsContext::keepSession(const QByteArray& server, ssl_session_st* session) {
  const std::lock_guard lock(m_mutex);
  if (m_sessions.size() >= MaxServers && !m_sessions.contains(server)) m_sessions.clear();
  std::vector<SessionPointer>& sessions = m_sessions[server];
  if (sessions.size() >= MaxSessions) sessions.erase(sessions.begin());
  sessions.emplace_back(session, SSL_SESSION_free);
}

void TlsContext::forgetSession(const QString& host, int port) {
  const std::lock_guard lock(m_mutex);
  m_sessions.erase(serverName(host, port));
}
