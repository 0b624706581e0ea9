#include "PracticeClient.h"

#include <QCryptographicHash>
#include <QElapsedTimer>
#include <QSslCertificate>
#include <QSslConfiguration>
#include <QXmlStreamReader>

#include "practice/PracticeService.h"

using namespace Qt::Literals::StringLiterals;

PracticeClient::PracticeClient(const QString& caFile) {
  QSslConfiguration tls = QSslConfiguration::defaultConfiguration();
  tls.setCaCertificates(caFile.isEmpty() ? QList<QSslCertificate>() : QSslCertificate::fromPath(caFile));
  tls.setPeerVerifyMode(QSslSocket::VerifyPeer);
  m_socket.setSslConfiguration(tls);
}

bool PracticeClient::connectTo(quint16 port, int timeoutMs) {
  m_socket.connectToHostEncrypted(u"localhost"_s, port);
  return m_socket.waitForEncrypted(timeoutMs);
}

bool PracticeClient::send(const QByteArray& bytes, int timeoutMs) {
  m_socket.write(bytes);
  while (m_socket.bytesToWrite() > 0 || m_socket.encryptedBytesToWrite() > 0)
    if (!m_socket.waitForBytesWritten(timeoutMs)) return false;
  return true;
}

QByteArray PracticeClient::readToEnd(int timeoutMs) {
  QByteArray all = m_socket.readAll();
  while (m_socket.waitForReadyRead(timeoutMs)) all += m_socket.readAll();
  return all + m_socket.readAll();
}

QByteArray PracticeClient::readSome(qsizetype count, int timeoutMs) {
  QByteArray some = m_socket.readAll();
  while (some.size() < count && m_socket.waitForReadyRead(timeoutMs)) some += m_socket.readAll();
  return some;
}

bool PracticeClient::endedInOrder() const {
  return ended() && m_socket.error() == QAbstractSocket::RemoteHostClosedError;
}

QByteArray PracticeClient::post(const QByteArray& body, const QByteArray& path) {
  return "POST " + path + " HTTP/1.0\r\nAccept: */*\r\nHost: localhost\r\nContent-type: text/xml; charset=utf-8\r\n" +
         "Content-length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body;
}

static QByteArray envelope(const QByteArray& login, const QByteArray& password, const QByteArray& content) {
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
         "<SOAP-ENV:Envelope xmlns:SOAP-ENV=\"http://schemas.xmlsoap.org/soap/envelope/\">\n<SOAP-ENV:Header>\n"
         "<Authenticate><Username>" +
         login + "</Username><Password>" + QCryptographicHash::hash(password, QCryptographicHash::Sha256).toHex() +
         "</Password></Authenticate>\n</SOAP-ENV:Header>\n<SOAP-ENV:Body>\n" + content +
         "</SOAP-ENV:Body>\n</SOAP-ENV:Envelope>";
}

QByteArray PracticeClient::call(const QByteArray& method, const QByteArray& login, const QByteArray& password) {
  return envelope(login, password, "<" + method + "/>\n");
}

QByteArray PracticeClient::file(const QByteArray& method, const QByteArray& name, const QByteArray& destination,
                                const QByteArray& base64) {
  const QByteArray tag = method == "SendIWFile" ? "ITWorkflowName" : "Trackname";
  return envelope("practice", "gray-balance-21",
                  "<" + method + "><File><Filename>" + name + "</Filename><" + tag + ">" + destination + "</" + tag +
                      "><Base64string>" + base64 + "</Base64string></File></" + method + ">\n");
}

QByteArray exchange(const PracticeService& service, const QByteArray& body) {
  PracticeClient client(service.caFile());
  if (!client.connectTo(service.port())) return {};
  client.send(PracticeClient::post(body));
  return client.readToEnd();
}

QString returnOf(const QByteArray& reply) {
  QXmlStreamReader xml(reply.mid(reply.indexOf("\r\n\r\n") + 4));
  QString text;
  bool inside = false;
  while (!xml.atEnd()) {
    xml.readNext();
    if (xml.isStartElement() && xml.name() == "return"_L1 && text.isNull())
      inside = true;
    else if (xml.isEndElement())
      inside = false;
    else if (inside && xml.isCharacters())
      text += xml.text();
  }
  return xml.hasError() ? QString() : text;
}
