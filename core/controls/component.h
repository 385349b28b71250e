// A service that sits on the form without a face: it has a name and nothing to show. What it does
// goes through a port.
#pragma once

#include "core/controls/control.h"

namespace zelvane::controls {

class Component : public Control {
 public:
  using Control::Control;
};

}  // namespace zelvane::controls
