#include "ui/win32/mirror/picture_window.h"

#include "ui/win32/mirror/follow.h"
#include "ui/win32/mirror/spoken_name.h"

namespace zelvane::win32 {

namespace {

using Image = controls::Picture::Image;

const wchar_t* iconOf(Image image) {
  return image == Image::programIcon ? L"application" : L"broom";
}

const wchar_t* meaning(Image image) {
  return image == Image::programIcon ? L"The program's icon" : L"A broom";
}

}  // namespace

IconWindow::IconWindow(const wchar_t* resource, int side, Pane& parent)
    : Window({kPaneClass, WS_CHILD | WS_VISIBLE}, parent), resource_(resource), side_(side) {}

Size IconWindow::natural() const { return {look().scaled(side_), look().scaled(side_)}; }

// Taken from the resources at the size that is wanted just now.
void IconWindow::draw(HDC surface) const {
  const Size size = natural();
  const auto icon = static_cast<HICON>(LoadImageW(GetModuleHandleW(nullptr), resource_, IMAGE_ICON,
                                                  size.width, size.height, LR_DEFAULTCOLOR));
  if (icon != nullptr) {
    DrawIconEx(surface, 0, 0, icon, size.width, size.height, 0, nullptr, DI_NORMAL);
    DestroyIcon(icon);
  }
}

LRESULT IconWindow::onMessage(UINT message, WPARAM word, LPARAM value) {
  if (message == WM_ERASEBKGND) {
    RECT all{};
    GetClientRect(handle(), &all);
    FillRect(reinterpret_cast<HDC>(word), &all, GetSysColorBrush(COLOR_WINDOW));
    return 1;
  }
  if (message == WM_PAINT) {
    PAINTSTRUCT painting;
    draw(BeginPaint(handle(), &painting));
    EndPaint(handle(), &painting);
    return 0;
  }
  return Window::onMessage(message, word, value);
}

PictureWindow::PictureWindow(controls::Picture& control, int side, Pane& parent)
    : IconWindow(iconOf(control.image()), side, parent) {
  setSpokenName(*this, meaning(control.image()));
  mirrorControl(control, *this);
}

}  // namespace zelvane::win32
