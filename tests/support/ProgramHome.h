#pragma once
// A home in which the preferences are loaded under the product's key, and controls of a window by their object names.

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "engine/UploaderTask.h"
#include "platform/Problems.h"
#include "storage/Preferences.h"
#include "support/DialogAnswers.h"
#include "support/TemporaryHome.h"
#include "widgets/BackgroundCall.h"
#include "widgets/Mnemonics.h"

/// Leaves nothing of what the program keeps in memory to the next test.
class ProgramHome : public TemporaryHome {
 public:
  ProgramHome() {
    DictionaryFile::setSolutionKey(QStringLiteral("KestrelMoonOVJT"));
    VantryUtil::loadAccountPreferences();
  }
  ~ProgramHome() {
    if (!BackgroundCall::waitForAll(20'000)) qFatal("a call did not end");
    QCoreApplication::processEvents();
    UploaderTask::unload();
    VantryUtil::prefs.reset();
    for (const Problem& problem : Problems::present()) Problems::clear(problem.kind, problem.subject);
    DictionaryFile::setSolutionKey({});
  }
};

template <typename T>
T* controlOf(const QWidget& window, const char* name) {
  T* const found = window.findChild<T*>(QString::fromLatin1(name));
  if (!found) qFatal("no control %s", name);
  return found;
}

inline QString captionOf(const QWidget& control) {
  if (const auto* label = qobject_cast<const QLabel*>(&control)) return withoutMnemonic(label->text());
  if (const auto* button = qobject_cast<const QAbstractButton*>(&control)) return withoutMnemonic(button->text());
  return {};
}

/// What a user does in a window; a fixture derives from it and tells which window that is.
class WindowControls {
 public:
  virtual ~WindowControls() = default;
  template <typename T = QWidget>
  T* control(const char* name) {
    return controlOf<T>(shownWindow(), name);
  }
  QString text(const char* field) { return control<QLineEdit>(field)->text(); }
  void type(const char* field, const QString& text) { control<QLineEdit>(field)->setText(text); }
  void tick(const char* box, bool on = true) { control<QCheckBox>(box)->setChecked(on); }
  void press(const char* button) { control<QAbstractButton>(button)->click(); }
  bool enabled(const char* name) { return control(name)->isEnabled(); }

 protected:
  virtual QWidget& shownWindow() = 0;
};

/// Another size of the application's font, in pixels, for the life of the object.
class FontSize {
 public:
  explicit FontSize(int pixels) : m_usual(QApplication::font()) {
    QFont font = m_usual;
    font.setPixelSize(pixels);
    QApplication::setFont(font);
  }
  ~FontSize() { QApplication::setFont(m_usual); }
  FontSize(const FontSize&) = delete;
  FontSize& operator=(const FontSize&) = delete;

 private:
  QFont m_usual;
};
