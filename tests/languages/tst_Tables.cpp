#include <QDialogButtonBox>
#include <QDirIterator>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>

#include "platform/Languages.h"
#include "support/TestRunner.h"
#include "text/VTULocalization.h"

using namespace Qt::Literals::StringLiterals;
using VTULocalization::entries;
using VTULocalization::Entry;

static QString fileContent(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

static QStringList allMatches(const QString& text, const QString& pattern) {
  QStringList found;
  for (auto it = QRegularExpression(pattern).globalMatch(text); it.hasNext();) found << it.next().captured(1);
  return found;
}

/// What a translation must have in common with the English text.
static QString skeleton(const QString& text) {
  QStringList places = allMatches(text, u"(\\$[1-9])"_s);
  places.removeDuplicates();
  places.sort();
  return u"%1, %2 line breaks, %3 marks%4"_s.arg(places.join(u' '))
      .arg(text.count(u'\n'))
      .arg(text.count(u'&'))
      .arg(text.startsWith(u' ') ? u", blank before"_s : QString());
}

class tst_Tables : public QObject {
  Q_OBJECT
 private slots:
  void cleanup() { Languages::install({}); }

  void everyTextFileIsInTheCatalogue() {
    QSet<QString> known;
    for (const Entry& entry : entries()) known.insert(QString::fromLatin1(entry.key).section(u'.', 1));
    QDirIterator it(u"" SOURCE_FOLDER "/src"_s, {u"*.inc"_s}, QDir::Files, QDirIterator::Subdirectories);
    int texts = 0;
    while (it.hasNext()) {
      const QStringList names = allMatches(fileContent(it.next()), u"VTU_CONSTANT\\((\\w+), \""_s);
      for (const QString& name : names) QVERIFY2(known.contains(name), qPrintable(it.filePath() + u": "_s + name));
      texts += static_cast<int>(names.size());
    }
    QCOMPARE(texts, entries().size());
  }

  void everyTableIsWhole_data() {
    QTest::addColumn<QString>("language");
    QCOMPARE(Languages::shipped(), u"de es fr it ja nl pl pt_BR zh_CN"_s.split(u' '));
    for (const QString& language : Languages::shipped()) QTest::newRow(qPrintable(language)) << language;
  }
  void everyTableIsWhole() {
    QFETCH(QString, language);
    QStringList faults;
    const QString table = fileContent(u"" SOURCE_FOLDER "/resources/languages/vantry_%1.ts"_s.arg(language));
    QStringList unknown = allMatches(table, u"<message id=\"([^\"]*)\""_s);
    QCOMPARE(unknown.size(), entries().size());
    for (const Entry& entry : entries()) {
      const QString key = QString::fromLatin1(entry.key), english = QString::fromUtf8(entry.english);
      const QString text = Languages::lookUp(language, entry.key);
      unknown.removeOne(key);
      if (text.trimmed().isEmpty())
        faults << u"%1 is not translated: %2"_s.arg(key, english);
      else if (skeleton(text) != skeleton(english))
        faults << u"%1 has [%2] and not [%3]"_s.arg(key, skeleton(text), skeleton(english));
    }
    for (const QString& fault : std::as_const(faults)) qWarning().noquote() << language << fault;
    QVERIFY2(faults.isEmpty(), "the target update-languages prepares the table");
    QVERIFY2(unknown.isEmpty(), qPrintable(unknown.join(u' ')));

    const auto captions = [] {
      QDialogButtonBox box(QDialogButtonBox::Yes | QDialogButtonBox::Cancel);
      return box.button(QDialogButtonBox::Yes)->text() + box.button(QDialogButtonBox::Cancel)->text();
    };
    const QString english = captions(), ownEnglish = VTULocalization::klCancel();
    Languages::install(language);
    QVERIFY2(captions() != english, "Qt speaks the language too");
    QCOMPARE(VTULocalization::klCancel(), VTULocalization::klCancel(language));
    Languages::install({});
    QCOMPARE(captions() + VTULocalization::klCancel(), english + ownEnglish);
  }

  void theUsersLanguageIsTaken() {
    const std::pair<QString, QString> rows[] = {{u"fr"_s, u"fr"_s},
                                                {u"de-AT"_s, u"de"_s},
                                                {u"tlh fi-FI it-IT de"_s, u"it"_s},
                                                {u"en-GB de"_s, {}},
                                                {u"pt-BR"_s, u"pt_BR"_s},
                                                {u"pt_PT"_s, u"pt_BR"_s},  // rather than English
                                                {u"zh_SG"_s, u"zh_CN"_s},
                                                {u"zh-TW zh-Hant"_s, {}},  // another script
                                                {{}, {}}};
    for (const auto& [wanted, table] : rows)
      QVERIFY2(Languages::choose(wanted.split(u' ', Qt::SkipEmptyParts)) == table, qPrintable(wanted));
  }
};

VANTRY_TEST(tst_Tables);
#include "tst_Tables.moc"
