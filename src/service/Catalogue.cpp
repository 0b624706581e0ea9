#include "service/Catalogue.h"

bool sameText(const QString& one, const QString& other) { return one.compare(other, Qt::CaseInsensitive) == 0; }

bool DistinctTexts::Less::operator()(const QString& one, const QString& other) const {
  return one.compare(other, Qt::CaseInsensitive) < 0;
}

bool DistinctTexts::take(const QString& text) {
  const bool isNew = m_seen.insert(text).second;
  if (isNew) m_list.append(text);
  return isNew;
}

QString recordText(const Dictionary& record, const QString& key) {
  const QVariant value = record.Value(key);
  return value.canConvert<JSONItem>() ? QString::fromUtf8(value.value<JSONItem>().ToString()) : value.toString();
}
