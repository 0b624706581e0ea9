#include "service/Url.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

QString hostAndPort(const QString& host, int port) {
  return (host.contains(u':') ? u"[%1]:%2"_s : u"%1:%2"_s).arg(host, QString::number(port));
}

QString Url::authority() const { return hostAndPort(host, port); }

/// Splits "host", "host:port" or "[address]:port"; further fields behind a second colon are of no account.
static bool splitServerPart(const QString& server, QString& host, QString& port) {
  if (!server.startsWith(u'[')) {
    host = server.section(u':', 0, 0);
    port = server.section(u':', 1, 1);
    return true;
  }
  const qsizetype end = server.indexOf(u']');
  if (end < 0) return false;
  host = server.mid(1, end - 1);
  const QString rest = server.mid(end + 1);
  port = rest.mid(1);
  return rest.isEmpty() || rest.startsWith(u':');
}

std::optional<Url> Url::parse(const QString& text, int defaultPort) {
  const QString trimmed = text.trimmed();
  const bool clean = std::none_of(trimmed.begin(), trimmed.end(), [](QChar c) {
    return c.isSpace() || c.category() == QChar::Other_Control;  // a line end would write header fields of its own
  });
  if (!clean) return std::nullopt;

  const qsizetype scheme = trimmed.indexOf("://"_L1);
  const QString rest = scheme < 0 ? trimmed : trimmed.mid(scheme + 3);
  const qsizetype slash = rest.indexOf(u'/');
  const QString server = rest.left(slash);

  Url url;
  QString port;
  if (!splitServerPart(server, url.host, port) || url.host.isEmpty()) return std::nullopt;
  bool isNumber = true;
  url.port = port.isEmpty() ? defaultPort : static_cast<int>(port.toUShort(&isNumber));
  if (!isNumber || url.port < 1) return std::nullopt;
  url.whole = trimmed.toUtf8();
  url.serverPart = server.toUtf8();
  url.path = slash < 0 ? QByteArrayLiteral("/") : rest.mid(slash).toUtf8();
  return url;
}
