#include "storage/Dictionary.h"

QVariant Dictionary::Value(const QString& key) const { return m_values.value(key); }

QVariant Dictionary::Lookup(const QString& key, const QVariant& fallback) const {
  return m_values.value(key, fallback);
}

bool Dictionary::HasKey(const QString& key) const { return m_values.contains(key); }

void Dictionary::setValue(const QString& key, const QVariant& value) {
  if (!m_values.contains(key)) m_keys.append(key);
  m_values.insert(key, value);
}

void Dictionary::Remove(const QString& key) {
  if (m_values.remove(key)) m_keys.removeOne(key);
}

QList<QVariant> Dictionary::Values() const {
  QList<QVariant> values;
  values.reserve(m_keys.size());
  for (const QString& key : m_keys) values.append(m_values.value(key));
  return values;
}
