#include "storage/DictionaryFormat.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>

#include "platform/FileCipher.h"
#include "platform/JSONItem.h"
#include "platform/Reasons.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype LineLength = 76;

QByteArray inLines(const QByteArray& base64) {
  QByteArray lines;
  lines.reserve(base64.size() + base64.size() / LineLength);
  for (qsizetype at = 0; at < base64.size(); at += LineLength) {
    if (at > 0) lines += '\n';
    lines += base64.mid(at, LineLength);
  }
  return lines;
}

std::optional<QByteArray> fromBase64(QByteArray text) {
  const auto isBlank = [](char c) { return c == ' ' || (c >= '\t' && c <= '\r'); };
  text.erase(std::remove_if(text.begin(), text.end(), isBlank), text.end());
  auto decoded = QByteArray::fromBase64Encoding(text, QByteArray::AbortOnBase64DecodingErrors);
  // The decoder lets pass a missing '=' and stray bits in the last character; neither is what we wrote.
  if (!decoded || (*decoded).toBase64() != text) return std::nullopt;
  return *decoded;
}

JSONItem toItem(const QVariant& value) {
  switch (value.typeId()) {
    case QMetaType::Bool:
      return JSONItem::boolean(value.toBool());
    case QMetaType::Int:
    case QMetaType::LongLong:
      return JSONItem::number(QString::number(value.toLongLong()));
    case QMetaType::Double:
      // JSON has no infinity; null reads back as the default.
      return std::isfinite(value.toDouble()) ? JSONItem::number(decimalText(value.toDouble())) : JSONItem();
    default:
      break;
  }
  return value.metaType() == QMetaType::fromType<JSONItem>() ? value.value<JSONItem>()
                                                             : JSONItem::text(value.toString());
}

QVariant fromNumber(const JSONItem& item) {
  bool fits = false;
  const QString digits = item.toText();
  const qint64 integer = digits.toLongLong(&fits);
  return fits ? QVariant(integer) : QVariant(digits.toDouble());
}

QVariant fromItem(const JSONItem& item) {
  switch (item.kind()) {
    case JSONItem::Kind::Text:
      return item.toText();
    case JSONItem::Kind::Boolean:
      return item.toBoolean();
    case JSONItem::Kind::Number:
      return fromNumber(item);
    case JSONItem::Kind::Null:
    case JSONItem::Kind::Array:
    case JSONItem::Kind::Object:
      break;
  }
  return QVariant::fromValue(item);
}

qint64 cutOff(double number) {
  constexpr double end = 9223372036854775808.0;  // 2^63, the first double beyond the range
  if (std::isnan(number)) return 0;
  if (number >= end) return std::numeric_limits<qint64>::max();
  if (number < -end) return std::numeric_limits<qint64>::min();
  return static_cast<qint64>(number);
}

double parseDouble(const QString& text) {
  const double number = text.trimmed().toDouble();
  return std::isfinite(number) ? number : 0;
}

}  // namespace

namespace DictionaryFormat {

QByteArray write(const Dictionary& dictionary, const QString& key) {
  JSONItem object = JSONItem::object();
  for (const QString& name : dictionary.Keys()) object.add(name, toItem(dictionary.Value(name)));
  QByteArray json = object.ToString();
  if (key.isEmpty()) return json;
  FileCipher cipher;
  cipher.Init(key);
  const QByteArray enciphered = cipher.Encode(json);
  wipe(json);
  return inLines(enciphered.toBase64());
}

IoResult read(const QByteArray& content, const QString& key, Dictionary& dictionary) {
  dictionary = Dictionary();
  QByteArray json = content;
  if (!key.isEmpty()) {
    const auto enciphered = fromBase64(content);
    if (!enciphered) return IoResult::failure(Damaged, Reasons::klNotOurs());
    FileCipher cipher;
    cipher.Init(key);
    auto plain = cipher.Decode(*enciphered);
    if (!plain) return IoResult::failure(Damaged, Reasons::klOtherProgram());
    json = std::move(*plain);  // moved, so that the wiping below reaches the only copy
  }
  // The parser's own words would quote the text, which holds secrets.
  const auto object = JSONItem::parse(json);
  wipe(json);
  if (!object || object->kind() != JSONItem::Kind::Object) return IoResult::failure(Damaged, Reasons::klNotAnObject());
  for (int i = 0; i < object->Count(); ++i) dictionary.setValue(object->Name(i), fromItem(object->Value(i)));
  return {};
}

QString toText(const QVariant& value) {
  if (value.metaType() == QMetaType::fromType<JSONItem>()) return value.value<JSONItem>().toText();
  if (value.typeId() == QMetaType::Double) return decimalText(value.toDouble());
  return value.toString();
}

bool toBoolean(const QVariant& value) {
  if (value.typeId() == QMetaType::Bool) return value.toBool();
  return toText(value).trimmed().compare(u"true", Qt::CaseInsensitive) == 0 || toDouble(value) != 0;
}

qint64 toInteger(const QVariant& value) {
  if (value.typeId() == QMetaType::LongLong || value.typeId() == QMetaType::Int) return value.toLongLong();
  bool whole = false;
  const qint64 integer = toText(value).trimmed().toLongLong(&whole);
  return whole ? integer : cutOff(toDouble(value));
}

double toDouble(const QVariant& value) {
  switch (value.typeId()) {
    case QMetaType::Bool:
      return value.toBool() ? 1 : 0;
    case QMetaType::Double:
    case QMetaType::Int:
    case QMetaType::LongLong:
      return value.toDouble();
    default:
      return parseDouble(toText(value));
  }
}

}  // namespace DictionaryFormat
