#include "text/VTULocalization.h"

#include "platform/Mount.h"
#include "platform/System.h"
#include "text/Placeholders.h"

namespace VTULocalization {

QString _GetLocalizedString(const char* key, const char* defaultText, const QString& language) {
  return System::_GetLocalizedString(key, defaultText, language);
}

QList<Entry> entries() {
  return {
#define VTU_CONSTANT(name, english) {"VTULocalization." #name, english},
#include "text/VTULocalization.inc"

#include "text/Messages.inc"

#include "text/TaskMessages.inc"

#include "text/LogMessages.inc"

#include "text/AdminMessages.inc"

#include "text/ServiceReasons.inc"
#undef VTU_CONSTANT
#define VTU_CONSTANT(name, english) {"EditTaskWindow." #name, english},
#include "text/EditTaskWindowText.inc"
#undef VTU_CONSTANT
#define VTU_CONSTANT(name, english) {"MainMenuBar." #name, english},
#include "text/MenuText.inc"
#undef VTU_CONSTANT
#define VTU_CONSTANT(name, english) {"VantryUtil." #name, english},
#include "text/ServiceErrors.inc"
#undef VTU_CONSTANT
#define VTU_CONSTANT(name, english) {"VTUploaderMainWIndow." #name, english},
#include "text/MonitorText.inc"
#undef VTU_CONSTANT
#define VTU_CONSTANT(name, english) {"Reasons." #name, english},
#include "platform/Reasons.inc"
#undef VTU_CONSTANT
  };
}

#define VTU_CONSTANT(name, english) \
  QString name(const QString& language) { return _GetLocalizedString("VTULocalization." #name, english, language); }
#include "text/VTULocalization.inc"

#include "text/Messages.inc"

#include "text/TaskMessages.inc"

#include "text/LogMessages.inc"

#include "text/AdminMessages.inc"

#include "text/ServiceReasons.inc"
#undef VTU_CONSTANT

static QString textOf(Problem::Kind kind) {
  switch (kind) {
    case Problem::Kind::NoLogin:
      return klStripNoLogin();
    case Problem::Kind::TaskFileSkipped:
      return klStripTaskFileSkipped();
    case Problem::Kind::TaskFolderUnreadable:
      return klStripTaskFolderUnreadable();
    case Problem::Kind::PreferencesSetAside:
      return klStripPreferencesSetAside();
    case Problem::Kind::PreferencesNotSaved:
      return klStripPreferencesNotSaved();
    case Problem::Kind::LogSetAside:
      return klStripLogSetAside();
    case Problem::Kind::LogUnavailable:
      return klStripLogUnavailable();
    case Problem::Kind::LogRowLost:
      return klStripLogRowLost();
    case Problem::Kind::ExclusionInvalid:
      return klStripExclusionInvalid();
    case Problem::Kind::ExclusionTooCostly:
      return klStripExclusionTooCostly();
    case Problem::Kind::InputFolderUnreadable:
      return klStripInputFolderUnreadable();
    case Problem::Kind::FolderSilent:
      return klStripFolderSilent();
    case Problem::Kind::NothingMounted:
      return klStripNothingMounted();
    case Problem::Kind::ShareNotMounted:
      return klStripShareNotMounted();
    case Problem::Kind::CopyFailed:
      return klStripCopyFailed();
    case Problem::Kind::DeleteFailed:
      return klStripDeleteFailed();
    case Problem::Kind::UploadFailed:
      return klStripUploadFailed();
    case Problem::Kind::FileWaits:
      return klStripFileWaits();
    case Problem::Kind::RunFailed:
      return klStripRunFailed();
    case Problem::Kind::ServiceUnreachable:
      return klStripServiceUnreachable();
    case Problem::Kind::ServiceRefuses:
      return klStripServiceRefuses();
  }
  return {};
}

/// A file's name may hold line ends; the strip has one line.
static QString onOneLine(QString text) {
  for (QChar& c : text)
    if (c.category() == QChar::Other_Control || c == QChar::LineSeparator || c == QChar::ParagraphSeparator) c = u' ';
  return text;
}

QString mountFailureText(int errorCode) {
  switch (errorCode) {
    case MountError::NoSession:
      return klMountNoSession();
    case MountError::LoginRefused:
      return klMountLoginRefused();
    case MountError::Question:
      return klMountQuestion();
    case MountError::Unreachable:
      return klMountUnreachable();
    case MountError::NotThere:
      return klMountNotThere();
    case MountError::TimedOut:
      return klMountTimedOut();
    case MountError::NotSupported:
      return klMountNotSupported();
    case MountError::NoFolder:
      return klMountNoFolder();
    case MountError::ServiceEnded:
      return klMountServiceEnded();
    default:  // a code of the system's
      return fillPlaceholders(klMountFailed(), {QString::number(errorCode)});
  }
}

QString problemText(const Problem& problem) {
  return fillPlaceholders(textOf(problem.kind), {onOneLine(problem.subject), onOneLine(problem.detail)});
}

}  // namespace VTULocalization

#define VTU_CONSTANT(name, english)                                                          \
  QString name(const QString& language) {                                                    \
    return VTULocalization::_GetLocalizedString("EditTaskWindow." #name, english, language); \
  }
namespace EditTaskWindowText {
#include "text/EditTaskWindowText.inc"
}  // namespace EditTaskWindowText
#undef VTU_CONSTANT

#define VTU_CONSTANT(name, english)                                                       \
  QString name(const QString& language) {                                                 \
    return VTULocalization::_GetLocalizedString("MainMenuBar." #name, english, language); \
  }
namespace MenuText {
#include "text/MenuText.inc"
}  // namespace MenuText
#undef VTU_CONSTANT

#define VTU_CONSTANT(name, english)                                                      \
  QString name(const QString& language) {                                                \
    return VTULocalization::_GetLocalizedString("VantryUtil." #name, english, language); \
  }
namespace VantryUtil {
#include "text/ServiceErrors.inc"
}  // namespace VantryUtil
#undef VTU_CONSTANT
