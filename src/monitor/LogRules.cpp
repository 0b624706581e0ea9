#include "monitor/LogRules.h"

#include <cstring>

using namespace Qt::Literals::StringLiterals;

// The line end of this system.
static constexpr char LineEnd = '\n';

bool isFailure(QByteArrayView notes) {
  if (notes.isEmpty() || notes == "n/a") return false;
  const bool kept = notes.endsWith(" Warden - Saved") || notes.endsWith(" - Deleted Locally");
  return !notes.startsWith("Uploaded to ") || !kept;
}

static constexpr char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; }
static constexpr char upper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - ('a' - 'A')) : c; }

/// Whether a text that begins with `first` and goes on as `wanted`, in whatever case, stands in the cell.
static bool standsIn(QByteArrayView cell, char first, const QByteArray& wanted) {
  const char* at = cell.data();
  for (qsizetype places = cell.size() - wanted.size() + 1; places > 0;) {
    const auto* const found = static_cast<const char*>(memchr(at, first, static_cast<size_t>(places)));
    if (!found) return false;
    qsizetype same = 1;
    while (same < wanted.size() && lower(found[same]) == wanted[same]) ++same;
    if (same == wanted.size()) return true;
    places -= found + 1 - at;
    at = found + 1;
  }
  return false;
}

TextSearch::TextSearch(const QString& text) : m_text(text) {
  const QByteArray bytes = text.toUtf8();
  const bool ascii = std::all_of(bytes.begin(), bytes.end(), [](char c) { return c >= 0; });
  if (ascii) m_lower = bytes.toLower();
}

bool TextSearch::isIn(QByteArrayView cell) const {
  if (m_lower.isEmpty()) return QString::fromUtf8(cell).contains(m_text, Qt::CaseInsensitive);
  const char first = m_lower.front();
  return standsIn(cell, first, m_lower) || (upper(first) != first && standsIn(cell, upper(first), m_lower));
}

LogFilterTest::LogFilterTest(const LogFilter& filter, const QStringList& headers)
    : m_search(filter.text),
      m_failuresOnly(filter.failuresOnly),
      m_anyText(filter.text.isEmpty()),
      m_columns(static_cast<int>(headers.size())),
      m_notes(static_cast<int>(headers.indexOf(u"Notes"_s))) {}

bool LogFilterTest::passes(const LogReader::Fields& row) const {
  if (m_failuresOnly && (m_notes < 0 || !isFailure(row.text(m_notes)))) return false;
  for (int column = 0; !m_anyText && column < m_columns; ++column)
    if (m_search.isIn(row.text(column))) return true;
  return m_anyText;
}

void appendLine(QByteArray& lines, const LogReader::Fields& row, int columns) {
  for (int column = 0; column < columns; ++column) {
    if (column > 0) lines += '\t';
    lines += row.text(column);
  }
  lines += LineEnd;
}

void appendLine(QByteArray& lines, const QStringList& cells) {
  lines += cells.join(u'\t').toUtf8();
  lines += LineEnd;
}
