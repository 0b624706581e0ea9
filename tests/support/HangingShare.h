#pragma once
// A share that accepts calls and never answers: while an object lives, stat, statx, open and opendir of paths below a
// folder named "hanging-share" wait, or open alone. Those of the main thread, which must not be made at all, go on and
// are counted. Replaces the C library's functions for this program, which has to list HangingShare.cpp among its own
// sources; any thread.

#include <QString>

class HangingShare {
 public:
  enum class Calls { All, Opening };
  explicit HangingShare(Calls calls = Calls::All);
  /// Lets all calls go on and waits until none is left.
  ~HangingShare();
  HangingShare(const HangingShare&) = delete;
  HangingShare& operator=(const HangingShare&) = delete;
  /// New calls are answered, as by a share that was mounted anew; those that hang stay so for the object's life.
  static void answerNewCalls();
  /// Calls that hang at this moment.
  [[nodiscard]] static int waiting();
  /// Calls of the main thread that would have hung since the share began to.
  [[nodiscard]] static int callsByMainThread();
};

/// While it lives, the kernel's table of mounts tells of an NFS share at that folder. One at a time.
class MountedShare {
 public:
  explicit MountedShare(const QString& folder);
  ~MountedShare();
  MountedShare(const MountedShare&) = delete;
  MountedShare& operator=(const MountedShare&) = delete;
};
