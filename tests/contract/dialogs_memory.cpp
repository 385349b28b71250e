#include "platform/memory/memory_dialogs.h"
#include "tests/contract/dialogs_contract.h"

namespace zelvane::test {
namespace {

class MemoryDialogsBed : public DialogsBed {
 public:
  platform::Dialogs& dialogs() override { return dialogs_; }
  void willClose() override {}
  void willChoose(const std::string& path) override { dialogs_.answer(path); }
  void willCancel() override { dialogs_.answer(std::nullopt); }
  platform::MessageBox lastBox() const override { return dialogs_.boxes().back(); }
  std::string folder() const override { return "/home/user"; }

 private:
  platform::MemoryDialogs dialogs_;
};

std::unique_ptr<DialogsBed> makeMemoryDialogsBed() { return std::make_unique<MemoryDialogsBed>(); }

INSTANTIATE_TEST_SUITE_P(Memory, DialogsContract, testing::Values(makeMemoryDialogsBed));

TEST(MemoryDialogs, AnswersComeInTheOrderInWhichTheyWereGiven) {
  platform::MemoryDialogs dialogs;
  dialogs.answer("/a");
  dialogs.answer(std::nullopt);

  EXPECT_EQ(dialogs.chooseFile({}), "/a");
  EXPECT_EQ(dialogs.chooseFolder("prompt"), std::nullopt);
  EXPECT_EQ(dialogs.chooseFolder("nobody answered"), std::nullopt);
}

TEST(MemoryDialogs, SomethingMayHappenWhileABoxIsOpen) {
  platform::MemoryDialogs dialogs;
  std::string seen;
  dialogs.whileOpen([&] { seen = dialogs.lastText(); });

  dialogs.show({"text", "title", platform::MessageIcon::none});

  EXPECT_EQ(seen, "text");
}

}  // namespace
}  // namespace zelvane::test
