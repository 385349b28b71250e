#include "tests/contract/window_commands_contract.h"

namespace zelvane::test {
namespace {

TEST_P(WindowCommandsContract, TheWindowComesForward) {
  ASSERT_FALSE(bed->isForward());

  bed->window().bringForward();

  EXPECT_TRUE(bed->isForward());
}

TEST_P(WindowCommandsContract, AWindowThatIsActivatedHasTheKeys) {
  bed->window().bringForward();
  ASSERT_TRUE(bed->isForward());

  bed->window().activate();

  EXPECT_TRUE(bed->isActive());
}

TEST_P(WindowCommandsContract, TheNamedControlHasTheFocus) {
  bed->window().bringForward();

  bed->window().focus("txtSecond");
  EXPECT_EQ(bed->focused(), "txtSecond");

  bed->window().focus("txtFirst");
  EXPECT_EQ(bed->focused(), "txtFirst");
}

TEST_P(WindowCommandsContract, TheNamedControlIsPaintedAtOnce) {
  bed->window().bringForward();
  ASSERT_TRUE(bed->isForward());
  const std::ptrdiff_t before = bed->paintings("txtFirst");

  bed->window().repaint("txtFirst");

  EXPECT_EQ(bed->paintings("txtFirst"), before + 1);
}

TEST_P(WindowCommandsContract, AnUnknownNameIsPassedOver) {
  bed->window().bringForward();
  bed->window().focus("txtFirst");

  EXPECT_NO_THROW(bed->window().focus(""));
  EXPECT_NO_THROW(bed->window().repaint("cmdNothing"));
}

}  // namespace
}  // namespace zelvane::test
