#pragma once
// XML documents as a tree of nodes (XML 1.0, strictly well-formed). A document with a document type is refused: SOAP
// forbids one, and its entities can grow without bound. Values; a node is good while its document lives.

#include <QByteArray>
#include <QString>
#include <optional>
#include <vector>

class XmlDocument;

/// A handle of one node; the document itself is one, above the root element.
class XmlNode {
 public:
  XmlNode(const XmlDocument* document, int index) : m_document(document), m_index(index) {}

  [[nodiscard]] QString Name() const;   ///< of an element, with its prefix; "#text" and "#document" for the others
  [[nodiscard]] QString Value() const;  ///< of a text; empty for the others
  [[nodiscard]] int ChildCount() const;
  [[nodiscard]] XmlNode Child(int index) const;  ///< from 0

 private:
  const XmlDocument* m_document;
  int m_index;
};

class XmlDocument {
 public:
  /// Nothing for text that isn't well-formed, has a document type, is nested deeper than 256, has an element with more
  /// than 1000 attributes or some 100,000 nodes; nor for more than 256 KiB of UTF-16. So its time grows in a straight
  /// line with the text. Adjacent pieces of text are one node; text of white space alone, comments and processing
  /// instructions are none.
  static std::optional<XmlDocument> parse(const QByteArray& text);

  [[nodiscard]] XmlNode node() const { return {this, 0}; }

 private:
  friend class XmlNode;
  struct Node {
    QString name, value;
    std::vector<int> children;
  };
  int append(int parent, const QString& name, const QString& value);

  std::vector<Node> m_nodes;
};

/// Depth first, the first element called "return" (in any case) that has a child: that child's value. Elements without
/// a text are passed over. Empty if there is none.
[[nodiscard]] QString getReturnFromNode(const XmlNode& node);
