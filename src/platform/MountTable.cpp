#include "platform/MountTable.h"

#include <QFile>

using namespace Qt::Literals::StringLiterals;

/// Both tables write blanks and their like as three octal digits behind a backslash.
static QByteArray unescaped(const QByteArray& field) {
  QByteArray text;
  for (qsizetype i = 0; i < field.size(); ++i) {
    bool octal = false;
    const int code = field[i] == '\\' ? field.mid(i + 1, 3).toInt(&octal, 8) : 0;
    text += octal ? static_cast<char>(code) : field[i];
    if (octal) i += 3;
  }
  return text;
}

bool liesIn(const QByteArray& path, const QByteArray& folder) {
  return folder == "/" || path == folder || (path.startsWith(folder) && path.at(folder.size()) == '/');
}

MountTable::MountTable(const QByteArray& mountinfo, const QByteArray& fstab) {
  for (const QByteArray& line : mountinfo.split('\n')) {
    const QList<QByteArray> fields = line.split(' ');
    const qsizetype dash = fields.indexOf("-");  // ends the optional fields
    if (dash >= 6 && fields.size() > dash + 1)
      m_mounted.append({unescaped(fields[4]), fields[dash + 1], fields[0] + ' ' + fields[2]});
  }
  for (const QByteArray& line : fstab.split('\n')) {
    const QList<QByteArray> fields = line.simplified().split(' ');
    if (fields.size() < 3 || fields[0].startsWith('#')) continue;
    QByteArray point = unescaped(fields[1]);
    while (point.size() > 1 && point.endsWith('/')) point.chop(1);
    if (point.startsWith('/')) m_wanted.append(point);  // swap has none
  }
}

MountTable MountTable::present() {
  const auto read = [](const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  };
  return {read(u"/proc/self/mountinfo"_s), read(u"/etc/fstab"_s)};
}

MountEntry MountTable::entryOf(const QByteArray& path) const {
  MountEntry found;
  for (const MountEntry& entry : m_mounted)
    if (liesIn(path, entry.point) && entry.point.size() >= found.point.size()) found = entry;
  return found;
}

QByteArray MountTable::missingFor(const QByteArray& path, const QByteArray& remembered) const {
  const MountEntry entry = entryOf(path);
  if (entry.type == "autofs") return entry.point;
  if (remembered == "/") return {};
  const auto missing = [&](const QByteArray& point) {
    return !point.isEmpty() && liesIn(path, point) && point.size() > entry.point.size();
  };
  for (const QByteArray& point : m_wanted)
    if (missing(point)) return point;
  return missing(remembered) ? remembered : QByteArray();
}
