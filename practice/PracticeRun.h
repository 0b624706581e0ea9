#pragma once
// The practice run: starts the service and the uploader, drops the samples as an instrument would, waits for them, and
// tells what came of it. Main thread, driven by the event loop; finished() comes once.

#include <QFile>
#include <QObject>
#include <QProcess>
#include <QTimer>
#include <memory>

#include "practice/Deliveries.h"

class PracticeRun : public QObject {
  Q_OBJECT

 public:
  struct Settings {
    QString uploader, samplesFolder, homeFolder, tlsFolder;
    QString screenshotFile;  ///< empty: none
    quint16 port = 0;
    int limitSeconds = 90;  ///< for all samples to arrive
    bool watch = false;     ///< goes on until the uploader's window is closed
  };
  explicit PracticeRun(const Settings& settings);
  ~PracticeRun() override;

 public slots:
  void start();

 signals:
  void finished(int exitCode);

 private:
  [[nodiscard]] bool prepare();
  void dropNext();
  void writeNextPiece();
  void received();
  void look();
  void takeScreenshot();
  void endUploader();
  void uploaderEnded(int exitCode, QProcess::ExitStatus status);
  [[nodiscard]] bool judgeAll();
  void fail(const QString& words);

  Settings m_settings;
  PracticeHome m_home;
  std::unique_ptr<PracticeService> m_service;
  QProcess m_uploader;
  QList<Delivery> m_deliveries;
  qsizetype m_dropped = 0;
  qsizetype m_told = 0;  // receipts printed
  int m_pieces = 0;      // written of the present file
  QFile m_file;
  QTimer m_limit, m_look;
  bool m_judged = false, m_allRight = false, m_ending = false;
};
