// A window: whether it is there, how big it is drawn, and what happens to it.
#pragma once

#include "core/controls/control.h"

namespace zelvane::controls {

// Why a form is asked to unload. The numbers are what the close handlers of this family of programs
// are given.
enum class UnloadMode {
  controlMenu = 0,  // the close box or the system menu
  code = 1,         // the program itself
  windows = 2,      // the end of the session
  taskManager = 3,  //
};

class Form : public CaptionedControl {
 public:
  enum class State { normal, minimised };

  // Of the units in which a form is told places, how many make a pixel of the screen.
  static constexpr double kUnitsPerPixel = 15;

  Form(Page& page, std::string name, std::string caption)
      : CaptionedControl(page, std::move(name), std::move(caption)) {
    setVisible(false);
  }

  State state() const { return state_; }
  void setState(State state) { assign(state_, state); }

  // Asks the form to go: raises `queryUnload`, whose handlers may set the flag that keeps it, and
  // then `unloaded`. True when it went.
  bool unload(UnloadMode mode);

  Event<> activated;
  Event<double /*x, in the form's units*/> mouseUp;
  Event<bool& /*cancel*/, UnloadMode> queryUnload;
  Event<> unloaded;
  Event<> terminated;

 private:
  State state_ = State::normal;
};

}  // namespace zelvane::controls
