#pragma once
// The real engine on real folders against the practice service over TLS: a home, the service, the login, an open log
// and a clock that a test moves. Ten lines make a test; what counts is on the disk, in the log and at the service.

#include <QList>
#include <QMap>
#include <QString>

#include "engine/UploaderTask.h"
#include "practice/PracticeService.h"
#include "support/ManualClock.h"
#include "support/TemporaryHome.h"

class EngineBench {
 public:
  EngineBench();
  ~EngineBench();
  EngineBench(const EngineBench&) = delete;
  EngineBench& operator=(const EngineBench&) = delete;

  TemporaryHome home;
  PracticeService service;
  ManualClock clock;

  /// A task for ".txt" files of the folder `in`, with the output folder `out`, not in the list.
  [[nodiscard]] TaskPointer makeTask(const QString& name = QStringLiteral("Press")) const;
  /// A whole pass of one task on the calling thread.
  static void process(UploaderTask& task);
  /// A file of the input folder that has been at rest for a minute.
  QString drop(const QString& name, const QByteArray& content = "patch data",
               const QString& folder = QStringLiteral("in")) const;
  /// Writes the preferences and reads them anew, as a new start of the program does.
  void restart();

  using Row = QMap<QString, QString>;
  /// All rows of the log, the oldest first, read through a connection of its own.
  [[nodiscard]] QList<Row> log() const;
  [[nodiscard]] QStringList notes() const;
  [[nodiscard]] QStringList files(const QString& folder) const;
  [[nodiscard]] QStringList received() const;  ///< names, in order of arrival
};
