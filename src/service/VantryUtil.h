#pragma once
// The calls to the colour-quality web service: SOAP 1.1 over HTTPS. Each call blocks its thread for the exchange, so
// none is made on the main thread; each may be made from any other. stopServiceCalls() ends all within a second.

#include <QByteArray>
#include <QString>
#include <functional>
#include <optional>

#include "platform/FolderItem.h"
#include "platform/JSONItem.h"
#include "platform/SafeFile.h"
#include "service/HTTPSocket.h"
#include "storage/Dictionary.h"
#include "storage/Preferences.h"

namespace VantryUtil {

/// https://<service host of the build>/api
[[nodiscard]] QString DefaultAPIEndpoint();
/// The account's endpoint as the service gave it; blank until it answered, and again from a change of the login on.
/// Guarded; any thread.
[[nodiscard]] QString AccountURL();
void setAccountURL(const QString& url);

/// Calls a method that takes no parameters. An empty login or password means the stored one, trimmed. Gives the
/// reply, or nothing with `err` an error code of the service, "err", a text, or as the caller set it when no usable
/// reply came. `failure`, if given, tells how the exchange itself ended. `through`, if given, is taken in the place of
/// the proxy in force.
[[nodiscard]] std::optional<Dictionary> VTSoap(const QString& method, QString& err, const QString& login,
                                               const QString& password, HttpFailure* failure = nullptr,
                                               const ProxySetting* through = nullptr);

/// How a file's exchange is to be watched, and what it found of the file.
struct SendFileWatch {
  FileVersion version;                                      ///< the version to send; a file in any other is not sent
  std::function<void(qint64 sent, qint64 total)> progress;  ///< file bytes, after each 48 KiB of them; calling thread
  SpareConnection* spare = nullptr;                         ///< for a row of files, the caller's
  bool anotherFollows = false;         ///< another file follows at once: its connection is made ahead
  std::optional<quint64> loginNumber;  ///< the login (Account) without which the file is not to be sent; any if empty
  bool fileChanged = false;  ///< out: the file was not in that version, or moved while it was read; exchange broken off
  bool otherLogin = false;   ///< out: another login is in force, and nothing was sent
  HttpFailure failure;       ///< out: how the exchange ended
};

/// Delivers one file in Base64, streamed: print job (SendFile) or instrument job (SendIWFile). Gives the reply, or
/// nothing with `err` as for VTSoap ("Soap Error" for a reply without a `return` text).
[[nodiscard]] std::optional<Dictionary> SendFile(const QString& filename, const QString& workflowName,
                                                 const std::optional<FolderItem>& file, bool instrumentJob,
                                                 QString& err, SendFileWatch& watch);

/// Asks the service for the account's endpoint and takes it over. False when no usable answer came; `err`, if given,
/// is then as VTSoap leaves it.
[[nodiscard]] bool ResolveAccountURL(HttpFailure* failure = nullptr, QString* err = nullptr);

/// The words of a service error code; empty for an empty code. Any thread.
[[nodiscard]] QString errToString(const QString& code);

/// The two envelope templates, unfilled.
[[nodiscard]] QByteArray soapTemplate();      ///< 491 bytes
[[nodiscard]] QByteArray sendFileTemplate();  ///< 656 bytes

/// JSON text that begins with "{" or "[{" as a dictionary, its second level as JSONItem; nothing for other text.
/// `invalid`, if given, tells a text that begins so and isn't JSON.
[[nodiscard]] std::optional<Dictionary> JSONStringtoDictionary(const QString& text, bool* invalid = nullptr);
[[nodiscard]] Dictionary JSONtoDictionary(const JSONItem& item);

/// Makes every exchange under way end within a second and every later one fail at once; for shutdown. Any thread.
void stopServiceCalls();
/// Takes that back; for tests that start anew in one process.
void allowServiceCalls();

}  // namespace VantryUtil
