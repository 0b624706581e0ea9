// The editor's folders: chosen, cleared, gone, and on a share that hangs; and the mount groups.

#include <QDir>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QSignalSpy>

#include "EditorFixture.h"
#include "HangingShare.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;

/// Chooses a folder in the next dialog, or cancels it.
class Choice : public QObject {
 public:
  explicit Choice(QString folder) : m_folder(std::move(folder)) {
    connect(&m_timer, &QTimer::timeout, this, [this] { choose(); });
    m_timer.start(5);
  }
  [[nodiscard]] bool made() const { return m_made; }
  QString title, prompt, directory, action;

 private:
  void choose() {
    auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    if (!dialog || !dialog->isVisible()) return;
    m_timer.stop();
    title = dialog->windowTitle();
    directory = dialog->directory().path();
    action = dialog->labelText(QFileDialog::Accept);
    prompt = dialog->findChild<QLabel*>(u"PromptText"_s)->text();
    if (!m_folder.isEmpty()) dialog->setDirectory(m_folder);
    static_cast<QDialog*>(dialog)->done(m_folder.isEmpty() ? QDialog::Rejected : QDialog::Accepted);
    m_made = true;
  }
  QString m_folder;
  QTimer m_timer;
  bool m_made = false;
};

class tst_EditTaskWindowFolders : public QObject {
  Q_OBJECT

 private slots:
  void cleanup() { UploaderTask::setMountOperation({}); }

  void choosingAFolder() {
    EditorFixture fixture;
    fixture.openNew();
    const Choice choice(fixture.home.path(u"in"_s));
    fixture.press("InputFolderSetButton");
    QTRY_VERIFY(choice.made());
    QCOMPARE(choice.title, u"Input Folder"_s);
    QCOMPARE(choice.action, u"Select"_s);
    QCOMPARE(choice.prompt,
             u"Select the input folder for this task.\nThis is the folder that will be watched for new files."_s);
    QTRY_COMPARE(fixture.text("InputFolder"), u"in"_s);
    QVERIFY(fixture.control<QWidget>("InputFolder")->toolTip().contains(fixture.home.path(u"in"_s)));
    QTRY_VERIFY(!fixture.isRed("inputFolderLabel"));

    const Choice cancelled({});
    fixture.press("InputFolderSetButton");
    QTRY_VERIFY(cancelled.made());
    QCOMPARE(cancelled.directory, fixture.home.path(u"in"_s));
    QCOMPARE(fixture.text("InputFolder"), u"in"_s);

    fixture.press("ClearInputButton");
    QCOMPARE(fixture.text("InputFolder"), u"n/a"_s);
    QVERIFY(fixture.isRed("inputFolderLabel"));
    const Choice after({});
    fixture.press("InputFolderSetButton");
    QTRY_VERIFY(after.made());
    QCOMPARE(after.directory, QDir::homePath());
  }

  void theTwoFoldersMustDiffer_data() {
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("chosen");
    QTest::newRow("the output folder as input") << u"InputFolderSetButton"_s << u"InputFolder"_s << u"out"_s;
    QTest::newRow("the input folder as output") << u"OutputFOlderSetButton"_s << u"OutputFolder"_s << u"in"_s;
  }
  void theTwoFoldersMustDiffer() {
    QFETCH(QString, button);
    QFETCH(QString, field);
    QFETCH(QString, chosen);
    EditorFixture fixture;
    fixture.open(fixture.storedTask());
    const QString before = fixture.text(field.toLatin1());
    const Choice choice(fixture.home.path(chosen));
    const BoxAnswer told(QMessageBox::Ok);
    fixture.press(button.toLatin1());
    QTRY_COMPARE(told.text(), u"The input and output folder cannot be the same"_s);
    QCOMPARE(fixture.text(field.toLatin1()), before);
  }

