// A first day, by the windows alone: from a start without a login to files at the service, and on to the next start.

#include <QTreeView>
#include <QUrl>

#include "admin/AdminPasswordWindow.h"
#include "admin/AdminWindow.h"
#include "editor/EditTaskWindow.h"
#include "engine/EngineClock.h"
#include "engine/StartUp.h"
#include "engine/UploadThread.h"
#include "monitor/VTUploaderMainWIndow.h"
#include "service/VTInstrumentTrack.h"
#include "service/VTTrack.h"
#include "service/VantryUtil.h"
#include "support/EngineBench.h"
#include "support/ProgramHome.h"
#include "support/TestRunner.h"
#include "text/VTULocalization.h"

using namespace Qt::Literals::StringLiterals;

static void press(const QWidget& window, const char* button) { controlOf<QPushButton>(window, button)->click(); }
static void type(const QWidget& window, const char* field, const QString& text) {
  controlOf<QLineEdit>(window, field)->setText(text);
}
class tst_FirstDay : public QObject {
  Q_OBJECT

  std::unique_ptr<EngineBench> m_bench;
  std::unique_ptr<VTUploaderMainWIndow> m_window;

  /// Starts the program as main() does, with quicker ticks.
  void start() {
    MainWindowCommands commands;
    commands.createNewTask = [this] { return EditTaskWindow::CreateNewTask(m_window.get()); };
    commands.editTask = [this](const TaskPointer& task) { return EditTaskWindow::EditTask(task, m_window.get()); };
    commands.checkAdminPassword = [this] { return AdminPasswordWindow::CheckAdminPassword(m_window.get()); };
    commands.showAdminWindow = [this] { return AdminWindow::ShowModal(m_window.get()); };
    m_window = std::make_unique<VTUploaderMainWIndow>(commands);
    controlOf<QTimer>(*m_window, "StatusRefresher")->setInterval(100);
    m_window->show();
  }
  /// Quits by the window, as a user does.
  void quit() {
    const BoxAnswer yes(QMessageBox::Yes);
    QTimer::singleShot(0, m_window.get(), &QWidget::close);
    QCOMPARE(QApplication::exec(), 0);
    UploadThread::Enabled = false;
    QVERIFY(StartUp::stop(60'000) && UploadThread::stop(60'000) && BackgroundCall::waitForAll(60'000));
    m_window.reset();
    UploaderTask::unload();
    UploadThread::allowAgain();
  }
  void makeTask(const QString& name, int warden, const QString& destination) {
    const Inside<EditTaskWindow> editor([&](EditTaskWindow& dialog) {
      type(dialog, "TaskName", name);
      controlOf<QComboBox>(dialog, "Warden")->setCurrentIndex(warden);
      for (const char* const list : {"TrackList1", "TrackList2"})
        controlOf<QComboBox>(dialog, list)->setCurrentIndex(0);
      QCOMPARE(controlOf<QComboBox>(dialog, "TrackList2")->currentData().toString(), destination);
      for (const char* const button : {"InputFolderSetButton", "OutputFOlderSetButton"}) {
        const Choice choice(m_bench->home.makeFolder(name + QLatin1String(button[0] == 'I' ? "" : " done")));
        press(dialog, button);
        QTRY_VERIFY(choice.made());
      }
      controlOf<QCheckBox>(dialog, "DeleteFileAfterCopyCheckBox")->setChecked(true);
      QTRY_VERIFY(controlOf<QPushButton>(dialog, "OkButton")->isEnabled());
      press(dialog, "OkButton");
    });
    press(*m_window, "NewButton");
    QVERIFY(editor.done());
  }
  /// Selects a task by its name and presses a button.
  void command(const QString& name, const char* button) {
    auto* const list = controlOf<QTreeView>(*m_window, "TaskList");
    list->setCurrentIndex(list->model()->index(static_cast<int>(listed().indexOf(name)), 0));
    press(*m_window, button);
  }
  [[nodiscard]] QStringList listed() const {
    const auto* const model = controlOf<QTreeView>(*m_window, "TaskList")->model();
    QStringList names;
    for (int row = 0; row < model->rowCount(); ++row)
      names << model->index(row, TaskListModel::NameColumn).data().toString();
    return names;
  }

 private slots:
  void init() {
    m_bench = std::make_unique<EngineBench>();
    setEngineClock(nullptr);  // files go out once they have rested by the machine's clock
    m_bench->service.stop();
    const auto port = static_cast<quint16>(QUrl(VantryUtil::DefaultAPIEndpoint()).port(443));
    QTRY_VERIFY(m_bench->service.start(port));
    VantryUtil::setExtraCaFile(m_bench->service.caFile());
    VantryUtil::setAccountURL({});
    for (const char* const key : {"SoapLogin", "SoapPassword"}) VantryUtil::prefs->Remove(QString::fromLatin1(key));
    m_bench->restart();
    UploadThread::Enabled = false;
  }
  void cleanup() {
    StartUp::stop(60'000);
    m_window.reset();
    m_bench.reset();
    VTTrack::setTracks({});
    VTInstrumentTrack::setTracks({});
  }

  void fromTheFirstStartToTheSecond() {
    PracticeService& service = m_bench->service;
    const Inside<AdminWindow> setUp([&](AdminWindow& admin) {
      QVERIFY(!UploadThread::Enabled && service.requests().isEmpty());
      type(admin, "SoapLogin", PracticeService::Options().login);
      type(admin, "soapPassword", u"wrong"_s);
      const BoxAnswer refused(QMessageBox::Ok);
      press(admin, "CheckAndConnectButton");
      QTRY_COMPARE(refused.text(), VantryUtil::errToString(u"E009"_s));
      type(admin, "soapPassword", PracticeService::Options().password);
      press(admin, "CheckAndConnectButton");
      QTRY_COMPARE(controlOf<QLabel>(admin, "TestLine")->text(), VTULocalization::klTestSucceeded());
      press(admin, "OKAdminButton");
    });
    start();
    QTRY_VERIFY(setUp.done());
    QTRY_VERIFY(UploadThread::Enabled && VTInstrumentTrack::everFetched());
    QVERIFY2(Problems::present().isEmpty(), "the strip asks for no login any more");

    const QString print = PracticeService::knownPrintTrack(), pair = PracticeService::knownInstrumentTrack();
    makeTask(u"Press"_s, 0, print);
    makeTask(u"Bench"_s, 1, pair);
    QCOMPARE(listed(), (QStringList{u"Bench"_s, u"Press"_s}));
    m_bench->drop(u"p.txt"_s, "patches", u"Press"_s);
    m_bench->drop(u"b.txt"_s, "readings", u"Bench"_s);
    QTRY_COMPARE(m_bench->log().size(), 2);
    QStringList sent, notes = m_bench->notes();
    for (const PracticeReceipt& receipt : service.receipts())
      sent << receipt.name + receipt.kind + receipt.destination + QString::fromUtf8(receipt.content);
    sent.sort();
    notes.sort();
    QCOMPARE(sent, (QStringList{u"b.txtinstrument"_s + pair + u"readings"_s, u"p.txtprint"_s + print + u"patches"_s}));
    QCOMPARE(notes,
             (QStringList{u"Uploaded to Instrument - Deleted Locally"_s, u"Uploaded to Print - Deleted Locally"_s}));
    QCOMPARE(m_bench->files(u"Press done"_s) + m_bench->files(u"Bench done"_s), (QStringList{u"p.txt"_s, u"b.txt"_s}));
    QVERIFY((m_bench->files(u"Press"_s) + m_bench->files(u"Bench"_s)).isEmpty());

    QTRY_VERIFY(!UploadThread::ProcessingNow());
    const Inside<EditTaskWindow> renaming([](EditTaskWindow& dialog) {
      type(dialog, "TaskName", u"Press 7"_s);
      QTRY_VERIFY(controlOf<QPushButton>(dialog, "OkButton")->isEnabled());
      press(dialog, "OkButton");
    });
    command(u"Press"_s, "EditButton");
    command(u"Press 7"_s, "DuplicateButton");
    QCOMPARE(listed(), (QStringList{u"Bench"_s, u"Press 7"_s, u"Press 7 Copy"_s}));
    const BoxAnswer yes(QMessageBox::Yes);
    command(u"Bench"_s, "RemoveButton");
    quit();

    m_bench->restart();
    VantryUtil::setAccountURL({});
    start();
    QTRY_COMPARE(listed(), (QStringList{u"Press 7"_s, u"Press 7 Copy"_s}));
    m_bench->drop(u"p2.txt"_s, "more", u"Press"_s);
    m_bench->drop(u"b2.txt"_s, "more", u"Bench"_s);
    QTRY_COMPARE(m_bench->files(u"Press done"_s), (QStringList{u"p.txt"_s, u"p2.txt"_s}));
    QCOMPARE(m_bench->received().size(), 3);
    quit();
  }
};

VANTRY_TEST(tst_FirstDay);
#include "tst_FirstDay.moc"
