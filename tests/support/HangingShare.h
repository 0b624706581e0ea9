#pragma once
// A share that accepts calls and never answers: while an object lives, stat and open of paths below a folder named
// "hanging-share" wait, or open alone. Replaces the C library's functions for this program, which has to list
// HangingShare.cpp among its own sources; any thread.

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
};
