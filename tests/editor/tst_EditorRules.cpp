// The editor's rules, without a window.

#include <QTest>

#include "editor/EditorRules.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;

Q_DECLARE_METATYPE(FormState)
Q_DECLARE_METATYPE(SaveCheck)

class tst_EditorRules : public QObject {
  Q_OBJECT

 private slots:
  void whatBlocksSaving_data() {
    QTest::addColumn<FormState>("form");
    QTest::addColumn<SaveCheck>("check");
    const FormState whole{u"Press"_s, FolderState::There, false, true, true};
    const auto row = [&](const char* label, auto change, const SaveCheck& check) {
      FormState form = whole;
      change(form);
      QTest::newRow(label) << form << check;
    };
    row("all is there", [](FormState&) {}, {false, false, false, false, true});
    row("a name of blanks", [](FormState& f) { f.name = u" \t\n"_s; }, {true, false, false, false, false});
    row("no input folder", [](FormState& f) { f.input = FolderState::None; }, {false, true, false, false, false});
    row("it is gone", [](FormState& f) { f.input = FolderState::Missing; }, {false, true, false, false, false});
    row("it doesn't answer", [](FormState& f) { f.input = FolderState::NoAnswer; }, {false, true, false, false, false});
    row("not known yet: not red, and no OK", [](FormState& f) { f.input = FolderState::Asking; },
        {false, false, false, false, false});
    row("no press", [](FormState& f) { f.firstSelected = false; }, {false, false, true, false, false});
    row("no track", [](FormState& f) { f.secondSelected = false; }, {false, false, false, true, false});
    row("auto recognition needs neither",
        [](FormState& f) {
          f.autoRecognition = true;
          f.firstSelected = f.secondSelected = false;
        },
        {false, false, false, false, true});
    row("nothing at all", [](FormState& f) { f = FormState(); }, {true, true, true, true, false});
  }
  void whatBlocksSaving() {
    QFETCH(FormState, form);
    QTEST(checkCanSave(form), "check");
  }

  void rowsOfStoredTexts_data() {
    QTest::addColumn<QString>("stored");
    QTest::addColumn<int>("warden");
    QTest::addColumn<int>("extension");
    QTest::newRow("in another case") << u"PRINT"_s << 0 << 0;
    QTest::newRow("an instrument") << u"Instrument"_s << 1 << 0;
    QTest::newRow("a text of another language opens as an instrument") << u"Druck"_s << 1 << 0;
    QTest::newRow("empty") << u""_s << 1 << 0;
    QTest::newRow("the last ending in capitals") << u".QTX"_s << 1 << 10;
    QTest::newRow("an ending without its dot is unknown") << u"xml"_s << 1 << 0;
  }
  void rowsOfStoredTexts() {
    QFETCH(QString, stored);
    QTEST(wardenRow(stored), "warden");
    QTEST(extensionRow(stored), "extension");
  }

  void sameFolders_data() {
    QTest::addColumn<QString>("other");
    QTest::addColumn<bool>("same");
    QTest::newRow("the same path") << u"/data/in"_s << true;
    QTest::newRow("the same path in another case") << u"/Data/IN"_s << true;
    QTest::newRow("a folder inside it") << u"/data/in/out"_s << false;
    QTest::newRow("none") << u""_s << false;
  }
  void sameFolders() {
    QFETCH(QString, other);
    QTEST(isSameFolder(*FolderItem::fromNativePath(u"/data/in"_s), FolderItem::fromNativePath(other)), "same");
  }

  void exclusionPatterns_data() {
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<int>("place");  // from 1; 0 for a valid one
    QTest::newRow("blank") << u"   "_s << 0;
    QTest::newRow("valid") << u"^draft|\\.tmp$"_s << 0;
    QTest::newRow("a group that is not closed") << u"ab(c"_s << 5;
    QTest::newRow("blanks before it count") << u"  *a"_s << 3;
  }
  void exclusionPatterns() {
    QFETCH(QString, pattern);
    QFETCH(int, place);
    const auto error = exclusionError(pattern);
    QCOMPARE(error.has_value(), place > 0);
    if (!error) return;
    QCOMPARE(static_cast<int>(error->at) + 1, place);
    QVERIFY2(error->message.endsWith(u"at character %1"_s.arg(place)), qPrintable(error->message));
  }
};

VANTRY_TEST(tst_EditorRules);
#include "tst_EditorRules.moc"
