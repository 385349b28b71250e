// What every window takes from its control.
#pragma once

#include <functional>
#include <string>

#include "core/controls/control.h"
#include "ui/win32/mirror/window.h"

namespace zelvane::win32 {

// Calls `handle` at each event for as long as `window` lives.
void whileAlive(controls::Event<>& event, const Window& window, std::function<void()> handle);

// Calls `show` now and whenever the control changes, for as long as `window` lives; also before it
// is made.
void follow(controls::Control& control, Window& window, std::function<void()> show);

// The same for what only a window that the system has made can be told.
void followOnceMade(controls::Control& control, Window& window, std::function<void()> show);

// Makes the window the face of the control: it has its name; tip, enabled and visible follow it.
// A screen reader says the text of a window or of the label before it; one that has neither has the
// control's description for a name.
void mirrorControl(controls::Control& control, Window& window);

// The same for a window that is seen only while `worthShowing` as well.
void mirrorControl(controls::Control& control, Window& window, std::function<bool()> worthShowing);

// The same, and the window's text is the caption, with the mark of its access key.
void mirrorCaptioned(controls::CaptionedControl& control, Window& window);

// A caption without the marks of its access key: "E&xit" is "Exit", "&&" is "&".
std::wstring plainCaption(const std::string& caption);

}  // namespace zelvane::win32
