#include "platform/Reasons.h"

#include "platform/System.h"

namespace Reasons {
#define VTU_CONSTANT(name, english) \
  QString name() { return System::_GetLocalizedString("Reasons." #name, english); }
#include "platform/Reasons.inc"
#undef VTU_CONSTANT
}  // namespace Reasons
