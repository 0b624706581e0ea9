#include "service/HTTPSocket.h"

#include <QMutex>
#include <algorithm>

#include "build_settings.h"
#include "platform/FileCipher.h"
#include "service/HttpExchange.h"
#include "storage/Preferences.h"

static constexpr qsizetype PieceSize = 64 << 10;

static QMutex extraCaFileMutex;  // guards extraCaFilePath

static QString& extraCaFilePath() {
  static QString path = QString::fromUtf8(ExtraCaFile);
  return path;
}

void VantryUtil::setExtraCaFile(const QString& pemFile) {
  const QMutexLocker lock(&extraCaFileMutex);
  extraCaFilePath() = pemFile;
}

static QString extraCaFile() {
  const QMutexLocker lock(&extraCaFileMutex);
  return extraCaFilePath();
}

void VantryUtil::ConfigureProxy(HTTPSocket& socket) { ConfigureProxy(socket, proxy()); }

void VantryUtil::ConfigureProxy(HTTPSocket& socket, const ProxySetting& setting) {
  if (setting.port < 1 || setting.address.trimmed().isEmpty()) return;
  socket.HTTPProxyAddress = setting.address;
  socket.HTTPProxyPort = setting.port;
}

void InternetHeaders::set(const QByteArray& name, const QByteArray& value) {
  for (auto& field : m_fields) {
    if (field.first.compare(name, Qt::CaseInsensitive) != 0) continue;
    field.second = value;
    return;
  }
  append(name, value);
}

QByteArray InternetHeaders::value(const QByteArray& name) const {
  for (const auto& field : m_fields) {
    if (field.first.compare(name, Qt::CaseInsensitive) == 0) return field.second;
  }
  return {};
}

namespace {

/// Content that somebody else holds in memory, read in pieces.
class MemorySource : public RequestSource {
 public:
  explicit MemorySource(const QByteArray& content) : m_content(content) {}

  [[nodiscard]] qint64 size() const override { return m_content.size(); }
  [[nodiscard]] bool read(QByteArray& buffer) override {
    const qsizetype count = std::min(PieceSize, m_content.size() - m_position);
    buffer.append(m_content.constData() + m_position, count);
    m_position += count;
    return true;
  }

 private:
  const QByteArray& m_content;
  qsizetype m_position = 0;
};

}  // namespace

struct HTTPSocket::Exchange {
  Exchange() = default;
  ~Exchange() { wipe(content); }  // an envelope holds the login
  Exchange(const Exchange&) = delete;
  Exchange& operator=(const Exchange&) = delete;

  bool secure = false;
  QByteArray content;
  std::unique_ptr<RequestSource> source;
  QByteArray contentType;
  HttpReply reply;
};

HTTPSocket::HTTPSocket() : HTTPSocket(false) {}

HTTPSocket::HTTPSocket(bool secure) : m_exchange(std::make_unique<Exchange>()) {
  m_exchange->secure = secure;
  requestHeaders.append("Accept", "*/*");
  requestHeaders.append("Accept-Language", "en");
}

HTTPSocket::~HTTPSocket() = default;

HTTPSecureSocket::HTTPSecureSocket() : HTTPSocket(true) { DefaultPort = 443; }

void HTTPSocket::SetRequestContent(const QByteArray& content, const QByteArray& mimeType) {
  wipe(m_exchange->content);
  m_exchange->content = content;
  m_exchange->source.reset();
  m_exchange->contentType = mimeType;
}

void HTTPSocket::SetRequestSource(std::unique_ptr<RequestSource> source, const QByteArray& mimeType) {
  SetRequestContent({}, mimeType);
  m_exchange->source = std::move(source);
}

QByteArray HTTPSocket::perform(const QByteArray& method, const QString& url, int timeoutMs, RequestSource* content) {
  HttpRequest request;
  request.method = method;
  request.url = url;
  request.defaultPort = DefaultPort;
  request.headers = requestHeaders;
  request.contentType = m_exchange->contentType;
  request.content = content;
  request.secure = m_exchange->secure;
  request.proxyAddress = HTTPProxyAddress;
  request.proxyPort = HTTPProxyPort;
  request.extraCaFile = extraCaFile();
  request.limits = limits;
  request.timeoutMs = timeoutMs;
  request.spare = spare;
  request.anotherFollows = anotherFollows;
  m_exchange->reply = HttpExchange(request).run();
  return m_exchange->reply.body;
}

QByteArray HTTPSocket::Post(const QString& url, int timeoutMs) {
  MemorySource memory(m_exchange->content);
  RequestSource* content = m_exchange->source ? m_exchange->source.get() : &memory;
  return perform("POST", url, timeoutMs, content);
}

QByteArray HTTPSocket::Get(const QString& url, int timeoutMs) { return perform("GET", url, timeoutMs, nullptr); }

int HTTPSocket::HTTPStatusCode() const { return m_exchange->reply.status; }

const InternetHeaders& HTTPSocket::PageHeaders() const { return m_exchange->reply.headers; }

const HttpFailure& HTTPSocket::failure() const { return m_exchange->reply.failure; }
