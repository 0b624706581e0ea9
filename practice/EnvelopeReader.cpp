#include "practice/EnvelopeReader.h"

#include <QXmlStreamReader>
#include <cstring>
#include <optional>

using namespace Qt::Literals::StringLiterals;

static constexpr QByteArrayView ContentTag("<Base64string>");
static constexpr qsizetype MaxFrameBytes = 1 << 20;
static constexpr qsizetype MaxBytesBeforeMethod = 64 << 10;

EnvelopeReader::EnvelopeReader(std::function<void(QByteArrayView)> content)
    : m_content(std::move(content)), m_digest(EVP_MD_CTX_new()) {
  if (!m_digest || EVP_DigestInit_ex(m_digest.get(), EVP_sha256(), nullptr) != 1)
    m_fault = u"SHA-256 is not available"_s;
}

void EnvelopeReader::feed(QByteArrayView bytes) {
  while (!bytes.isEmpty()) {
    if (m_place == Place::Inside)
      feedContent(bytes);
    else
      feedFrame(bytes);
  }
}

void EnvelopeReader::take(QByteArrayView decoded) {
  m_size += decoded.size();
  EVP_DigestUpdate(m_digest.get(), decoded.data(), static_cast<size_t>(decoded.size()));
  if (m_content && !decoded.isEmpty()) m_content(decoded);
}

void EnvelopeReader::feedContent(QByteArrayView& bytes) {
  const void* const end = std::memchr(bytes.data(), '<', static_cast<size_t>(bytes.size()));
  const qsizetype count = end ? static_cast<const char*>(end) - bytes.data() : bytes.size();
  m_piece.resize(0);
  if (m_fault.isEmpty()) {
    if (!m_decoder.feed(bytes.first(count), m_piece)) m_fault = u"Base64string is not strict Base64"_s;
    take(m_piece);
  }
  if (end) m_place = Place::After;
  bytes = bytes.sliced(count);
}

void EnvelopeReader::feedFrame(QByteArrayView& bytes) {
  const qsizetype searchFrom = qMax<qsizetype>(0, m_frame.size() - ContentTag.size() + 1);
  const qsizetype known = m_frame.size();
  m_frame.append(bytes.data(), qMin(bytes.size(), MaxFrameBytes - known));
  qsizetype used = m_frame.size() - known;
  const qsizetype tag = m_place == Place::Before ? m_frame.indexOf(ContentTag, searchFrom) : -1;
  if (tag >= 0) {
    m_frame.truncate(tag + ContentTag.size());
    used = m_frame.size() - known;
    m_place = Place::Inside;
  } else if (used < bytes.size()) {
    m_fault = u"The envelope around the file is too long"_s;
    used = bytes.size();
  }
  if (m_method.isEmpty()) lookForMethod();
  bytes = bytes.sliced(used);
}

// A prefix of the envelope is enough: the reader gives the tokens up to where it ends.
void EnvelopeReader::lookForMethod() {
  if (m_frame.size() > MaxBytesBeforeMethod) return;
  QXmlStreamReader xml(m_frame);
  bool inBody = false;
  while (!xml.atEnd()) {
    const auto token = xml.readNext();
    if (token == QXmlStreamReader::DTD) return;
    if (token != QXmlStreamReader::StartElement) continue;
    if (inBody) {
      m_method = xml.name().toUtf8();
      return;
    }
    inBody = xml.name() == "Body"_L1;
  }
}

namespace {

// Walks the envelope strictly by its grammar: an unknown element in a known place is a fault.
class FrameParser {
 public:
  FrameParser(const QByteArray& frame, SoapRequest& request) : m_xml(frame), m_request(request) {}

  void parse() {
    while (!m_xml.atEnd() && m_request.fault.isEmpty()) {
      switch (m_xml.readNext()) {
        case QXmlStreamReader::DTD:
          m_request.fault = u"A document type is not allowed in SOAP"_s;
          break;
        case QXmlStreamReader::StartElement:
          m_path.append(m_xml.name().toString());
          start();
          m_text.clear();
          break;
        case QXmlStreamReader::Characters:
          m_text.append(m_xml.text());
          break;
        case QXmlStreamReader::EndElement:
          end();
          m_path.removeLast();
          m_text.clear();
          break;
        default:
          break;
      }
    }
    if (m_request.fault.isEmpty() && m_xml.hasError())
      m_request.fault = u"The request is not well-formed XML: %1"_s.arg(m_xml.errorString());
    if (m_request.fault.isEmpty() && m_request.method.isEmpty()) m_request.fault = u"No method in the SOAP body"_s;
  }

  QByteArray base64;  ///< text of a Base64string whose tag was not written plainly

 private:
  void start() {
    static constexpr auto Namespace = "http://schemas.xmlsoap.org/soap/envelope/"_L1;
    if (m_path.size() == 1 && (m_path[0] != "Envelope"_L1 || m_xml.namespaceUri() != Namespace))
      m_request.fault = u"The root is not a SOAP 1.1 envelope"_s;
    else if (m_path.size() == 2 &&
             (m_xml.namespaceUri() != Namespace || (m_path[1] != "Header"_L1 && m_path[1] != "Body"_L1)))
      m_request.fault = u"The envelope holds something else than a header and a body"_s;
    else if (m_path.size() == 3 && m_path[1] == "Body"_L1) {
      if (!m_request.method.isEmpty()) m_request.fault = u"The SOAP body holds more than one method"_s;
      m_request.method = m_path[2].toUtf8();
    }
    if (isFileField("Base64string"_L1)) m_request.hasContent = true;
  }

  void end() {
    if (isAuthenticateField("Username"_L1))
      m_request.login = m_text;
    else if (isAuthenticateField("Password"_L1))
      m_request.passwordHash = m_text.toUtf8();
    else if (isFileField("Filename"_L1))
      m_request.fileName = m_text;
    else if (isFileField("Trackname"_L1))
      m_request.trackName = m_text;
    else if (isFileField("ITWorkflowName"_L1))
      m_request.itWorkflowName = m_text;
    else if (isFileField("Base64string"_L1))
      base64 = m_text.toUtf8();
  }

  bool isAuthenticateField(QLatin1StringView name) const {
    return m_path.size() == 4 && m_path[1] == "Header"_L1 && m_path[2] == "Authenticate"_L1 && m_path[3] == name;
  }
  bool isFileField(QLatin1StringView name) const {
    return m_path.size() == 5 && m_path[1] == "Body"_L1 && m_path[3] == "File"_L1 && m_path[4] == name;
  }

  QXmlStreamReader m_xml;
  SoapRequest& m_request;
  QStringList m_path;
  QString m_text;
};

}  // namespace

SoapRequest EnvelopeReader::finish() {
  SoapRequest request;
  request.fault = m_fault;
  if (request.fault.isEmpty()) {
    FrameParser parser(m_frame, request);
    parser.parse();
    if (!parser.base64.isEmpty()) {
      m_piece.resize(0);
      if (!m_decoder.feed(parser.base64, m_piece)) request.fault = u"Base64string is not strict Base64"_s;
      take(m_piece);
    }
  }
  if (request.fault.isEmpty() && !m_decoder.finish()) request.fault = u"Base64string is cut off"_s;
  request.contentSize = m_size;
  unsigned char digest[EVP_MAX_MD_SIZE];
  unsigned int length = 0;
  if (EVP_DigestFinal_ex(m_digest.get(), digest, &length) == 1)
    request.contentSha256 = QByteArray(reinterpret_cast<const char*>(digest), length).toHex();
  return request;
}
