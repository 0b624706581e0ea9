#pragma once
// The real engine on real folders against the practice service over TLS: a home, the service, the login, an open log
// and a clock that a test moves. Ten lines make a test; what counts is on the disk, in the log and at the service.

#include <QList>
#include <QMap>
#include <QString>
#include <functional>

#include "engine/UploaderTask.h"
#include "platform/Problems.h"
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
  /// Such a task in the list, with an input folder of its own and files in it, "<name>1.txt" and so on.
  TaskPointer listTask(const QString& name, const QString& folder, int files = 1) const;
  /// A whole pass of one task on the calling thread.
  static void process(UploaderTask& task);
  /// As many of them, each some seconds after the one before.
  void passes(UploaderTask& task, int count, double seconds = 4);
  /// Begins run after run until `done`, as the window's timer does; false if that takes too long.
  static bool runUntil(const std::function<bool()>& done);
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
  [[nodiscard]] static QList<Problem::Kind> problems();
};
