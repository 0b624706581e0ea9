#pragma once
// The two message boxes of the program: a question and a statement. Both run the event loop, so timers and the upload
// go on behind them; their text is shown as it stands, never as markup. Main thread.

#include <QString>

class QWidget;

namespace Messages {
/// Asks with Yes and No and a question icon. True only when Yes was chosen; Escape and the end of the program are No.
[[nodiscard]] bool askYesNo(QWidget* parent, const QString& question);
/// Tells something with an OK button; `warning` chooses the icon, `more`, a text of the catalogue's, stands
/// below it.
void tell(QWidget* parent, const QString& text, bool warning = true, const QString& more = {});
}  // namespace Messages
