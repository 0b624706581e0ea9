// Whether each window's captions fit their controls in every language and with a large font, and whether the controls
// stand clear of each other and have names.

#include <QCheckBox>
#include <QComboBox>
#include <QFontInfo>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>
#include <QTest>

#include "admin/AdminPasswordWindow.h"
#include "admin/AdminWindow.h"
#include "editor/EditTaskWindow.h"
#include "monitor/SystemLogWindow.h"
#include "monitor/VTUploaderMainWIndow.h"
#include "platform/Languages.h"
#include "storage/Preferences.h"
#include "support/ProgramHome.h"
#include "support/TestRunner.h"
#include "widgets/Mnemonics.h"

using namespace Qt::Literals::StringLiterals;

struct Window {
  const char* name;
  std::unique_ptr<QWidget> (*make)();
  int fewestLetters;          ///< that it can be operated by in English; scripts without letters have none
  const char* tabOrder = "";  ///< from the first control on, where the keyboard alone must do
};

static std::unique_ptr<QWidget> instrumentEditor() {
  auto editor = std::make_unique<EditTaskWindow>(nullptr);
  editor->findChild<QComboBox*>(u"Warden"_s)->setCurrentIndex(1);
  return editor;
}

/// A new window is one more line here.
static const Window windows[] = {
    {"main window", [] { return std::unique_ptr<QWidget>(new VTUploaderMainWIndow(MainWindowCommands{})); }, 8},
    {"task editor", [] { return std::unique_ptr<QWidget>(new EditTaskWindow(nullptr)); }, 18,
     "TaskName TaskDescription Warden FileName Extension FileNameExclusion AutoRecognition TrackList1 InputFolder "
     "InputFolderSetButton OutputFolder OutputFOlderSetButton Prefix AddDateToFileNameCheckBox "
     "DeleteFileAfterCopyCheckBox OkButton CancelDialogButton FileRecognitionHelpButton TrackList2 ClearInputButton "
     "AutoMountInput TestAutoMountInput inputFolderUrl inputLogin InputPassword ClearOutPutButton autoMountOutput "
     "TestAutoMountOUtput OutputFolderURL outputLogin outputPassword ReplaceName DisableTaskButton "
     "ClearProcessDateStampButton"},
    {"task editor of an instrument", instrumentEditor, 18},
    {"log viewer", [] { return std::unique_ptr<QWidget>(new SystemLogWindow); }, 6},
    {"admin window", [] { return std::unique_ptr<QWidget>(new AdminWindow(nullptr)); }, 6,
     "SoapLogin soapPassword TheProxyAddress TheProxyPort CheckAndConnectButton LockTaskListButton AdminPassword "
     "AdminPasswordRepeat saveConfigurationButton LoadConfigurationButton CancelAdminButton OKAdminButton"},
    {"admin password window", [] { return std::unique_ptr<QWidget>(new AdminPasswordWindow(nullptr)); }, 1},
};

/// Shorten by themselves and tell the whole text in their tool tip.
static const QStringList Eliding{u"BottomShadingRect"_s, u"Sample"_s};
constexpr int SmallestPixels = 10;
constexpr int ButtonFrame = 4;

static bool fits(const QWidget& control, const QString& text, QSize room) {
  const QStringList lines = text.split(u'\n');
  for (const QString& line : lines)
    if (control.fontMetrics().horizontalAdvance(line) > room.width()) return false;
  return control.fontMetrics().height() * lines.size() <= room.height() &&
         QFontInfo(control.font()).pixelSize() >= SmallestPixels;
}

static bool labelFits(const QLabel& label) {
  if (label.wordWrap()) return label.heightForWidth(label.width()) <= label.height();
  return fits(label, label.buddy() ? withoutMnemonic(label.text()) : label.text(), label.contentsRect().size());
}

static bool buttonFits(const QAbstractButton& button) {
  int width = button.width() - 2 * ButtonFrame;
  if (const auto* const box = qobject_cast<const QCheckBox*>(&button)) {
    QStyleOptionButton option;
    option.initFrom(box);
    width = box->style()->subElementRect(QStyle::SE_CheckBoxContents, &option, box).width();
  }
  return fits(button, withoutMnemonic(button.text()), {width, button.height()});
}

static bool rowsFit(const QComboBox& list) {
  QStyleOptionComboBox option;
  option.initFrom(&list);
  const QRect room = list.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &list);
  for (int row = 0; row < list.count(); ++row)
    if (!fits(list, list.itemText(row), room.size())) return false;
  return true;
}

static bool headingsFit(const QHeaderView& header) {
  const int margins = 2 * header.style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, &header);
  for (int column = 0; column < header.count(); ++column) {
    const QString text = header.model()->headerData(column, header.orientation()).toString();
    if (!fits(header, text, {header.sectionSize(column) - margins, header.height()})) return false;
  }
  return true;
}

