#pragma once
// What one task remembers of its input folder beside the date limit, so that no version of a file is missed for a
// coarse or skewed clock and none goes out twice: the versions dealt with that are dated near or past the limit, and
// the files seen moving. A plain object without window, socket or thread; its owner calls it from one thread at a time.

#include <QByteArray>
#include <QHash>
#include <QSet>
#include <vector>

#include "engine/DueRules.h"
#include "platform/Date.h"
#include "platform/FolderScan.h"

class BatchLedger {
 public:
  /// How far below the limit a version that was not dealt with still counts, in seconds: more than a file server's
  /// clock lags behind ours in practice (domain members are held to five minutes).
  static constexpr double WindowSeconds = 600;
  /// A file whose size or date moved within this time is still being written, in milliseconds. Where dates are kept
  /// in whole seconds the step is added.
  static constexpr qint64 RestMs = 2000;
  /// So many versions dated below that are remembered besides, the newest: a listing reaches back to them when our
  /// clock is set back.
  static constexpr size_t MostBelowWindow = 1000;

  struct Selection {
    std::vector<ScannedFile> due;      ///< at rest and not dealt with in this version
    std::vector<ScannedFile> waiting;  ///< still being written
  };

  /// Files dated above this are to be listed for look(). With limit 0 that is every file.
  [[nodiscard]] static double cutoff(double dateLimit, const Date& now);

  /// Judges one whole listing that began at `began` (wall clock) and `monotonicMs`. A limit below the last one known
  /// here was set back by the user: the memory is dropped and all is due again.
  [[nodiscard]] Selection look(const std::vector<ScannedFile>& listing, double dateLimit, const Date& began,
                               qint64 monotonicMs);
  /// What look() would say of one file at that moment: Due, StillMoving, DealtWith or Older.
  [[nodiscard]] Verdict judge(const ScannedFile& file, double dateLimit, const Date& began, qint64 monotonicMs) const;
  /// This version was sent or has failed: it isn't due again.
  void dealtWith(const ScannedFile& file);
  /// The file moved while it was read: it waits like one that is being written.
  void foundMoving(const ScannedFile& file, qint64 monotonicMs);

  /// Ends a batch. `began` is the beginning of the last listing of which all due files were dealt with; gives the
  /// date limit to store: that moment, or below the oldest file that still waits, and never below the limit so far
  /// unless our clock was set back. Forgets what the new limit makes needless.
  [[nodiscard]] double close(const Date& began);

  /// The memory as text for the preference file, and back. A text that isn't one gives an empty memory.
  [[nodiscard]] QString toText() const;
  void fromText(const QString& text);
  /// Adds what another ledger of the same folder wrote together with that limit: its versions are dealt with here too.
  void takeOver(const QString& text, double dateLimit);

 private:
  struct Observation {
    FileVersion version;
    qint64 movedAtMs = 0;
  };
  using Fingerprint = quint64;
  [[nodiscard]] static Fingerprint fingerprint(const ScannedFile& file);
  struct Rest {
    Observation seen;
    bool longEnough = false;
  };
  struct Judgement {
    Verdict verdict;
    Fingerprint print;
    Rest rest;  // empty for a version that is not asked whether it rests
  };
  [[nodiscard]] Judgement judgeVersion(const ScannedFile& file, const Date& began, qint64 monotonicMs) const;
  [[nodiscard]] Rest rest(const ScannedFile& file, const Date& began, qint64 monotonicMs) const;
  /// False for a text that isn't a memory.
  [[nodiscard]] bool addText(const QString& text);
  /// Drops the memory if the limit was set back.
  void takeLimit(double dateLimit);
  /// Forgets the oldest of the versions dated `date` or earlier, down to MostBelowWindow.
  void forgetBelow(double date);

  QHash<Fingerprint, qint64> m_dealtWith;     // fingerprint of name, size and date -> date in ns
  QHash<QByteArray, Observation> m_observed;  // of the last listing, without what is dealt with
  QSet<Fingerprint> m_lastListing;
  std::vector<ScannedFile> m_waiting;
  double m_limit = 0;
  double m_lastLook = 0;  // wall clock seconds at which the previous listing began; 0: none yet
  bool m_hasMemory = false;
};