  void anotherFolderThatIsGoneMayBeChosenAgain() {
    EditorFixture fixture;
    const QString other = fixture.home.makeFolder(u"OUT2"_s);
    fixture.home.makeFolder(u"out2"_s);
    fixture.open(fixture.storedTask([&](UploaderTask& t) { t.outputFolderPath = other; }));
    QTRY_COMPARE(fixture.text("OutputFolder"), u"OUT2"_s);
    QTRY_VERIFY(fixture.canSave());
    QVERIFY(QDir().rmdir(other));
    const Choice choice(fixture.home.path(u"out2"_s));
    fixture.press("InputFolderSetButton");
    QTRY_COMPARE(fixture.text("InputFolder"), u"out2"_s);
  }

  void foldersThatAreGoneAreForgottenAtOpening() {
    EditorFixture fixture;
    const TaskPointer task = fixture.storedTask([&](UploaderTask& t) {
      t.inputFolderPath = fixture.home.path(u"gone"_s);
      t.outputFolderPath = fixture.home.path(u"gone too"_s);
    });
    fixture.open(task);
    QTRY_COMPARE(fixture.text("InputFolder"), u"n/a"_s);
    QTRY_COMPARE(fixture.text("OutputFolder"), u"n/a"_s);
    QVERIFY(fixture.control<QWidget>("InputFolder")->toolTip().isEmpty());
    QVERIFY(fixture.isRed("inputFolderLabel"));
    QVERIFY(!fixture.isRed("outputFolderLabel"));
  }

  void aFolderThatVanishesIsNoticedAtTheNextCheck() {
    EditorFixture fixture;
    fixture.open(fixture.storedTask());
    QTRY_VERIFY(fixture.canSave());
    QVERIFY(QDir(fixture.home.path(u"in"_s)).removeRecursively());
    fixture.type("TaskName", u"Press"_s);
    QTRY_VERIFY(!fixture.canSave());
    QVERIFY(fixture.isRed("inputFolderLabel"));
    QCOMPARE(fixture.text("InputFolder"), u"in"_s);
    fixture.home.makeFolder(u"in"_s);
    fixture.type("TaskName", u"Press 1"_s);
    QTRY_VERIFY(fixture.canSave());
  }

  void theLabelTagStaysAfterAClear() {
    EditorFixture fixture;
    fixture.open(fixture.storedTask());
    fixture.press("ClearOutPutButton");
    QCOMPARE(fixture.text("OutputFolder"), u"n/a"_s);
    QVERIFY(fixture.control<QWidget>("OutputFolder")->toolTip().contains(fixture.home.path(u"out"_s)));
    QTRY_VERIFY(fixture.canSave());
    fixture.press("OkButton");
    QVERIFY(UploaderTask::allTasks().first()->outputFolderPath.isEmpty());
  }

