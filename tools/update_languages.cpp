// Brings the language tables of a folder into line with the catalogue, since Qt's own lupdate can't see keys that a
// macro makes. Every key gets its place; one that is new, or whose English text has changed, is marked as unfinished
// and named on the standard output; one that is gone is taken out.

#include <QDir>
#include <QHash>
#include <QSaveFile>
#include <QTextStream>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include "text/VTULocalization.h"

using namespace Qt::Literals::StringLiterals;

struct Message {
  QString source;
  QString translation;
  bool finished = false;
};

static QHash<QString, Message> readTable(QIODevice& file) {
  QHash<QString, Message> messages;
  QXmlStreamReader xml(&file);
  QString id;
  while (!xml.atEnd()) {
    if (xml.readNext() != QXmlStreamReader::StartElement) continue;
    const bool unfinished = xml.attributes().value("type"_L1) == "unfinished"_L1;
    if (xml.name() == "message"_L1)
      id = xml.attributes().value("id"_L1).toString();
    else if (xml.name() == "source"_L1)
      messages[id].source = xml.readElementText();
    else if (xml.name() == "translation"_L1)
      messages[id] = {messages[id].source, xml.readElementText(), !unfinished};
  }
  if (xml.hasError()) qFatal("%s, line %lld", qPrintable(xml.errorString()), xml.lineNumber());
  return messages;
}

/// Writes the table anew and gives the lines that name what is to be translated.
static QStringList writeTable(QIODevice& file, const QString& language, const QHash<QString, Message>& known) {
  QStringList open;
  QXmlStreamWriter xml(&file);
  xml.setAutoFormatting(true);
  xml.writeStartDocument();
  xml.writeDTD(u"<!DOCTYPE TS>"_s);
  xml.writeStartElement(u"TS"_s);
  xml.writeAttribute(u"version"_s, u"2.1"_s);
  xml.writeAttribute(u"language"_s, language);
  xml.writeAttribute(u"sourcelanguage"_s, u"en"_s);
  xml.writeStartElement(u"context"_s);
  xml.writeTextElement(u"name"_s, {});
  for (const VTULocalization::Entry& entry : VTULocalization::entries()) {
    const QString key = QString::fromLatin1(entry.key);
    const QString english = QString::fromUtf8(entry.english);
    const Message message = known.value(key);
    const bool finished = message.finished && !message.translation.isEmpty() && message.source == english;
    if (!finished) open << u"  %1: %2"_s.arg(key, english).replace(u'\n', u"\\n"_s);
    xml.writeStartElement(u"message"_s);
    xml.writeAttribute(u"id"_s, key);
    xml.writeTextElement(u"source"_s, english);
    xml.writeStartElement(u"translation"_s);
    if (!finished) xml.writeAttribute(u"type"_s, u"unfinished"_s);
    xml.writeCharacters(message.translation);
    xml.writeEndElement();
    xml.writeEndElement();
  }
  xml.writeEndDocument();
  return open;
}

int main(int argc, char** argv) {
  QTextStream out(stdout);
  const QDir folder(QString::fromLocal8Bit(argc > 1 ? argv[1] : "."));
  const QStringList names = folder.entryList({u"vantry_*.ts"_s}, QDir::Files, QDir::Name);
  for (const QString& name : names) {
    QFile before(folder.filePath(name));
    if (!before.open(QIODevice::ReadOnly)) qFatal("%s can't be read", qPrintable(name));
    const QHash<QString, Message> known = readTable(before);
    QSaveFile after(folder.filePath(name));
    if (!after.open(QIODevice::WriteOnly)) qFatal("%s can't be written", qPrintable(name));
    const QString language = name.mid(7).chopped(3);
    const QStringList open = writeTable(after, language, known);
    if (!after.commit()) qFatal("%s can't be written", qPrintable(name));
    out << language << ": " << (open.isEmpty() ? u"complete"_s : u"%1 to translate"_s.arg(open.size())) << '\n';
    for (const QString& line : open) out << line << '\n';
  }
  return names.isEmpty() ? 1 : 0;
}
