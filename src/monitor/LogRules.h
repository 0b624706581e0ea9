#pragma once
// What the log viewer makes of a row's texts. Plain functions on values; any thread.

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringList>

#include "storage/LogReader.h"

/// True when the notes of a row tell anything but a file that was sent and kept whole. Notes in words that are not
/// known count as a failure, so that none hides.
[[nodiscard]] bool isFailure(QByteArrayView notes);

/// Looks for a text in UTF-8, without regard to case.
class TextSearch {
 public:
  explicit TextSearch(const QString& text);
  [[nodiscard]] bool isIn(QByteArrayView cell) const;

 private:
  QString m_text;
  QByteArray m_lower;  // empty when the text is not plain ASCII
};

/// What narrows the view.
struct LogFilter {
  QString text;  ///< stands in any column; empty: any row
  bool failuresOnly = false;
  [[nodiscard]] bool narrows() const { return failuresOnly || !text.isEmpty(); }
  bool operator==(const LogFilter&) const = default;
};
class LogFilterTest {
 public:
  LogFilterTest(const LogFilter& filter, const QStringList& headers);
  [[nodiscard]] bool passes(const LogReader::Fields& row) const;

 private:
  TextSearch m_search;
  bool m_failuresOnly, m_anyText;
  int m_columns, m_notes;
};

/// The line of a row in an export and on the clipboard: its cells joined by tabs, nothing escaped, and the line end.
void appendLine(QByteArray& lines, const LogReader::Fields& row, int columns);
void appendLine(QByteArray& lines, const QStringList& cells);
