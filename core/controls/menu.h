// A pop-up menu and its items.
#pragma once

#include <vector>

#include "core/controls/control.h"

namespace zelvane::controls {

// The caption "-" is a separator.
class MenuItem : public CaptionedControl {
 public:
  using CaptionedControl::CaptionedControl;

  bool separator() const { return caption() == "-"; }

  bool checked() const { return checked_; }

  // Sets the mark; raises nothing but `changed`.
  void setChecked(bool checked) { assign(checked_, checked); }

  // A choice by the user. The mark is the program's to move.
  void click() {
    if (reachable() && !separator()) {
      clicked.raise();
    }
  }

  Event<> clicked;

 private:
  bool checked_ = false;
};

class Menu : public CaptionedControl {
 public:
  Menu(Page& page, std::string name, std::string caption, std::vector<MenuItem*> items)
      : CaptionedControl(page, std::move(name), std::move(caption)), items_(std::move(items)) {}

  const std::vector<MenuItem*>& items() const { return items_; }

 private:
  std::vector<MenuItem*> items_;
};

}  // namespace zelvane::controls
