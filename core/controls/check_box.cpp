#include "core/controls/check_box.h"

#include "platform/error.h"

namespace zelvane::controls {

void CheckBox::setValue(int value) {
  if (value < kUnchecked || value > kGreyed) {
    throw platform::Error(platform::ErrorNumber::invalidPropertyValue);
  }
  if (assign(value_, value)) {
    clicked.raise();
  }
}

void CheckBox::click() {
  if (reachable()) {
    setValue(value_ == kUnchecked ? kChecked : kUnchecked);
  }
}

}  // namespace zelvane::controls
