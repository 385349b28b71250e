#include "platform/memory/faulty_clipboard.h"
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

// With no fault set a decorator is like what it wraps.
class FaultyClipboardBed : public MemoryClipboardBed {
 public:
  platform::Clipboard& clipboard() override { return faulty_; }

 private:
  platform::Faults faults_;
  platform::FaultyClipboard faulty_{MemoryClipboardBed::clipboard(), faults_};
};

INSTANTIATE_TEST_SUITE_P(Faulty, ClipboardContract,
                         testing::Values([]() -> std::unique_ptr<ClipboardBed> {
                           return std::make_unique<FaultyClipboardBed>();
                         }));

TEST(MemoryClipboard, CountsHowOftenItWasEmptied) {
  platform::MemoryClipboard clipboard;

  clipboard.clear();
  clipboard.clear();

  EXPECT_EQ(clipboard.clears(), 2);
}

}  // namespace
}  // namespace zelvane::test
