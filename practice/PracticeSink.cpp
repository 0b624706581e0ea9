#include "practice/PracticeSink.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <openssl/err.h>
#include <openssl/pem.h>
#include <openssl/ssl.h>
#include <signal.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QTemporaryDir>
#include <atomic>
#include <cerrno>
#include <list>
#include <mutex>
#include <thread>
#include <vector>

#include "practice/Certificates.h"
#include "practice/PracticeReply.h"

using namespace Qt::Literals::StringLiterals;

namespace {

struct Free {
  void operator()(SSL_CTX* p) const { SSL_CTX_free(p); }
  void operator()(SSL* p) const { SSL_free(p); }
  void operator()(BIO* p) const { BIO_free(p); }
  void operator()(X509* p) const { X509_free(p); }
  void operator()(EVP_PKEY* p) const { EVP_PKEY_free(p); }
};
template <typename T>
using Pointer = std::unique_ptr<T, Free>;

constexpr int BufferBytes = 64 << 10;

Pointer<SSL_CTX> makeContext(const Certificates::ServerIdentity& identity) {
  Pointer<SSL_CTX> context(SSL_CTX_new(TLS_server_method()));
  const Pointer<BIO> certificateText(
      BIO_new_mem_buf(identity.certificatePem.constData(), static_cast<int>(identity.certificatePem.size())));
  const Pointer<BIO> keyText(BIO_new_mem_buf(identity.keyPem.constData(), static_cast<int>(identity.keyPem.size())));
  const Pointer<X509> certificate(PEM_read_bio_X509(certificateText.get(), nullptr, nullptr, nullptr));
  const Pointer<EVP_PKEY> key(PEM_read_bio_PrivateKey(keyText.get(), nullptr, nullptr, nullptr));
  static constexpr unsigned char Id[] = "practice-sink";
  if (!context || !certificate || !key || SSL_CTX_use_certificate(context.get(), certificate.get()) != 1 ||
      SSL_CTX_use_PrivateKey(context.get(), key.get()) != 1 ||
      SSL_CTX_set_min_proto_version(context.get(), TLS1_2_VERSION) != 1 ||
      SSL_CTX_set_session_id_context(context.get(), Id, sizeof Id - 1) != 1)
    return {};
  SSL_CTX_set_read_ahead(context.get(), 1);
  SSL_CTX_set_default_read_buffer_len(context.get(), BufferBytes);
  SSL_CTX_set_options(context.get(), SSL_OP_IGNORE_UNEXPECTED_EOF);
  return context;
}

// A peer that goes away must not end the process; the signal goes to the thread that wrote.
void blockBrokenPipe() {
  sigset_t set;
  sigemptyset(&set);
  sigaddset(&set, SIGPIPE);
  pthread_sigmask(SIG_BLOCK, &set, nullptr);
}

bool writeAll(SSL* tls, const QByteArray& bytes) {
  return SSL_write(tls, bytes.constData(), static_cast<int>(bytes.size())) > 0;
}

// The Content-length of a head in any case; 0 without one.
qint64 contentLength(const QByteArray& head) {
  static const QByteArray Name = "\r\ncontent-length:";
  const QByteArray lower = head.toLower();
  const qsizetype at = lower.indexOf(Name);
  if (at < 0) return 0;
  const qsizetype from = at + Name.size();
  return lower.mid(from, lower.indexOf("\r\n", from) - from).trimmed().toLongLong();
}

}  // namespace

class PracticeSink::Private {
 public:
  struct Client {
    int fd = -1;
    std::atomic<bool> done = false;
    std::thread thread;
  };

  Pointer<SSL_CTX> context;
  std::unique_ptr<QTemporaryDir> temporary;
  QString tlsFolder, caFile, error;
  int listening = -1;
  quint16 port = 0;
  std::thread accepting;
  std::mutex mutex;  // guards the list below and the descriptors in it
  std::list<Client> clients;
  bool stopping = false;  // guarded too
  std::atomic<int> requests = 0, resumed = 0;
  std::atomic<qint64> bytes = 0;

  bool prepare();
  bool listenOn(quint16 wanted);
  void acceptAll();
  void serve(Client& client);
  void exchange(SSL* tls);
  void forgetDone();
};

bool PracticeSink::Private::prepare() {
  if (context) return true;
  if (tlsFolder.isEmpty()) {
    temporary = std::make_unique<QTemporaryDir>();
    tlsFolder = temporary->path();
  }
  const Certificates::StoredIdentity identity = Certificates::ensure(tlsFolder);
  caFile = identity.caFile;
  error = identity.error;
  if (error.isEmpty()) context = makeContext(identity.server);
  if (!context && error.isEmpty()) error = u"OpenSSL did not take the certificate"_s;
  return context != nullptr;
}

