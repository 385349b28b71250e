#include "core/controls/combo_box.h"

#include "platform/error.h"

namespace zelvane::controls {

void ComboBox::setListIndex(int index) {
  if (index < kNothing || index >= static_cast<int>(items_.size())) {
    throw platform::Error(platform::ErrorNumber::invalidPropertyValue);
  }
  assign(listIndex_, index);
  clicked.raise();
}

std::string ComboBox::text() const {
  return listIndex_ == kNothing ? std::string() : items_[static_cast<std::size_t>(listIndex_)];
}

}  // namespace zelvane::controls
