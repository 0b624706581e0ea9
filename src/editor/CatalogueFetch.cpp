#include "editor/CatalogueFetch.h"

#include "service/VTInstrumentTrack.h"
#include "service/VTTrack.h"
#include "storage/Preferences.h"
#include "text/Placeholders.h"
#include "text/VTULocalization.h"

using namespace Qt::Literals::StringLiterals;

namespace {

struct Outcome {
  bool fetched = false;
  HttpFailure failure;
};

bool isEmpty(TrackChoices::Kind kind) {
  return kind == TrackChoices::Kind::Instrument ? VTInstrumentTrack::Tracks().isEmpty() : VTTrack::Tracks().isEmpty();
}

bool hasLogin() {
  const auto& prefs = VantryUtil::prefs;
  return prefs && !prefs->StringValue(u"SoapLogin"_s).trimmed().isEmpty() &&
         !prefs->StringValue(u"SoapPassword"_s).trimmed().isEmpty();
}

}  // namespace

CatalogueFetch::CatalogueFetch(std::function<void(Kind)> ended, QObject* parent)
    : QObject(parent), m_ended(std::move(ended)) {
  for (One& one : m_both) one.call = std::make_unique<BackgroundCall>("catalogue", nullptr);
}

void CatalogueFetch::begin() {
  for (const Kind kind : {Kind::Print, Kind::Instrument})
    if (isEmpty(kind)) fetch(kind);
}

void CatalogueFetch::fetch(Kind kind) {
  One& one = m_both[static_cast<size_t>(kind)];
  if (!hasLogin()) {
    one.progress = Progress::NoLogin;
    return;
  }
  one.progress = Progress::Fetching;
  const auto work = [kind](const auto&) {
    Outcome outcome;
    outcome.fetched = kind == Kind::Instrument ? VantryUtil::InstrumentTrackList(&outcome.failure)
                                               : VantryUtil::TrackList(&outcome.failure);
    return outcome;
  };
  const auto end = [this, kind](Progress progress, const QString& detail) {
    m_both[static_cast<size_t>(kind)].progress = progress;
    m_both[static_cast<size_t>(kind)].detail = detail;
    m_ended(kind);
  };
  one.call->run<Outcome>(
      0, work,
      [end](const Outcome& outcome) {
        if (outcome.fetched)
          end(Progress::Fetched, {});
        else if (outcome.failure.failed())
          end(Progress::Failed, outcome.failure.detail);
        else
          end(Progress::Refused, {});
      },
      [end] { end(Progress::Failed, {}); });
}

QString CatalogueFetch::reason(Kind kind) const {
  if (!isEmpty(kind)) return {};
  switch (one(kind).progress) {
    case Progress::Idle:
      return {};
    case Progress::Fetching:
      return VTULocalization::klListFetching();
    case Progress::Fetched:
      return VTULocalization::klListNothingThere();
    case Progress::Refused:
      return VTULocalization::klListRefused();
    case Progress::Failed:
      return fillPlaceholders(VTULocalization::klListFailed(), {one(kind).detail}).trimmed();
    case Progress::NoLogin:
      return VTULocalization::klListNoLogin();
  }
  return {};
}
