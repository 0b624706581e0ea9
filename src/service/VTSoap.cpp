#include "platform/FileCipher.h"
#include "service/Credentials.h"
#include "service/Envelope.h"
#include "service/SoapReply.h"
#include "service/VantryUtil.h"

using namespace Qt::Literals::StringLiterals;

std::optional<Dictionary> VantryUtil::VTSoap(const QString& method, QString& err, const QString& login,
                                             const QString& password, HttpFailure* failure,
                                             const ProxySetting* through) {
  HTTPSecureSocket socket;
  ConfigureProxy(socket, through ? *through : proxy());
  const QString loginInForce = login.isEmpty() ? storedPreference(u"SoapLogin"_s) : login;
  const QString passwordInForce = password.isEmpty() ? storedPreference(u"SoapPassword"_s) : password;
  const QByteArray loginField = Envelope::escaped(loginInForce), methodField = method.toUtf8();
  QByteArray passwordField = Envelope::passwordField(passwordInForce);
  socket.SetRequestContent(
      Envelope::fill(soapTemplate(),
                     {{"[login]", loginField}, {"[password]", passwordField}, {"[method]", methodField}}),
      EnvelopeType);
  wipe(passwordField);
  const QString url = method == "Get_API_URL"_L1 ? DefaultAPIEndpoint() : endpointInForce();
  const QByteArray page = socket.Post(url, ServiceTimeoutMs);
  if (failure) *failure = socket.failure();
  return readSoapReply(page, socket.failure(), method, {std::nullopt, u"err"_s}, err);
}
