#pragma once
// One HTTP exchange from the name to the last byte of the reply: what HTTPSocket's Post and Get do. One thread.

#include <QByteArray>
#include <QString>
#include <memory>

#include "service/Connection.h"
#include "service/HTTPSocket.h"
#include "service/ReplyParser.h"
#include "service/SpareConnection.h"
#include "service/TlsContext.h"
#include "service/Url.h"

struct HttpRequest {
  QByteArray method;
  QString url;
  int defaultPort = 80;
  InternetHeaders headers;
  QByteArray contentType;
  RequestSource* content = nullptr;  ///< may be none
  bool secure = false;
  QString proxyAddress;  ///< blank for none
  int proxyPort = 0;
  QString extraCaFile;
  HttpLimits limits;
  int timeoutMs = 0;
  SpareConnection* spare = nullptr;  ///< taken from, and filled for the exchange after this if `anotherFollows`
  bool anotherFollows = false;
};

struct HttpReply {
  QByteArray body;
  int status = 0;
  InternetHeaders headers;
  HttpFailure failure;
};

/// Request line and headers, with the blank line behind them; empty if a header field can't be written on one line.
[[nodiscard]] QByteArray requestHead(const HttpRequest& request, const Url& url);

class HttpExchange {
 public:
  explicit HttpExchange(const HttpRequest& request) : m_request(request) {}
  [[nodiscard]] HttpReply run();

 private:
  [[nodiscard]] bool usesProxy() const;
  [[nodiscard]] QString proxyAuthority() const;

  // The steps up to a connection that stands; false when the exchange is over.
  void exchange();
  bool standsAlready();
  bool connectToPeer();
  bool openTunnel();
  bool takeTunnelAnswer(const HeadReader& reader);
  bool startTls();

  // Request and reply; true when some bytes moved.
  void transfer();
  bool readReply();
  bool sendMore();

  /// Brings the next piece of the content into m_output.
  bool nextPiece();
  void connectionEnded(Connection::Io how);
  void judgeReply(ReplyParser::State state);
  void deliver();
  /// While the reply is being made: the connection for the exchange after this one.
  void prepareNext();
  bool waitForPeer(bool writing);
  void extendDeadline();
  [[nodiscard]] HttpFailure timeOut() const;
  /// Ends the exchange with a failure; always false.
  bool fail(HttpFailure::Phase phase, int code, const QString& detail);
  bool take(const HttpFailure& failure);

  const HttpRequest& m_request;
  Url m_url;
  QString m_peer;          ///< who is spoken to at present, for messages
  bool m_atProxy = false;  ///< it is the proxy
  std::shared_ptr<TlsContext> m_tls;
  std::unique_ptr<Connection> m_connection = std::make_unique<Connection>();
  Deadline m_deadline;
  HttpReply m_reply;
  std::unique_ptr<ReplyParser> m_parser;
  QByteArray m_output;  ///< what is being written; holds secrets
  qsizetype m_outputSent = 0;
  qint64 m_contentLeft = 0;  ///< bytes that m_request.content has not given yet
  bool m_sending = false;    ///< the request is not out yet, whole
  bool m_requestOut = false;
  bool m_writesFailed = false;
  bool m_over = false;
};
