#include "service/Credentials.h"
#include "service/Envelope.h"
#include "service/SoapReply.h"
#include "service/VantryUtil.h"

using namespace Qt::Literals::StringLiterals;

std::optional<Dictionary> VantryUtil::VTSoap(const QString& method, QString& err, const QString& login,
                                             const QString& password, HttpFailure* failure) {
  HTTPSecureSocket socket;
  ConfigureProxy(socket);
  const QString loginInForce = login.isEmpty() ? storedPreference(u"SoapLogin"_s) : login;
  const QString passwordInForce = password.isEmpty() ? storedPreference(u"SoapPassword"_s) : password;
  socket.SetRequestContent(Envelope::fill(soapTemplate(), {{"[login]", Envelope::escaped(loginInForce)},
                                                           {"[password]", Envelope::passwordField(passwordInForce)},
                                                           {"[method]", method.toUtf8()}}),
                           EnvelopeType);
  const QString url = method == "Get_API_URL"_L1 ? DefaultAPIEndpoint() : endpointInForce();
  const QByteArray page = socket.Post(url, ServiceTimeoutMs);
  if (failure) *failure = socket.failure();
  return readSoapReply(page, socket.failure(), method, {std::nullopt, u"err"_s}, err);
}
