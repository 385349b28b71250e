// What the program asks of its own window beyond the state that the form's controls hold.
#pragma once

#include <string>

#include "platform/port.h"

namespace zelvane::platform {

// Whether the window is visible, minimised or normal is state of the form, which the shell mirrors;
// here are the deeds that leave no state behind.
class WindowCommands : public Port {
 public:
  // Shows the window, un-minimised, above the others, without taking the keyboard focus from the
  // program that has it.
  virtual void bringForward() = 0;

  // Gives the window, which is visible, the keyboard focus, above the others.
  virtual void activate() = 0;

  // Gives the keyboard focus to the control of that name. An unknown name does nothing.
  virtual void focus(const std::string& controlName) = 0;

  // Paints the control of that name now, if anything in it changed. An unknown name does nothing.
  virtual void repaint(const std::string& controlName) = 0;
};

}  // namespace zelvane::platform
