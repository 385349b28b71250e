// How the tip of a notification record is shown.
#include "platform/notification_record.h"

#include <algorithm>
#include <string_view>

#include <gtest/gtest.h>

namespace zelvane::platform {
namespace {

NotificationRecord recordWith(std::string_view tip) {
  NotificationRecord record;
  std::ranges::copy(tip.substr(0, record.tip.size()), record.tip.begin());
  return record;
}

TEST(NotificationRecordTest, TheTipEndsAtItsZero) {
  EXPECT_EQ(tipText(recordWith("Zelvane v1.0")), "Zelvane v1.0");
  EXPECT_EQ(tipText(recordWith(std::string_view("seen\0unseen", 11))), "seen");
  EXPECT_EQ(tipText(recordWith("")), "");
}

TEST(NotificationRecordTest, ATipWithoutAZeroIsShownWhole) {
  const std::string full(64, 'x');

  EXPECT_EQ(tipText(recordWith(full)), full);
}

TEST(NotificationRecordTest, AWholeLetterAtTheEndIsShown) {
  for (const char* letter : {"é", "€", "🧹"}) {
    EXPECT_EQ(tipText(recordWith(std::string("a") + letter)), std::string("a") + letter);
  }
}

TEST(NotificationRecordTest, ALetterThatWasCutInTheMiddleIsNotShown) {
  for (const char* letter : {"é", "€", "🧹"}) {
    const std::string whole(63, 'x');
    EXPECT_EQ(tipText(recordWith(whole + letter)), whole);
  }
}

TEST(NotificationRecordTest, ATipThatIsNoTextAtAllIsShownAsNothing) {
  EXPECT_EQ(tipText(recordWith("\x80\x80")), "");
}

TEST(NotificationRecordTest, AnIconIsKnownByItsWindowAndItsIdentifier) {
  NotificationRecord one;
  one.window = 5;
  one.identifier = 1;
  NotificationRecord other = one;
  other.icon = 7;

  EXPECT_TRUE(areOfOneIcon(one, other));

  other.identifier = 2;
  EXPECT_FALSE(areOfOneIcon(one, other));
}

}  // namespace
}  // namespace zelvane::platform
