// What every control of the window has: a name, whether it can be used and seen, and where it is.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/controls/event.h"

namespace zelvane::controls {

class Control;
class Frame;

// The controls of one subsystem, found by name. A page is a struct of named controls that derives
// from this; each control enters itself, so that the order of declaration is the order here.
class Page {
 public:
  Page() = default;
  Page(const Page&) = delete;
  Page& operator=(const Page&) = delete;

  const std::vector<Control*>& controls() const { return controls_; }

  // Nothing where no control has that name.
  Control* find(std::string_view name) const;

 private:
  friend class Control;
  std::vector<Control*> controls_;
};

// A control is where the program keeps its state: which button is enabled, what a label says. It is
// an object without a window. A shell mirrors it: it shows what the control holds whenever
// `changed` is raised, and passes the user's action into the control, by the same setters that the
// program uses or, for a press, by `click`.
//
// The rule that carries the whole program: setting a value raises the control's event, in the
// setter's own stack and after the value is set, when and only when the value changes. Exceptions
// stand with the control that makes them.
class Control {
 public:
  Control(Page& page, std::string name);
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control() = default;

  const std::string& name() const { return name_; }

  // The control's own state, whatever its frame's is.
  bool enabled() const { return enabled_; }
  void setEnabled(bool enabled);

  bool visible() const { return visible_; }
  void setVisible(bool visible);

  // More about the control than its caption says: the tool tip, and what a screen reader adds.
  const std::string& description() const { return description_; }
  void setDescription(std::string description);

  // The frame around the control, or null. It outlives the control's use.
  const Frame* container() const { return container_; }
  void placeIn(const Frame& frame) { container_ = &frame; }

  // True when the user can use the control: it and all frames around it are enabled.
  bool reachable() const;

  // Something that a shell shows has changed.
  Event<> changed;

 protected:
  // Sets `field` to `value`. True, with `changed` raised, when it was another one before.
  template <typename Field, typename Value>
  bool assign(Field& field, Value&& value) {
    if (field == value) {
      return false;
    }
    field = std::forward<Value>(value);
    changed.raise();
    return true;
  }

 private:
  std::string name_;
  bool enabled_ = true;
  bool visible_ = true;
  std::string description_;
  const Frame* container_ = nullptr;
};

// A control with a caption. "&" marks the letter that is its access key; "&&" shows one "&".
class CaptionedControl : public Control {
 public:
  CaptionedControl(Page& page, std::string name, std::string caption)
      : Control(page, std::move(name)), caption_(std::move(caption)) {}

  const std::string& caption() const { return caption_; }
  void setCaption(std::string caption) { assign(caption_, std::move(caption)); }

 private:
  std::string caption_;
};

}  // namespace zelvane::controls
