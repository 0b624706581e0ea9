#pragma once
// The account's print tracks, fetched from the service and kept in memory. Records are values; the shared list is
// handed out as a copy, so any thread may look things up.

#include <QList>
#include <QString>
#include <QStringList>
#include <optional>

#include "service/HTTPSocket.h"
#include "storage/Dictionary.h"

class VTTrack {
 public:
  VTTrack() = default;
  /// From a record of the service: a missing field is empty, a value of another type is taken as text.
  explicit VTTrack(const Dictionary& record);

  QString Backing, BarCodeTitle, Device, MeasurementConditions, PaperName, PressName, TrackName, TrackWorkflowName;

  [[nodiscard]] static QList<VTTrack> Tracks();
  static void setTracks(const QList<VTTrack>& tracks);
  /// True once a fetch has succeeded since the program started, or since forget().
  [[nodiscard]] static bool everFetched();
  /// Empties the list, which belongs to another account from now on.
  static void forget();

  // Lookups walk the list in the service's order and compare without regard to case; the first match holds.
  [[nodiscard]] static QStringList ListDevices();
  [[nodiscard]] static QStringList GetTracksForDevice(const QString& device);
  [[nodiscard]] static QString GetTrackWorkflowNameForDeviceAndTrack(const QString& device, const QString& track);
  [[nodiscard]] static std::optional<VTTrack> getTrackwithWorkflowName(const QString& workflowName);
};

namespace VantryUtil {
/// Fetches the tracks into VTTrack::Tracks, which a failure leaves empty, with `err`, if given, as
/// VTSoap leaves it. Blocks; not on the main thread.
[[nodiscard]] bool TrackList(HttpFailure* failure = nullptr, QString* err = nullptr);
}  // namespace VantryUtil
