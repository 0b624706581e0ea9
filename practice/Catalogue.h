#pragma once
// The presses and instruments that the practice service knows. Constant; any thread.

#include <QByteArray>
#include <QString>
#include <span>

namespace Catalogue {

struct PrintTrack {
  const char *device, *press, *trackName, *workflowName, *paper, *backing, *conditions, *barCodeTitle;
};
struct InstrumentPair {
  const char *instrument, *instrumentSerial, *target, *targetSerial, *targetType, *workflowName;
};

[[nodiscard]] std::span<const PrintTrack> printTracks();
[[nodiscard]] std::span<const InstrumentPair> instrumentPairs();

[[nodiscard]] bool knowsPrintTrack(const QString& workflowName);
[[nodiscard]] bool knowsInstrumentPair(const QString& workflowName);

// The replies to TrackList and InstrumentTargetList: JSON arrays of objects.
[[nodiscard]] QByteArray printTracksJson();
[[nodiscard]] QByteArray instrumentPairsJson();

}  // namespace Catalogue
