#pragma once
// The envelopes of the service's calls: templates with placeholders, filled. Plain functions; any thread.

#include <QByteArray>
#include <QString>
#include <initializer_list>

namespace Envelope {

struct Filling {
  QByteArrayView placeholder;  ///< with its brackets
  QByteArrayView value;        ///< of which the caller wipes what is secret
};

/// The template with every placeholder replaced, in one pass: a placeholder within a value stays as it is.
[[nodiscard]] QByteArray fill(const QByteArray& pattern, std::initializer_list<Filling> fillings);

/// UTF-8 of a text, with &, < and > as entities so that the envelope stays well-formed.
[[nodiscard]] QByteArray escaped(const QString& text);

/// SHA-256 of a password's UTF-8 bytes in 64 lower-case hexadecimal digits; the clear password never goes out.
[[nodiscard]] QByteArray passwordField(const QString& password);

}  // namespace Envelope
