// The practice run is worth nothing if its own check can't fail.

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QTest>

#include "engine/UploaderTask.h"
#include "practice/Deliveries.h"
#include "practice/Screenshot.h"
#include "storage/DictionaryFile.h"
#include "support/TemporaryHome.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;

class tst_Deliveries : public QObject {
  Q_OBJECT

 private slots:
  void everySampleHasATaskThatTakesIt();
  void judgesADelivery_data();
  void judgesADelivery();
  void emptiesNoForeignFolder();
  void furnishesWhatTheUploaderReads();
  void findsTheWindowOnTheScreen();
};

static Delivery delivered(const QString& home, int task, const QString& name) {
  Delivery delivery{name, "patch data", {}, PracticeHome(home).tasks()[task]};
  delivery.sha256 = QCryptographicHash::hash(delivery.content, QCryptographicHash::Sha256).toHex();
  return delivery;
}

static PracticeReceipt receiptOf(const Delivery& delivery, const QString& sentAs) {
  PracticeReceipt receipt;
  receipt.name = sentAs;
  receipt.kind = delivery.task.warden == "Instrument"_L1 ? u"instrument"_s : u"print"_s;
  receipt.destination = delivery.task.destination;
  receipt.size = delivery.content.size();
  receipt.sha256 = delivery.sha256;
  return receipt;
}

void tst_Deliveries::everySampleHasATaskThatTakesIt() {
  const QList<PracticeTask> tasks = PracticeHome(u"/practice"_s).tasks();
  const QList<Delivery> deliveries = assignSamples(QStringLiteral(SAMPLES_FOLDER), tasks);
  QCOMPARE(deliveries.size(), 12);
  QMap<QString, int> perTask;
  for (const Delivery& delivery : deliveries) {
    ++perTask[delivery.task.name];
    UploaderTask task;
    task.Extension = delivery.task.extension;
    task.FileName = delivery.task.fileName;
    task.setExclusionPattern(delivery.task.exclusion);
    QVERIFY2(task.FileNameMatch(delivery.name), qPrintable(delivery.name));
  }
  QCOMPARE(perTask.size(), tasks.size());
}

void tst_Deliveries::judgesADelivery_data() {
  QTest::addColumn<QString>("fault");
  QTest::addColumn<QString>("problem");
  QTest::newRow("all is right") << QString() << QString();
  for (const auto& [fault, problem] :
       {std::pair(u"nothing came"_s, u"not arrived"_s), std::pair(u"it came twice"_s, u"arrived 2 times"_s),
        std::pair(u"other content"_s, u"not arrived"_s), std::pair(u"other destination"_s, u"wrong destination"_s),
        std::pair(u"other kind"_s, u"wrong kind of job"_s), std::pair(u"no date"_s, u"wrong name"_s),
        std::pair(u"no copy"_s, u"no copy in the output folder"_s), std::pair(u"a torn copy"_s, u"the copy differs"_s),
        std::pair(u"input deleted"_s, u"the input file is gone or changed"_s)})
    QTest::newRow(qPrintable(fault)) << fault << problem;
}

void tst_Deliveries::judgesADelivery() {
  QFETCH(QString, fault);
  QFETCH(QString, problem);
  const TemporaryHome home;
  const Delivery delivery = delivered(home.path(u"p"_s), 2, u"Falkner 1.txt"_s);
  const QString sentAs = fault == "no date"_L1 ? delivery.name : u"F106_Falkner 1_2024-03_09h5m7s_.txt"_s;
  PracticeReceipt receipt = receiptOf(delivery, sentAs);
  if (fault == "other content"_L1) receipt.sha256 = QByteArray(64, '0');
  if (fault == "other destination"_L1) receipt.destination += u'x';
  if (fault == "other kind"_L1) receipt.kind = u"instrument"_s;
  const QString archive = u"p/Archive/Falkner 106/"_s + sentAs;
  if (fault != "no copy"_L1) home.writeFile(archive, fault == "a torn copy"_L1 ? "patch" : delivery.content);
  if (fault != "input deleted"_L1) home.writeFile(u"p/Measurements/Falkner 106/Falkner 1.txt"_s, delivery.content);
  QList<PracticeReceipt> receipts;
  if (fault != "nothing came"_L1) receipts.append(receipt);
  if (fault == "it came twice"_L1) receipts.append(receipt);
  QCOMPARE(judge(delivery, receipts).problem, problem);
}

void tst_Deliveries::emptiesNoForeignFolder() {
  const TemporaryHome home;
  home.writeFile(u"mine/thesis.txt"_s, "years of work");
  QVERIFY(!PracticeHome(home.path(u"mine"_s)).enter().isEmpty());
  QCOMPARE(TemporaryHome::readFile(home.path(u"mine/thesis.txt"_s)), "years of work");

  PracticeHome practice(home.path(u"practice"_s));
  QCOMPARE(practice.enter(), QString());
  home.writeFile(u"practice/Archive/old.txt"_s, "of the last run");
  QCOMPARE(practice.enter(), QString());
  QVERIFY(!QFile::exists(home.path(u"practice/Archive/old.txt"_s)));
}

void tst_Deliveries::furnishesWhatTheUploaderReads() {
  const TemporaryHome home;
  PracticeHome practice(home.path(u"practice"_s));
  QCOMPARE(practice.enter(), QString());
  QCOMPARE(practice.furnish(u"somebody"_s, u"secret"_s, practice.tasks()), QString());
  UploaderTask::Load();
  QCOMPARE(UploaderTask::allTasks().size(), 3);
  for (const TaskPointer& task : UploaderTask::allTasks()) {
    QVERIFY(task->inputFolder && task->inputFolder->Directory());
    QVERIFY(task->outputFolder && task->outputFolder->Directory());
    QVERIFY(task->inputFolderPath.startsWith(home.path(u"practice/"_s)));
  }
  UploaderTask::unload();
  DictionaryFile preferences;
  const QString file = home.path(u"practice/config/vantry-uploader/VTUploaderAdmin.pref"_s);
  QVERIFY(preferences.open(*FolderItem::fromNativePath(file)).ok());
  QCOMPARE(preferences.StringValue(u"SoapLogin"_s), u"somebody"_s);
  QCOMPARE(preferences.StringValue(u"SoapPassword"_s), u"secret"_s);
  QVERIFY(!TemporaryHome::readFile(file).contains("secret"));
}

void tst_Deliveries::findsTheWindowOnTheScreen() {
  QImage screen(40, 30, QImage::Format_RGB32);
  screen.fill(Qt::black);
  QVERIFY(occupiedPart(screen).isEmpty());
  screen.setPixel(5, 7, qRgb(1, 0, 0));
  screen.setPixel(20, 3, qRgb(255, 255, 255));
  QCOMPARE(occupiedPart(screen), QRect(QPoint(5, 3), QPoint(20, 7)));
}

VANTRY_TEST(tst_Deliveries);
#include "tst_Deliveries.moc"
