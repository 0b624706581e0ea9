#include "practice/Catalogue.h"

#include <algorithm>

#include "practice/OrderedJson.h"

namespace Catalogue {

static constexpr PrintTrack PrintTracks[] = {
    {"Merlin CX 102", "Merlin CX 102", "Coated 115 g, production", "CX102-Coated115-Production",
     "Gloss coated 115 g/m2", "black", "M1", "CX102 C115"},
    {"Merlin CX 102", "Merlin CX 102", "Coated 115 g, makeready", "CX102-Coated115-Makeready", "Gloss coated 115 g/m2",
     "black", "M1", "CX102 C115 MR"},
    {"Merlin CX 102", "Merlin CX 102", "Uncoated 120 g", "CX102-Uncoated120", "Offset white 120 g/m2", "white", "M1",
     "CX102 U120"},
    {"Falkner 106 \"Halle 2\"", "Falkner 106 \"Halle 2\"", "Karton 300 g \u2013 Tag & Nacht", "F106-Karton300",
     "GC1 300 g/m2", "white", "M1", "F106 K300"},
    {"Falkner 106 \"Halle 2\"", "Falkner 106 \"Halle 2\"", "Coated 115 g, production", "F106-Coated115",
     "Gloss coated 115 g/m2", "black", "M0", "F106 C115"},
    {"Digital 12000", "Digital 12000", "Photo satin 200 g", "D12000-Satin200", "Satin photo 200 g/m2", "white", "M2",
     ""},
    {"Digital 12000", "Digital 12000", "Uncoated 90 g", "D12000-Uncoated90", "Digital offset 90 g/m2", "white", "M1",
     ""},
    {"Large Format 5", "Large Format 5", "Backlit film", "LF5-Backlit", "Backlit film 210 \u00b5m", "white", "M3",
     "LF5 BL"},
};

static constexpr InstrumentPair InstrumentPairs[] = {
    {"Spectro Twenty", "ST-20417", "Ceramic Series II", "B2-0331", "Ceramic tiles", "ST20417-Ceramic2"},
    {"Spectro Twenty", "ST-20417", "Lab Card", "LR-77", "Reference card", "ST20417-LabRef"},
    {"Spectro Twenty", "ST-20988", "Ceramic Series II", "B2-0331", "Ceramic tiles", "ST20988-Ceramic2"},
    {"Scan Table 3", "ST3-551", "Media Wedge 3.0", "MW-2024-118", "Control strip", "ST3551-Wedge3"},
    {"Scan Table 3", "ST3-551", "IT8.7/4 Chart", "C4-09", "Test chart", "ST3551-IT874"},
    {"Handheld One", "", "Paper white", "", "Substrate", "H1-PaperWhite"},
};

std::span<const PrintTrack> printTracks() { return PrintTracks; }
std::span<const InstrumentPair> instrumentPairs() { return InstrumentPairs; }

template <typename Record>
static bool knows(std::span<const Record> records, const QString& workflowName) {
  return std::any_of(records.begin(), records.end(), [&](const Record& record) {
    return workflowName.compare(QLatin1StringView(record.workflowName), Qt::CaseInsensitive) == 0;
  });
}

bool knowsPrintTrack(const QString& workflowName) { return knows(printTracks(), workflowName); }
bool knowsInstrumentPair(const QString& workflowName) { return knows(instrumentPairs(), workflowName); }

static QString text(const char* utf8) { return QString::fromUtf8(utf8); }

QByteArray printTracksJson() {
  QByteArray list;
  for (const PrintTrack& track : PrintTracks)
    list += (list.isEmpty() ? "" : ",") + OrderedJson::object({{"TrackName", text(track.trackName)},
                                                               {"TrackWorkflowName", text(track.workflowName)},
                                                               {"Device", text(track.device)},
                                                               {"PressName", text(track.press)},
                                                               {"PaperName", text(track.paper)},
                                                               {"Backing", text(track.backing)},
                                                               {"MeasurementConditions", text(track.conditions)},
                                                               {"BarCodeTitle", text(track.barCodeTitle)}});
  return '[' + list + ']';
}

QByteArray instrumentPairsJson() {
  QByteArray list;
  for (const InstrumentPair& pair : InstrumentPairs)
    list += (list.isEmpty() ? "" : ",") + OrderedJson::object({{"InstrumentName", text(pair.instrument)},
                                                               {"InstrumentSerial", text(pair.instrumentSerial)},
                                                               {"ITWorkflowName", text(pair.workflowName)},
                                                               {"TargetName", text(pair.target)},
                                                               {"TargetSerial", text(pair.targetSerial)},
                                                               {"TargetType", text(pair.targetType)}});
  return '[' + list + ']';
}

}  // namespace Catalogue
