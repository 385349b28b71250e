#include "platform/memory/memory_notifications.h"
#include "tests/contract/notifications_contract.h"

namespace zelvane::test {
namespace {

class MemoryNotificationsBed : public NotificationsBed {
 public:
  platform::Notifications& notifications() override { return notifications_; }
  std::vector<std::string> seen() override {
    std::vector<std::string> texts;
    for (const auto& [title, text] : notifications_.shown) {
      texts.push_back(std::string(title).append(": ").append(text));
    }
    return texts;
  }

 private:
  platform::MemoryNotifications notifications_;
};

INSTANTIATE_TEST_SUITE_P(Memory, NotificationsContract,
                         testing::Values([]() -> std::unique_ptr<NotificationsBed> {
                           return std::make_unique<MemoryNotificationsBed>();
                         }));

}  // namespace
}  // namespace zelvane::test
