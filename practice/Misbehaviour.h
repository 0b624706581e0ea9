#pragma once
// One thing that the practice service shall do wrong, and for which requests. A value.

#include <QByteArray>

struct Misbehaviour {
  enum class Kind {
    // What the reply says. A file is not stored.
    ErrorCode,       ///< `text` (such as "E004") in `return`
    HtmlError,       ///< status 500 with an HTML page
    Redirect,        ///< status 302 to the address `text`, with a small HTML page
    EmptyReply,      ///< status 200, Content-length 0
    EmptyReturn,     ///< a `return` element without text
    NoReturn,        ///< an envelope without a `return` element
    SeveralReturns,  ///< an empty `return`, then one with `text` (or a success), then one with another text
    NotJson,         ///< a `return` text that begins like JSON and isn't
    DeepJson,        ///< JSON nested `bytes` levels deep
    NotXml,          ///< status 200, tags that don't match
    NestedEntities,  ///< a document type whose entities grow into gigabytes
    LongReply,       ///< a `return` text of `bytes` characters
    RawReply,        ///< `text` instead of the whole reply, head included; then the connection ends in good order

    // How the proper reply is delivered. A file is stored.
    NoReply,       ///< silence; the connection stays open
    StallReply,    ///< silence after `bytes` bytes of the reply, the head counted
    CutReply,      ///< the connection is dropped, without TLS goodbye, after `bytes` bytes of the reply
    TrickleReply,  ///< `bytes` bytes every `everyMs`
    Chunked,       ///< chunked transfer encoding
    HeadEndsLf,    ///< lines of the head end in LF, so it ends in LF LF
    HeadEndsCr,    ///< lines of the head end in CR, so it ends in CR CR
    NoLength,      ///< no Content-length: the reply ends with the connection, in good order

    // How the request is read. Counted in bytes of the request's body; a file is not stored.
    StopReading,  ///< reads no more after `bytes`; the connection stays open
    CutRequest,   ///< drops the connection after `bytes`
    EarlyError,   ///< answers `text` (a code; an HTML page with status 413 if empty) after `bytes` and reads no more

    // How the connection is taken. `method` is of no use here.
    SilentHandshake,  ///< accepts the connection and never says a word of TLS
    CutHandshake,     ///< drops the connection as soon as the client has spoken
  };

  Kind kind = Kind::ErrorCode;
  QByteArray text{};
  qint64 bytes = 0;
  int everyMs = 0;
  /// Drops the connection behind the reply, without TLS goodbye, unread bytes and all; otherwise it ends in good order,
  /// or stays open (EarlyError).
  bool closeAfter = false;
  int times = 1;        ///< requests (or connections) that it befalls; 0: every one until cleared
  QByteArray method{};  ///< requests of this method alone, such as "SendFile"; empty for any
};
