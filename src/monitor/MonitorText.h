#pragma once
// The main window's own texts of the catalogue. Any thread.

#include <QString>

namespace MonitorText {
#define VTU_CONSTANT(name, english) [[nodiscard]] QString name();
#include "text/MonitorText.inc"
#undef VTU_CONSTANT
}  // namespace MonitorText
