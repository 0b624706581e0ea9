#include "support/TemporaryHome.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <cmath>
#include <filesystem>

using namespace Qt::Literals::StringLiterals;

static constexpr std::array Variables{"HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR"};

TemporaryHome::TemporaryHome() {
  const QString values[] = {m_dir.path(), path(u"data"_s), path(u"config"_s), makeFolder(u"run"_s)};
  for (size_t i = 0; i < Variables.size(); ++i) {
    m_before[i] = qgetenv(Variables[i]);
    qputenv(Variables[i], QFile::encodeName(values[i]));
  }
  ::chmod(item(u"run"_s).bytes().constData(), 0700);
}

TemporaryHome::~TemporaryHome() {
  for (size_t i = 0; i < Variables.size(); ++i)
    m_before[i].isNull() ? qunsetenv(Variables[i]) : qputenv(Variables[i], m_before[i]);
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
  if (secondsAgo != 0) setDate(full, Date().TotalSeconds() - secondsAgo);
  return full;
}

void TemporaryHome::setDate(const QString& path, double secondsSince1970) {
  const double whole = std::floor(secondsSince1970);
  const timespec date{static_cast<time_t>(whole), static_cast<long>((secondsSince1970 - whole) * 1e9)};
  const timespec times[] = {date, date};
  if (utimensat(AT_FDCWD, QFile::encodeName(path).constData(), times, 0) != 0)
    qFatal("cannot set the date of %s", qPrintable(path));
}

QByteArray TemporaryHome::readFile(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
