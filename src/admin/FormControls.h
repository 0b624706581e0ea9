#pragma once
// Makes the controls of a window that has fixed places, named for the program, for assistive technology and for the
// keyboard. Main thread; lives as long as its window.

#include <QCheckBox>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "widgets/Mnemonics.h"

class FormControls {
 public:
  /// Limits the window's font to what fits into controls 20 pixels high.
  explicit FormControls(QWidget* window);

  QLabel* text(const char* name, const QString& caption, QRect at, bool bold = false);
  /// A label that leads to its field by a letter.
  QLabel* label(const char* name, const QString& caption, QRect at, QWidget* field);
  QLineEdit* field(const char* name, QRect at, QLineEdit::EchoMode echo = QLineEdit::Normal);
  /// With a letter, unless its key is Return or Escape.
  QPushButton* button(const char* name, const QString& caption, QRect at, bool withLetter = true);
  QCheckBox* box(const char* name, const QString& caption, QRect at);
  QFrame* separator(const char* name, QRect at);
  void place(QWidget* control, const char* name, const QString& spoken, QRect at);

 private:
  QWidget* m_window;
  Mnemonics m_letters;
};
