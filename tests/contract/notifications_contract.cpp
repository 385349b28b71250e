#include "tests/contract/notifications_contract.h"

namespace zelvane::test {
namespace {

using Seen = std::vector<std::string>;

TEST_P(NotificationsContract, OneIsSeenWithItsTitle) {
  bed->notifications().show("Zelvane", "All is well");

  EXPECT_EQ(bed->seen(), Seen{"Zelvane: All is well"});
}

TEST_P(NotificationsContract, SeveralAreSeenInTheirOrder) {
  bed->notifications().show("One", "first");
  bed->notifications().show("Two", "second");

  EXPECT_EQ(bed->seen(), (Seen{"One: first", "Two: second"}));
}

TEST_P(NotificationsContract, TextThatLooksLikeMarkupIsText) {
  bed->notifications().show("<b>Title</b>", "a & b <i>c</i>\nsecond line");

  EXPECT_EQ(bed->seen(), Seen{"<b>Title</b>: a & b <i>c</i>\nsecond line"});
}

}  // namespace
}  // namespace zelvane::test
