#pragma once
// One JSON value (RFC 8259) that keeps what a service sent: the order of members and the digits of numbers. A value.

#include <QByteArray>
#include <QMetaType>
#include <QString>
#include <optional>
#include <utility>
#include <vector>

class JSONItem {
 public:
  enum class Kind { Null, Boolean, Number, Text, Array, Object };

  JSONItem() = default;  ///< null
  static JSONItem boolean(bool value);
  static JSONItem number(const QString& digits);  ///< digits as they shall stand in the text
  static JSONItem text(const QString& value);
  static JSONItem array();
  static JSONItem object();

  /// Parses UTF-8 strictly. Nothing, with `error` in words, for text that isn't JSON, is nested deeper than 64, has
  /// more than a million values or a number beyond the range of a double. Never throws; its time grows in a straight
  /// line with the text.
  /// The last of several members with one name holds.
  static std::optional<JSONItem> parse(const QByteArray& utf8, QString* error = nullptr);

  [[nodiscard]] Kind kind() const { return m_kind; }
  [[nodiscard]] bool IsArray() const { return m_kind == Kind::Array; }
  [[nodiscard]] bool isContainer() const { return m_kind == Kind::Array || m_kind == Kind::Object; }
  [[nodiscard]] int Count() const { return static_cast<int>(m_members.size()); }
  [[nodiscard]] QString Name(int index) const;  ///< of an object's member, from 0
  [[nodiscard]] const JSONItem& Value(int index) const;
  [[nodiscard]] const JSONItem* find(const QString& name) const;  ///< nullptr if there is no such member
  /// Text as it stands, a number's digits, "true" or "false"; empty for null and for containers.
  [[nodiscard]] QString toText() const;
  [[nodiscard]] bool toBoolean() const { return m_boolean; }

  void append(const JSONItem& value);                    ///< to an array
  void add(const QString& name, const JSONItem& value);  ///< to an object that has no member of that name
  void set(const QString& name, const JSONItem& value);  ///< in an object; a name that is there keeps its place

  /// Compact JSON text in UTF-8. In strings the backslash, the double quote and the slash get a backslash, control
  /// characters their short form or \uXXXX, as do other invisible characters (see docs/formats.md).
  [[nodiscard]] QByteArray ToString() const;

 private:
  class Builder;
  explicit JSONItem(Kind kind) : m_kind(kind) {}

  Kind m_kind = Kind::Null;
  bool m_boolean = false;
  QString m_text;
  std::vector<std::pair<QString, JSONItem>> m_members;
};
Q_DECLARE_METATYPE(JSONItem)

/// A double by the mask "-0.0##############": fixed notation with one to 15 decimals, the shortest text that reads
/// back as the same double where 15 decimals allow it. JSON has no text for infinity and NaN, which give "0.0".
[[nodiscard]] QString decimalText(double value);
