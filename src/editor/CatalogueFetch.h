#pragma once
// Fetches the catalogues that are empty while the editor is open, and says why one is. Main thread; the calls are made
// on threads of their own and run to their end also when the editor is closed.

#include <array>
#include <functional>

#include "editor/TrackChoices.h"
#include "widgets/BackgroundCall.h"

class CatalogueFetch : public QObject {
 public:
  using Kind = TrackChoices::Kind;
  /// `ended` is called when the fetch of a catalogue has ended, well or not.
  CatalogueFetch(std::function<void(Kind)> ended, QObject* parent);

  /// Begins a fetch for each catalogue that is empty.
  void begin();
  /// Why the lists of that kind are empty; an empty text while the catalogue holds something.
  [[nodiscard]] QString reason(Kind kind) const;

 private:
  enum class Progress { Idle, Fetching, Fetched, Refused, Failed, Busy, NoLogin };
  struct One {
    std::unique_ptr<BackgroundCall> call;
    Progress progress = Progress::Idle;
    QString detail;
  };
  void fetch(Kind kind);
  [[nodiscard]] const One& one(Kind kind) const { return m_both[static_cast<size_t>(kind)]; }

  std::function<void(Kind)> m_ended;
  std::array<One, 2> m_both;
};
