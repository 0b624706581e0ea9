#include "support/EngineBench.h"

#include <sqlite3.h>

#include <QDir>
#include <QTest>

#include "engine/EngineClock.h"
#include "engine/UploadThread.h"
#include "platform/SpecialFolder.h"
#include "service/VantryUtil.h"
#include "storage/LogDatabase.h"
#include "storage/LogEntry.h"
#include "storage/Preferences.h"

using namespace Qt::Literals::StringLiterals;

EngineBench::EngineBench() : clock(Date().TotalSeconds()) {
  DictionaryFile::setSolutionKey(u"KestrelMoonOVJT"_s);
  UploadThread::allowAgain();
  UploadThread::Enabled = true;
  setEngineClock(&clock);
  if (!service.start()) qFatal("%s", qPrintable(service.errorString()));
  VantryUtil::setExtraCaFile(service.caFile());
  VantryUtil::setAccountURL(service.url());
  VantryUtil::loadAccountPreferences();
  const PracticeService::Options options;
  VantryUtil::prefs->setStringValue(u"SoapLogin"_s, options.login);
  VantryUtil::prefs->setStringValue(u"SoapPassword"_s, options.password);
  if (!SpecialFolder::createPrivate(SpecialFolder::ApplicationData()).ok()) qFatal("no data folder");
  VantryUtil::ConnectToLogDatabase();
  home.makeFolder(u"in"_s);
  home.makeFolder(u"out"_s);
}

EngineBench::~EngineBench() {
  service.release();
  UploadThread::Enabled = false;
  UploadThread::stop(5000);
  VantryUtil::LogEntry::setRowObserver({});
  UploaderTask::unload();
  UploaderTask::setMountOperation({});
  UploaderTask::setTriedAutoMount(false);
  VantryUtil::logDB.reset();
  VantryUtil::prefs.reset();
  VantryUtil::setAccountURL({});
  VantryUtil::setExtraCaFile({});
  setEngineClock(nullptr);
  for (const Problem& problem : Problems::present()) Problems::clear(problem.kind, problem.subject);
  DictionaryFile::setSolutionKey({});
}

TaskPointer EngineBench::makeTask(const QString& name) const {
  auto task = std::make_shared<UploaderTask>();
  task->Name = name;
  task->Warden = u"Print"_s;
  task->Track = PracticeService::knownPrintTrack();
  task->Extension = u".txt"_s;
  task->inputFolderPath = home.path(u"in"_s);
  task->outputFolderPath = home.path(u"out"_s);
  return task;
}

TaskPointer EngineBench::listTask(const QString& name, const QString& folder, int files) const {
  const TaskPointer task = makeTask(name);
  task->inputFolderPath = home.makeFolder(folder);
  for (int i = 1; i <= files; ++i) drop(u"%1%2.txt"_s.arg(name).arg(i), "x", folder);
  UploaderTask::addTask(task);
  return task;
}

void EngineBench::process(UploaderTask& task) {
  task.updateStatus();
  if (task.Status == UploaderTask::Fault || !task.PrepareToUpload()) return;
  task.ProcessFiles();
}

void EngineBench::passes(UploaderTask& task, int count, double seconds) {
  for (int i = 0; i < count; ++i) {
    clock.advance(seconds);
    process(task);
  }
}

bool EngineBench::runUntil(const std::function<bool()>& done) {
  const auto step = [&] {
    if (!done()) UploadThread::Start();
    return done();
  };
  return QTest::qWaitFor(step, 60'000);
}

QString EngineBench::drop(const QString& name, const QByteArray& content, const QString& folder) const {
  return home.writeFile(folder + u'/' + name, content, Date().TotalSeconds() - clock.now().TotalSeconds() + 60);
}

void EngineBench::restart() {
  if (!VantryUtil::prefs->save()) qFatal("the preferences can't be saved");
  VantryUtil::loadAccountPreferences();
}

QList<EngineBench::Row> EngineBench::log() const {
  sqlite3* db = nullptr;
  QList<Row> rows;
  const auto keep = [](void* list, int columns, char** values, char** names) {
    Row& row = static_cast<QList<Row>*>(list)->emplace_back();
    for (int i = 0; i < columns; ++i) row[QString::fromUtf8(names[i])] = QString::fromUtf8(values[i]);
    return 0;
  };
  const QByteArray path = SpecialFolder::ApplicationData().Child(u"VantryUploader.db"_s).bytes();
  if (sqlite3_open_v2(path.constData(), &db, SQLITE_OPEN_READONLY, nullptr) == SQLITE_OK)
    sqlite3_exec(db, "select * from log order by _rowid", keep, &rows, nullptr);
  sqlite3_close(db);
  return rows;
}

QStringList EngineBench::notes() const {
  QStringList list;
  for (const Row& row : log()) list << row[u"Notes"_s];
  return list;
}

QStringList EngineBench::files(const QString& folder) const {
  return QDir(home.path(folder)).entryList(QDir::Files | QDir::Hidden | QDir::System, QDir::Name);
}

QStringList EngineBench::received() const {
  QStringList names;
  for (const PracticeReceipt& receipt : service.receipts()) names << receipt.name;
  return names;
}

QList<Problem::Kind> EngineBench::problems() {
  QList<Problem::Kind> kinds;
  for (const Problem& problem : Problems::present()) kinds << problem.kind;
  return kinds;
}
