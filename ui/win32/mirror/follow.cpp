#include "ui/win32/mirror/follow.h"

#include <utility>

#include "platform/windows/wide_text.h"
#include "ui/win32/mirror/spoken_name.h"

namespace zelvane::win32 {

namespace {

bool always() { return true; }

void describe(const controls::Control& control, Window& window) {
  const std::wstring description = platform::wideText(control.description());
  window.setTip(window.handle(), description);
  setSpokenDescription(window.handle(), description);
}

// Where the text on the screen is no name.
bool isNamedByItsText(const controls::Control& control) {
  const auto* captioned = dynamic_cast<const controls::CaptionedControl*>(&control);
  return captioned != nullptr && !captioned->caption().empty();
}

}  // namespace

// A window that is not made yet goes with the one in which it will be.
void whileAlive(controls::Event<>& event, const Window& window, std::function<void()> handle) {
  const Window& made = window.nearestMade();
  event.connect([life = made.handle(), &made, handle = std::move(handle)] {
    if (Window::of(life) == &made) {
      handle();
    }
  });
}

void follow(controls::Control& control, Window& window, std::function<void()> show) {
  show();
  whileAlive(control.changed, window, std::move(show));
}

void followOnceMade(controls::Control& control, Window& window, std::function<void()> show) {
  window.whenMade(show);
  whileAlive(control.changed, window, [&window, show = std::move(show)] {
    if (window.isMade()) {
      show();
    }
  });
}

void mirrorControl(controls::Control& control, Window& window) {
  mirrorControl(control, window, always);
}

void mirrorControl(controls::Control& control, Window& window, std::function<bool()> worthShowing) {
  window.setControl(control);
  if (!isNamedByItsText(control) && !control.description().empty()) {
    const std::string& description = control.description();
    setSpokenName(window, platform::wideText(
                              std::string_view(description)
                                  .substr(0, description.size() - description.ends_with('.'))));
  }
  follow(control, window,
         [&control, &window, worthShowing = std::move(worthShowing),
          described = std::string()]() mutable {
           if (control.description() != described) {
             described = control.description();
             window.whenSettled([&control, &window] { describe(control, window); });
           }
           window.setShown(control.visible() && worthShowing());
           window.setUsable(control.reachable());
         });
}

void mirrorCaptioned(controls::CaptionedControl& control, Window& window) {
  mirrorControl(control, window);
  follow(control, window, [&control, &window] {
    const std::wstring caption = platform::wideText(control.caption());
    if (window.caption() != caption) {
      window.setCaption(caption);
      window.askForLayout();
    }
  });
}

std::wstring plainCaption(const std::string& caption) {
  std::string plain;
  for (std::size_t at = 0; at < caption.size(); ++at) {
    if (caption[at] == '&' && ++at == caption.size()) {
      break;
    }
    plain += caption[at];
  }
  return platform::wideText(plain);
}

}  // namespace zelvane::win32
