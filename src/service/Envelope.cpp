#include "service/Envelope.h"

#include <QCryptographicHash>

#include "platform/FileCipher.h"
#include "service/VantryUtil.h"

// Both envelopes begin so.
#define ENVELOPE_BEGIN                                                                \
  "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"                                      \
  "<SOAP-ENV:Envelope xmlns:SOAP-ENV=\"http://schemas.xmlsoap.org/soap/envelope/\"  " \
  "xmlns:xsd=\"http://www.w3.org/2001/XMLSchema\" "                                   \
  "xmlns:SOAP-ENC=\"http://schemas.xmlsoap.org/soap/encoding/\" "                     \
  "SOAP-ENV:encodingStyle=\"http://schemas.xmlsoap.org/soap/encoding/\">\n"           \
  "<SOAP-ENV:Header>\n"                                                               \
  "\t<Authenticate>\n"                                                                \
  "\t\t<Username>[login]</Username>\n"                                                \
  "\t\t<Password>[password]</Password>\n"                                             \
  "\t</Authenticate>\n"                                                               \
  "</SOAP-ENV:Header>\n"                                                              \
  "<SOAP-ENV:Body>\n"

QByteArray VantryUtil::soapTemplate() {
  return QByteArrayLiteral(ENVELOPE_BEGIN
                           "\t<[method]/>\n"
                           "</SOAP-ENV:Body>\n"
                           "</SOAP-ENV:Envelope>");
}

QByteArray VantryUtil::sendFileTemplate() {
  return QByteArrayLiteral(ENVELOPE_BEGIN
                           "\t<[SendFile]>\n"
                           "\t\t<File>\n"
                           "\t\t\t<Filename>[FILENAME]</Filename>\n"
                           "\t\t\t<[Trackname]>[TRACKWORKFLOWNAME]</[Trackname]>\n"
                           "\t\t\t<Base64string>[FILEBODY]</Base64string>\n"
                           "\t\t\t</File>\n"
                           "\t\t</[SendFile]>\n"
                           "</SOAP-ENV:Body>\n"
                           "</SOAP-ENV:Envelope>");
}

QByteArray Envelope::fill(const QByteArray& pattern, std::initializer_list<Filling> fillings) {
  qsizetype size = pattern.size();
  for (const Filling& filling : fillings) size += 2 * filling.value.size();  // no placeholder stands more than twice
  QByteArray result;
  result.reserve(size);  // so that it never moves and leaves a copy of the password's hash behind
  qsizetype position = 0;
  while (position < pattern.size()) {
    const qsizetype bracket = pattern.indexOf('[', position);
    result += pattern.mid(position, bracket < 0 ? -1 : bracket - position);
    if (bracket < 0) break;
    const QByteArrayView here = QByteArrayView(pattern).sliced(bracket);
    const auto* found = std::find_if(fillings.begin(), fillings.end(),
                                     [&](const Filling& filling) { return here.startsWith(filling.placeholder); });
    result += found == fillings.end() ? QByteArrayView("[") : found->value;
    position = bracket + (found == fillings.end() ? 1 : found->placeholder.size());
  }
  return result;
}

QByteArray Envelope::escaped(const QString& text) {
  QByteArray result;
  for (const char c : text.toUtf8()) {
    switch (c) {
      case '&':
        result += "&amp;";
        break;
      case '<':
        result += "&lt;";
        break;
      case '>':
        result += "&gt;";
        break;
      default:
        result += c;
        break;
    }
  }
  return result;
}

QByteArray Envelope::passwordField(const QString& password) {
  QByteArray clear = password.toUtf8();
  const QByteArray digits = QCryptographicHash::hash(clear, QCryptographicHash::Sha256).toHex();
  wipe(clear);
  return digits;
}
