#pragma once
// A map from text to values of any type that keeps the order in which its keys first came. Keys are exact. A value;
// not guarded.

#include <QHash>
#include <QList>
#include <QString>
#include <QVariant>

class Dictionary {
 public:
  /// The value of a key, or an invalid QVariant.
  [[nodiscard]] QVariant Value(const QString& key) const;
  [[nodiscard]] QVariant Lookup(const QString& key, const QVariant& fallback) const;
  [[nodiscard]] bool HasKey(const QString& key) const;
  void setValue(const QString& key, const QVariant& value);
  void Remove(const QString& key);
  [[nodiscard]] QStringList Keys() const { return m_keys; }
  [[nodiscard]] QList<QVariant> Values() const;
  [[nodiscard]] int Count() const { return static_cast<int>(m_keys.size()); }

 private:
  QStringList m_keys;
  QHash<QString, QVariant> m_values;
};
