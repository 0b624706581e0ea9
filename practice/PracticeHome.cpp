#include "practice/PracticeHome.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "engine/UploaderTask.h"
#include "platform/SpecialFolder.h"
#include "storage/DictionaryFile.h"

using namespace Qt::Literals::StringLiterals;

// The program's own, as in its start-up: task files of another key are not readable by it.
static const QString SolutionKey = u"KestrelMoonOVJT"_s;
static const QString Marker = u"this-is-a-practice-home"_s;

PracticeHome::PracticeHome(const QString& folder) : m_folder(QDir::cleanPath(folder)) {}

QString PracticeHome::receivedFolder() const { return m_folder + u"/received"_s; }

// A session's sockets are found through folders of the old home: keep their addresses valid.
static void keepDisplayReachable() {
  const QByteArray wayland = qgetenv("WAYLAND_DISPLAY"), runtime = qgetenv("XDG_RUNTIME_DIR");
  if (!wayland.isEmpty() && !wayland.startsWith('/')) qputenv("WAYLAND_DISPLAY", runtime + '/' + wayland);
  const QByteArray authority = qgetenv("HOME") + "/.Xauthority";
  if (!qEnvironmentVariableIsSet("XAUTHORITY") && QFile::exists(QFile::decodeName(authority)))
    qputenv("XAUTHORITY", authority);
}

QString PracticeHome::enter() {
  QDir dir(m_folder);
  if (dir.exists() && !dir.isEmpty()) {
    if (!dir.exists(Marker)) return u"%1 is not a practice home, so it is not emptied"_s.arg(m_folder);
    if (!dir.removeRecursively()) return u"%1 could not be emptied"_s.arg(m_folder);
  }
  QFile marker(dir.filePath(Marker));
  if (!QDir().mkpath(m_folder) || !marker.open(QIODevice::WriteOnly)) return u"%1 could not be made"_s.arg(m_folder);
  for (const QString& name : {u"data"_s, u"config"_s, u"run"_s, u"received"_s}) dir.mkdir(name);
  // A runtime folder that others can enter is refused by those who use it.
  QFile::setPermissions(dir.filePath(u"run"_s),
                        QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
  keepDisplayReachable();
  qputenv("HOME", QFile::encodeName(m_folder));
  qputenv("XDG_DATA_HOME", QFile::encodeName(dir.filePath(u"data"_s)));
  qputenv("XDG_CONFIG_HOME", QFile::encodeName(dir.filePath(u"config"_s)));
  qputenv("XDG_RUNTIME_DIR", QFile::encodeName(dir.filePath(u"run"_s)));
  for (const char* name : {"XDG_CACHE_HOME", "XDG_STATE_HOME"}) qunsetenv(name);
  return {};
}

QList<PracticeTask> PracticeHome::tasks() const {
  QList<PracticeTask> list(3);
  list[0].name = u"Merlin CX 102"_s;
  list[0].description = u"Control strips of the sheet-fed press, every format"_s;
  list[0].warden = u"Print"_s;
  list[0].destination = u"CX102-Coated115-Production"_s;
  list[0].fileName = u"*"_s;
  list[0].exclusion = u"\\.(tmp|part)$"_s;

  list[1].name = u"Spectro Twenty"_s;
  list[1].description = u"Weekly check of the instrument, CxF"_s;
  list[1].warden = u"Instrument"_s;
  list[1].destination = u"ST20417-Ceramic2"_s;
  list[1].extension = u".cxf"_s;

  list[2].name = u"Falkner 106"_s;
  list[2].description = u"Named with prefix and date"_s;
  list[2].warden = u"Print"_s;
  list[2].destination = u"F106-Karton300"_s;
  list[2].extension = u".txt"_s;
  list[2].fileName = u"falkner"_s;
  list[2].prefix = u"F106"_s;
  list[2].replaceName = false;
  list[2].addDate = true;

  for (PracticeTask& task : list) {
    task.inputFolder = m_folder + u"/Measurements/"_s + task.name;
    task.outputFolder = m_folder + u"/Archive/"_s + task.name;
  }
  return list;
}

static QString writeTask(const PracticeTask& source, int number) {
  if (!QDir().mkpath(source.inputFolder) || !QDir().mkpath(source.outputFolder))
    return u"The folders of %1 could not be made"_s.arg(source.name);
  UploaderTask task;
  task.Name = source.name;
  task.Description = source.description;
  task.Warden = source.warden;
  task.Track = source.destination;
  task.Extension = source.extension;
  task.FileName = source.fileName;
  task.setExclusionPattern(source.exclusion);
  task.Prefix = source.prefix;
  task.ReplaceName = source.replaceName;
  task.AddDateToFilename = source.addDate;
  task.inputFolderPath = source.inputFolder;
  task.outputFolderPath = source.outputFolder;
  IoResult failure;
  const FolderItem file = UploaderTask::TaskDirectory().Child(u"practice %1.vnt"_s.arg(number));
  return task.save(file, &failure) ? QString() : failure.message();
}

QString PracticeHome::furnish(const QString& login, const QString& password, const QList<PracticeTask>& tasks) const {
  DictionaryFile::setSolutionKey(SolutionKey);
  for (const FolderItem& folder : {SpecialFolder::ApplicationData(), SpecialFolder::Preferences()}) {
    const IoResult made = SpecialFolder::createPrivate(folder);
    if (!made.ok()) return made.message();
  }
  int number = 0;
  for (const PracticeTask& task : tasks) {
    const QString failure = writeTask(task, ++number);
    if (!failure.isEmpty()) return failure;
  }
  DictionaryFile preferences;
  preferences.setStringValue(u"SoapLogin"_s, login);
  preferences.setStringValue(u"SoapPassword"_s, password);
  const bool saved = preferences.save(SpecialFolder::Preferences().Child(u"VTUploaderAdmin.pref"_s));
  return saved ? QString() : preferences.lastFailure().message();
}
