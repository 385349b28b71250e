#include "core/version_label.h"

#include <gtest/gtest.h>

#include "platform/identity.h"

namespace zelvane::core {
namespace {

TEST(VersionLabel, IsProductNameAndPlainVersionNumbers) {
  platform::VersionRecord version;
  version.productName = "Zelvane";
  version.major = 2;
  version.minor = 10;

  EXPECT_EQ(versionLabel(version), "Zelvane v2.10");
}

}  // namespace
}  // namespace zelvane::core
