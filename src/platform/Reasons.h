#pragma once
// Why an operation on a file failed, in the user's language: the part of the catalogue that the rooms below the texts
// need. Any thread.

#include <QString>

#include "platform/Placeholders.h"

namespace Reasons {
#define VTU_CONSTANT(name, english) [[nodiscard]] QString name();
#include "platform/Reasons.inc"
#undef VTU_CONSTANT
}  // namespace Reasons
