// The editor's folders: chosen, cleared, gone, and on a share that hangs; and the mount groups.

#include <QDir>
#include <thread>

#include "EditorFixture.h"
#include "support/HangingShare.h"

using namespace Qt::Literals::StringLiterals;

class tst_EditTaskWindowFolders : public QObject {
  Q_OBJECT

  /// Presses Set and chooses that folder, or cancels; the folder that the chooser began at.
  static QString choose(EditorFixture& fixture, const QString& folder) {
    const Choice choice(folder);
    fixture.press("InputFolderSetButton");
    [&] { QTRY_VERIFY(choice.made()); }();
    if (choice.title + choice.action != u"Input FolderSelect"_s || !choice.prompt.contains(u"watched for new"_s))
      qFatal("another chooser");
    return choice.directory;
  }

 private slots:
  void cleanup() { UploaderTask::setMountOperation({}); }

  void choosingAndClearing() {
    EditorFixture fixture;
    fixture.openNew();
    const QString in = fixture.home.path(u"in"_s);
    (void)choose(fixture, in);
    QTRY_COMPARE(fixture.text("InputFolder"), u"in"_s);
    QVERIFY(fixture.control("InputFolder")->toolTip().contains(in));
    QTRY_VERIFY(!fixture.isRed("inputFolderLabel"));
    QCOMPARE(choose(fixture, {}), in);
    QCOMPARE(fixture.text("InputFolder"), u"in"_s);
    fixture.press("ClearInputButton");
    QVERIFY(fixture.text("InputFolder") == u"n/a"_s && fixture.isRed("inputFolderLabel"));
    QCOMPARE(choose(fixture, {}), QDir::homePath());

    fixture.open(fixture.storedTask());
    for (const auto& [button, chosen] :
         {std::pair("InputFolderSetButton", u"out"_s), {"OutputFOlderSetButton", u"in"_s}}) {
      const Choice choice(fixture.home.path(chosen));
      const BoxAnswer told(QMessageBox::Ok);
      fixture.press(button);
      QTRY_COMPARE(told.text(), u"The input and output folder cannot be the same"_s);
      QCOMPARE(fixture.text("InputFolder") + fixture.text("OutputFolder"), u"inout"_s);
    }
    fixture.press("ClearOutPutButton");
    QCOMPARE(fixture.text("OutputFolder"), u"n/a"_s);
    QVERIFY2(fixture.control("OutputFolder")->toolTip().contains(fixture.home.path(u"out"_s)), "its help tag stays");
    QVERIFY(fixture.save()->outputFolderPath.isEmpty());
  }

  void foldersThatAreGone() {
    EditorFixture fixture;
    fixture.open(fixture.storedTask([&](UploaderTask& t) {
      t.inputFolderPath = fixture.home.path(u"gone"_s);
      t.outputFolderPath = fixture.home.path(u"gone too"_s);
    }));
    for (const char* const field : {"InputFolder", "OutputFolder"}) QTRY_COMPARE(fixture.text(field), u"n/a"_s);
    QVERIFY(fixture.control("InputFolder")->toolTip().isEmpty());
    QVERIFY(fixture.isRed("inputFolderLabel") && !fixture.isRed("outputFolderLabel"));

    fixture.open(fixture.storedTask());
    QTRY_VERIFY(fixture.canSave());
    QVERIFY(QDir(fixture.home.path(u"in"_s)).removeRecursively());
    fixture.type("TaskName", u"Press"_s);
    QTRY_VERIFY2(!fixture.canSave(), "noticed at the next check");
    QVERIFY(fixture.isRed("inputFolderLabel"));
    QCOMPARE(fixture.text("InputFolder"), u"in"_s);
    fixture.home.makeFolder(u"in"_s);
    fixture.type("TaskName", u"Press 1"_s);
    QTRY_VERIFY(fixture.canSave());
  }

  void aShareThatHangsHoldsNothingUpAndIsTakenAgain() {
    EditorFixture fixture;
    const TaskPointer task = fixture.storedTask([&](UploaderTask& t) {
      t.inputFolderPath = fixture.home.makeFolder(u"hanging-share/in"_s);
      t.outputFolderPath = fixture.home.makeFolder(u"hanging-share/out"_s);
    });
    {
      const LoopWatch watch;
      const HangingShare hangs;
      fixture.open(task);
      QVERIFY(!fixture.canSave());
      for (const QString& name : {u"P"_s, u"Pr"_s, u"Pre"_s}) fixture.type("TaskName", name);
      QCOMPARE(choose(fixture, {}), QDir::homePath());
      QTRY_VERIFY_WITH_TIMEOUT(fixture.isRed("inputFolderLabel"), 5000);
      QVERIFY(fixture.sample().contains(u"slow to answer"_s));
      QCOMPARE(fixture.text("InputFolder") + fixture.text("OutputFolder"), u"inout"_s);
      QElapsedTimer cancel;
      cancel.start();
      fixture.press("CancelDialogButton");
      fixture.close();
      QVERIFY2(cancel.elapsed() < 100, qPrintable(QString::number(cancel.elapsed())));
      QVERIFY(!task->Busy && HangingShare::waiting() > 0);
      QVERIFY2(watch.longestMs() < 500, qPrintable(QString::number(watch.longestMs())));  // the dialogs' opening
      fixture.open(task);
      QTRY_VERIFY_WITH_TIMEOUT(fixture.isRed("inputFolderLabel"), 5000);
    }
    QTRY_VERIFY(fixture.canSave());
    QTRY_COMPARE(fixture.sample(), u"There are no files in the input folder"_s);
  }

