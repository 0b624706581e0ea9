#include "text/EditCommands.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>

namespace {

struct FieldState {
  bool writable = false;
  bool readable = false;  // its text may leave the field
  bool undo = false;
  bool selection = false;
  bool text = false;
};

template <typename TextArea>
FieldState stateOfArea(const TextArea& area) {
  return {!area.isReadOnly(), true, area.document()->isUndoAvailable(), area.textCursor().hasSelection(),
          !area.document()->isEmpty()};
}

FieldState stateOf(const QWidget* field) {
  if (const auto* const line = qobject_cast<const QLineEdit*>(field))
    return {!line->isReadOnly(), line->echoMode() == QLineEdit::Normal, line->isUndoAvailable(),
            line->hasSelectedText(), !line->text().isEmpty()};
  if (const auto* const area = qobject_cast<const QTextEdit*>(field)) return stateOfArea(*area);
  if (const auto* const area = qobject_cast<const QPlainTextEdit*>(field)) return stateOfArea(*area);
  return {};
}

void clearSelection(QWidget* field) {
  if (auto* const line = qobject_cast<QLineEdit*>(field)) line->del();
  if (auto* const area = qobject_cast<QTextEdit*>(field)) area->textCursor().removeSelectedText();
  if (auto* const area = qobject_cast<QPlainTextEdit*>(field)) area->textCursor().removeSelectedText();
}

}  // namespace

QWidget* textFieldOf(QWidget* focused) {
  if (auto* const combo = qobject_cast<QComboBox*>(focused)) return combo->lineEdit();
  if (qobject_cast<QAbstractSpinBox*>(focused)) return focused->findChild<QLineEdit*>();
  const bool isField =
      qobject_cast<QLineEdit*>(focused) || qobject_cast<QTextEdit*>(focused) || qobject_cast<QPlainTextEdit*>(focused);
  return isField ? focused : nullptr;
}

bool canDo(EditCommand command, const QWidget* field) {
  const FieldState state = stateOf(field);
  switch (command) {
    case EditCommand::Undo:
      return state.undo && state.writable;
    case EditCommand::Cut:
      return state.selection && state.writable && state.readable;
    case EditCommand::Copy:
      return state.selection && state.readable;
    case EditCommand::Paste:
      return state.writable;
    case EditCommand::Clear:
      return state.selection && state.writable;
    case EditCommand::SelectAll:
      return state.text;
  }
  return false;
}

void doEdit(EditCommand command, QWidget* field) {
  if (!canDo(command, field)) return;
  switch (command) {
    case EditCommand::Undo:
      QMetaObject::invokeMethod(field, "undo");  // a slot of all three kinds of field, as are the others
      return;
    case EditCommand::Cut:
      QMetaObject::invokeMethod(field, "cut");
      return;
    case EditCommand::Copy:
      QMetaObject::invokeMethod(field, "copy");
      return;
    case EditCommand::Paste:
      QMetaObject::invokeMethod(field, "paste");
      return;
    case EditCommand::Clear:
      clearSelection(field);
      return;
    case EditCommand::SelectAll:
      QMetaObject::invokeMethod(field, "selectAll");
      return;
  }
}
