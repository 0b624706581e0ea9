#include "service/VTTrack.h"

#include "service/Catalogue.h"

using namespace Qt::Literals::StringLiterals;

static Catalogue<VTTrack>& catalogue() {
  static Catalogue<VTTrack> tracks;
  return tracks;
}

VTTrack::VTTrack(const Dictionary& record)
    : Backing(recordText(record, u"Backing"_s)),
      BarCodeTitle(recordText(record, u"BarCodeTitle"_s)),
      Device(recordText(record, u"Device"_s)),
      MeasurementConditions(recordText(record, u"MeasurementConditions"_s)),
      PaperName(recordText(record, u"PaperName"_s)),
      PressName(recordText(record, u"PressName"_s)),
      TrackName(recordText(record, u"TrackName"_s)),
      TrackWorkflowName(recordText(record, u"TrackWorkflowName"_s)) {}

QList<VTTrack> VTTrack::Tracks() { return catalogue().records(); }

void VTTrack::setTracks(const QList<VTTrack>& tracks) { catalogue().setRecords(tracks); }

bool VTTrack::everFetched() { return catalogue().everFetched(); }

void VTTrack::forget() { catalogue().forget(); }

QStringList VTTrack::ListDevices() {
  DistinctTexts devices;
  for (const VTTrack& track : Tracks()) devices.take(track.Device);
  return devices.list();
}

QStringList VTTrack::GetTracksForDevice(const QString& device) {
  DistinctTexts names;
  for (const VTTrack& track : Tracks()) {
    if (sameText(track.Device, device)) names.take(track.TrackName);
  }
  return names.list();
}

QString VTTrack::GetTrackWorkflowNameForDeviceAndTrack(const QString& device, const QString& track) {
  for (const VTTrack& candidate : Tracks()) {
    if (sameText(candidate.Device, device) && sameText(candidate.TrackName, track)) return candidate.TrackWorkflowName;
  }
  return {};
}

std::optional<VTTrack> VTTrack::getTrackwithWorkflowName(const QString& workflowName) {
  for (const VTTrack& track : Tracks()) {
    if (sameText(track.TrackWorkflowName, workflowName)) return track;
  }
  return std::nullopt;
}

bool VantryUtil::TrackList(HttpFailure* failure, QString* err) {
  return catalogue().fetch(u"TrackList"_s, failure, err);
}
