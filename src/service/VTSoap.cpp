#include "platform/FileCipher.h"
#include "service/Credentials.h"
#include "service/Envelope.h"
#include "service/SoapReply.h"
#include "service/VantryUtil.h"

using namespace Qt::Literals::StringLiterals;

std::optional<Dictionary> VantryUtil::VTSoap(const QString& method, QString& err, const QString& login,
                                             const QString& password, HttpFailure* failure,
                                             const ProxySetting* through) {
  const Account inForce = account();
  HTTPSecureSocket socket;
  ConfigureProxy(socket, through ? *through : inForce.proxy);
  const QByteArray loginField = Envelope::escaped(login.isEmpty() ? inForce.login : login);
  const QByteArray methodField = method.toUtf8();
  QByteArray passwordField = Envelope::passwordField(password.isEmpty() ? inForce.password : password);
  socket.SetRequestContent(
      Envelope::fill(soapTemplate(),
                     {{"[login]", loginField}, {"[password]", passwordField}, {"[method]", methodField}}),
      EnvelopeType);
  wipe(passwordField);
  const QString url = method == "Get_API_URL"_L1 ? DefaultAPIEndpoint() : endpointFor(inForce);
  const QByteArray page = socket.Post(url, ServiceTimeoutMs);
  if (failure) *failure = socket.failure();
  return readSoapReply(page, socket.failure(), method, {std::nullopt, u"err"_s}, err);
}
