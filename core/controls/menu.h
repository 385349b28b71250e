// A pop-up menu and its items.
#pragma once

#include <vector>

#include "core/controls/control.h"

namespace zelvane::controls {

// The caption "-" is a separator.
class MenuItem : public CaptionedControl {
 public:
  // Whether the item is one that may have a mark, of which menus tell also while it has none.
  enum class Kind { plain, markable };

  MenuItem(Page& page, std::string name, std::string caption, Kind kind = Kind::plain)
      : CaptionedControl(page, std::move(name), std::move(caption)), kind_(kind) {}

  bool separator() const { return caption() == "-"; }
  bool markable() const { return kind_ == Kind::markable; }

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
  Kind kind_;
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
