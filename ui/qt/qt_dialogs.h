// Message boxes and file choosers.
#pragma once

#include <QPointer>
#include <QWidget>

#include "core/controls/open_boxes.h"
#include "platform/dialogs.h"

namespace zelvane::qt {

class QtDialogs : public platform::Dialogs {
 public:
  // Counts its boxes in `boxes`, so that the timers stand still while one is open.
  explicit QtDialogs(controls::OpenBoxes& boxes);

  // From now on boxes belong to this window. Before, they stand on their own.
  void attach(QWidget& window) { window_ = &window; }

  void show(const platform::MessageBox& box) override;
  std::optional<std::string> chooseFile(const platform::FileQuestion& question) override;
  std::optional<std::string> chooseFolder(const std::string& prompt) override;

 private:
  controls::OpenBoxes& boxes_;
  QPointer<QWidget> window_;
};

}  // namespace zelvane::qt
