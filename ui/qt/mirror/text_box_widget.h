// A line to type into on the screen.
#pragma once

#include <QLineEdit>

#include "core/controls/text_box.h"

namespace zelvane::qt {

class TextBoxWidget : public QLineEdit {
 public:
  TextBoxWidget(controls::TextBox& control, QWidget& parent);

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void showBackground();

  controls::TextBox& control_;
};

}  // namespace zelvane::qt
