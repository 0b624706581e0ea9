#include "practice/PracticeService.h"

#include <sys/socket.h>

#include <QCryptographicHash>
#include <QSslCertificate>
#include <QSslConfiguration>
#include <QSslKey>
#include <QTcpServer>
#include <QTemporaryDir>
#include <utility>

#include "practice/Catalogue.h"
#include "practice/PracticeListener.h"
#include "practice/ServiceThread.h"

using namespace Qt::Literals::StringLiterals;

class PracticeService::Private {
 public:
  PracticeContext context;
  ServiceThread thread{"practice"};
  QObject* worker = nullptr;  // lives in the thread and owns the listeners
  std::unique_ptr<QTemporaryDir> temporary;
  QString caFile, error;
  quint16 port = 0;

  std::optional<QSslConfiguration> configuration();
  bool listen(const QSslConfiguration& tls, quint16 wanted);
  PracticeListener* listenOn(const QSslConfiguration& tls, const QHostAddress& address, quint16 wanted);
};

static QSsl::SslProtocol protocolOf(const QList<int>& onlyTls) {
  if (onlyTls == QList<int>{12}) return QSsl::TlsV1_2;
  if (onlyTls == QList<int>{13}) return QSsl::TlsV1_3;
  return QSsl::TlsV1_2OrLater;
}

std::optional<QSslConfiguration> PracticeService::Private::configuration() {
  using namespace Certificates;
  const Flaw flaw = context.options.certificateFlaw;
  const bool kept = flaw == Flaw::None && !context.options.tlsFolder.isEmpty();
  if (!kept && !temporary) temporary = std::make_unique<QTemporaryDir>();
  const QString folder = kept ? context.options.tlsFolder : temporary->path();
  const StoredIdentity identity = flaw == Flaw::None ? ensure(folder) : make(folder, flaw);
  caFile = identity.caFile;
  error = identity.error;
  if (!error.isEmpty()) return std::nullopt;
  QSslConfiguration tls = QSslConfiguration::defaultConfiguration();
  tls.setLocalCertificate(QSslCertificate(identity.server.certificatePem));
  tls.setPrivateKey(QSslKey(identity.server.keyPem, QSsl::Ec));
  tls.setPeerVerifyMode(QSslSocket::VerifyNone);
  tls.setProtocol(protocolOf(context.options.onlyTls));
  return tls;
}

PracticeListener* PracticeService::Private::listenOn(const QSslConfiguration& tls, const QHostAddress& address,
                                                     quint16 wanted) {
  auto* listener = new PracticeListener(context, worker);
  listener->setSslConfiguration(tls);
  if (!listener->listen(address, wanted)) {
    error = listener->errorString();
    delete listener;
    return nullptr;
  }
  const int bytes = context.options.receiveBufferBytes;
  if (bytes > 0)
    setsockopt(static_cast<int>(listener->socketDescriptor()), SOL_SOCKET, SO_RCVBUF, &bytes, sizeof bytes);
  return listener;
}

// Both loopback addresses must be ours: with one of them another program's, "localhost" could lead there.
bool PracticeService::Private::listen(const QSslConfiguration& tls, quint16 wanted) {
  static constexpr int Tries = 20;
  QTcpServer probe;
  const bool hasSix = probe.listen(QHostAddress::LocalHostIPv6);
  probe.close();
  for (int i = 0; i < Tries; ++i) {
    const auto* first = listenOn(tls, QHostAddress::LocalHost, wanted);
    if (!first) return false;
    port = first->serverPort();
    context.ownUrl = u"https://localhost:%1/api"_s.arg(port);
    if (!hasSix || listenOn(tls, QHostAddress::LocalHostIPv6, port)) return true;
    delete first;
    if (wanted != 0) return false;
  }
  return false;
}

PracticeService::PracticeService() : PracticeService(Options()) {}

PracticeService::PracticeService(const Options& options) : d(std::make_unique<Private>()) {
  d->context.options = options;
  d->context.passwordHash = QCryptographicHash::hash(options.password.toUtf8(), QCryptographicHash::Sha256).toHex();
}

PracticeService::~PracticeService() { stop(); }

bool PracticeService::start(quint16 port) {
  stop();
  const auto tls = d->configuration();
  if (!tls) return false;
  d->context.store = std::make_unique<PracticeStore>(d->context.options.storeFolder);
  bool listening = false;
  d->thread.start(
      [&] {
        d->worker = new QObject;
        listening = d->listen(*tls, port);
      },
      [this] { delete std::exchange(d->worker, nullptr); });
  if (!listening) stop();
  return listening;
}

void PracticeService::stop() { d->thread.stop(); }

quint16 PracticeService::port() const { return d->port; }
QString PracticeService::errorString() const { return d->error; }
QString PracticeService::url() const { return d->context.ownUrl; }
QString PracticeService::caFile() const { return d->caFile; }

QList<PracticeReceipt> PracticeService::receipts() const { return d->context.books.receipts(); }
QList<PracticeRequest> PracticeService::requests() const { return d->context.books.requests(); }
bool PracticeService::waitForReceipts(int count, int timeoutMs) const {
  return d->context.books.waitForReceipts(count, timeoutMs);
}
bool PracticeService::waitForRequests(int count, int timeoutMs) const {
  return d->context.books.waitForRequests(count, timeoutMs);
}
void PracticeService::setReceiptObserver(std::function<void(const PracticeReceipt&)> observer) {
  d->context.books.setObserver(std::move(observer));
}
void PracticeService::forgetReceived() { d->context.books.forget(); }

int PracticeService::connections() const { return d->context.books.connections(); }
int PracticeService::failedHandshakes() const { return d->context.books.failedHandshakes(); }
qint64 PracticeService::bytesBeforeFailedHandshakes() const { return d->context.books.bytesBeforeFailedHandshakes(); }

void PracticeService::misbehave(const Misbehaviour& misbehaviour) { d->context.books.misbehave(misbehaviour); }
void PracticeService::behave() { d->context.books.behave(); }

void PracticeService::whenBodyReaches(qint64 bytes, std::function<void()> hook, const QByteArray& method) {
  d->context.books.setHook({bytes, std::move(hook), method});
}

void PracticeService::hold() { d->context.books.setHolding(true); }

void PracticeService::release() {
  d->context.books.setHolding(false);
  d->thread.call([this] {
    for (auto* listener : d->worker->findChildren<PracticeListener*>()) emit listener->released();
  });
}

bool PracticeService::waitForHeld(int count, int timeoutMs) const {
  return d->context.books.waitForHeld(count, timeoutMs);
}

QString PracticeService::knownPrintTrack() { return QString::fromUtf8(Catalogue::printTracks().front().workflowName); }
QString PracticeService::knownInstrumentTrack() {
  return QString::fromUtf8(Catalogue::instrumentPairs().front().workflowName);
}
