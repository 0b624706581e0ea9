#pragma once
// One program per data folder: the first holds a lock file in it and listens on a private local socket; a second asks
// the first to show its window. Main thread.

#include <QLocalServer>
#include <QLockFile>
#include <QObject>
#include <memory>

#include "platform/FolderItem.h"

class SingleInstance : public QObject {
  Q_OBJECT

 public:
  explicit SingleInstance(const FolderItem& dataFolder);

  enum class Start {
    First,       ///< go on
    HandedOver,  ///< another one has shown its window
    Silent,      ///< another one holds the data folder and doesn't answer
    Forbidden,   ///< the data folder can't be locked
  };
  /// Takes the place of the first, or asks the first to show itself. Waits at most 2 s for its answer, and 8 s for one
  /// that is about to end.
  [[nodiscard]] Start start();
  /// Answers nobody any more: the program ends, and a start from now on is to wait for that.
  void close() { m_server.close(); }

 signals:
  /// A second start asks for the window.
  void showRequested();

 private:
  void answer();
  /// Takes the lock and listens; false while another one has it.
  bool takePlace(int waitMs);
  QString m_socketPath;
  QLockFile m_lock;
  QLocalServer m_server;
};
