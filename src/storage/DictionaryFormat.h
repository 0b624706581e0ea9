#pragma once
// The form in which a dictionary stands in a file: a compact JSON object, enciphered, as Base64 in lines of 76
// characters; with an empty key the JSON alone. Plain functions; any thread.

#include <QByteArray>
#include <QString>
#include <cerrno>

#include "platform/IoResult.h"
#include "storage/Dictionary.h"

namespace DictionaryFormat {

/// A dictionary file is never larger than this; see docs/formats.md.
inline constexpr qint64 LargestFile = 16LL << 20;

/// errno of the failures that read() gives: the content is no dictionary of this key.
inline constexpr int Damaged = EBADMSG;

/// The content of the file. Empty only when enciphering failed.
[[nodiscard]] QByteArray write(const Dictionary& dictionary, const QString& key);

/// Takes the file's content apart into `dictionary`, which a failure leaves empty. Line ends of any kind are taken.
/// Texts, booleans and numbers become QString, bool and qint64 or double; anything else stays a JSONItem. The words
/// of a failure hold nothing of the content.
[[nodiscard]] IoResult read(const QByteArray& content, const QString& key, Dictionary& dictionary);

/// A value as text, truth or number, whatever it was stored as: text is read as a number or "true" if all of it is
/// one, numbers are cut off at the point and at the range's ends, and what can't be converted is "", false or 0.
[[nodiscard]] QString toText(const QVariant& value);
[[nodiscard]] bool toBoolean(const QVariant& value);
[[nodiscard]] qint64 toInteger(const QVariant& value);
[[nodiscard]] double toDouble(const QVariant& value);

}  // namespace DictionaryFormat
