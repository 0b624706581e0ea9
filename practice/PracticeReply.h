#pragma once
// The replies of the practice service, the proper ones and the others, as bytes. Plain functions; any thread.

#include <QByteArray>

#include "practice/Misbehaviour.h"

namespace PracticeReply {

/// A SOAP 1.1 envelope whose `return` holds `text` (UTF-8, escaped here).
[[nodiscard]] QByteArray envelope(const QByteArray& method, const QByteArray& text);
[[nodiscard]] QByteArray faultEnvelope(const QByteArray& reason);

/// A whole HTTP reply around a body, with Content-length.
[[nodiscard]] QByteArray http(int status, const QByteArray& contentType, const QByteArray& body);
[[nodiscard]] QByteArray xml(int status, const QByteArray& envelope);
[[nodiscard]] QByteArray html(int status, const QByteArray& words);

/// The reply of a misbehaviour that says something else than the proper reply (Kind::ErrorCode to Kind::RawReply and
/// Kind::EarlyError).
[[nodiscard]] QByteArray wrong(const Misbehaviour& misbehaviour, const QByteArray& method);
/// The proper reply in another form (Kind::Chunked to Kind::NoLength); any other kind leaves it as it is.
[[nodiscard]] QByteArray reshaped(const Misbehaviour& misbehaviour, const QByteArray& envelope);

/// True if the misbehaviour puts something else in the place of the proper reply.
[[nodiscard]] bool replacesReply(Misbehaviour::Kind kind);

}  // namespace PracticeReply
