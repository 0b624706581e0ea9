#pragma once
// A home for one practice run: XDG folders of its own, ready-made tasks and the practice login, so that nothing of the
// user's is touched. Main thread, before anything reads the environment.

#include <QList>
#include <QString>

/// One task of the practice run, with what a file of it must look like when it has arrived.
struct PracticeTask {
  QString name, description;
  QString warden;  ///< "Instrument" or another word
  QString destination;
  QString extension, fileName, exclusion, prefix;
  bool replaceName = true, addDate = false;
  QString inputFolder, outputFolder;
};

class PracticeHome {
 public:
  explicit PracticeHome(const QString& folder);

  /// Empties the folder, which must be absent, empty or an earlier practice home, and points HOME and the XDG
  /// variables of this process into it. Gives the failure in words, or an empty text.
  [[nodiscard]] QString enter();
  /// Writes the tasks, with their folders, and the preference file. Gives the failure in words, or an empty text.
  [[nodiscard]] QString furnish(const QString& login, const QString& password, const QList<PracticeTask>& tasks) const;

  /// The three tasks of the practice run: a press, an instrument, and a press with prefix and date.
  [[nodiscard]] QList<PracticeTask> tasks() const;
  [[nodiscard]] QString receivedFolder() const;  ///< for what the service takes; made by enter()

 private:
  QString m_folder;
};
