#pragma once
// Gives each caption of a window a letter of its own to press with Alt, whatever the language. Main thread.

#include <QSet>
#include <QString>

class Mnemonics {
 public:
  /// The caption with its letter marked by '&': the first of a word if it is free, else any free one, else none.
  [[nodiscard]] QString mark(const QString& caption);
  /// Keeps the letter of a caption that carries its mark already, such as a menu's, from being given.
  void reserve(const QString& marked);
  /// Marks another caption in the place of one marked before, whose letter becomes free.
  [[nodiscard]] QString replace(const QString& marked, const QString& caption);

 private:
  QSet<QChar> m_used;
};

/// The caption as it is read, without marks.
[[nodiscard]] QString withoutMnemonic(const QString& marked);
