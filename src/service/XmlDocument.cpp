#include "service/XmlDocument.h"

#include <QXmlStreamReader>

using namespace Qt::Literals::StringLiterals;

static constexpr size_t MaxDepth = 256;  // also bounds the recursion of getReturnFromNode

int XmlDocument::append(int parent, const QString& name, const QString& value) {
  const int index = static_cast<int>(m_nodes.size());
  m_nodes.push_back({name, value, {}});
  if (parent >= 0) m_nodes[static_cast<size_t>(parent)].children.push_back(index);
  return index;
}

std::optional<XmlDocument> XmlDocument::parse(const QByteArray& text) {
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
        if (open.size() > MaxDepth) return std::nullopt;
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
