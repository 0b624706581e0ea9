#pragma once
// One watched input folder with its selection rules, its destination at the service and its output rules, and the
// shared list of all of them. A task's settings never change once it is in allTasks, so both threads read them; what
// changes while it runs is atomic; folder handles, date limit and error folder belong to the upload thread and the
// thread on which it has one task's work done.

#include <QList>
#include <QString>
#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>

#include "engine/BatchLedger.h"
#include "engine/DueRules.h"
#include "platform/FolderCall.h"
#include "platform/FolderItem.h"
#include "platform/IoResult.h"
#include "platform/Mount.h"
#include "platform/RegEx.h"
#include "platform/System.h"

class UploaderTask;
using TaskPointer = std::shared_ptr<UploaderTask>;

class UploaderTask {
 public:
  enum StatusValue : qint64 { NotEvaluated = 0, Processing = 1, Ready = 2, Fault = 3 };

  UploaderTask() = default;
  ~UploaderTask() = default;
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
  [[nodiscard]] DueRules dueRules() const;
  [[nodiscard]] bool isFIleNewEnough(double modificationSeconds) const { return modificationSeconds > dateLimit; }
  /// The name under which a file goes to the service and into the output folder, at local time `now`.
  [[nodiscard]] QString Rename(const QString& name, const Date& now) const;

  /// Files due by date limit and rules alone, in order of their names; a missing folder gives none. Blocks for the
  /// folder: upload thread, or a task object of the caller's own.
  [[nodiscard]] QList<FolderItem> EvaluateInputFolder();
  /// What a batch would send now: EvaluateInputFolder, seen through the ledger.
  [[nodiscard]] qint64 getFileCount();
  void getDateLimit();
  /// Stores the limit in prefs (0 and no ledger for `clear`, otherwise `seconds` and the ledger) and saves prefs.
  /// Blocks for the disk; with `clear`, any thread. A save that fails raises Problem::PreferencesNotSaved; the limit
  /// then holds in memory. A limit that the user cleared during the batch stays cleared.
  void updateDateLimit(bool clear, double seconds = 0);

  /// One look at the input folder: the moment it began, and what is due and what still moves.
  struct FolderLook {
    IoResult result;  ///< a look that failed gives nothing due
    Date began;
    BatchLedger::Selection files;
    bool partial = false;  ///< a file that may be due could not be judged: the limit must not pass it
  };
  /// Upload thread; blocks for the folder.
  [[nodiscard]] FolderLook lookAtInputFolder();
  // The memory of what was dealt with, guarded; changed by the threads that work at the folders.
  void dealtWith(const ScannedFile& scanned);
  void foundMoving(const ScannedFile& scanned);
  /// Raises Problem::FileWaits for a file that can't be read for the moment, until it no longer waits.
  void tellThatItWaits(const QByteArray& name, const QString& reason);
  /// Ends a batch whose last good look began at `began`: stores the new date limit and the memory.
  void closeBatch(const Date& began);
  /// Ends a batch that was broken off: stores the memory beside the limit as it was.
  void keepLedger();
  /// The same for all tasks whose batch is under way, which the program's end can't wait for. Any thread.
  static void keepLedgersUnderWay();
  /// Due, StillMoving, DealtWith or Older for a file that passes the rules. Any thread; doesn't touch the disk.
  [[nodiscard]] Verdict judgeVersion(const ScannedFile& scanned, double limit) const;

  // One pass, upload thread.
  /// Rebuilds the folder handles, mounting where the task asks for it, and sets Status to what that gave.
  void updateStatus() { Status = lookAtFolders(); }
  /// The same, but only tells: Ready, or Fault when a folder is missing, not writable, or on a share that isn't there.
  [[nodiscard]] StatusValue lookAtFolders();
  /// Makes the handle of one side anew; mounts its share if the folder is missing, unless a pause runs.
  void TryAutoMount(bool input);
  /// Makes the error folder. False when a folder is missing or can't be written; Status is Fault then if a share went.
  [[nodiscard]] bool PrepareToUpload();
  /// Sends all that is due, with a log row for each file, and stores the new date limit. Once another login is in
  /// force than the one at the beginning, or that of `loginNumber` (Account), no further file is sent: the batch is
  /// broken off, and what is left waits for the next one.
  void ProcessFiles();
  void ProcessFiles(quint64 loginNumber);

  /// The pause after a failed mount, common to all tasks: true until 36000 ticks have passed. Any thread.
  [[nodiscard]] static bool triedAutoMount();
  static void setTriedAutoMount(bool tried);
  using MountOperation = std::function<QString(const MountRequest& request, int& errorCode)>;
  /// What mounts a share; the platform's operation unless a test scripts another.
  static void setMountOperation(MountOperation operation);
  /// Mounts at once, whether or not a pause runs; an exception of the operation is a failure. Blocks.
  [[nodiscard]] static QString mountNow(const MountRequest& request, int& errorCode);

