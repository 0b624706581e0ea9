// The program behind ./run: practises the main job against a service on this machine.
//   vantry-practice [--watch | --screenshot FILE] [--limit SECONDS]

#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <algorithm>
#include <cstdio>
#include <memory>

#include "build_settings.h"
#include "practice/PracticeRun.h"
#include "practice_settings.h"

using namespace Qt::Literals::StringLiterals;

static int usage(const QString& words) {
  std::fputs(qPrintable(words + u'\n'), stderr);
  return 2;
}

// "localhost:8443" and the like; 0 for a host that is not this machine.
static quint16 portOfThisMachine(const QString& host) {
  const QStringList fields = host.split(u':');
  return fields.value(0) == "localhost"_L1 ? fields.value(1, u"443"_s).toUShort() : quint16(0);
}

int main(int argc, char** argv) {
  // A picture needs the screen; everything else does without, and must not fail for the lack of one.
  const bool picture =
      std::any_of(argv, argv + argc, [](const char* text) { return qstrcmp(text, "--screenshot") == 0; });
  const std::unique_ptr<QCoreApplication> application(picture ? new QGuiApplication(argc, argv)
                                                              : new QCoreApplication(argc, argv));
  QCommandLineParser parser;
  const QCommandLineOption watch(u"watch"_s, u"Go on until the window is closed."_s);
  const QCommandLineOption screenshot(u"screenshot"_s, u"Save a picture of the screen."_s, u"FILE"_s);
  const QCommandLineOption limit(u"limit"_s, u"Seconds for all samples to arrive."_s, u"SECONDS"_s, u"90"_s);
  const QCommandLineOption uploader(u"uploader"_s, u"The program to practise with."_s, u"FILE"_s,
                                    QCoreApplication::applicationDirPath() + u"/vantry-uploader"_s);
  parser.addOptions({watch, screenshot, limit, uploader});
  parser.addHelpOption();
  parser.process(*application);

  PracticeRun::Settings settings;
  const QString caFile = QFile::decodeName(ExtraCaFile);
  settings.port = portOfThisMachine(QString::fromLatin1(ServiceHost));
  if (caFile.isEmpty() || settings.port == 0)
    return usage(u"This build does not trust a practice service. Configure it with: cmake --preset practice"_s);
  settings.tlsFolder = QFileInfo(caFile).path();
  settings.homeFolder = QDir::cleanPath(QCoreApplication::applicationDirPath() + u"/../home"_s);
  settings.samplesFolder = QFile::decodeName(SamplesFolder);
  settings.uploader = parser.value(uploader);
  settings.watch = parser.isSet(watch);
  settings.screenshotFile = parser.value(screenshot);
  settings.limitSeconds = parser.value(limit).toInt();

  PracticeRun run(settings);
  QObject::connect(&run, &PracticeRun::finished, application.get(), &QCoreApplication::exit);
  QMetaObject::invokeMethod(&run, &PracticeRun::start, Qt::QueuedConnection);
  return QCoreApplication::exec();
}
