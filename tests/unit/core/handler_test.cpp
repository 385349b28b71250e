#include "core/handler.h"

#include <new>
#include <stdexcept>

#include <gtest/gtest.h>

#include "platform/error.h"
#include "platform/memory/memory_desktop.h"

namespace zelvane::core {
namespace {

using platform::Error;
using platform::ErrorNumber;

class HandlerTest : public testing::Test {
 protected:
  platform::MemoryDialogs dialogs;
  platform::MemoryIdentity identity;
  Handler handler{dialogs, identity};
};

TEST_F(HandlerTest, AFailureIsShownWithNumberAndDescriptionAndLeavesTheHandler) {
  bool laterStep = false;

  handler([&] {
    throw Error(ErrorNumber::fileNotFound);
    laterStep = true;
  });

  ASSERT_EQ(dialogs.boxes().size(), 1U);
  EXPECT_EQ(dialogs.boxes()[0].text, "Error: 53 - File not found");
  EXPECT_EQ(dialogs.boxes()[0].title, "Zelvane");
  EXPECT_EQ(dialogs.boxes()[0].icon, platform::MessageIcon::none);
  EXPECT_FALSE(laterStep);
}

TEST_F(HandlerTest, AnUnforeseenFailureIsShownToo) {
  handler([] { throw std::runtime_error("the disk is on fire"); });
  EXPECT_EQ(dialogs.lastText(), "Error: 51 - the disk is on fire");

  handler([] { throw std::bad_alloc(); });
  EXPECT_EQ(dialogs.lastText(), "Error: 7 - Out of memory");
}

TEST_F(HandlerTest, TheEndOfTheProcessPassesThrough) {
  EXPECT_THROW(handler([] { throw platform::ProcessEnded(); }), platform::ProcessEnded);
  EXPECT_THROW(ignoringErrors([] { throw platform::ProcessEnded(); }), platform::ProcessEnded);
  EXPECT_TRUE(dialogs.boxes().empty());
}

TEST_F(HandlerTest, WithoutAFailureNothingIsShown) {
  handler([] {});
  ignoringErrors([] { throw Error(ErrorNumber::permissionDenied); });

  EXPECT_TRUE(dialogs.boxes().empty());
}

}  // namespace
}  // namespace zelvane::core
