#pragma once
// An envelope with a file's content in Base64 in its middle, made while it is sent. The file must be, and stay, in one
// version: it is looked at when it is opened and again when its last byte has been read, before the end of the
// envelope goes out, so that no server takes a torn file for whole. One thread; blocks for the file.

#include <sys/types.h>

#include <QByteArray>
#include <functional>
#include <vector>

#include "platform/FolderItem.h"
#include "platform/IoResult.h"
#include "platform/SafeFile.h"
#include "service/Base64.h"
#include "service/HTTPSocket.h"

/// What became of the file, seen from outside while and after the source is used.
struct FileSourceState {
  bool changed = false;  ///< the file is not, or no longer, in the version that was asked for
  IoResult failure;      ///< why the file could not be opened or read
};

class FileSource : public RequestSource {
 public:
  using Progress = std::function<void(qint64 sent, qint64 total)>;

  /// Opens the file. `state` outlives the source.
  FileSource(const FolderItem& file, const FileVersion& version, FileSourceState& state);
  ~FileSource() override;
  FileSource(const FileSource&) = delete;
  FileSource& operator=(const FileSource&) = delete;

  /// False when the file can't be sent: `state` tells why.
  [[nodiscard]] bool isOpen() const { return m_descriptor >= 0; }
  /// What stands before and behind the content; before the first read().
  void setEnvelope(const QByteArray& before, const QByteArray& behind);
  void setProgress(const Progress& progress) { m_progress = progress; }

  [[nodiscard]] qint64 size() const override;
  [[nodiscard]] bool read(QByteArray& buffer) override;

 private:
  void open();
  [[nodiscard]] bool stillTheSame() const;
  [[nodiscard]] bool readPiece(QByteArray& buffer);
  [[nodiscard]] bool finishContent(QByteArray& buffer);
  bool giveUp(bool changed, int error);

  FolderItem m_file;
  FileVersion m_version;
  FileSourceState& m_state;
  Progress m_progress;
  int m_descriptor = -1;
  dev_t m_device = 0;
  ino_t m_inode = 0;
  QByteArray m_before, m_behind;
  std::vector<char> m_piece;
  Base64Encoder m_encoder;
  qint64 m_read = 0;  ///< bytes of the file
  bool m_begun = false;
  bool m_ended = false;
};
