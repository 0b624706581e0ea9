#pragma once
// Whether what a window leaves unpainted shows what is behind it. Main thread.

class QWidget;

/// Makes a window transparent that has not been shown yet. Zero where the platform can't: an X display without a
/// compositor, or a platform of which it is not known.
[[nodiscard]] int makeTransparent(QWidget& window);
