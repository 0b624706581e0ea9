// The practice run is worth nothing if its own check can't fail, or its samples are none.

#include <QCryptographicHash>
#include <QXmlStreamReader>

#include "engine/UploaderTask.h"
#include "practice/Deliveries.h"
#include "storage/DictionaryFile.h"
#include "support/TemporaryHome.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;

class tst_PracticeRun : public QObject {
  Q_OBJECT
 private slots:
  void judgesADelivery() {
    for (const auto& [fault, problem] : {std::pair(u""_s, u""_s),
                                         {u"nothing came"_s, u"not arrived"_s},
                                         {u"it came twice"_s, u"arrived 2 times"_s},
                                         {u"other content"_s, u"not arrived"_s},
                                         {u"other destination"_s, u"wrong destination"_s},
                                         {u"other kind"_s, u"wrong kind of job"_s},
                                         {u"no date"_s, u"wrong name"_s},
                                         {u"no copy"_s, u"no copy in the output folder"_s},
                                         {u"a torn copy"_s, u"the copy differs"_s},
                                         {u"input deleted"_s, u"the input file is gone or changed"_s}}) {
      const TemporaryHome home;
      Delivery delivery{u"Falkner 1.txt"_s, "patch data", {}, PracticeHome(home.path(u"p"_s)).tasks()[2]};
      delivery.sha256 = QCryptographicHash::hash(delivery.content, QCryptographicHash::Sha256).toHex();
      PracticeReceipt receipt;
      receipt.name = fault == u"no date"_s ? delivery.name : u"F106_Falkner 1_2024-03_09h5m7s_.txt"_s;
      receipt.kind = fault == u"other kind"_s ? u"instrument"_s : u"print"_s;
      receipt.destination = delivery.task.destination + (fault == u"other destination"_s ? u"x"_s : QString());
      receipt.size = delivery.content.size();
      receipt.sha256 = fault == u"other content"_s ? QByteArray(64, '0') : delivery.sha256;
      const QString archive = u"p/Archive/Falkner 106/"_s + receipt.name, input = u"p/Measurements/Falkner 106/"_s;
      if (fault != u"no copy"_s) home.writeFile(archive, fault == u"a torn copy"_s ? "patch" : delivery.content);
      if (fault != u"input deleted"_s) home.writeFile(input + delivery.name, delivery.content);
      const qsizetype times = fault == u"nothing came"_s ? 0 : fault == u"it came twice"_s ? 2 : 1;
      QCOMPARE(judge(delivery, QList<PracticeReceipt>(times, receipt)).problem, problem);
    }
  }

  void emptiesNoForeignFolderAndFurnishesWhatTheUploaderReads() {
    const TemporaryHome home;
    home.writeFile(u"mine/thesis.txt"_s, "years of work");
    QVERIFY(!PracticeHome(home.path(u"mine"_s)).enter().isEmpty());
    QCOMPARE(TemporaryHome::readFile(home.path(u"mine/thesis.txt"_s)), "years of work");
    PracticeHome practice(home.path(u"practice"_s));
    for (int round = 0; round < 2; ++round) {
      QCOMPARE(practice.enter(), QString());
      QVERIFY(!home.item(u"practice/Archive/old.txt"_s).Exists());
      home.writeFile(u"practice/Archive/old.txt"_s, "of the last run");
    }
    QCOMPARE(practice.furnish(u"somebody"_s, u"secret"_s, practice.tasks()), QString());
    UploaderTask::Load();
    QCOMPARE(UploaderTask::allTasks().size(), 3);
    for (const TaskPointer& task : UploaderTask::allTasks())
      QVERIFY(task->inputFolderPath.startsWith(home.path(u"practice/"_s)) && task->inputFolder->Directory() &&
              task->outputFolder->Directory());
    UploaderTask::unload();
    const QString file = home.path(u"practice/config/vantry-uploader/VTUploaderAdmin.pref"_s);
    DictionaryFile preferences;
    QVERIFY(preferences.open(*FolderItem::fromNativePath(file)).ok());
    QCOMPARE(preferences.StringValue(u"SoapLogin"_s) + preferences.StringValue(u"SoapPassword"_s), u"somebodysecret"_s);
    QVERIFY(!TemporaryHome::readFile(file).contains("secret"));
  }

  void everySampleIsWhatItsFormatAsksAndHasATaskThatTakesIt() {
    const QList<Delivery> deliveries =
        assignSamples(QStringLiteral(SAMPLES_FOLDER), PracticeHome(u"/practice"_s).tasks());
    QCOMPARE(deliveries.size(), 12);
    for (const Delivery& delivery : deliveries) {
      UploaderTask task;
      task.Extension = delivery.task.extension;
      task.FileName = delivery.task.fileName;
      task.setExclusionPattern(delivery.task.exclusion);
      QVERIFY2(task.FileNameMatch(delivery.name), qPrintable(delivery.name));
      const QByteArray text = QByteArray(delivery.content).replace("\r\n", "\n");
      if (delivery.name.endsWith(u".cxf"_s) || delivery.name.endsWith(u".xml"_s)) {
        QXmlStreamReader xml(text);
        while (!xml.atEnd()) xml.readNext();
        QVERIFY2(!xml.hasError(), qPrintable(delivery.name));
      } else if (!delivery.name.endsWith(u".csv"_s)) {
        const auto between = [&](const char* begin, const char* end) {
          const qsizetype from = text.indexOf(begin) + qstrlen(begin);
          return text.sliced(from, text.indexOf(end, from) - from);
        };
        const qsizetype fields = between("BEGIN_DATA_FORMAT\n", "\nEND_DATA_FORMAT").split('\t').size();
        const QByteArrayList sets = between("BEGIN_DATA\n", "\nEND_DATA\n").split('\n');
        QVERIFY(fields == between("NUMBER_OF_FIELDS\t", "\n").toInt() &&
                sets.size() == between("NUMBER_OF_SETS\t", "\n").toInt());
        for (const QByteArray& set : sets) QCOMPARE(set.split('\t').size(), fields);
      }
    }
  }
};

VANTRY_TEST(tst_PracticeRun);
#include "tst_PracticeRun.moc"
