#include "service/VantryUtil.h"

using namespace Qt::Literals::StringLiterals;

/// A number as such if that keeps its digits, else as text.
static QVariant numberWithItsDigits(const QString& digits) {
  bool valid = false;
  const QVariant whole(digits.toLongLong(&valid));
  if (valid && whole.toString() == digits) return whole;
  const QVariant real(digits.toDouble(&valid));
  if (valid && real.toString() == digits) return real;
  return digits;
}

static QVariant toVariant(const JSONItem& item) {
  switch (item.kind()) {
    case JSONItem::Kind::Null:
      return QVariant::fromValue(nullptr);
    case JSONItem::Kind::Boolean:
      return item.toBoolean();
    case JSONItem::Kind::Number:
      return numberWithItsDigits(item.toText());
    case JSONItem::Kind::Text:
      return item.toText();
    case JSONItem::Kind::Array:
    case JSONItem::Kind::Object:
      return QVariant::fromValue(item);
  }
  return {};
}

Dictionary VantryUtil::JSONtoDictionary(const JSONItem& item) {
  Dictionary dictionary;
  for (int i = 0; i < item.Count(); ++i) {
    const QString key = item.IsArray() ? QString::number(i + 1) : item.Name(i);
    dictionary.setValue(key, toVariant(item.Value(i)));
  }
  return dictionary;
}

std::optional<Dictionary> VantryUtil::JSONStringtoDictionary(const QString& text, bool* invalid) {
  if (invalid) *invalid = false;
  if (!text.startsWith(u'{') && !text.startsWith("[{"_L1)) return std::nullopt;
  const std::optional<JSONItem> item = JSONItem::parse(text.toUtf8());
  if (invalid) *invalid = !item.has_value();
  if (!item) return std::nullopt;
  return JSONtoDictionary(*item);
}
