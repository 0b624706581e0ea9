#include "Agent.h"

#include "service/VantryUtil.h"
#include "storage/DictionaryFile.h"
#include "storage/LogDatabase.h"
#include "storage/Preferences.h"

using namespace Qt::Literals::StringLiterals;

namespace bench {

static FolderItem itemOf(const std::string& path) {
  const auto item = FolderItem::fromBytes(QByteArray::fromStdString(path));
  if (!item) fail("not a path: " + path);
  return *item;
}

Agent::Agent(const std::string& home) : m_home(home) {
  std::filesystem::create_directories(home);
  for (const char* variable : {"HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR"})
    qputenv(variable, QByteArray::fromStdString(home));
  DictionaryFile::setSolutionKey(u"bench"_s);
  (void)VantryUtil::loadAccountPreferences();  // a fresh home has nothing that could be damaged
  VantryUtil::prefs->setStringValue(u"SoapLogin"_s, QString::fromLatin1(Login));
  VantryUtil::prefs->setStringValue(u"SoapPassword"_s, u"bench"_s);
  if (!VantryUtil::prefs->save()) fail("the preferences can't be saved in " + home);
  VantryUtil::ConnectToLogDatabase();
  if (!VantryUtil::logDB) fail("no log in " + home);
}

Agent::~Agent() {
  UploaderTask::unload();
  VantryUtil::logDB.reset();
  VantryUtil::prefs.reset();
}

void Agent::meet(const Server& server) {
  VantryUtil::setExtraCaFile(QString::fromStdString(server.caFile));
  VantryUtil::setAccountURL(QString::fromStdString(server.url));
  const std::string hello = m_home + "/hello.txt";
  if (!writeFileSafely(itemOf(hello), "x").ok()) fail("could not write " + hello);
  send(hello);
}

void Agent::send(const std::string& file) {
  const FolderItem item = itemOf(file);
  const auto version = versionOf(item);
  if (!version) fail("no file " + file);
  VantryUtil::SendFileWatch watch;
  watch.version = *version;
  QString error;
  if (!VantryUtil::SendFile(item.Name(), QString::fromLatin1(Track), item, false, error, watch))
    fail("sending failed: " + (error + u' ' + watch.failure.detail).toStdString());
}

TaskPointer Agent::makeTask(const std::string& name, const std::string& in, const std::string& out,
                            const std::string& extension, double dateLimit) {
  auto task = std::make_shared<UploaderTask>();
  task->Name = QString::fromStdString(name);
  task->Warden = u"Print"_s;
  task->Track = QString::fromLatin1(Track);
  task->Extension = QString::fromStdString(extension);
  task->inputFolderPath = QString::fromStdString(in);
  task->outputFolderPath = QString::fromStdString(out);
  if (dateLimit > 0) VantryUtil::prefs->setDoubleValue(task->Name + u"lastprocessed"_s, dateLimit);
  return task;
}

}  // namespace bench
