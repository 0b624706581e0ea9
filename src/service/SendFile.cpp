#include <cerrno>

#include "platform/FileCipher.h"
#include "service/Credentials.h"
#include "service/Envelope.h"
#include "service/FileSource.h"
#include "service/SoapReply.h"
#include "service/VantryUtil.h"
#include "text/VTULocalization.h"

using namespace Qt::Literals::StringLiterals;

/// The envelope before and behind the file's content. The template is cut before it is filled, since a file may be
/// named like the placeholder.
static void setEnvelope(FileSource& source, const VantryUtil::Account& account, const QString& filename,
                        const QString& workflowName, bool instrumentJob) {
  const QByteArray pattern = VantryUtil::sendFileTemplate();
  const QByteArray body = "[FILEBODY]";
  const qsizetype cut = pattern.indexOf(body);
  const QByteArray loginField = Envelope::escaped(account.login);
  const QByteArray nameField = Envelope::escaped(filename), workflowField = Envelope::escaped(workflowName);
  QByteArray passwordField = Envelope::passwordField(account.password);
  const auto fill = [&](const QByteArray& part) {
    return Envelope::fill(part, {{"[login]", loginField},
                                 {"[Trackname]", instrumentJob ? "ITWorkflowName" : "Trackname"},
                                 {"[password]", passwordField},
                                 {"[FILENAME]", nameField},
                                 {"[TRACKWORKFLOWNAME]", workflowField},
                                 {"[SendFile]", instrumentJob ? "SendIWFile" : "SendFile"}});
  };
  source.setEnvelope(fill(pattern.left(cut)), fill(pattern.mid(cut + body.size())));
  wipe(passwordField);
}

/// What the source met with the file, as the failure of the exchange.
static void takeFileState(const FileSourceState& state, VantryUtil::SendFileWatch& watch) {
  watch.fileChanged = state.changed;
  if (state.failure.ok()) return;
  const QString words = state.changed ? VTULocalization::klFileChanged() : state.failure.message();
  watch.failure = {HttpFailure::Phase::Source, state.failure.error, words};
  watch.failure.requestCut = true;
}

std::optional<Dictionary> VantryUtil::SendFile(const QString& filename, const QString& workflowName,
                                               const std::optional<FolderItem>& file, bool instrumentJob, QString& err,
                                               SendFileWatch& watch) {
  watch.fileChanged = watch.otherLogin = false;
  watch.failure = {};
  if (!file) {
    watch.failure = {HttpFailure::Phase::Source, ENOENT, VTULocalization::klNoFileToSend()};
    return std::nullopt;
  }
  FileSourceState state;
  auto source = std::make_unique<FileSource>(*file, watch.version, state);
  if (!source->isOpen()) {
    takeFileState(state, watch);
    return std::nullopt;
  }
  const Account inForce = account();  // once: what this file goes with belongs together
  watch.otherLogin = watch.loginNumber && *watch.loginNumber != inForce.loginNumber;
  if (watch.otherLogin) return std::nullopt;
  setEnvelope(*source, inForce, filename, workflowName, instrumentJob);
  source->setProgress(watch.progress);

  HTTPSecureSocket socket;
  ConfigureProxy(socket, inForce.proxy);
  socket.spare = watch.spare;
  socket.anotherFollows = watch.anotherFollows;
  socket.SetRequestSource(std::move(source), EnvelopeType);
  const QByteArray page = socket.Post(endpointFor(inForce), ServiceTimeoutMs);
  watch.failure = socket.failure();
  takeFileState(state, watch);
  const SoapReplyTexts texts{u"Could not parse server response - invalid or missing XML"_s, u"Soap Error"_s};
  return readSoapReply(page, watch.failure, u"SendFile"_s, texts, err);
}
