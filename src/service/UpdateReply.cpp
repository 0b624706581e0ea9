#include "service/UpdateReply.h"

#include "platform/JSONItem.h"
#include "platform/RegEx.h"
#include "version.h"

using namespace Qt::Literals::StringLiterals;

VersionNumber runningVersion() { return {MajorVersion, MinorVersion, BugVersion, NonReleaseVersion}; }

std::optional<VersionNumber> findVersion(const QString& text) {
  static const RegEx form(uR"((\d+)\.(\d+)\.(\d+)v(\d+))"_s);
  const RegExMatch match = form.Search(text);
  if (match.outcome != RegExMatch::Outcome::Match) return std::nullopt;
  VersionNumber version{};
  for (int i = 0; i < 4; ++i) {
    bool fits = false;
    version[static_cast<size_t>(i)] = match.SubExpressionString(i + 1).toULongLong(&fits);
    if (!fits) return std::nullopt;
  }
  return version;
}

std::optional<UpdateOffer> readUpdateReply(const QByteArray& content, const VersionNumber& running, QString& misfit) {
  const std::optional<JSONItem> reply = JSONItem::parse(content, &misfit);
  if (!reply) return std::nullopt;
  const auto text = [&reply, &misfit](const QString& name) -> std::optional<QString> {
    const JSONItem* const member = reply->find(name);
    if (member && member->kind() == JSONItem::Kind::Text) return member->toText();
    misfit = u"there is no text \"%1\" in it"_s.arg(name);
    return std::nullopt;
  };
  const auto version = text(u"version"_s);
  const auto url = version ? text(u"mac"_s) : std::nullopt;
  if (!version || !url) return std::nullopt;
  const auto offered = findVersion(*version);
  if (!offered) {
    misfit = u"its version has not the form 1.2.3v4"_s;
    return std::nullopt;
  }
  return UpdateOffer{*version, running < *offered ? *url : QString()};
}
