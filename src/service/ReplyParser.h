#pragma once
// HTTP replies as they come in, in pieces of any length; no socket. One thread.
//
// The head ends at the first CR LF CR LF, LF LF or CR CR. Interim heads (status 100 to 199 but 101) are passed over.
// The body's length is the Content-length: decimal digits alone; several of them must say the same. A length that is
// anything else makes the reply unusable, since its end can't be known (RFC 9112, 6.3). Bytes behind the announced
// length are no part of the reply. Without a length the body ends with the connection; chunks are not decoded.

#include <QByteArray>
#include <optional>

#include "service/HTTPSocket.h"

/// The bytes up to the end of a head, and those that came with it.
class HeadReader {
 public:
  explicit HeadReader(qint64 maxBytes) : m_maxBytes(maxBytes) {}

  enum class State { Incomplete, Complete, TooLarge };
  State feed(QByteArrayView bytes);

  [[nodiscard]] int status() const;  ///< second blank-separated field of the first line; 0 if it is no number
  [[nodiscard]] InternetHeaders headers() const;
  [[nodiscard]] const QByteArray& head() const { return m_head; }  ///< with its end
  [[nodiscard]] const QByteArray& rest() const { return m_rest; }  ///< what came behind the head

 private:
  [[nodiscard]] QByteArray takeLine(qsizetype& position) const;

  qint64 m_maxBytes;
  State m_state = State::Incomplete;
  QByteArray m_head, m_rest;
};

class ReplyParser {
 public:
  enum class State { Head, Body, Complete, TooLarge, BadLength };

  explicit ReplyParser(const HttpLimits& limits)
      : m_limits(limits), m_headBytesLeft(limits.maxHeaderBytes), m_reader(limits.maxHeaderBytes) {}

  State feed(QByteArrayView bytes);
  /// True if the end of the connection, coming now, is the end of the reply.
  [[nodiscard]] bool endsWithConnection() const { return m_state == State::Body && !m_length; }

  [[nodiscard]] State state() const { return m_state; }
  [[nodiscard]] int status() const { return m_status; }
  [[nodiscard]] const InternetHeaders& headers() const { return m_headers; }
  [[nodiscard]] qint64 bodyBytes() const { return m_body.size(); }
  [[nodiscard]] QByteArray takeBody() { return std::move(m_body); }

 private:
  State beginBody();
  State append(QByteArrayView bytes);

  HttpLimits m_limits;
  qint64 m_headBytesLeft;
  HeadReader m_reader;
  State m_state = State::Head;
  int m_status = 0;
  InternetHeaders m_headers;
  std::optional<qint64> m_length;
  QByteArray m_body;
};
