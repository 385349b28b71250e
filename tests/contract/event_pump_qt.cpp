#include <QElapsedTimer>
#include <QMetaObject>
#include <QObject>

#include "tests/contract/event_pump_contract.h"
#include "ui/qt/qt_event_pump.h"

namespace zelvane::test {
namespace {

class QtEventPumpBed : public EventPumpBed {
 public:
  platform::EventPump& pump() override { return pump_; }
  void post(std::function<void()> event) override {
    QMetaObject::invokeMethod(&receiver_, std::move(event), Qt::QueuedConnection);
  }

 private:
  qt::QtEventPump pump_;
  QObject receiver_;
};

std::unique_ptr<EventPumpBed> makeQtEventPumpBed() { return std::make_unique<QtEventPumpBed>(); }

INSTANTIATE_TEST_SUITE_P(Qt, EventPumpContract, testing::Values(makeQtEventPumpBed));

// A bound from below only: a busy machine makes pauses longer and never shorter. The coarse clock
// may lag by one of its own ticks, at most 4 ms, so 8 ms on it are more than 4 on the exact one.
TEST(QtEventPump, DeliversAtMostOnceInEightMilliseconds) {
  QtEventPumpBed bed;
  constexpr int kDeliveries = 6;
  int deliveries = 0;
  QElapsedTimer clock;
  std::function<void()> again = [&] {
    if (deliveries++ == 0) {
      clock.start();
    }
    bed.post(again);
  };
  bed.post(again);

  while (deliveries < kDeliveries) {
    bed.pump().doEvents();
  }

  EXPECT_GE(clock.elapsed(), (kDeliveries - 1) * 4);
}

}  // namespace
}  // namespace zelvane::test
