#pragma once
// JSON objects whose members stand in the order in which they are given, which Qt's own class sorts. Any thread.

#include <QByteArray>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonValue>
#include <initializer_list>
#include <utility>

namespace OrderedJson {

inline QByteArray value(const QJsonValue& value) {
  const QByteArray list = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
  return list.mid(1, list.size() - 2);
}

/// Compact, in UTF-8. Names are plain ASCII without characters that JSON escapes.
inline QByteArray object(std::initializer_list<std::pair<const char*, QJsonValue>> members) {
  QByteArray text;
  for (const auto& [name, member] : members)
    text += (text.isEmpty() ? "\"" : ",\"") + QByteArray(name) + "\":" + value(member);
  return '{' + text + '}';
}

}  // namespace OrderedJson
