#include "ui/win32/mirror/follow.h"

#include <utility>

#include "platform/windows/wide_text.h"
#include "ui/win32/mirror/spoken_name.h"

namespace zelvane::win32 {

namespace {

bool always() { return true; }

void describe(const controls::Control& control, Window& window) {
  const std::wstring description = platform::wideText(control.description());
  if (Window* root = Window::of(GetAncestor(window.handle(), GA_ROOT))) {
    root->setTip(window.handle(), description);
  }
  if (!description.empty()) {
    setSpokenDescription(window.handle(), description);
  }
}

// Where the text on the screen is no name.
bool isNamedByItsText(const controls::Control& control) {
  const auto* captioned = dynamic_cast<const controls::CaptionedControl*>(&control);
  return captioned != nullptr && !captioned->caption().empty();
}

}  // namespace

void follow(controls::Control& control, Window& window, std::function<void()> show) {
  show();
  control.changed.connect([handle = window.handle(), &window, show = std::move(show)] {
    if (Window::of(handle) == &window) {
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
    setSpokenName(
        window.handle(),
        platform::wideText(std::string_view(description)
                               .substr(0, description.size() - description.ends_with('.'))));
  }
  follow(control, window, [&control, &window, worthShowing = std::move(worthShowing)] {
    describe(control, window);
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