  /// False once a folder is on another file system than at the last good look, or can't be asked: its share has gone.
  [[nodiscard]] bool inputIsThere() const;
  [[nodiscard]] bool outputIsThere() const;  ///< true without an output folder
  /// Takes a folder as it is, whatever should be mounted there, until something is; any thread. The caller saves
  /// the preferences.
  static void takeAsItIs(const QString& folderPath);

  /// True once something else is mounted where the folders lie than when work at them began: a call that hangs on the
  /// old share may hang for ever, while the new one answers. Touches no share. Any thread.
  [[nodiscard]] bool mountedAnew() const;
  /// Puts a task of the same settings and the same memory in the place of one whose work was left behind. That work
  /// keeps the old one; should it ever go on, it stores nothing, but tells the new one what it has dealt with. Gives
  /// the old one back if it has left the list. Upload thread.
  [[nodiscard]] static TaskPointer renewed(const TaskPointer& task);
  /// The task that took this one's place so; none as a rule. Any thread.
  [[nodiscard]] TaskPointer heir() const;

  /// Renames the task's file to end in ".del", so that it isn't loaded any more.
  IoResult MarkToDelete();

  // The shared list, guarded; any thread. A task that was listed before a Load stands for the one of the same file.
  [[nodiscard]] static QList<TaskPointer> allTasks();
  /// Reads the task folder anew into the list. A file that can't be read raises Problem::TaskFileSkipped. A task of a
  /// file that was listed already stays switched off, and keeps its count.
  static void Load();
  /// Takes back what was told of work that hung, and all that was told of a task that is no longer listed; any thread.
  static void workEnded(const TaskPointer& task);
  static void unload();
  static void addTask(const TaskPointer& task);
  /// Takes the task off the list and marks its file; a task that isn't there changes nothing. A file that can't be
  /// marked comes back at the next start: the failure says why.
  static IoResult RemoveTask(const TaskPointer& task);
  /// Puts an edited task in the place of its old self, as one change of the list, and marks the old one's file; the
  /// failure says why it could not be marked. An old one that has left the list meanwhile changes nothing here.
  static IoResult replaceTask(const TaskPointer& old, const TaskPointer& replacement);
  /// A file of `folder` that is not there yet, for a task of that name: "<name> <seconds>.VNT", with what a file name
  /// can't hold replaced or cut.
  [[nodiscard]] static FolderItem newTaskFile(const FolderItem& folder, const QString& name);
  /// Adds a disabled copy named "… Copy" with a file of its own; false, with the reason, when it can't be written.
  [[nodiscard]] static bool duplicateTask(const TaskPointer& task, IoResult* failure = nullptr);
  /// Deletes the marked files. What can't be deleted stays until the next time.
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
  std::atomic<bool> retired{false};       ///< removed or replaced: a batch under way takes no more files up
  std::atomic<bool> leftBehind{false};    ///< work at its folders hangs, see FolderWork
  std::atomic<bool> batchHangs{false};    ///< and that work is a batch, which may have sent what it has yet to store
  HeldUpCalls folderCalls, keepingCalls;  ///< of the two threads that work at its folders

  // Of the upload thread.
  std::optional<FolderItem> inputFolder, outputFolder, ErrorFolder;
  double dateLimit = 0;  ///< seconds since 1970 UTC; 0: every file is new enough

 private:
  /// Has `look` done at the task's folders. False, and status 3, if it hangs or throws; what it throws is recorded
  /// once, until a look at the input folder is good or it throws something else.
  [[nodiscard]] static bool lookAt(const TaskPointer& task, std::function<void()> look);
  /// Sets the task's status by its folders.
  static void evaluate(const TaskPointer& task);
  QString m_lookFailure;  ///< of the upload thread; as recorded last
  void buildExclusionRegEx();
  void copySettings(const UploaderTask& other);
  void noteMounts();
  [[nodiscard]] QByteArray mountsOfFolders() const;
  QString mExclusionPattern;
  std::optional<RegEx> exclusionRegEx;
  [[nodiscard]] FolderScanResult listInputFolder(double above, bool& tooCostly);
  /// Stores when it was first seen that the limit lies ahead of our clock.
  void noteClockSetBack(const Date& now) const;
  BatchLedger& readLedger();
  /// Adds what another task of this name and folder has stored since this one last read or stored.
  void takeOverStored(double limit);
  void storeLedger(std::optional<double> limit);
  mutable std::mutex m_ledgerMutex;  // guards the six below
  TaskPointer m_heir;                // written under m_mountMutex as well, so that either guards a reading
  BatchLedger m_ledger;
  QString m_ledgerText;   // as last read or stored
  QByteArray m_waitsFor;  // the name told last
  bool m_ledgerRead = false;
  quint64 m_ledgerClearings = 0;         // of the limit, when the ledger was last asked
  std::optional<quint64> m_clearings;    // of the limit, once dateLimit was read
  mutable std::mutex m_mountMutex;       // guards the three below
  QByteArray m_inputPath, m_outputPath;  // free of links, at the last good look
  QByteArray m_mounts;                   // on which the folders lay when the last look began
  bool m_outputSwept = false;
  std::optional<quint64> m_inputDevice, m_outputDevice;  // at the last good look
};
