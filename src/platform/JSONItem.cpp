#include "platform/JSONItem.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

JSONItem JSONItem::boolean(bool value) {
  JSONItem item(Kind::Boolean);
  item.m_boolean = value;
  return item;
}

JSONItem JSONItem::number(const QString& digits) {
  JSONItem item(Kind::Number);
  item.m_text = digits;
  return item;
}

JSONItem JSONItem::text(const QString& value) {
  JSONItem item(Kind::Text);
  item.m_text = value;
  return item;
}

JSONItem JSONItem::array() { return JSONItem(Kind::Array); }
JSONItem JSONItem::object() { return JSONItem(Kind::Object); }

QString JSONItem::Name(int index) const { return index >= 0 && index < Count() ? m_members[index].first : QString(); }

const JSONItem& JSONItem::Value(int index) const {
  static const JSONItem null;
  return index >= 0 && index < Count() ? m_members[index].second : null;
}

const JSONItem* JSONItem::find(const QString& name) const {
  if (m_kind != Kind::Object) return nullptr;
  const auto member =
      std::find_if(m_members.begin(), m_members.end(), [&](const auto& entry) { return entry.first == name; });
  return member != m_members.end() ? &member->second : nullptr;
}

QString JSONItem::toText() const {
  switch (m_kind) {
    case Kind::Boolean:
      return m_boolean ? u"true"_s : u"false"_s;
    case Kind::Number:
    case Kind::Text:
      return m_text;
    case Kind::Null:
    case Kind::Array:
    case Kind::Object:
      break;
  }
  return {};
}

void JSONItem::append(const JSONItem& value) {
  Q_ASSERT(m_kind == Kind::Array);
  m_members.emplace_back(QString(), value);
}

void JSONItem::add(const QString& name, const JSONItem& value) {
  Q_ASSERT(m_kind == Kind::Object);
  m_members.emplace_back(name, value);
}

void JSONItem::set(const QString& name, const JSONItem& value) {
  Q_ASSERT(m_kind == Kind::Object);
  const auto member =
      std::find_if(m_members.begin(), m_members.end(), [&](const auto& entry) { return entry.first == name; });
  if (member != m_members.end())
    member->second = value;
  else
    m_members.emplace_back(name, value);
}
