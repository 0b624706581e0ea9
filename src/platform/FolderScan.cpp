#include "platform/FolderScan.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <memory>

#include "platform/FolderCall.h"
#include "platform/Reasons.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// Big enough that a folder of 100,000 short names takes some fifteen calls.
constexpr size_t kBufferSize = size_t{256} * 1024;

class OpenFolder {
 public:
  explicit OpenFolder(const FolderItem& folder) : m_fd(opened(folder.bytes())) {}
  ~OpenFolder() {
    if (m_fd >= 0) ::close(m_fd);
  }
  OpenFolder(const OpenFolder&) = delete;
  OpenFolder& operator=(const OpenFolder&) = delete;
  [[nodiscard]] int fd() const { return m_fd; }

 private:
  static int opened(const QByteArray& path) {
    const FolderCall call;
    return ::open(path.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  }
  int m_fd;
};

ssize_t nextEntries(int fd, char* buffer) {
  const FolderCall call;
  return ::getdents64(fd, buffer, kBufferSize);
}

bool canBePlainFile(unsigned char type) { return type == DT_REG || type == DT_LNK || type == DT_UNKNOWN; }

// What says that this one file is gone or not ours to read, and nothing about the folder.
bool concernsFileAlone(int error) {
  return error == ENOENT || error == ENOTDIR || error == ELOOP || error == EACCES || error == ENAMETOOLONG;
}

constexpr int kMostUnseen = 8;

bool concernsShare(int error) {
  constexpr int known[] = {ENOTCONN, ESTALE,       ETIMEDOUT,  EHOSTDOWN, EHOSTUNREACH, ENETUNREACH,
                           ENETDOWN, ECONNABORTED, ECONNRESET, ESHUTDOWN, ENODEV,       ENOMEM};
  return std::find(std::begin(known), std::end(known), error) != std::end(known);
}

class Scan {
 public:
  Scan(const FolderItem& folder, const FolderScanRules& rules) : m_folder(folder), m_rules(rules), m_open(folder) {}

  FolderScanResult run() {
    if (m_open.fd() < 0) fail(errno);
    const auto buffer = std::make_unique_for_overwrite<char[]>(kBufferSize);
    while (m_result.result.ok()) {
      const ssize_t filled = nextEntries(m_open.fd(), buffer.get());
      if (filled < 0) fail(errno);
      if (filled <= 0) break;
      if (!takeEntries(buffer.get(), filled)) break;
    }
    std::sort(m_result.files.begin(), m_result.files.end(),
              [](const ScannedFile& a, const ScannedFile& b) { return compareFileNames(a.name, b.name) < 0; });
    return std::move(m_result);
  }

  FolderScanResult run(const QByteArray& name) {
    if (m_open.fd() < 0)
      fail(errno);
    else
      takeEntry(name.constData(), DT_UNKNOWN);
    if (m_result.unseenError != 0) fail(m_result.unseenError);
    return std::move(m_result);
  }

 private:
  void fail(int error) {
    if (m_result.result.ok())
      m_result.result = IoResult::failure(error, fillPlaceholders(Reasons::klListing(), {m_folder.NativePath()}));
  }

  // A file that can't be told about may be due, and the others are not to wait for it. Where that befalls many, or the
  // share itself has gone, the list is none.
  void missOut(const char* name, int error) {
    if (concernsShare(error) || ++m_unseen > kMostUnseen) return fail(error);
    m_result.unseen = name;
    m_result.unseenError = error;
  }

  bool takeEntries(const char* entries, ssize_t filled) {
    for (ssize_t at = 0; at < filled;) {
      const auto* entry = reinterpret_cast<const dirent64*>(entries + at);
      at += entry->d_reclen;
      if (m_rules.stopRequested && m_rules.stopRequested()) {
        fail(ECANCELED);
        return false;
      }
      takeEntry(entry->d_name, entry->d_type);
    }
    return true;
  }

  void leaveOut(const char* name, LeftOut why) const {
    if (m_rules.leftOut) m_rules.leftOut(QByteArrayView(name), why);
  }

  void takeEntry(const char* name, unsigned char type) {
    if (!canBePlainFile(type)) return leaveOut(name, LeftOut::NotPlainFile);
    if (name[0] == '.') return leaveOut(name, LeftOut::Hidden);
    if (!m_rules.nameWanted || m_rules.nameWanted(QByteArrayView(name))) takeFile(name);
  }

  void takeFile(const char* name) {
    const FolderCall call;
    struct stat info {};
    if (::fstatat(m_open.fd(), name, &info, 0) != 0) {
      const int error = errno;
      if (!concernsFileAlone(error)) return missOut(name, error);
      return leaveOut(name, error == EACCES ? LeftOut::Unreadable : LeftOut::NotPlainFile);
    }
    if (!S_ISREG(info.st_mode)) return leaveOut(name, LeftOut::NotPlainFile);
    if (info.st_size <= 0) return leaveOut(name, LeftOut::Empty);
    const qint64 mtimeNs = qint64{info.st_mtim.tv_sec} * 1'000'000'000 + info.st_mtim.tv_nsec;
    if (m_rules.dateWanted && !m_rules.dateWanted(mtimeNs)) return leaveOut(name, LeftOut::Date);
    if (::faccessat(m_open.fd(), name, R_OK, AT_EACCESS) != 0) return leaveOut(name, LeftOut::Unreadable);
    m_result.files.push_back({QByteArray(name), {qint64{info.st_size}, mtimeNs}});
  }

  const FolderItem& m_folder;
  const FolderScanRules& m_rules;
  OpenFolder m_open;
  FolderScanResult m_result;
  int m_unseen = 0;
};

}  // namespace

FolderScanResult scanFolder(const FolderItem& folder, const FolderScanRules& rules) {
  return Scan(folder, rules).run();
}

FolderScanResult scanFile(const FolderItem& folder, const QByteArray& name, const FolderScanRules& rules) {
  return Scan(folder, rules).run(name);
}
