#include "support/TemporaryHome.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <chrono>
#include <cmath>
#include <filesystem>

static void restore(const char* name, const QByteArray& value) {
  if (value.isNull()) qunsetenv(name);
  else qputenv(name, value);
}

static QByteArray replace(const char* name, const QString& value) {
  const QByteArray old = qEnvironmentVariableIsSet(name) ? qgetenv(name) : QByteArray();
  qputenv(name, QFile::encodeName(value));
  return old;
}

TemporaryHome::TemporaryHome() {
  m_oldHome = replace("HOME", m_dir.path());
  m_oldData = replace("XDG_DATA_HOME", path(QStringLiteral("data")));
  m_oldConfig = replace("XDG_CONFIG_HOME", path(QStringLiteral("config")));
  m_oldRuntime = replace("XDG_RUNTIME_DIR", makeFolder(QStringLiteral("run")));
  QFile::setPermissions(path(QStringLiteral("run")),
                        QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
}

TemporaryHome::~TemporaryHome() {
  restore("HOME", m_oldHome);
  restore("XDG_DATA_HOME", m_oldData);
  restore("XDG_CONFIG_HOME", m_oldConfig);
  restore("XDG_RUNTIME_DIR", m_oldRuntime);
  // Qt's own removal, which follows, can't reach names that are not UTF-8.
  std::error_code ignored;
  std::filesystem::remove_all(QFile::encodeName(m_dir.path()).constData(), ignored);
}

QString TemporaryHome::path(const QString& relative) const {
  return relative.isEmpty() ? m_dir.path() : m_dir.path() + QLatin1Char('/') + relative;
}

FolderItem TemporaryHome::item(const QString& relative) const { return *FolderItem::fromNativePath(path(relative)); }

QString TemporaryHome::makeFolder(const QString& relative) const {
  QDir().mkpath(path(relative));
  return path(relative);
}

QString TemporaryHome::writeFile(const QString& relative, const QByteArray& content, double secondsAgo) const {
  const QString full = path(relative);
  QDir().mkpath(QFileInfo(full).path());
  QFile file(full);
  if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
    qFatal("cannot write %s", qPrintable(full));
  file.close();
  if (secondsAgo != 0) {
    const auto now = std::chrono::duration<double>(std::chrono::system_clock::now().time_since_epoch()).count();
    setDate(full, now - secondsAgo);
  }
  return full;
}

void TemporaryHome::setDate(const QString& path, double secondsSince1970) {
  timespec times[2];
  times[0].tv_sec = times[1].tv_sec = static_cast<time_t>(std::floor(secondsSince1970));
  times[0].tv_nsec = times[1].tv_nsec = static_cast<long>((secondsSince1970 - std::floor(secondsSince1970)) * 1e9);
  if (utimensat(AT_FDCWD, QFile::encodeName(path).constData(), times, 0) != 0)
    qFatal("cannot set the date of %s", qPrintable(path));
}

QByteArray TemporaryHome::readFile(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
