#include "platform/memory/memory_tray.h"
#include "tests/contract/tray_contract.h"

namespace zelvane::test {
namespace {

class MemoryTrayBed : public TrayBed {
 public:
  platform::Tray& tray() override { return tray_; }

  std::vector<std::string> seen() override {
    const auto tip = tray_.tip();
    return tip ? std::vector{*tip} : std::vector<std::string>{};
  }

  void doubleClick() override { tray_.use(platform::Tray::kLeftDoubleClicked); }
  void rightClick() override { tray_.use(platform::Tray::kRightReleased); }
  void takePlaceAway() override { tray_.takePlaceAway(); }
  void givePlace() override { tray_.givePlace(); }

  std::vector<std::string> opened(const std::string& menuName) override {
    const std::size_t before = tray_.menus().size();
    tray_.showMenu(menuName);
    return {tray_.menus().begin() + static_cast<std::ptrdiff_t>(before), tray_.menus().end()};
  }

 private:
  platform::MemoryTray tray_{{"mnuMain"}};
};

INSTANTIATE_TEST_SUITE_P(Memory, TrayContract, testing::Values([]() -> std::unique_ptr<TrayBed> {
                           return std::make_unique<MemoryTrayBed>();
                         }));

}  // namespace
}  // namespace zelvane::test
