#pragma once
// What the update host's reply says about a version. Plain functions; any thread.

#include <QByteArray>
#include <QString>
#include <array>
#include <optional>

/// Major, minor, bug, non-release; compared in this order.
using VersionNumber = std::array<quint64, 4>;

/// The version of this program.
[[nodiscard]] VersionNumber runningVersion();

/// The first text of the form 2.1.0v15 within `text`; nothing when there is none, or a number is beyond 64 bits.
[[nodiscard]] std::optional<VersionNumber> findVersion(const QString& text);

struct UpdateOffer {
  QString version;  ///< as the reply tells it
  QString url;      ///< of the download; empty when the version is not newer
};
/// Reads a reply (JSON object, texts `version` and `mac`) to a program of the version `running`. Nothing, with `misfit`
/// in words, for a reply that doesn't fit.
[[nodiscard]] std::optional<UpdateOffer> readUpdateReply(const QByteArray& content, const VersionNumber& running,
                                                         QString& misfit);