  void aShareThatHangsHoldsNothingUp() {
    EditorFixture fixture;
    const QString share = fixture.home.makeFolder(u"hanging-share/in"_s);
    const TaskPointer task = fixture.storedTask([&](UploaderTask& t) {
      t.inputFolderPath = share;
      t.outputFolderPath = fixture.home.makeFolder(u"hanging-share/out"_s);
    });
    // The longest that the event loop stood still.
    qint64 longestPause = 0;
    QElapsedTimer sinceBeat;
    QTimer heart;
    connect(&heart, &QTimer::timeout, this, [&] { longestPause = qMax(longestPause, sinceBeat.restart()); });
    sinceBeat.start();
    heart.start(1);
    {
      const HangingShare hangs;
      QElapsedTimer whole;
      whole.start();
      fixture.open(task);
      QVERIFY(!fixture.canSave());
      for (const QString& name : {u"P"_s, u"Pr"_s, u"Pre"_s}) fixture.type("TaskName", name);
      const Choice choice({});
      fixture.press("InputFolderSetButton");
      QTRY_VERIFY(choice.made());
      QCOMPARE(choice.directory, QDir::homePath());
      QTRY_VERIFY_WITH_TIMEOUT(fixture.isRed("inputFolderLabel"), 5000);
      QVERIFY(fixture.control<LiveSample>("Sample")->line().contains(u"slow to answer"_s));
      QCOMPARE(fixture.text("InputFolder"), u"in"_s);
      QCOMPARE(fixture.text("OutputFolder"), u"out"_s);
      QVERIFY(HangingShare::waiting() > 0);
      QElapsedTimer cancel;
      cancel.start();
      fixture.press("CancelDialogButton");
      fixture.close();
      QVERIFY2(cancel.elapsed() < 100, qPrintable(QString::number(cancel.elapsed())));
      QVERIFY(!task->Busy);
      QVERIFY(HangingShare::waiting() > 0);
    }
    QVERIFY2(longestPause < 500, qPrintable(QString::number(longestPause)));  // opening dialogs on a busy machine
    QVERIFY(BackgroundCall::waitForAll(10'000));
    QCoreApplication::processEvents();
  }

  void aShareThatComesBackIsTakenAgain() {
    EditorFixture fixture;
    const QString share = fixture.home.makeFolder(u"hanging-share/in"_s);
    const TaskPointer task = fixture.storedTask([&](UploaderTask& t) { t.inputFolderPath = share; });
    {
      const HangingShare hangs;
      fixture.open(task);
      QTRY_VERIFY_WITH_TIMEOUT(fixture.isRed("inputFolderLabel"), 5000);
    }
    QTRY_VERIFY(fixture.canSave());
    QTRY_COMPARE(fixture.control<LiveSample>("Sample")->line(), u"There are no files in the input folder"_s);
  }

  void testingAMount_data() {
    QTest::addColumn<QString>("password");
    QTest::addColumn<QString>("mountPoint");
    QTest::addColumn<QString>("message");
    QTest::addColumn<bool>("pauseEnds");
    QTest::newRow("a password of blanks is none")
        << u"  "_s << u"/mnt"_s << u"klPleaseEnterAutoMountDetails"_s << false;
    QTest::newRow("it fails") << u"secret"_s << u" "_s << u"Error Mounting\nERR:13"_s << false;
    QTest::newRow("it works") << u"secret"_s << u"/mnt/x"_s << u"OK13"_s << true;
  }
  void testingAMount() {
    QFETCH(QString, password);
    QFETCH(QString, mountPoint);
    EditorFixture fixture;
    fixture.openNew();
    UploaderTask::setTriedAutoMount(true);
    QString asked;
    UploaderTask::setMountOperation([&](const MountRequest& request, int& errorCode) {
      asked = request.url + u' ' + request.userName + u' ' + request.password;
      errorCode = 13;
      return mountPoint;
    });
    auto* const box = fixture.control<QCheckBox>("AutoMountInput");
    box->setChecked(true);
    for (const char* const control : {"TestAutoMountInput", "inputLogin", "inputFolderUrl", "InputPassword"})
      QVERIFY2(fixture.control<QWidget>(control)->isEnabled(), control);
    QVERIFY(!fixture.control<QWidget>("TestAutoMountOUtput")->isEnabled());
    fixture.type("inputFolderUrl", u" smb://host/a b "_s);
    fixture.type("inputLogin", u" me "_s);
    fixture.type("InputPassword", password);
    const BoxAnswer told(QMessageBox::Ok);
    fixture.press("TestAutoMountInput");
    QTRY_VERIFY(!told.text().isEmpty());
    QTEST(told.text(), "message");
    if (!password.trimmed().isEmpty()) QCOMPARE(asked, u"smb://host/a b me secret"_s);
    QFETCH(bool, pauseEnds);
    QCOMPARE(UploaderTask::triedAutoMount(), !pauseEnds);
    UploaderTask::setTriedAutoMount(false);
    box->setChecked(false);
    QVERIFY(!fixture.control<QWidget>("inputFolderUrl")->isEnabled());
  }
};

VANTRY_TEST(tst_EditTaskWindowFolders);
#include "tst_EditTaskWindowFolders.moc"
