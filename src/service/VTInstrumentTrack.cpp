#include "service/VTInstrumentTrack.h"

#include "service/Catalogue.h"

using namespace Qt::Literals::StringLiterals;

static Catalogue<VTInstrumentTrack>& catalogue() {
  static Catalogue<VTInstrumentTrack> tracks;
  return tracks;
}

VTInstrumentTrack::VTInstrumentTrack(const Dictionary& record)
    : InstrumentName(recordText(record, u"InstrumentName"_s)),
      InstrumentSerial(recordText(record, u"InstrumentSerial"_s)),
      ITWorkflowName(recordText(record, u"ITWorkflowName"_s)),
      TargetName(recordText(record, u"TargetName"_s)),
      TargetSerial(recordText(record, u"TargetSerial"_s)),
      TargetType(recordText(record, u"TargetType"_s)) {}

QString VTInstrumentTrack::InstrumentIdentity() const { return InstrumentName + u' ' + InstrumentSerial; }

QString VTInstrumentTrack::TargetIdentity() const { return TargetName + u' ' + TargetSerial; }

QList<VTInstrumentTrack> VTInstrumentTrack::Tracks() { return catalogue().records(); }

void VTInstrumentTrack::setTracks(const QList<VTInstrumentTrack>& tracks) { catalogue().setRecords(tracks); }

bool VTInstrumentTrack::everFetched() { return catalogue().everFetched(); }

void VTInstrumentTrack::forget() { catalogue().forget(); }

QStringList VTInstrumentTrack::InstrumentNames() {
  DistinctTexts names;
  for (const VTInstrumentTrack& track : Tracks()) names.take(track.InstrumentIdentity());
  return names.list();
}

QStringList VTInstrumentTrack::GetTargetsForDevice(const QString& instrumentIdentity) {
  DistinctTexts targets;
  for (const VTInstrumentTrack& track : Tracks()) {
    if (sameText(track.InstrumentIdentity(), instrumentIdentity)) targets.take(track.TargetIdentity());
  }
  return targets.list();
}

QString VTInstrumentTrack::GetITWorkflowNameForInstrumentAndTarget(const QString& instrumentIdentity,
                                                                   const QString& targetIdentity) {
  for (const VTInstrumentTrack& track : Tracks()) {
    if (sameText(track.InstrumentIdentity(), instrumentIdentity) && sameText(track.TargetIdentity(), targetIdentity)) {
      return track.ITWorkflowName;
    }
  }
  return {};
}

std::optional<VTInstrumentTrack> VTInstrumentTrack::GetTrackWithName(const QString& workflowName) {
  for (const VTInstrumentTrack& track : Tracks()) {
    if (sameText(track.ITWorkflowName, workflowName)) return track;
  }
  return std::nullopt;
}

bool VantryUtil::InstrumentTrackList(HttpFailure* failure, QString* err) {
  return catalogue().fetch(u"InstrumentTargetList"_s, failure, err);
}
