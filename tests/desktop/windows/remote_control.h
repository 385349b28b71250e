// A control in the window of another program, used as a person does.
#pragma once

#include <string>

#include <windows.h>

namespace zelvane::test {

// Asks a window of another program and waits for the answer. Throws where it does not answer: it
// hangs, or is gone. `word` and `value` are numbers; what is a pointer does not reach the other
// program, but for the texts of WM_GETTEXT and its like.
LRESULT askWindow(HWND window, UINT message, WPARAM word = 0, LPARAM value = 0);

// The text of a window of another program.
std::string textOfWindow(HWND window);

// The name of the program's control that a window shows; empty where it shows none.
std::string controlNameOf(HWND window);

class RemoteControl {
 public:
  explicit RemoteControl(HWND window) : window_(window) {}

  HWND window() const { return window_; }
  std::string name() const { return controlNameOf(window_); }

  // As the program has it: with the "&" before an access key.
  std::string text() const { return textOfWindow(window_); }

  bool isShown() const { return IsWindowVisible(window_) != FALSE; }
  bool isUsable() const { return IsWindowEnabled(window_) != FALSE; }

  // Presses a button and does not wait for what comes of it. Throws where a person could not.
  void press() const;

  // The same, and comes back when the program has done what the button is for.
  void pressAndWait() const;

  // Of a check box.
  bool isTicked() const;
  void tick(bool ticked = true) const;

  // Chooses from a list, by place.
  void choose(int place) const;

  // Ticks the box of a time picker and types "hh:mm:ss" into it.
  void setTime(const std::string& time) const;

  // Replaces the text of a box, letter by letter.
  void type(const std::string& text) const;

 private:
  void requireReach() const;

  HWND window_;
};

}  // namespace zelvane::test
