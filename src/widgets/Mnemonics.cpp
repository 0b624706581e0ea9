#include "widgets/Mnemonics.h"

#include <algorithm>
#include <iterator>

/// Kana, Han and Hangul characters are typed, but are no keys.
static bool isKey(QChar c) {
  constexpr QChar::Script Typed[] = {QChar::Script_Han, QChar::Script_Hiragana, QChar::Script_Katakana,
                                     QChar::Script_Hangul};
  const bool lengthMark = c == QChar(0x30FC);  // of the kana, in no script of its own
  return c.isLetterOrNumber() && !lengthMark &&
         std::find(std::begin(Typed), std::end(Typed), c.script()) == std::end(Typed);
}

static qsizetype freeLetter(const QString& caption, const QSet<QChar>& used, bool atWordsOnly) {
  for (qsizetype i = 0; i < caption.size(); ++i) {
    const bool beginsWord = i == 0 || !caption[i - 1].isLetterOrNumber();
    if (isKey(caption[i]) && (beginsWord || !atWordsOnly) && !used.contains(caption[i].toLower())) return i;
  }
  return -1;
}

QString Mnemonics::mark(const QString& caption) {
  qsizetype at = freeLetter(caption, m_used, true);
  if (at < 0) at = freeLetter(caption, m_used, false);
  QString marked;
  for (qsizetype i = 0; i < caption.size(); ++i) {
    if (i == at || caption[i] == u'&') marked += u'&';
    marked += caption[i];
  }
  if (at >= 0) m_used.insert(caption[at].toLower());
  return marked;
}

/// The letter that is marked, in small; a null character for none.
static QChar markedLetter(const QString& marked) {
  for (qsizetype i = 0; i + 1 < marked.size(); ++i)
    if (marked[i] == u'&' && marked[++i] != u'&') return marked[i].toLower();
  return {};
}

void Mnemonics::reserve(const QString& marked) { m_used.insert(markedLetter(marked)); }

QString Mnemonics::replace(const QString& marked, const QString& caption) {
  m_used.remove(markedLetter(marked));
  return mark(caption);
}

QString withoutMnemonic(const QString& marked) {
  QString plain;
  for (qsizetype i = 0; i < marked.size(); ++i) {
    if (marked[i] == u'&' && i + 1 < marked.size()) ++i;
    plain += marked[i];
  }
  return plain;
}
