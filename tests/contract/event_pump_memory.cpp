#include "platform/memory/memory_event_pump.h"
#include "tests/contract/event_pump_contract.h"

namespace zelvane::test {
namespace {

class MemoryEventPumpBed : public EventPumpBed {
 public:
  platform::EventPump& pump() override { return pump_; }
  void post(std::function<void()> event) override { pump_.post(std::move(event)); }

 private:
  platform::MemoryEventPump pump_;
};

std::unique_ptr<EventPumpBed> makeMemoryEventPumpBed() {
  return std::make_unique<MemoryEventPumpBed>();
}

INSTANTIATE_TEST_SUITE_P(Memory, EventPumpContract, testing::Values(makeMemoryEventPumpBed));

TEST(MemoryEventPump, AnActionMayBePostedForALaterCall) {
  platform::MemoryEventPump pump;
  bool done = false;
  pump.postIn(2, [&] { done = true; });

  pump.doEvents();
  EXPECT_FALSE(done);

  pump.doEvents();
  EXPECT_TRUE(done);
  EXPECT_EQ(pump.calls(), 2);
}

}  // namespace
}  // namespace zelvane::test
