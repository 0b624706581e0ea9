#include "service/FileSource.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

#include "platform/FileCipher.h"
#include "platform/FolderCall.h"
#include "platform/Reasons.h"

using namespace Qt::Literals::StringLiterals;

static constexpr qint64 PieceBytes = 48 << 10;  // 64 KiB in Base64

static FileVersion versionFrom(const struct stat& status) {
  return {status.st_size, static_cast<qint64>(status.st_mtim.tv_sec) * 1'000'000'000 + status.st_mtim.tv_nsec};
}

static ssize_t readFully(int descriptor, char* buffer, size_t size) {
  const FolderCall call;
  size_t count = 0;
  while (count < size) {
    const ssize_t more = ::read(descriptor, buffer + count, size - count);
    if (more < 0 && errno == EINTR) continue;
    if (more < 0) return -1;
    if (more == 0) break;
    count += static_cast<size_t>(more);
  }
  return static_cast<ssize_t>(count);
}

FileSource::FileSource(const FolderItem& file, const FileVersion& version, FileSourceState& state)
    : m_file(file), m_version(version), m_state(state) {
  open();
}

FileSource::~FileSource() {
  const FolderCall call;
  if (m_descriptor >= 0) close(m_descriptor);
  wipe(m_before);
}

bool FileSource::giveUp(bool changed, int error) {
  m_state.changed = changed;
  m_state.failure = IoResult::failure(error, fillPlaceholders(Reasons::klReading(), {m_file.NativePath()}));
  if (m_descriptor >= 0) close(m_descriptor);
  m_descriptor = -1;
  return false;
}

void FileSource::open() {
  const FolderCall call;
  // A fifo that took the file's place must not hold the thread up.
  m_descriptor = ::open(m_file.bytes().constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
  struct stat status {};
  if (m_descriptor < 0 || fstat(m_descriptor, &status) != 0) {
    giveUp(false, errno);
  } else if (!S_ISREG(status.st_mode) || versionFrom(status) != m_version) {
    giveUp(true, ESTALE);
  } else {
    m_device = status.st_dev;
    m_inode = status.st_ino;
    m_piece.resize(static_cast<size_t>(std::clamp<qint64>(m_version.size, 1, PieceBytes)));
    posix_fadvise(m_descriptor, 0, 0, POSIX_FADV_SEQUENTIAL);
  }
}

void FileSource::setEnvelope(const QByteArray& before, const QByteArray& behind) {
  m_before = before;
  m_behind = behind;
}

qint64 FileSource::size() const { return m_before.size() + base64Length(m_version.size) + m_behind.size(); }

bool FileSource::stillTheSame() const {
  const FolderCall call;
  struct stat open {};
  struct stat named {};
  // First, so that what follows is no older either.
  if (versionAtServer(m_file) != m_version) return false;
  return fstat(m_descriptor, &open) == 0 && versionFrom(open) == m_version &&
         stat(m_file.bytes().constData(), &named) == 0 && named.st_dev == m_device && named.st_ino == m_inode &&
         versionFrom(named) == m_version;
}

bool FileSource::read(QByteArray& buffer) {
  if (m_ended) return true;
  if (m_descriptor < 0) return false;
  if (!m_begun) buffer += m_before;
  m_begun = true;
  if (m_read < m_version.size && !readPiece(buffer)) return false;
  if (m_progress && m_version.size > 0) m_progress(m_read, m_version.size);
  return m_read < m_version.size || finishContent(buffer);
}

bool FileSource::readPiece(QByteArray& buffer) {
  const qint64 wanted = std::min(PieceBytes, m_version.size - m_read);
  const ssize_t count = readFully(m_descriptor, m_piece.data(), static_cast<size_t>(wanted));
  if (count < 0) return giveUp(errno == ESTALE, errno);
  if (count < wanted) return giveUp(true, ESTALE);  // it shrank
  m_read += count;
  const qsizetype end = buffer.size();
  buffer.resize(end + base64Length(count + 2));
  const qsizetype length = m_encoder.encode(m_piece.data(), count, buffer.data() + end);
  buffer.truncate(end + length);
  return true;
}

bool FileSource::finishContent(QByteArray& buffer) {
  char extra = 0;
  const ssize_t behindEnd = readFully(m_descriptor, &extra, 1);
  if (behindEnd < 0) return giveUp(errno == ESTALE, errno);
  if (behindEnd > 0 || !stillTheSame()) return giveUp(true, ESTALE);
  char last[4];
  buffer.append(last, m_encoder.finish(last));
  buffer += m_behind;
  m_ended = true;
  return true;
}
