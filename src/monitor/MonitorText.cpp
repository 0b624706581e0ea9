#include "monitor/MonitorText.h"

#include "text/VTULocalization.h"

namespace MonitorText {
#define VTU_CONSTANT(name, english) \
  QString name() { return VTULocalization::_GetLocalizedString("VTUploaderMainWIndow." #name, english); }
#include "text/MonitorText.inc"
#undef VTU_CONSTANT
}  // namespace MonitorText
