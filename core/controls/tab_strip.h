// A row of tabs, one of which is in front.
#pragma once

#include <string>
#include <vector>

#include "core/controls/control.h"

namespace zelvane::controls {

class TabStrip : public Control {
 public:
  TabStrip(Page& page, std::string name, std::vector<std::string> captions)
      : Control(page, std::move(name)), captions_(std::move(captions)) {}

  const std::vector<std::string>& captions() const { return captions_; }

  int tab() const { return tab_; }

  // Raises `clicked` if another tab comes to the front. One that is not there is refused with
  // invalidPropertyValue.
  void setTab(int tab);

  Event<> clicked;

 private:
  std::vector<std::string> captions_;
  int tab_ = 0;
};

}  // namespace zelvane::controls
