#include "tests/desktop/windows/remote_control.h"

#include <array>
#include <stdexcept>

#include <commctrl.h>

#include "platform/windows/wide_text.h"
#include "tests/desktop/windows/waiting.h"

namespace zelvane::test {

LRESULT askWindow(HWND window, UINT message, WPARAM word, LPARAM value) {
  constexpr auto kLimit = static_cast<UINT>(std::chrono::milliseconds(kPatience).count());
  DWORD_PTR answer = 0;
  if (SendMessageTimeoutW(window, message, word, value, SMTO_NORMAL, kLimit, &answer) == 0) {
    throw std::runtime_error("no answer from the window of \"" + controlNameOf(window) + "\"");
  }
  return static_cast<LRESULT>(answer);
}

std::string textOfWindow(HWND window) {
  std::wstring text(static_cast<std::size_t>(askWindow(window, WM_GETTEXTLENGTH)) + 1, L'\0');
  text.resize(static_cast<std::size_t>(
      askWindow(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()))));
  return platform::plainText(text);
}

std::string controlNameOf(HWND window) {
  const auto atom =
      static_cast<ATOM>(reinterpret_cast<ULONG_PTR>(GetPropW(window, L"Zelvane.control")));
  std::array<wchar_t, 256> name{};
  const UINT length = GlobalGetAtomNameW(atom, name.data(), static_cast<int>(name.size()));
  return platform::plainText({name.data(), length});
}

void RemoteControl::requireReach() const {
  if (!isShown() || !isUsable()) {
    throw std::logic_error("\"" + name() +
                           "\" is out of reach: " + (isShown() ? "greyed" : "not in front"));
  }
}

void RemoteControl::press() const {
  requireReach();
  PostMessageW(window_, BM_CLICK, 0, 0);
}

void RemoteControl::pressAndWait() const {
  requireReach();
  askWindow(window_, BM_CLICK);
}

bool RemoteControl::isTicked() const { return askWindow(window_, BM_GETCHECK) == BST_CHECKED; }

void RemoteControl::tick(bool ticked) const {
  if (isTicked() != ticked) pressAndWait();
  if (isTicked() != ticked) throw std::runtime_error("\"" + name() + "\" is not ticked so");
}

// As the list tells it: an open list cannot be seen from here.
void RemoteControl::choose(int place) const {
  requireReach();
  askWindow(window_, CB_SETCURSEL, static_cast<WPARAM>(place));
  askWindow(GetParent(window_), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(window_), CBN_SELCHANGE),
            reinterpret_cast<LPARAM>(window_));
}

// A press beside the digits selects the seconds.
void RemoteControl::setTime(const std::string& time) const {
  requireReach();
  const RemoteControl box(FindWindowExW(window_, nullptr, WC_BUTTONW, nullptr));
  if (!box.isTicked()) box.pressAndWait();
  RECT field{};
  GetClientRect(window_, &field);
  const LPARAM beside = MAKELPARAM(field.right - 30, field.bottom / 2);
  askWindow(window_, WM_LBUTTONDOWN, MK_LBUTTON, beside);
  askWindow(window_, WM_LBUTTONUP, 0, beside);
  askWindow(window_, WM_KEYDOWN, VK_LEFT);
  askWindow(window_, WM_KEYDOWN, VK_LEFT);
  for (const char letter : time) {
    if (letter == ':') {
      askWindow(window_, WM_KEYDOWN, VK_RIGHT);
    } else {
      askWindow(window_, WM_CHAR, static_cast<WPARAM>(letter));
    }
  }
  if (text() != time) throw std::runtime_error("the time is " + text() + " instead of " + time);
}

void RemoteControl::type(const std::string& text) const {
  requireReach();
  askWindow(window_, EM_SETSEL, 0, -1);
  askWindow(window_, WM_CHAR, VK_BACK);
  for (const wchar_t letter : platform::wideText(text)) askWindow(window_, WM_CHAR, letter);
}

}  // namespace zelvane::test
