#pragma once
// A read-only field that shows a folder by its name, with the whole path in the help tag. Main thread.

#include <QLineEdit>
#include <optional>

#include "platform/FolderItem.h"

class folderField : public QLineEdit {
  Q_OBJECT
 public:
  explicit folderField(QWidget* parent);
  /// Shows the item, or "n/a" with an empty help tag. Doesn't look at the disk.
  void setFile(const std::optional<FolderItem>& f);
  /// Shows "n/a" and leaves the help tag.
  void showNothing();
};
