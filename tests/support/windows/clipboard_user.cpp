#include "tests/support/windows/clipboard_user.h"

#include <cstring>
#include <stdexcept>

#include "platform/windows/wide_text.h"

namespace zelvane::test {
namespace {

void require(bool done, const char* what) {
  if (!done) throw std::runtime_error(what);
}

// The clipboard, which one program has at a time.
class Opened {
 public:
  explicit Opened(HWND window) {
    require(OpenClipboard(window) != 0, "another program has the clipboard");
  }
  Opened(const Opened&) = delete;
  Opened& operator=(const Opened&) = delete;
  ~Opened() { CloseClipboard(); }
};

}  // namespace

ClipboardUser::ClipboardUser()
    : window_(CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr,
                              nullptr)) {}

ClipboardUser::~ClipboardUser() { DestroyWindow(window_); }

void ClipboardUser::copy(const std::string& text) const {
  const std::wstring wide = platform::wideText(text);
  const std::size_t bytes = (wide.size() + 1) * sizeof(wchar_t);
  const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes);
  std::memcpy(GlobalLock(memory), wide.c_str(), bytes);
  GlobalUnlock(memory);
  const Opened clipboard(window_);
  EmptyClipboard();
  require(SetClipboardData(CF_UNICODETEXT, memory) != nullptr, "the clipboard takes no text");
}

std::string ClipboardUser::pasted() const {
  const Opened clipboard(window_);
  const HANDLE memory = GetClipboardData(CF_UNICODETEXT);
  if (memory == nullptr) return {};
  std::string text = platform::plainText(static_cast<const wchar_t*>(GlobalLock(memory)));
  GlobalUnlock(memory);
  return text;
}

}  // namespace zelvane::test
