#include "tests/contract/clipboard_contract.h"
#include "tests/support/windows/clipboard_user.h"
#include "ui/win32/win32_clipboard.h"

namespace zelvane::test {
namespace {

class Win32ClipboardBed : public ClipboardBed {
 public:
  platform::Clipboard& clipboard() override { return clipboard_; }
  void copy(const std::string& text) override { user_.copy(text); }
  std::string pasted() const override { return user_.pasted(); }

 private:
  ClipboardUser user_;
  win32::Win32Clipboard clipboard_;
};

std::unique_ptr<ClipboardBed> makeWin32ClipboardBed() {
  return std::make_unique<Win32ClipboardBed>();
}

INSTANTIATE_TEST_SUITE_P(Win32, ClipboardContract, testing::Values(makeWin32ClipboardBed));

}  // namespace
}  // namespace zelvane::test
