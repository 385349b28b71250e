#include "about/frm_about.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "platform/memory/memory_identity.h"

namespace zelvane::about {
namespace {

class AboutTest : public testing::Test {
 protected:
  platform::MemoryIdentity identity;
  AboutPage page;
  frmAbout box{page, identity};
};

TEST_F(AboutTest, ItIsNotThereUntilItIsShown) {
  EXPECT_FALSE(page.frmAbout.visible());

  box.show();

  EXPECT_TRUE(page.frmAbout.visible());
}

TEST_F(AboutTest, ItsCaptionEndsWithMajorAndMinorNumberWithoutLeadingZeros) {
  identity.facts.version.productName = "Product";
  identity.facts.version.major = 2;
  identity.facts.version.minor = 1;

  box.show();

  EXPECT_EQ(page.frmAbout.caption(), "About Product v2.1");
}

TEST_F(AboutTest, ItsNoticeIsFiveLinesAndTheLineThatReservesAllRights) {
  identity.facts.version.legalText = "Legal Text";
  identity.facts.version.companyName = "Company";

  box.show();

  const std::string notice = page.lblCopyRight.caption();
  EXPECT_EQ(std::ranges::count(notice, '\n'), 5);
  EXPECT_EQ(std::ranges::count(notice, '\r'), 5);
  EXPECT_TRUE(notice.ends_with("\r\nAll rights reserved. Legal Text Company")) << notice;
}

TEST_F(AboutTest, ItsNoticeSaysWhatMayNotBeDone) {
  box.show();

  for (const char* deed : {"protected by", "law", "modified", "copied", "reproduced", "republished",
                           "uploaded", "posted", "transmitted", "distributed"}) {
    EXPECT_NE(page.lblCopyRight.caption().find(deed), std::string::npos) << deed;
  }
}

TEST_F(AboutTest, ItsButtonClosesIt) {
  box.show();

  page.cmdOK.click();

  EXPECT_FALSE(page.frmAbout.visible());
}

TEST_F(AboutTest, ItsCloseBoxClosesIt) {
  box.show();

  EXPECT_TRUE(page.frmAbout.unload(controls::UnloadMode::controlMenu));

  EXPECT_FALSE(page.frmAbout.visible());
}

TEST_F(AboutTest, ItCanBeShownAgainAndSaysWhatIsTrueThen) {
  box.show();
  page.cmdOK.click();
  identity.facts.version.minor = 5;

  box.show();

  EXPECT_TRUE(page.frmAbout.visible());
  EXPECT_EQ(page.frmAbout.caption(), "About Zelvane v1.5");
}

}  // namespace
}  // namespace zelvane::about
