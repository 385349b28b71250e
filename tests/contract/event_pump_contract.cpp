#include "tests/contract/event_pump_contract.h"

#include <string>

namespace zelvane::test {
namespace {

TEST_P(EventPumpContract, WhatWaitsIsDeliveredOnceAndInOrder) {
  std::string delivered;
  bed->post([&] { delivered += "first "; });
  bed->post([&] { delivered += "second "; });
  bool last = false;
  bed->post([&] { last = true; });

  pumpUntil([&] { return last; });

  EXPECT_EQ(delivered, "first second ");
}

TEST_P(EventPumpContract, NothingIsDeliveredBeforeItIsCalled) {
  bool delivered = false;

  bed->post([&] { delivered = true; });
  EXPECT_FALSE(delivered);

  pumpUntil([&] { return delivered; });
}

TEST_P(EventPumpContract, AHandlerMayPumpInItsTurn) {
  bool inner = false;
  bool outerAfterInner = false;
  bed->post([&] {
    bed->post([&] { inner = true; });
    pumpUntil([&] { return inner; });
    outerAfterInner = inner;
  });

  pumpUntil([&] { return outerAfterInner; });

  EXPECT_TRUE(inner);
}

TEST_P(EventPumpContract, ItReturnsWhenNothingWaits) {
  for (int call = 0; call < 1000; ++call) {
    bed->pump().doEvents();
  }
}

}  // namespace
}  // namespace zelvane::test
