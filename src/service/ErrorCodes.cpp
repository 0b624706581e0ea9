#include "service/VantryUtil.h"
#include "text/VTULocalization.h"

using namespace Qt::Literals::StringLiterals;

namespace {
struct ErrorCode {
  QLatin1StringView code;
  QString (*text)(const QString& language);
};
}  // namespace

QString VantryUtil::errToString(const QString& code) {
#define VTU_CONSTANT(name, english) {#name##_L1, name},
  static constexpr ErrorCode codes[] = {
#include "text/ServiceErrors.inc"
  };
#undef VTU_CONSTANT
  if (code.isEmpty()) return {};
  for (const ErrorCode& candidate : codes) {
    if (code.compare(candidate.code, Qt::CaseInsensitive) == 0) return candidate.text({});
  }
  return EUnknownError();
}
