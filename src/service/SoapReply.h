#pragma once
// What a page from the service means. Plain functions; any thread.

#include <QByteArray>
#include <QString>
#include <optional>

#include "service/HTTPSocket.h"
#include "storage/Dictionary.h"

/// The texts that a call reports for a page it can't use.
struct SoapReplyTexts {
  std::optional<QString> notXml;  ///< none: the error text is left as the caller set it
  QString noReturn;
};

/// The dictionary that a page stands for: from JSON, or of the `return` text alone under `key`, with `err` empty. Or
/// nothing, with `err` the service's code, one of the texts, or untouched when the page is blank. An exchange that
/// ended with `failure` in the place of a whole answer to a whole request never gives a dictionary.
[[nodiscard]] std::optional<Dictionary> readSoapReply(const QByteArray& page, const HttpFailure& failure,
                                                      const QString& key, const SoapReplyTexts& texts, QString& err);
