// The file chooser while a share hangs: each way into a folder and out of it, choosing, and closing the dialog.

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileSystemModel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QToolButton>
#include <QTreeView>

#include "support/DialogAnswers.h"
#include "support/HangingShare.h"
#include "support/ProgramHome.h"
#include "support/TestRunner.h"
#include "widgets/PathChooser.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// A chooser that is open in a local folder, in which a share is mounted, and that knows what lies in either.
class OpenChooser {
 public:
  explicit OpenChooser(PathChooser::What what = PathChooser::What::Folder, bool listed = true) {
    home.makeFolder(u"local/hanging-share/in"_s);
    home.makeFolder(u"local/jobs/in"_s);
    window.show();
    const PathChooser::Texts texts{u"t"_s, u"Select"_s, u"Cancel"_s, u"p"_s, u"log.txt"_s};
    chooser = std::make_unique<PathChooser>(&window);
    chooser->choose(what, texts, FolderItem::fromNativePath(local), [this](const auto& item) {
      ended = true;
      chosen = item ? item->NativePath() : QString();
    });
    [&] { QTRY_VERIFY((dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget()))); }();
    dialog->setViewMode(QFileDialog::Detail);
    if (listed) [&] { QTRY_VERIFY(row(u"hanging-share"_s).isValid()); }();
  }
  ~OpenChooser() {
    chooser.reset();
    [&] { QTRY_VERIFY2(!dialog, "a dialog that is closed goes"); }();
  }
  template <typename Widget>
  Widget* part(const char* name) {
    return dialog->findChild<Widget*>(QString::fromLatin1(name));
  }
  QModelIndex row(const QString& name) {
    const auto* const view = part<QListView>("listView");
    const QModelIndexList found =
        view->model()->match(view->model()->index(0, 0, view->rootIndex()), Qt::DisplayRole, name, 1, Qt::MatchExactly);
    return found.value(0);
  }
  void type(const QString& text) {
    part<QLineEdit>("fileNameEdit")->clear();
    QTest::keyClicks(part<QLineEdit>("fileNameEdit"), text);
    QTest::keyClick(part<QLineEdit>("fileNameEdit"), Qt::Key_Return);
  }
  void activate(const char* view, const QString& name) {
    auto* const shown = part<QAbstractItemView>(view);
    shown->setCurrentIndex(row(name));
    QTest::keyClick(shown, Qt::Key_Return);
  }
  void press(QDialogButtonBox::StandardButton button) { part<QDialogButtonBox>("buttonBox")->button(button)->click(); }
  /// What the dialog says of a folder that gives no answer.
  QString line() {
    const auto* const label = part<QLabel>("SilentFolderText");
    return label->isVisible() ? label->text() : QString();
  }

  ProgramHome home;
  const QString local = home.path(u"local"_s), share = local + u"/hanging-share"_s;
  const MountedShare mounted{share};
  QWidget window;
  std::unique_ptr<PathChooser> chooser;
  QPointer<QFileDialog> dialog;
  bool ended = false;
  QString chosen;
};

using Step = std::function<void(OpenChooser&)>;

}  // namespace

class tst_PathChooser : public QObject {
  Q_OBJECT
 private slots:
  void eachStepWaitsForTheShareInTheBackground_data() {
    addColumns<QString, QString, Step>("begin", "end", "step");
    const QString share = u"/hanging-share"_s, in = share + u"/in"_s;
    const std::tuple<const char*, QString, QString, Step> rows[] = {
        {"a row of the list",
         {},
         share,
         [](OpenChooser& it) {
           it.dialog->setViewMode(QFileDialog::List);
           it.activate("listView", u"hanging-share"_s);
         }},
        {"a row of the table", {}, share, [](OpenChooser& it) { it.activate("treeView", u"hanging-share"_s); }},
        {"typed", {}, u"chosen "_s + in, [](OpenChooser& it) { it.type(it.share + u"/in"_s); }},
        {"chosen",
         {},
         u"chosen "_s + share,
         [](OpenChooser& it) {
           it.part<QAbstractItemView>("treeView")->setFocus();
           it.part<QAbstractItemView>("treeView")->setCurrentIndex(it.row(u"hanging-share"_s));
           it.press(QDialogButtonBox::Open);
         }},
        {"back", in, in,
         [](OpenChooser& it) {
           it.dialog->setDirectory(it.local);
           it.part<QToolButton>("backButton")->click();
         }},
        {"a place at the side",
         {},
         in,
         [](OpenChooser& it) {
           auto* const side = it.part<QListView>("sidebar");
           const QModelIndex last = side->model()->index(side->model()->rowCount() - 1, 0);
           QTest::mouseClick(side->viewport(), Qt::LeftButton, {}, side->visualRect(last).center());
         }},
        {"a place above", in, share,
         [](OpenChooser& it) {
           auto* const places = it.part<QComboBox>("lookInCombo");
           places->showPopup();
           places->hidePopup();
           places->setCurrentIndex(1);
           emit places->activated(1);
           emit places->textActivated(places->currentText());
         }},
        {"up", in, share, [](OpenChooser& it) { QTest::keyClick(it.part<QTreeView>("treeView"), Qt::Key_Backspace); }},
        {"up by two dots", in, share, [](OpenChooser& it) { it.type(u".."_s); }},
        {"inside of it", share, in, [](OpenChooser& it) { it.activate("treeView", u"in"_s); }},
        {"out of it", in, u"chosen"_s, [](OpenChooser& it) { it.type(it.local); }}};
    for (const auto& [label, begin, end, step] : rows) QTest::newRow(label) << begin << end << step;
  }
  void eachStepWaitsForTheShareInTheBackground() {
    QFETCH(QString, begin);
    QFETCH(Step, step);
    QFETCH(QString, end);
    OpenChooser it;
    // A file that is known before its folder is listed is looked at when its row is painted.
    if (begin.isEmpty())
      it.dialog->setSidebarUrls({QUrl::fromLocalFile(it.home.path()), QUrl::fromLocalFile(it.share + u"/in"_s)});
    if (!begin.isEmpty()) {
      it.dialog->setDirectory(it.local + begin);
      if (begin.endsWith(u"share")) QTRY_VERIFY(it.row(u"in"_s).isValid());
    }
    {
      const HangingShare hangs;
      step(it);
      if (end != u"chosen") QTRY_VERIFY_WITH_TIMEOUT(it.line().contains(end.sliced(end.lastIndexOf(u'/') + 1)), 5000);
      QCOMPARE(HangingShare::callsByMainThread(), 0);
      QCOMPARE(it.ended, end == u"chosen");
    }
    if (end.startsWith(u"chosen")) {
      QTRY_VERIFY(it.ended);
      QCOMPARE(it.chosen, it.local + end.sliced(6).trimmed());
    } else {
      QTRY_COMPARE(it.dialog->directory().path(), it.local + end);
      QVERIFY(it.line().isEmpty());
    }
  }

