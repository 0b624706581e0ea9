#include "editor/folderField.h"

#include "text/VTULocalization.h"
#include "widgets/Captions.h"

folderField::folderField(QWidget* parent) : QLineEdit(parent) {
  setReadOnly(true);
  setFile({});
}

void folderField::setFile(const std::optional<FolderItem>& f) {
  showNothing();
  setToolTip(f ? plainToolTip(f->NativePath()) : QString());
  if (!f) return;
  setText(onOneLine(f->nameBytes().isEmpty() ? f->NativePath() : f->Name()));
  setCursorPosition(0);
}

void folderField::showNothing() { setText(VTULocalization::klNA()); }
