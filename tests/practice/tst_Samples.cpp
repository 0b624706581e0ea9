// The sample files must be what a measuring device's software would take for its own.

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QTest>
#include <QXmlStreamReader>

#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;

class tst_Samples : public QObject {
  Q_OBJECT

 private slots:
  void cgatsHoldsWhatItAnnounces();
  void xmlIsWellFormed();
  void coverTheAwkwardCases();
};

static QByteArray sample(const QString& name) {
  QFile file(QStringLiteral(SAMPLES_FOLDER "/") + name);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

static QStringList samples(const QStringList& patterns) {
  return QDir(QStringLiteral(SAMPLES_FOLDER)).entryList(patterns, QDir::Files);
}

static QString between(const QString& text, const QString& begin, const QString& end) {
  const qsizetype from = text.indexOf(begin) + begin.size();
  return text.mid(from, text.indexOf(end, from) - from);
}

void tst_Samples::cgatsHoldsWhatItAnnounces() {
  const QStringList names = samples({u"*.txt"_s, u"*.it8"_s});
  QVERIFY(names.size() >= 6);
  for (const QString& name : names) {
    const QString text = QString::fromUtf8(sample(name)).replace(u"\r\n"_s, u"\n"_s);
    const QStringList fields = between(text, u"BEGIN_DATA_FORMAT\n"_s, u"\nEND_DATA_FORMAT"_s).split(u'\t');
    const QStringList sets = between(text, u"BEGIN_DATA\n"_s, u"\nEND_DATA\n"_s).split(u'\n');
    QCOMPARE(fields.size(), between(text, u"NUMBER_OF_FIELDS\t"_s, u"\n"_s).toLongLong());
    QCOMPARE(sets.size(), between(text, u"NUMBER_OF_SETS\t"_s, u"\n"_s).toLongLong());
    for (const QString& set : sets) QCOMPARE(set.split(u'\t').size(), fields.size());
    const qsizetype lightness = fields.indexOf(u"LAB_L"_s);
    QVERIFY(lightness > 0);
    for (const QString& set : sets) {
      const double value = set.split(u'\t')[lightness].toDouble();
      QVERIFY2(value > 0 && value < 100, qPrintable(name + u": "_s + set));
    }
  }
}

void tst_Samples::xmlIsWellFormed() {
  const QStringList names = samples({u"*.cxf"_s, u"*.xml"_s});
  QVERIFY(names.size() >= 3);
  for (const QString& name : names) {
    QXmlStreamReader xml(sample(name));
    int spectra = 0;
    while (!xml.atEnd()) {
      if (xml.readNext() != QXmlStreamReader::StartElement || xml.name() != "ReflectanceSpectrum"_L1) continue;
      QCOMPARE(xml.attributes().value("StartWL"_L1), u"380"_s);
      QCOMPARE(xml.readElementText().split(u' ').size(), 36);
      ++spectra;
    }
    QVERIFY2(!xml.hasError(), qPrintable(name + u": "_s + xml.errorString()));
    QCOMPARE(spectra > 0, name.endsWith(u".cxf"_s));
  }
}

void tst_Samples::coverTheAwkwardCases() {
  const QStringList names = samples({});
  QSet<QByteArray> contents;
  for (const QString& name : names) contents.insert(sample(name));
  QCOMPARE(contents.size(), names.size());  // they are told apart by their hash
  QCOMPARE(names.size(), 12);
  for (const QString& mark : {u" "_s, u"ü"_s, u"&"_s}) QVERIFY2(!names.filter(mark).isEmpty(), qPrintable(mark));
}

VANTRY_TEST(tst_Samples);
#include "tst_Samples.moc"
