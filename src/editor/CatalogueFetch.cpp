#include "editor/CatalogueFetch.h"

#include <algorithm>

#include "platform/Problems.h"
#include "service/VTInstrumentTrack.h"
#include "service/VTTrack.h"
#include "service/VantryUtil.h"
#include "storage/Preferences.h"
#include "text/Placeholders.h"
#include "text/VTULocalization.h"

using namespace Qt::Literals::StringLiterals;

namespace {

struct Outcome {
  bool fetched = false;
  HttpFailure failure;
  QString err;

  /// True if the service answered with an error code of its own.
  [[nodiscard]] bool hasCode() const {
    return !fetched && !failure.atProxy && err.startsWith(u'E', Qt::CaseInsensitive) && err != "err"_L1;
  }
  /// True if the code tells a good login that its account has no devices or tracks.
  [[nodiscard]] bool nothingThere() const {
    static constexpr QLatin1StringView codes[] = {"E010"_L1, "E018"_L1, "E019"_L1, "E028"_L1};
    const auto is = [this](QLatin1StringView code) { return err.compare(code, Qt::CaseInsensitive) == 0; };
    return hasCode() && std::any_of(std::begin(codes), std::end(codes), is);
  }
  [[nodiscard]] QString words() const {
    QString words = VantryUtil::errToString(err);
    if (words.endsWith(u'.')) words.chop(1);
    return err + u" - "_s + words;
  }
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
    outcome.fetched = kind == Kind::Instrument ? VantryUtil::InstrumentTrackList(&outcome.failure, &outcome.err)
                                               : VantryUtil::TrackList(&outcome.failure, &outcome.err);
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
        if (outcome.fetched || outcome.nothingThere())
          end(Progress::Fetched, {});
        else if (outcome.hasCode())
          end(Progress::Refused, outcome.words());
        else if (outcome.failure.failed())
          end(Progress::Failed, outcome.failure.detail);
        else
          end(Progress::Refused, {});
      },
      [end] { end(Progress::Busy, {}); });
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
      return one(kind).detail.isEmpty()
                 ? VTULocalization::klListRefused()
                 : VTULocalization::problemText({Problem::Kind::ServiceRefuses, {}, one(kind).detail});
    case Progress::Failed:
      return fillPlaceholders(VTULocalization::klListFailed(), {one(kind).detail});
    case Progress::Busy:
      return VTULocalization::klLogBusy();
    case Progress::NoLogin:
      return VTULocalization::klListNoLogin();
  }
  return {};
}