  void localStepsAreLikeTheToolkitsOwn() {
    OpenChooser it;
    auto* const name = it.part<QLineEdit>("fileNameEdit");
    it.part<QAbstractItemView>("treeView")->setFocus();
    it.activate("treeView", u"jobs"_s);
    QTRY_VERIFY(it.row(u"in"_s).isValid());
    QCOMPARE(name->text(), QString());
    name->setFocus();
    name->setText(u".."_s);
    QTest::keyClick(name, Qt::Key_Slash);
    QTRY_VERIFY(it.part<QListView>("listView")->selectionModel()->hasSelection());
    name->setText(u"../jobs/in"_s);
    it.press(QDialogButtonBox::Open);
    QTRY_VERIFY2(it.ended, "what is typed is chosen, and not what was on the way");
    QCOMPARE(it.chosen, it.local + u"/jobs/in"_s);
  }

  void aNameThatWasCompletedIsChosen() {
    // Of a share nothing more is completed.
    for (const auto& [typed, chosen] : {std::pair(u"jo"_s, u"/jobs"_s), {u"hang"_s, u"/hanging-share"_s}}) {
      OpenChooser it;
      QTest::keyClicks(it.part<QLineEdit>("fileNameEdit"), typed);
      QTRY_VERIFY(QApplication::activePopupWidget());
      for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Return}) {
        auto* const list = QApplication::activePopupWidget();
        QTest::keyClick(list ? list : it.part<QLineEdit>("fileNameEdit"), key);
      }
      QTRY_VERIFY(it.ended);
      QCOMPARE(it.chosen, it.local + chosen);
    }
  }

  void aToolkitThatIsBuiltOtherwiseIsLeftAlone() {
    class OtherToolkit : public QObject {
      bool eventFilter(QObject* watched, QEvent*) override {
        if (watched->objectName() == u"sidebar") watched->setObjectName(u"places"_s);
        return false;
      }
    } other;
    qApp->installEventFilter(&other);
    OpenChooser it;
    QVERIFY(!it.part<QLabel>("SilentFolderText"));
    it.type(u"hanging-share"_s);
    QTRY_VERIFY(it.ended);
    QCOMPARE(it.chosen, it.share);
  }

  void cancellingWaitsForNothing_data() {
    addColumns<bool, bool, bool>("folder", "listed", "byWindow");
    QTest::newRow("while a folder is asked") << true << true << false;
    QTest::newRow("while a file is saved") << false << true << false;
    QTest::newRow("while the list is read") << true << false << false;
    QTest::newRow("the window goes") << true << false << true;
  }
  void cancellingWaitsForNothing() {
    QFETCH(bool, folder);
    QFETCH(bool, listed);
    QFETCH(bool, byWindow);
    auto hangs = listed ? nullptr : std::make_unique<HangingShare>();
    OpenChooser it(folder ? PathChooser::What::Folder : PathChooser::What::NewFile, listed);
    if (!hangs) hangs = std::make_unique<HangingShare>();
    if (listed) it.type(u"hanging-share/log.txt"_s);
    QTRY_VERIFY_WITH_TIMEOUT(!it.line().isEmpty() && HangingShare::waiting() > 0, 10000);
    byWindow ? it.chooser.reset() : it.press(QDialogButtonBox::Cancel);
    QVERIFY(it.ended != byWindow && it.chosen.isEmpty());
    QVERIFY(!QApplication::activeModalWidget());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(HangingShare::callsByMainThread(), 0);
    QVERIFY2(listed || it.dialog, "its thread still hangs");
    hangs.reset();
  }
};

VANTRY_TEST(tst_PathChooser);
#include "tst_PathChooser.moc"
