#pragma once
// The account's instrument/target pairs; the twin of VTTrack.

#include <QList>
#include <QString>
#include <QStringList>
#include <optional>

#include "service/HTTPSocket.h"
#include "storage/Dictionary.h"

class VTInstrumentTrack {
 public:
  VTInstrumentTrack() = default;
  explicit VTInstrumentTrack(const Dictionary& record);

  QString InstrumentName, InstrumentSerial, ITWorkflowName, TargetName, TargetSerial, TargetType;

  [[nodiscard]] QString InstrumentIdentity() const;  ///< name, blank, serial; not trimmed
  [[nodiscard]] QString TargetIdentity() const;

  [[nodiscard]] static QList<VTInstrumentTrack> Tracks();
  static void setTracks(const QList<VTInstrumentTrack>& tracks);
  [[nodiscard]] static bool everFetched();
  /// Empties the list, which belongs to another account from now on.
  static void forget();

  [[nodiscard]] static QStringList InstrumentNames();
  [[nodiscard]] static QStringList GetTargetsForDevice(const QString& instrumentIdentity);
  [[nodiscard]] static QString GetITWorkflowNameForInstrumentAndTarget(const QString& instrumentIdentity,
                                                                       const QString& targetIdentity);
  [[nodiscard]] static std::optional<VTInstrumentTrack> GetTrackWithName(const QString& workflowName);
};

namespace VantryUtil {
/// Fetches the pairs into VTInstrumentTrack::Tracks, which a failure leaves empty, with `err`, if given, as
/// VTSoap leaves it. Blocks; not on the main thread.
[[nodiscard]] bool InstrumentTrackList(HttpFailure* failure = nullptr, QString* err = nullptr);
}  // namespace VantryUtil
