#include "platform/Placeholders.h"

QString fillPlaceholders(const QString& text, const QStringList& values) {
  QString filled;
  filled.reserve(text.size());
  for (qsizetype i = 0; i < text.size(); ++i) {
    const bool place = text[i] == u'$' && i + 1 < text.size() && text[i + 1] >= u'1' && text[i + 1] <= u'9';
    const qsizetype value = place ? text[i + 1].unicode() - u'1' : values.size();
    if (value < values.size()) {
      filled += values[value];
      ++i;
    } else {
      filled += text[i];
    }
  }
  return filled;
}
