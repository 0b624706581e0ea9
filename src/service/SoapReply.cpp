#include "service/SoapReply.h"

#include "service/VantryUtil.h"
#include "service/XmlDocument.h"

using namespace Qt::Literals::StringLiterals;

/// True if the page may stand for success. A proxy's own page may not, for nobody vouches for it; nor may an answer to
/// half a request. A page that was cut short may: only one that is whole parses.
static bool mayBeSuccess(const HttpFailure& failure) {
  using Phase = HttpFailure::Phase;
  if (failure.requestCut) return false;
  return failure.phase == Phase::None || failure.phase == Phase::Reply || failure.phase == Phase::TimedOut;
}

std::optional<Dictionary> readSoapReply(const QByteArray& page, const HttpFailure& failure, const QString& key,
                                        const SoapReplyTexts& texts, QString& err) {
  if (page.trimmed().isEmpty()) return std::nullopt;
  const std::optional<XmlDocument> document = XmlDocument::parse(page);
  if (!document) {
    if (texts.notXml) err = *texts.notXml;
    return std::nullopt;
  }
  const QString text = getReturnFromNode(document->node());
  if (text.isEmpty()) {
    err = texts.noReturn;
    return std::nullopt;
  }
  if (text.startsWith(u'E', Qt::CaseInsensitive)) {
    err = text;
    return std::nullopt;
  }
  if (!mayBeSuccess(failure)) return std::nullopt;

  bool invalid = false;
  std::optional<Dictionary> dictionary = VantryUtil::JSONStringtoDictionary(text, &invalid);
  if (invalid) {
    err = u"Could not parse server response - invalid JSON"_s;
    return std::nullopt;
  }
  err.clear();
  if (!dictionary) dictionary.emplace().setValue(key, text);
  return dictionary;
}
