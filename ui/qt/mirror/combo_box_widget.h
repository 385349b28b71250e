// A drop-down list on the screen.
#pragma once

#include <QComboBox>

#include "core/controls/combo_box.h"

namespace zelvane::qt {

class ComboBoxWidget : public QComboBox {
 public:
  ComboBoxWidget(controls::ComboBox& control, QWidget& parent);
};

}  // namespace zelvane::qt
