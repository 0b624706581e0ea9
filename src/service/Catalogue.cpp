#include "service/Catalogue.h"

bool sameText(const QString& one, const QString& other) { return one.compare(other, Qt::CaseInsensitive) == 0; }

void appendDistinct(QStringList& list, const QString& text) {
  if (!list.contains(text, Qt::CaseInsensitive)) list.append(text);
}

QString recordText(const Dictionary& record, const QString& key) {
  const QVariant value = record.Value(key);
  return value.canConvert<JSONItem>() ? QString::fromUtf8(value.value<JSONItem>().ToString()) : value.toString();
}
