#include "core/controls/control.h"

#include <algorithm>
#include <utility>

#include "core/controls/frame.h"

namespace zelvane::controls {

Control* Page::find(std::string_view name) const {
  const auto found = std::ranges::find(controls_, name, &Control::name);
  return found == controls_.end() ? nullptr : *found;
}

Control::Control(Page& page, std::string name) : name_(std::move(name)) {
  page.controls_.push_back(this);
}

void Control::setEnabled(bool enabled) { assign(enabled_, enabled); }

void Control::setVisible(bool visible) { assign(visible_, visible); }

void Control::setDescription(std::string description) {
  assign(description_, std::move(description));
}

bool Control::reachable() const {
  return enabled_ && (container_ == nullptr || container_->reachable());
}

}  // namespace zelvane::controls
