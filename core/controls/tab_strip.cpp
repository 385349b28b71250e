#include "core/controls/tab_strip.h"

#include "platform/error.h"

namespace zelvane::controls {

void TabStrip::setTab(int tab) {
  if (tab < 0 || tab >= static_cast<int>(captions_.size())) {
    throw platform::Error(platform::ErrorNumber::invalidPropertyValue);
  }
  if (assign(tab_, tab)) {
    clicked.raise();
  }
}

}  // namespace zelvane::controls
