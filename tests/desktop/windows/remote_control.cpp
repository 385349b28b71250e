#include "tests/desktop/windows/remote_control.h"

#include <array>
#include <stdexcept>

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

void RemoteControl::type(const std::string& text) const {
  requireReach();
  askWindow(window_, EM_SETSEL, 0, -1);
  askWindow(window_, WM_CHAR, VK_BACK);
  for (const wchar_t letter : platform::wideText(text)) askWindow(window_, WM_CHAR, letter);
}

}  // namespace zelvane::test
