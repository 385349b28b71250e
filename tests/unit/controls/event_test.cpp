#include "core/controls/event.h"

#include <memory>
#include <string>

#include <gtest/gtest.h>

namespace zelvane::controls {
namespace {

TEST(Event, CallsItsHandlersInTheOrderOfTheirConnection) {
  Event<int> event;
  std::string calls;
  event.connect([&](int number) { calls += "first " + std::to_string(number); });
  event.connect([&](int number) { calls += ", second " + std::to_string(number); });

  event.raise(7);

  EXPECT_EQ(calls, "first 7, second 7");
}

TEST(Event, AHandlerConnectedDuringDeliveryIsCalledFromTheNextTimeOn) {
  Event<> event;
  int late = 0;
  event.connect([&] { event.connect([&] { ++late; }); });

  event.raise();
  EXPECT_EQ(late, 0);

  event.raise();
  EXPECT_EQ(late, 1);
}

TEST(Event, AHandlerMayDestroyTheEventThatCallsIt) {
  auto event = std::make_unique<Event<>>();
  std::string calls;
  event->connect([&, captured = std::string("a text too long for the small buffer")] {
    event.reset();
    calls += captured;
  });
  event->connect([&] { calls += "!"; });

  event->raise();

  EXPECT_EQ(calls, "a text too long for the small buffer!");
}

TEST(Event, AHandlerMayChangeWhatItWasPassed) {
  Event<bool&> event;
  event.connect([](bool& cancel) { cancel = true; });

  bool cancel = false;
  event.raise(cancel);

  EXPECT_TRUE(cancel);
}

}  // namespace
}  // namespace zelvane::controls
