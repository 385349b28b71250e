#include <cstring>

#include <windows.h>

#include "platform/windows/wide_text.h"
#include "tests/contract/clipboard_contract.h"
#include "ui/win32/win32_clipboard.h"

namespace zelvane::test {
namespace {

// A window of the tests', because what is copied belongs to one.
class CopyingWindow {
 public:
  CopyingWindow() = default;
  ~CopyingWindow() { DestroyWindow(handle_); }
  CopyingWindow(const CopyingWindow&) = delete;
  CopyingWindow& operator=(const CopyingWindow&) = delete;

  HWND handle() const { return handle_; }

 private:
  HWND handle_ =
      CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
};

class Win32ClipboardBed : public ClipboardBed {
 public:
  platform::Clipboard& clipboard() override { return clipboard_; }

  void copy(const std::string& text) override {
    const std::wstring wide = platform::wideText(text);
    const std::size_t bytes = (wide.size() + 1) * sizeof(wchar_t);
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes);
    std::memcpy(GlobalLock(memory), wide.c_str(), bytes);
    GlobalUnlock(memory);
    ASSERT_TRUE(OpenClipboard(window_.handle()));
    EmptyClipboard();
    SetClipboardData(CF_UNICODETEXT, memory);
    CloseClipboard();
  }

  std::string pasted() const override {
    EXPECT_TRUE(OpenClipboard(window_.handle()));
    std::string text;
    if (const HANDLE memory = GetClipboardData(CF_UNICODETEXT)) {
      text = platform::plainText(static_cast<const wchar_t*>(GlobalLock(memory)));
      GlobalUnlock(memory);
    }
    CloseClipboard();
    return text;
  }

 private:
  CopyingWindow window_;
  win32::Win32Clipboard clipboard_;
};

std::unique_ptr<ClipboardBed> makeWin32ClipboardBed() {
  return std::make_unique<Win32ClipboardBed>();
}

INSTANTIATE_TEST_SUITE_P(Win32, ClipboardContract, testing::Values(makeWin32ClipboardBed));

}  // namespace
}  // namespace zelvane::test
