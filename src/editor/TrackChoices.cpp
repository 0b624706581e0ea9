#include "editor/TrackChoices.h"

#include "service/Catalogue.h"
#include "service/VTInstrumentTrack.h"
#include "service/VTTrack.h"

namespace TrackChoices {

/// What the catalogues know of a stored workflow name; empty texts when they know nothing.
struct Known {
  bool found = false;
  QString fillDevice;  // by which the lists find it while they are filled
  QString taskDevice;  // by which a task's own is found
  QString workflowName;
};

static Known lookUp(Kind kind, const QString& workflowName) {
  if (workflowName.isEmpty()) return {};
  if (kind == Kind::Instrument) {
    const auto track = VTInstrumentTrack::GetTrackWithName(workflowName);
    if (!track) return {};
    return {true, track->InstrumentIdentity(), track->InstrumentIdentity(), track->ITWorkflowName};
  }
  const auto track = VTTrack::getTrackwithWorkflowName(workflowName);
  if (!track) return {};
  return {true, track->PressName, track->Device, track->TrackWorkflowName};
}

QStringList devices(Kind kind) {
  return kind == Kind::Instrument ? VTInstrumentTrack::InstrumentNames() : VTTrack::ListDevices();
}

QList<Target> targets(Kind kind, const QString& device) {
  QList<Target> rows;
  if (device.trimmed().isEmpty()) return rows;
  DistinctTexts texts;
  const auto offer = [&](const QString& text, const QString& workflowName) {
    if (texts.take(text)) rows.append({text, workflowName});
  };
  if (kind == Kind::Instrument) {
    for (const VTInstrumentTrack& track : VTInstrumentTrack::Tracks())
      if (sameText(track.InstrumentIdentity(), device)) offer(track.TargetIdentity(), track.ITWorkflowName);
  } else {
    for (const VTTrack& track : VTTrack::Tracks())
      if (sameText(track.Device, device)) offer(track.TrackName, track.TrackWorkflowName);
  }
  return rows;
}

int deviceWhileFilling(Kind kind, const QStringList& rows, const QString& workflowName) {
  const Known known = lookUp(kind, workflowName);
  int selected = -1;
  for (int row = 0; row < rows.size(); ++row)
    if (known.found && sameText(rows[row], known.fillDevice)) selected = row;
  return selected;
}

int targetWhileFilling(Kind kind, const QString& device, const QList<Target>& rows, const QString& workflowName) {
  const Known known = lookUp(kind, workflowName);
  int selected = -1;
  if (!known.found || !sameText(known.fillDevice, device)) return selected;
  for (int row = 0; row < rows.size(); ++row)
    if (sameText(rows[row].workflowName, known.workflowName)) selected = row;
  return selected;
}

int deviceOfTask(Kind kind, const QStringList& rows, const QString& workflowName) {
  const Known known = lookUp(kind, workflowName);
  for (int row = 0; row < rows.size(); ++row)
    if (known.found && sameText(rows[row], known.taskDevice)) return row;
  return -1;
}

int targetOfTask(Kind kind, const QList<Target>& rows, const QString& workflowName) {
  const Known known = lookUp(kind, workflowName);
  for (int row = 0; row < rows.size(); ++row)
    if (known.found && sameText(rows[row].workflowName, known.workflowName)) return row;
  return -1;
}

}  // namespace TrackChoices
