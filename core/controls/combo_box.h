// A drop-down list of fixed texts.
#pragma once

#include <string>
#include <vector>

#include "core/controls/control.h"

namespace zelvane::controls {

class ComboBox : public Control {
 public:
  static constexpr int kNothing = -1;

  ComboBox(Page& page, std::string name, std::vector<std::string> items)
      : Control(page, std::move(name)), items_(std::move(items)) {}

  const std::vector<std::string>& items() const { return items_; }

  int listIndex() const { return listIndex_; }

  // Raises `clicked` every time it is called, also with the index that it has already. An index
  // outside the list is refused with invalidPropertyValue; `kNothing` selects nothing.
  void setListIndex(int index);

  // The text of the selected item, empty for none.
  std::string text() const;

  Event<> clicked;

 private:
  std::vector<std::string> items_;
  int listIndex_ = kNothing;
};

}  // namespace zelvane::controls
