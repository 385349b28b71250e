// The controls of the About box.
#pragma once

#include "core/controls/button.h"
#include "core/controls/form.h"
#include "core/controls/label.h"

namespace zelvane::about {

struct AboutPage : controls::Page {
  controls::Form frmAbout{*this, "frmAbout", "About"};
  controls::Label lblCopyRight{*this, "lblCopyRight", ""};
  controls::Button cmdOK{*this, "cmdOK", "OK"};
};

}  // namespace zelvane::about
