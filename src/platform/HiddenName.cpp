#include "platform/HiddenName.h"

#include <unistd.h>

#include <QCryptographicHash>
#include <QFile>
#include <QList>
#include <QRandomGenerator>
#include <cerrno>
#include <climits>
#include <csignal>

#include "platform/Date.h"

namespace {

constexpr auto kMark = ".vantry-uploader-";
constexpr auto kEnding = ".part";
constexpr qint64 kDayNs = 86'400LL * 1'000'000'000;

QByteArray contentOf(const char* path) {
  QFile file(QString::fromLatin1(path));
  return file.open(QIODevice::ReadOnly) ? file.readAll().trimmed() : QByteArray();
}

// Process numbers mean something only on one machine, since its start, in one name space.
const QByteArray& machineTag() {
  static const QByteArray tag = [] {
    QByteArray identity = contentOf("/etc/machine-id") + '\n' + contentOf("/proc/sys/kernel/random/boot_id") + '\n';
    char nameSpace[PATH_MAX];
    const ssize_t length = ::readlink("/proc/self/ns/pid", nameSpace, sizeof nameSpace);
    if (length > 0) identity.append(nameSpace, length);
    return QCryptographicHash::hash(identity, QCryptographicHash::Sha256).left(6).toHex();
  }();
  return tag;
}

}  // namespace

QByteArray makeHiddenName() {
  const QByteArray random = QByteArray::number(QRandomGenerator::system()->generate64(), 16);
  return kMark + machineTag() + '-' + QByteArray::number(::getpid()) + '-' + random + kEnding;
}

bool hasOurMark(const QByteArray& name) { return name.startsWith(kMark) && name.endsWith(kEnding); }

bool isLeftover(const QByteArray& name, qint64 changedNs) {
  if (!hasOurMark(name)) return false;
  const QList<QByteArray> parts = name.mid(qstrlen(kMark)).split('-');
  bool isNumber = false;
  const int process = parts.value(1).toInt(&isNumber);
  if (parts.size() == 3 && parts[0] == machineTag() && isNumber && process > 0)
    return ::kill(process, 0) != 0 && errno == ESRCH;
  return Date().nanoseconds() - changedNs > kDayNs;
}