bool PracticeSink::Private::listenOn(quint16 wanted) {
  listening = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  const int on = 1;
  setsockopt(listening, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_port = htons(wanted);
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  socklen_t size = sizeof address;
  if (bind(listening, reinterpret_cast<sockaddr*>(&address), size) != 0 || listen(listening, 128) != 0 ||
      getsockname(listening, reinterpret_cast<sockaddr*>(&address), &size) != 0) {
    error = u"Could not listen on port %1"_s.arg(wanted);
    close(listening);
    listening = -1;
    return false;
  }
  port = ntohs(address.sin_port);
  return true;
}

void PracticeSink::Private::acceptAll() {
  blockBrokenPipe();
  for (;;) {
    const int fd = accept4(listening, nullptr, nullptr, SOCK_CLOEXEC);
    const std::lock_guard lock(mutex);
    if (stopping || (fd < 0 && errno != ECONNABORTED && errno != EINTR)) {
      if (fd >= 0) close(fd);
      return;
    }
    if (fd < 0) continue;
    forgetDone();
    Client& client = clients.emplace_back();
    client.fd = fd;
    client.thread = std::thread([this, &client] { serve(client); });
  }
}

// Under the mutex.
void PracticeSink::Private::forgetDone() {
  for (auto client = clients.begin(); client != clients.end();) {
    if (!client->done) {
      ++client;
      continue;
    }
    client->thread.join();
    client = clients.erase(client);
  }
}

void PracticeSink::Private::serve(Client& client) {
  blockBrokenPipe();
  const int on = 1;
  setsockopt(client.fd, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
  {
    const Pointer<SSL> tls(SSL_new(context.get()));
    if (tls && SSL_set_fd(tls.get(), client.fd) == 1 && SSL_accept(tls.get()) == 1) {
      if (SSL_session_reused(tls.get())) ++resumed;
      exchange(tls.get());
    }
    ERR_clear_error();
  }
  {
    const std::lock_guard lock(mutex);
    close(client.fd);
    client.fd = -1;
  }
  client.done = true;
}

void PracticeSink::Private::exchange(SSL* tls) {
  std::vector<char> buffer(BufferBytes);
  QByteArray head;
  qsizetype headEnd = -1;
  while (headEnd < 0 && head.size() < BufferBytes) {
    const int count = SSL_read(tls, buffer.data(), BufferBytes);
    if (count <= 0) return;
    head.append(buffer.data(), count);
    headEnd = head.indexOf("\r\n\r\n");
  }
  const qint64 length = contentLength(head.left(headEnd + 2));
  if (head.left(headEnd).toLower().contains("\r\nexpect: 100-continue") &&
      !writeAll(tls, "HTTP/1.1 100 Continue\r\n\r\n"))
    return;
  qint64 received = head.size() - headEnd - 4;
  while (received < length) {
    const int count = SSL_read(tls, buffer.data(), BufferBytes);
    if (count <= 0) return;
    received += count;
  }
  bytes += received;
  ++requests;
  if (writeAll(tls, PracticeReply::xml(200, PracticeReply::envelope("SendFile", "The file was taken."))))
    SSL_shutdown(tls);
}

PracticeSink::PracticeSink(const QString& tlsFolder) : d(std::make_unique<Private>()) { d->tlsFolder = tlsFolder; }

PracticeSink::~PracticeSink() { stop(); }

bool PracticeSink::start(quint16 port) {
  stop();
  if (!d->prepare() || !d->listenOn(port)) return false;
  d->stopping = false;
  d->accepting = std::thread([this] { d->acceptAll(); });
  return true;
}

void PracticeSink::stop() {
  if (d->listening < 0) return;
  {
    const std::lock_guard lock(d->mutex);
    d->stopping = true;
    for (const Private::Client& client : d->clients)
      if (client.fd >= 0) shutdown(client.fd, SHUT_RDWR);
  }
  shutdown(d->listening, SHUT_RDWR);
  d->accepting.join();
  close(d->listening);
  d->listening = -1;
  for (Private::Client& client : d->clients) client.thread.join();
  d->clients.clear();
}

quint16 PracticeSink::port() const { return d->port; }
QString PracticeSink::errorString() const { return d->error; }
QString PracticeSink::url() const { return u"https://localhost:%1/api"_s.arg(d->port); }
QString PracticeSink::caFile() const { return d->caFile; }
int PracticeSink::requests() const { return d->requests; }
int PracticeSink::resumedSessions() const { return d->resumed; }
qint64 PracticeSink::bodyBytes() const { return d->bytes; }
