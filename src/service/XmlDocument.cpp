#include "service/XmlDocument.h"

#include <QXmlStreamReader>

using namespace Qt::Literals::StringLiterals;

static constexpr size_t MaxDepth = 256;  // also bounds the recursion of getReturnFromNode
// A node may take forty times the memory of its text, and the reader compares each attribute of an element with all.
static constexpr size_t MaxNodes = 100'000;
static constexpr int MaxAttributes = 1000;
static constexpr qsizetype MaxWideBytes = 256 << 10;

/// Where a piece of a document ends that opens and closes with these; past the end if it doesn't close.
static qsizetype endOf(const QByteArray& text, qsizetype at, QByteArrayView opening, QByteArrayView closing) {
  const qsizetype end = text.indexOf(closing, at + opening.size());
  return end < 0 ? text.size() : end + closing.size();
}

/// False for a document type, and for an element with so many attributes that reading it could take hours.
static bool isReadable(const QByteArray& text) {
  if (text.contains('\0')) return text.size() <= MaxWideBytes;  // UTF-16 and the like, which can't be looked through
  for (qsizetype at = text.indexOf('<'); at >= 0 && at < text.size(); at = text.indexOf('<', at)) {
    const QByteArrayView here = QByteArrayView(text).sliced(at);
    const auto skip = [&](QByteArrayView opening, QByteArrayView closing) {
      if (!here.startsWith(opening)) return false;
      at = endOf(text, at, opening, closing);
      return true;
    };
    if (skip("<!--", "-->") || skip("<![CDATA[", "]]>") || skip("<?", "?>")) continue;
    if (here.startsWith("<!")) return false;
    char quote = 0;
    for (int attributes = 0; at < text.size() && (quote || text[at] != '>'); ++at) {
      const char c = text[at];
      if (quote ? c == quote : (c == '"' || c == '\'')) quote = quote ? '\0' : c;
      if (!quote && c == '=' && ++attributes > MaxAttributes) return false;
    }
  }
  return true;
}

int XmlDocument::append(int parent, const QString& name, const QString& value) {
  const int index = static_cast<int>(m_nodes.size());
  m_nodes.push_back({name, value, {}});
  if (parent >= 0) m_nodes[static_cast<size_t>(parent)].children.push_back(index);
  return index;
}

std::optional<XmlDocument> XmlDocument::parse(const QByteArray& text) {
  if (!isReadable(text)) return std::nullopt;
  XmlDocument document;
  std::vector<int> open{document.append(-1, u"#document"_s, {})};
  QString pendingText;
  const auto flushText = [&] {
    if (!pendingText.trimmed().isEmpty()) document.append(open.back(), u"#text"_s, pendingText);
    pendingText.clear();
  };
  QXmlStreamReader reader(text);
  reader.setNamespaceProcessing(false);  // a prefix that nobody declared is still well-formed
  while (!reader.atEnd()) {
    switch (reader.readNext()) {
      case QXmlStreamReader::StartElement:
        flushText();
        if (open.size() > MaxDepth || document.m_nodes.size() > MaxNodes) return std::nullopt;
        open.push_back(document.append(open.back(), reader.qualifiedName().toString(), {}));
        break;
      case QXmlStreamReader::EndElement:
        flushText();
        open.pop_back();
        break;
      case QXmlStreamReader::Characters:
        pendingText += reader.text();
        break;
      case QXmlStreamReader::DTD:
      case QXmlStreamReader::EntityReference:
        return std::nullopt;
      case QXmlStreamReader::NoToken:
      case QXmlStreamReader::Invalid:
      case QXmlStreamReader::StartDocument:
      case QXmlStreamReader::EndDocument:
      case QXmlStreamReader::Comment:
      case QXmlStreamReader::ProcessingInstruction:
        break;
    }
  }
  if (reader.hasError()) return std::nullopt;
  return document;
}

QString XmlNode::Name() const { return m_document->m_nodes[static_cast<size_t>(m_index)].name; }

QString XmlNode::Value() const { return m_document->m_nodes[static_cast<size_t>(m_index)].value; }

int XmlNode::ChildCount() const {
  return static_cast<int>(m_document->m_nodes[static_cast<size_t>(m_index)].children.size());
}

XmlNode XmlNode::Child(int index) const {
  return {m_document, m_document->m_nodes[static_cast<size_t>(m_index)].children.at(static_cast<size_t>(index))};
}

QString getReturnFromNode(const XmlNode& node) {
  const int count = node.ChildCount();
  if (count > 0 && node.Name().compare("return"_L1, Qt::CaseInsensitive) == 0) return node.Child(0).Value();
  for (int i = 0; i < count; ++i) {
    const QString text = getReturnFromNode(node.Child(i));
    if (!text.isEmpty()) return text;
  }
  return {};
}
