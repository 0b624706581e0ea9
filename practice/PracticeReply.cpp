#include "practice/PracticeReply.h"

#include <QString>

using Kind = Misbehaviour::Kind;

namespace PracticeReply {

static const QByteArray Success = "The file was taken.";

static QByteArray escaped(const QByteArray& text) { return QString::fromUtf8(text).toHtmlEscaped().toUtf8(); }

static QByteArray enveloped(const QByteArray& bodyContent) {
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
         "<SOAP-ENV:Envelope xmlns:SOAP-ENV=\"http://schemas.xmlsoap.org/soap/envelope/\">"
         "<SOAP-ENV:Body>" +
         bodyContent + "</SOAP-ENV:Body></SOAP-ENV:Envelope>\n";
}

static QByteArray response(const QByteArray& method, const QByteArray& content) {
  const QByteArray name = (method.isEmpty() ? QByteArray("Call") : method) + "Response";
  return enveloped("<ns1:" + name + " xmlns:ns1=\"urn:practice\">" + content + "</ns1:" + name + ">");
}

QByteArray envelope(const QByteArray& method, const QByteArray& text) {
  return response(method, "<return>" + escaped(text) + "</return>");
}

QByteArray faultEnvelope(const QByteArray& reason) {
  return enveloped("<SOAP-ENV:Fault><faultcode>SOAP-ENV:Client</faultcode><faultstring>" + escaped(reason) +
                   "</faultstring></SOAP-ENV:Fault>");
}

static QByteArray statusLine(int status) {
  QByteArray words;
  switch (status) {
    case 200:
      words = "OK";
      break;
    case 302:
      words = "Found";
      break;
    case 400:
      words = "Bad Request";
      break;
    case 404:
      words = "Not Found";
      break;
    case 405:
      words = "Method Not Allowed";
      break;
    case 411:
      words = "Length Required";
      break;
    case 413:
      words = "Payload Too Large";
      break;
    case 500:
      words = "Internal Server Error";
      break;
    default:
      words = "Status";
      break;
  }
  return "HTTP/1.1 " + QByteArray::number(status) + ' ' + words + "\r\n";
}

static QByteArray head(int status, const QByteArray& contentType) {
  return statusLine(status) + "Server: practice\r\nConnection: close\r\nContent-Type: " + contentType + "\r\n";
}

QByteArray http(int status, const QByteArray& contentType, const QByteArray& body) {
  return head(status, contentType) + "Content-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body;
}

static const QByteArray XmlType = "text/xml; charset=utf-8";

QByteArray xml(int status, const QByteArray& envelope) { return http(status, XmlType, envelope); }

QByteArray html(int status, const QByteArray& words) {
  return http(status, "text/html",
              "<!DOCTYPE html>\n<html><head><title>" + words + "</title></head><body><h1>" + words +
                  "</h1><p>Try again later.<br></body></html>\n");
}

static QByteArray nestedEntities() {
  QByteArray type = "<?xml version=\"1.0\"?>\n<!DOCTYPE r [\n<!ENTITY e0 \"lollollollollollollollollollol\">\n";
  for (int level = 1; level <= 9; ++level) {
    const QByteArray inner = "&e" + QByteArray::number(level - 1) + ';';
    type += "<!ENTITY e" + QByteArray::number(level) + " \"" + inner.repeated(10) + "\">\n";
  }
  return type + "]>\n<r><return>&e9;</return></r>\n";
}

static QByteArray deepJson(qint64 levels) {
  const auto count = static_cast<qsizetype>(levels);
  return "{\"a\":" + QByteArray(count, '[') + QByteArray(count, ']') + '}';
}

QByteArray wrong(const Misbehaviour& misbehaviour, const QByteArray& method) {
  const QByteArray& text = misbehaviour.text;
  switch (misbehaviour.kind) {
    case Kind::ErrorCode:
      return xml(200, envelope(method, text));
    case Kind::Redirect: {
      const QByteArray page = html(302, "Found");
      return QByteArray(page).insert(page.indexOf("\r\n") + 2, "Location: " + text + "\r\n");
    }
    case Kind::EmptyReply:
      return xml(200, {});
    case Kind::EmptyReturn:
      return xml(200, response(method, "<return></return>"));
    case Kind::NoReturn:
      return xml(200, response(method, "<result>done</result>"));
    case Kind::SeveralReturns:
      return xml(200, response(method, "<return/><return>" + escaped(text.isEmpty() ? Success : text) +
                                           "</return><return>another text</return>"));
    case Kind::NotJson:
      return xml(200, envelope(method, "{\"status\":\"ok\",,}"));
    case Kind::DeepJson:
      return xml(200, envelope(method, deepJson(misbehaviour.bytes)));
    case Kind::NotXml:
      return xml(200, "<?xml version=\"1.0\"?>\n<a><return>" + Success + "</b></return>\n");
    case Kind::NestedEntities:
      return xml(200, nestedEntities());
    case Kind::LongReply:
      return xml(200, envelope(method, QByteArray(static_cast<qsizetype>(misbehaviour.bytes), 'a')));
    case Kind::RawReply:
      return text;
    case Kind::EarlyError:
      return text.isEmpty() ? html(413, "Payload Too Large") : xml(200, envelope(method, text));
    case Kind::HtmlError:
    case Kind::NoReply:
    case Kind::StallReply:
    case Kind::CutReply:
    case Kind::TrickleReply:
    case Kind::Chunked:
    case Kind::HeadEndsLf:
    case Kind::HeadEndsCr:
    case Kind::NoLength:
    case Kind::StopReading:
    case Kind::CutRequest:
    case Kind::SilentHandshake:
    case Kind::CutHandshake:
      break;
  }
  return html(500, "Internal Server Error");
}

static QByteArray chunked(const QByteArray& body) {
  QByteArray coded;
  static constexpr qsizetype Piece = 100;
  for (qsizetype at = 0; at < body.size(); at += Piece) {
    const QByteArray piece = body.mid(at, Piece);
    coded += QByteArray::number(piece.size(), 16) + "\r\n" + piece + "\r\n";
  }
  return coded + "0\r\n\r\n";
}

static QByteArray withLineEnd(const QByteArray& reply, const QByteArray& lineEnd) {
  const qsizetype headEnd = reply.indexOf("\r\n\r\n") + 4;
  return reply.left(headEnd).replace("\r\n", lineEnd) + reply.mid(headEnd);
}

QByteArray reshaped(const Misbehaviour& misbehaviour, const QByteArray& envelope) {
  if (misbehaviour.kind == Kind::Chunked)
    return head(200, XmlType) + "Transfer-Encoding: chunked\r\n\r\n" + chunked(envelope);
  if (misbehaviour.kind == Kind::NoLength) return head(200, XmlType) + "\r\n" + envelope;
  const QByteArray proper = xml(200, envelope);
  if (misbehaviour.kind == Kind::HeadEndsLf) return withLineEnd(proper, "\n");
  if (misbehaviour.kind == Kind::HeadEndsCr) return withLineEnd(proper, "\r");
  return proper;
}

bool replacesReply(Kind kind) { return kind <= Kind::RawReply; }

}  // namespace PracticeReply
