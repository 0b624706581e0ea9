#pragma once
// One watched input folder with its selection rules, its destination at the service and its output rules, and the
// shared list of all of them. A task's settings never change once it is in allTasks, so both threads read them; what
// changes while it runs is atomic; folder handles, date limit and error folder belong to the upload thread.

#include <QList>
#include <QString>
#include <atomic>
#include <memory>
#include <optional>

#include "platform/FolderItem.h"
#include "platform/IoResult.h"
#include "platform/RegEx.h"

class Clock;
class UploaderTask;
using TaskPointer = std::shared_ptr<UploaderTask>;

class UploaderTask {
 public:
  enum StatusValue : qint64 { NotEvaluated = 0, Processing = 1, Ready = 2, Fault = 3 };

  UploaderTask() = default;
  UploaderTask(const UploaderTask&) = delete;
  UploaderTask& operator=(const UploaderTask&) = delete;

  /// Reads a task file; `file` is kept as the task's own also when it fails. The failure is in words for a person.
  [[nodiscard]] IoResult open(const FolderItem& taskFile);
  /// Writes the task file: the old content or the new stands there at every moment. False when the disk refuses,
  /// with the reason in `failure`.
  [[nodiscard]] bool save(const FolderItem& taskFile, IoResult* failure = nullptr);

  [[nodiscard]] QString ExclusionPattern() const { return mExclusionPattern; }
  void setExclusionPattern(const QString& pattern);
  [[nodiscard]] QString getTrackName() const { return Track; }

  // The rules for names; plain functions of the task's settings, any thread.
  [[nodiscard]] bool FileNameMatch(const QString& name) const;
  [[nodiscard]] bool matchesExclusion(const QString& name) const;
  [[nodiscard]] bool isFIleNewEnough(double modificationSeconds) const { return modificationSeconds > dateLimit; }
  /// The name under which a file goes to the service and into the output folder, at local time `now`.
  [[nodiscard]] QString Rename(const QString& name, const Date& now) const;

  /// Files due by date limit and rules, in order of their names. Upload thread; blocks for the folder.
  [[nodiscard]] QList<FolderItem> EvaluateInputFolder();
  [[nodiscard]] qint64 getFileCount();
  void getDateLimit();
  /// Stores the limit in prefs, 0 for `clear`, otherwise `seconds`, and saves prefs. Any thread but main.
  void updateDateLimit(bool clear, double seconds = 0);

  // One pass, upload thread.
  void updateStatus();
  void TryAutoMount(bool input);
  [[nodiscard]] bool PrepareToUpload();
  void ProcessFiles();

  /// Renames the task's file from ".vnt" to ".del".
  IoResult MarkToDelete();

  // The shared list, guarded; any thread.
  [[nodiscard]] static QList<TaskPointer> allTasks();
  /// Reads the task folder anew into the list. A file that can't be read raises Problem::TaskFileSkipped.
  static void Load();
  static void unload();
  static void addTask(const TaskPointer& task);
  static void RemoveTask(const TaskPointer& task);
  /// Adds a disabled copy named "… Copy" with a file of its own; false, with the reason, when it can't be written.
  [[nodiscard]] static bool duplicateTask(const TaskPointer& task, IoResult* failure = nullptr);
  static void cleanUpDeletedTasks();
  [[nodiscard]] static TaskPointer getTaskWIthName(const QString& name);
  [[nodiscard]] static TaskPointer getNextTaskWithFiles();
  static void updateAllStatus();
  /// The folder "Uploader Tasks", made private if missing.
  [[nodiscard]] static FolderItem TaskDirectory();
  /// Changes the item's name until nothing beside it has that name: "report.txt", "1 report.txt", …
  static void DistinctName(FolderItem& item);

  // Settings, fixed once the task is in the list.
  QString Name = QStringLiteral("Untitled");
  QString Description, Warden, Track, FileName, Extension, Prefix;
  bool AutoRecognition = false, ReplaceName = false, AddDateToFilename = false, DeleteAfterSave = false;
  QString inputFolderPath, outputFolderPath;
  bool AutoMountInputFolder = false, autoMountOutputFolder = false;
  QString inputfolderURL, outputFolderUrl, InputLogin, inputPassword, outputLogin, outputPassword;
  std::optional<FolderItem> file;  ///< the task's own file; main thread once the task is in the list

  // What changes while it runs.
  std::atomic<qint64> Status{NotEvaluated};
  std::atomic<bool> Busy{false};
  std::atomic<bool> disabled{false};
  std::atomic<qint64> UploadedCount{0};

  // Of the upload thread.
  std::optional<FolderItem> inputFolder, outputFolder, ErrorFolder;
  double dateLimit = 0;  ///< seconds since 1970 UTC; 0: every file is new enough

 private:
  void buildExclusionRegEx();
  QString mExclusionPattern;
  std::optional<RegEx> exclusionRegEx;
};
