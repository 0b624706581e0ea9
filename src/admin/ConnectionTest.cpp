#include "admin/ConnectionTest.h"

#include "admin/AdminRules.h"
#include "service/Url.h"
#include "service/VantryUtil.h"
#include "text/Placeholders.h"
#include "text/VTULocalization.h"

using namespace Qt::Literals::StringLiterals;
using namespace VTULocalization;
using Kind = ConnectionAnswer::Kind;

ConnectionAnswer testConnection(const ConnectionRequest& request) {
  ConnectionAnswer answer;
  const auto reply = VantryUtil::VTSoap(u"Get_API_URL"_s, answer.err, request.login, request.password, &answer.failure,
                                        &request.proxy);
  if (!answer.err.isEmpty())
    answer.kind = Kind::ErrorAnswered;
  else if (reply)
    answer.kind = Kind::Succeeded;
  else
    answer.kind = answer.failure.failed() ? Kind::NoAnswer : Kind::NotTheService;
  return answer;
}

static QString noAnswerText(const HttpFailure& failure) {
  using Phase = HttpFailure::Phase;
  switch (failure.phase) {
    case Phase::Name:
      return failure.atProxy ? klTestProxyNameUnknown() : klTestNameUnknown();
    case Phase::Connect:
      return failure.atProxy ? klTestProxyNotReached() : klTestNotReached();
    case Phase::Proxy:
      return klTestProxyRefused();
    case Phase::Tls:
      return klTestTlsFailed();
    case Phase::TimedOut:
      return failure.atProxy ? klTestProxyTimedOut() : klTestTimedOut();
    case Phase::None:
    case Phase::Request:
    case Phase::Reply:
    case Phase::TooLarge:
    case Phase::Source:
      return klTestBroken();
    case Phase::Stopped:
      return {};
  }
  return {};
}

ConnectionLine connectionLine(const ConnectionAnswer& answer, const VantryUtil::ProxySetting& proxy) {
  switch (answer.kind) {
    case Kind::Succeeded:
      if (proxy.address.isEmpty()) return {klTestSucceeded(), {}};
      if (proxy.port < 1) return {klTestSucceededNoPort(), {}};
      return {fillPlaceholders(klTestSucceededProxy(), {hostAndPort(proxy.address, proxy.port)}), {}};
    case Kind::ErrorAnswered:
      return {klTestErrorAnswered(), VantryUtil::errToString(answer.err)};
    case Kind::NoAnswer:
      return {fillPlaceholders(noAnswerText(answer.failure), {answer.failure.peer}), answer.failure.detail};
    case Kind::NotTheService:
      return {klTestNotTheService(), {}};
  }
  return {};
}

VantryUtil::ProxySetting proxyOfFields(const QString& address, const QString& port) {
  const int number = portOf(port);
  return {address.trimmed(), number >= 1 && number <= 65535 ? number : 0};
}
