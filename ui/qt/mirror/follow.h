// What every widget takes from its control.
#pragma once

#include <QString>
#include <functional>
#include <string>

#include "core/controls/control.h"

class QObject;
class QWidget;

namespace zelvane::qt {

// Calls `show` now and whenever the control changes, for as long as `widget` lives.
void follow(controls::Control& control, QObject& widget, std::function<void()> show);

// Makes the widget the face of the control: its object name is the control's name; tool tip,
// enabled and visible follow it. The widget must have a parent, or else it would open as a window.
//
// A screen reader says the accessible name, which a widget with a caption sets itself. One without
// has that of its label, if there is one, and until then its description.
void mirrorControl(controls::Control& control, QWidget& widget);

// The same for a widget that is seen only while `worthShowing` as well.
void mirrorControl(controls::Control& control, QWidget& widget, std::function<bool()> worthShowing);

// The same, and the accessible name follows the caption.
void mirrorCaptioned(controls::CaptionedControl& control, QWidget& widget);
void mirrorCaptioned(controls::CaptionedControl& control, QWidget& widget,
                     std::function<bool()> worthShowing);

// A caption without the marks of its access key: "E&xit" is "Exit", "&&" is "&".
QString plainCaption(const std::string& caption);

}  // namespace zelvane::qt
