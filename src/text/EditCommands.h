#pragma once
// What the Edit menu does with a text field: a line, a text area, or the line within a combo or spin box. Plain
// functions on the field. Main thread.

#include <QWidget>

enum class EditCommand { Undo, Cut, Copy, Paste, Clear, SelectAll };

/// The text field that a widget with the focus is or holds; nullptr if it is none.
[[nodiscard]] QWidget* textFieldOf(QWidget* focused);

/// Whether the field can do that now; never for nullptr. A password is neither cut nor copied. The clipboard is not
/// asked, since another program that doesn't answer would hold up the window: a field that can be written can paste.
[[nodiscard]] bool canDo(EditCommand command, const QWidget* field);

/// Does nothing if it can't be done.
void doEdit(EditCommand command, QWidget* field);
