#include "platform/memory/memory_clipboard.h"
#include "tests/contract/clipboard_contract.h"

namespace zelvane::test {
namespace {

class MemoryClipboardBed : public ClipboardBed {
 public:
  platform::Clipboard& clipboard() override { return clipboard_; }
  void copy(const std::string& text) override { clipboard_.content = text; }
  std::string pasted() const override { return clipboard_.content; }

 private:
  platform::MemoryClipboard clipboard_;
};

std::unique_ptr<ClipboardBed> makeMemoryClipboardBed() {
  return std::make_unique<MemoryClipboardBed>();
}

INSTANTIATE_TEST_SUITE_P(Memory, ClipboardContract, testing::Values(makeMemoryClipboardBed));

TEST(MemoryClipboard, CountsHowOftenItWasEmptied) {
  platform::MemoryClipboard clipboard;

  clipboard.clear();
  clipboard.clear();

  EXPECT_EQ(clipboard.clears(), 2);
}

}  // namespace
}  // namespace zelvane::test
