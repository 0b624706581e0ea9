// Task files: one enciphered dictionary each.

#include <array>
#include <cerrno>

#include "engine/UploaderTask.h"
#include "platform/Problems.h"
#include "platform/Reasons.h"
#include "storage/DictionaryFile.h"

using namespace Qt::Literals::StringLiterals;

namespace {

struct TextMember {
  const char* key;
  QString UploaderTask::*field;
};
struct FlagMember {
  const char* key;
  bool UploaderTask::*field;
};

// The members of the file's object, beside the exclusion pattern.
constexpr std::array textMembers{
    TextMember{"name", &UploaderTask::Name},
    TextMember{"description", &UploaderTask::Description},
    TextMember{"warden", &UploaderTask::Warden},
    TextMember{"filename", &UploaderTask::FileName},
    TextMember{"extension", &UploaderTask::Extension},
    TextMember{"track", &UploaderTask::Track},
    TextMember{"inputfolder", &UploaderTask::inputFolderPath},
    TextMember{"outputfolder", &UploaderTask::outputFolderPath},
    TextMember{"prefix", &UploaderTask::Prefix},
};
constexpr std::array flagMembers{
    FlagMember{"autorecognition", &UploaderTask::AutoRecognition},
    FlagMember{"replacename", &UploaderTask::ReplaceName},
    FlagMember{"adddatetofilename", &UploaderTask::AddDateToFilename},
    FlagMember{"deleteaftersave", &UploaderTask::DeleteAfterSave},
};

// The members of a side that mounts its share; a file without them reads as before.
struct MountMembers {
  FlagMember wanted;
  std::array<TextMember, 3> details;
};
constexpr std::array mountMembers{
    MountMembers{{"automountinputfolder", &UploaderTask::AutoMountInputFolder},
                 {{{"inputfolderurl", &UploaderTask::inputfolderURL},
                   {"inputlogin", &UploaderTask::InputLogin},
                   {"inputpassword", &UploaderTask::inputPassword}}}},
    MountMembers{{"automountoutputfolder", &UploaderTask::autoMountOutputFolder},
                 {{{"outputfolderurl", &UploaderTask::outputFolderUrl},
                   {"outputlogin", &UploaderTask::outputLogin},
                   {"outputpassword", &UploaderTask::outputPassword}}}},
};

}  // namespace

IoResult UploaderTask::open(const FolderItem& taskFile) {
  file = taskFile;
  DictionaryFile dictionary;
  const IoResult result = dictionary.open(taskFile);
  if (!result.ok()) return result;
  // Preferences may be absent; a task without a file has been removed.
  if (!taskFile.Exists())
    return IoResult::failure(ENOENT, fillPlaceholders(Reasons::klReading(), {taskFile.NativePath()}));

  for (const TextMember& member : textMembers) this->*member.field = dictionary.StringValue(QLatin1String(member.key));
  for (const FlagMember& member : flagMembers) this->*member.field = dictionary.BooleanValue(QLatin1String(member.key));
  for (const MountMembers& side : mountMembers) {
    this->*side.wanted.field = dictionary.BooleanValue(QLatin1String(side.wanted.key));
    for (const TextMember& member : side.details)
      this->*member.field = dictionary.StringValue(QLatin1String(member.key));
  }
  setExclusionPattern(dictionary.StringValue(u"exclusion"_s));
  inputFolder = dictionary.FileValue(u"inputfolder"_s);
  outputFolder = dictionary.FileValue(u"outputfolder"_s);

  if (exclusionRegEx && !exclusionRegEx->isValid())
    Problems::raise(Problem::Kind::ExclusionInvalid, Name, exclusionRegEx->errorString());
  else
    Problems::clear(Problem::Kind::ExclusionInvalid, Name);
  return {};
}

void UploaderTask::copySettings(const UploaderTask& other) {
  for (const TextMember& member : textMembers) this->*member.field = other.*member.field;
  for (const FlagMember& member : flagMembers) this->*member.field = other.*member.field;
  for (const MountMembers& side : mountMembers) {
    this->*side.wanted.field = other.*side.wanted.field;
    for (const TextMember& member : side.details) this->*member.field = other.*member.field;
  }
  setExclusionPattern(other.mExclusionPattern);
  file = other.file;
}

bool UploaderTask::save(const FolderItem& taskFile, IoResult* failure) {
  file = taskFile;
  DictionaryFile dictionary;
  for (const TextMember& member : textMembers)
    dictionary.setStringValue(QLatin1String(member.key), this->*member.field);
  for (const FlagMember& member : flagMembers)
    dictionary.setBooleanValue(QLatin1String(member.key), this->*member.field);
  for (const MountMembers& side : mountMembers) {
    if (!(this->*side.wanted.field)) continue;
    dictionary.setBooleanValue(QLatin1String(side.wanted.key), true);
    for (const TextMember& member : side.details)
      dictionary.setStringValue(QLatin1String(member.key), this->*member.field);
  }
  dictionary.setStringValue(u"exclusion"_s, mExclusionPattern);

  const bool saved = dictionary.save(taskFile);
  if (!saved && failure) *failure = dictionary.lastFailure();
  return saved;
}
