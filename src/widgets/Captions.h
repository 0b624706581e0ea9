#pragma once
// Captions and cell texts that fit the place that they have, whatever the language and the system's font. Main thread.

#include <QPushButton>
#include <QString>

/// Makes a control's font smaller (down to 9 pixels) until `text` fits into `room` pixels and the control's height.
/// False if it doesn't fit even so.
bool fitFont(QWidget& control, const QString& text, int room);

/// Sets a button's caption, which may hold a mnemonic, in a smaller font (down to 9 pixels) when it would be cut at the
/// button's size; one that is cut even so stands whole in the tool tip.
void setFittedCaption(QPushButton& button, const QString& caption);

/// Text of a user or a file name on one line: control characters become blanks, and the marks that could turn the
/// direction of what follows are taken out. Longer than `limit` characters it is cut.
[[nodiscard]] QString onOneLine(const QString& text, qsizetype limit = 1000);

/// A tool tip that shows its lines as they stand, also one that looks like markup.
[[nodiscard]] QString plainToolTip(const QString& text);

/// The tool tip of a button that is off until what `captions` name is entered; empty without any.
[[nodiscard]] QString requiredToolTip(const QString& heading, const QStringList& captions);
