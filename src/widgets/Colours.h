#pragma once
// Colours that windows of several rooms share, chosen so that they can be read on the palette's own ground, light or
// dark. Plain functions; any thread.

#include <QColor>
#include <QPalette>

/// The red of a label whose entry is missing.
[[nodiscard]] QColor requiredColor(const QPalette& palette);
/// The colour of a label whose entry isn't missing: black, and on a dark ground the palette's own.
[[nodiscard]] QColor plainColor(const QPalette& palette);
/// For a field that shows a cue while it is empty: the cue in the text colour, half transparent. The palette's
/// own colour for it can't be relied on, as some desktops leave it dark on a dark field.
[[nodiscard]] QPalette readableCue(const QPalette& palette);
/// The ground's text colour with `parts` of eight of the ground itself, for lines and text that stay in the back.
[[nodiscard]] QPalette quieter(const QPalette& palette, int parts);
/// For a line that tells how something stands: quiet, and red for what is `wrong`.
[[nodiscard]] QPalette noteColours(const QPalette& palette, bool wrong);