static bool captionFits(const QWidget& control) {
  if (const auto* const label = qobject_cast<const QLabel*>(&control)) return labelFits(*label);
  if (const auto* const button = qobject_cast<const QAbstractButton*>(&control)) return buttonFits(*button);
  if (const auto* const list = qobject_cast<const QComboBox*>(&control)) return rowsFit(*list);
  if (const auto* const header = qobject_cast<const QHeaderView*>(&control)) return headingsFit(*header);
  if (const auto* const field = qobject_cast<const QLineEdit*>(&control))
    return fits(*field, field->placeholderText(), field->size());
  return true;
}

/// Controls that lie across another (but for its edge), reach beyond the window, or have no name for assistive
/// technology.
static QStringList outOfPlace(const QWidget& window) {
  QList<const QWidget*> placed;
  QStringList found;
  for (const QWidget* const control : window.findChildren<QWidget*>()) {
    const QWidget* const parent = control->parentWidget();
    const bool read = control->focusPolicy() != Qt::NoFocus || qobject_cast<const QLabel*>(control);
    if (!read || !control->isVisibleTo(&window) || (parent != &window && parent->parentWidget() != &window)) continue;
    if (control->accessibleName().isEmpty() && control->focusPolicy() & Qt::TabFocus) found << control->objectName();
    if (!parent->rect().contains(control->geometry())) found << control->objectName();
    for (const QWidget* const other : placed)
      if (other->parentWidget() == parent && other->geometry().adjusted(1, 1, -1, -1).intersects(control->geometry()))
        found << control->objectName() + u" on "_s + other->objectName();
    placed << control;
  }
  return found;
}

/// How many letters the window's menus, buttons and labels can be called by, or -1 if two have the same.
static qsizetype lettersOf(const QWidget& window) {
  QStringList letters;
  for (const QMenuBar* const bar : window.findChildren<QMenuBar*>())
    for (const QAction* const menu : bar->actions()) letters << menu->text();
  for (const QLabel* const label : window.findChildren<QLabel*>()) letters << label->text();
  for (const QAbstractButton* const button : window.findChildren<QAbstractButton*>()) letters << button->text();
  for (QString& text : letters) text = QKeySequence::mnemonic(text).toString();
  letters.removeAll(QString());
  return letters.removeDuplicates() == 0 ? letters.size() : -1;
}

static QString tabOrder(const QWidget& window, const QString& first) {
  QStringList order;
  for (const auto* w = controlOf<QWidget>(window, qPrintable(first)); !order.contains(w->objectName());
       w = w->nextInFocusChain())
    if (w->parentWidget() == &window && w->focusPolicy() & Qt::TabFocus) order << w->objectName();
  return order.join(u' ');
}

class tst_Captions : public QObject {
  Q_OBJECT
 private slots:
  void cleanup() { Languages::install({}); }

  void captionsFit_data() {
    addColumns<QString, int, int>("language", "window", "pixels");
    for (int i = 0; i < int(std::size(windows)); ++i) {
      for (const QString& language : QStringList(QString()) + Languages::shipped())
        QTest::addRow("%s in \"%s\"", windows[i].name, qPrintable(language)) << language << i << 0;
      // The main window's banner is a picture of a fixed height.
      if (i > 0) QTest::addRow("%s in a large font", windows[i].name) << QString() << i << 22;
    }
  }
  void captionsFit() {
    QFETCH(QString, language);
    QFETCH(int, window);
    QFETCH(int, pixels);
    const TemporaryHome home;
    std::optional<FontSize> font;
    if (pixels > 0) font.emplace(pixels);
    Languages::install(language);
    const std::unique_ptr<QWidget> shown = windows[window].make();
    (void)shown->grab();  // lays it out
    QVERIFY(lettersOf(*shown) >= (language.isEmpty() ? windows[window].fewestLetters : 0));
    if (qobject_cast<QDialog*>(shown.get())) QCOMPARE(controlsWithoutName(*shown), QStringList());
    if (const QString order = QLatin1String(windows[window].tabOrder); !order.isEmpty())
      QCOMPARE(tabOrder(*shown, order.section(u' ', 0, 0)), order);
    QStringList cut;
    for (const QWidget* const control : shown->findChildren<QWidget*>())
      if (control->isVisibleTo(shown.get()) && !Eliding.contains(control->objectName()) && !captionFits(*control))
        cut << u"%1 (%2 pixels)"_s.arg(control->objectName()).arg(QFontInfo(control->font()).pixelSize());
    QVERIFY2(cut.isEmpty(), qPrintable(cut.join(u", "_s)));
    for (const QSize size : {shown->size(), shown->minimumSize(), QSize(1800, 1100)}) {
      shown->resize(size);
      (void)shown->grab();
      QCOMPARE(outOfPlace(*shown).join(u", "_s), QString());
    }
  }
};

VANTRY_TEST(tst_Captions);
#include "tst_Captions.moc"