  void aMountTestNeedsAllItsFieldsSaysWhatFailedAndCanBeCancelled() {
    EditorFixture fixture;
    fixture.openNew();
    QString asked;
    std::atomic<int> begun = 0, ended = 0;
    UploaderTask::setMountOperation([&](const MountRequest& request, int& errorCode) {
      asked = request.url + u' ' + request.userName + u' ' + request.password;
      ++begun;
      while (request.url.contains(u"hangs"_s) && !request.cancelled()) std::this_thread::yield();
      ++ended;
      errorCode = 13;
      return u" "_s;
    });
    auto* test = fixture.control<QPushButton>("TestAutoMountInput");
    fixture.tick("AutoMountInput");
    for (const char* const control : {"TestAutoMountInput", "inputLogin", "inputFolderUrl", "InputPassword"})
      QVERIFY2(fixture.enabled(control), control);
    QVERIFY(!fixture.enabled("TestAutoMountOUtput"));
    QCOMPARE(fixture.control<QLineEdit>("InputPassword")->echoMode(), QLineEdit::Password);
    fixture.type("inputFolderUrl", u" smb://host/a b "_s);
    fixture.type("inputLogin", u" me "_s);
    for (const auto& [password, message] :
         {std::pair(u"  "_s, u"Please enter the URL, the login and the password of the share first."_s),
          {u"secret"_s, u"Error Mounting\nERR:13"_s}}) {
      QCOMPARE(begun, 0);
      fixture.type("InputPassword", password);
      const BoxAnswer told(QMessageBox::Ok);
      test->click();
      QTRY_COMPARE(told.text(), message);
    }
    QCOMPARE(asked, u"smb://host/a b me secret"_s);
    fixture.tick("AutoMountInput", false);
    QVERIFY(!fixture.enabled("inputFolderUrl"));
    fixture.tick("autoMountOutput");
    for (const char* const field : {"OutputFolderURL", "outputLogin", "outputPassword"})
      fixture.type(field, u"hangs"_s);
    test = fixture.control<QPushButton>("TestAutoMountOUtput");
    for (const bool byButton : {true, false}) {
      test->click();
      QTRY_COMPARE(begun, byButton ? 2 : 3);
      QCOMPARE(test->text(), u"Stop"_s);
      byButton ? test->click() : fixture.tick("autoMountOutput", false);
      QTRY_COMPARE(ended, begun);
      QCOMPARE(test->text(), u"Test"_s);
    }
    QVERIFY(BackgroundCall::waitForAll(60'000));
    QVERIFY(!QApplication::activeModalWidget() || QApplication::activeModalWidget() == &fixture.dialog());
  }

  void aGoodMountBringsTheFolderBack() {
    EditorFixture fixture;
    const QString share = fixture.home.path(u"share"_s);
    const TaskPointer task = fixture.storedTask([&](UploaderTask& t) {
      t.inputFolderPath = share + u"/in"_s;
      t.AutoMountInputFolder = true;
      t.inputfolderURL = u"smb://server/a b"_s;
      t.InputLogin = u"SHOP\\me"_s;
      t.inputPassword = u"secret"_s;
    });
    UploaderTask::setMountOperation([&](const MountRequest&, int&) {
      fixture.home.makeFolder(u"share/in"_s);
      return share;
    });
    UploaderTask::setTriedAutoMount(true);
    fixture.open(task);
    QTRY_COMPARE(fixture.text("InputFolder"), u"n/a"_s);
    const BoxAnswer told(QMessageBox::Ok);
    fixture.press("TestAutoMountInput");
    QTRY_COMPARE(told.text(), u"OK0"_s);
    QVERIFY(!UploaderTask::triedAutoMount());
    QTRY_VERIFY(fixture.canSave());
    fixture.press("ClearInputButton");
    QCOMPARE(choose(fixture, share + u"/in"_s), share);
    (void)fixture.save();
    UploaderTask::Load();
    const TaskPointer saved = UploaderTask::allTasks().first();
    QVERIFY(saved->AutoMountInputFolder && !saved->autoMountOutputFolder);
    QCOMPARE((QStringList{saved->inputFolderPath, saved->inputfolderURL, saved->InputLogin, saved->inputPassword}),
             (QStringList{share + u"/in"_s, u"smb://server/a b"_s, u"SHOP\\me"_s, u"secret"_s}));
  }
};

VANTRY_TEST(tst_EditTaskWindowFolders);
#include "tst_EditTaskWindowFolders.moc"
