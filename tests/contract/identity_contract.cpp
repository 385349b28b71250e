#include "tests/contract/identity_contract.h"

namespace zelvane::test {
namespace {

TEST_P(IdentityContract, TheVersionRecordIsComplete) {
  const platform::VersionRecord& version = identity.version();

  EXPECT_EQ(version.productName, "Zelvane");
  EXPECT_EQ(version.title, "Zelvane");
  EXPECT_GE(version.major, 1);
  EXPECT_GE(version.minor, 0);
  EXPECT_EQ(version.companyName, "Zelvane");
  EXPECT_EQ(version.makerAddress, "https://www.zelvane.example/");
  EXPECT_FALSE(version.legalText.empty());
  EXPECT_EQ(version.legalText.find('\n'), std::string::npos);
}

TEST_P(IdentityContract, TheProgramFolderIsAFolderWithoutAClosingSeparator) {
  expectFolder(identity.programFolder());
}

TEST_P(IdentityContract, TheDataFolderIsAFolderWithoutAClosingSeparator) {
  expectFolder(identity.dataFolder());
}

TEST_P(IdentityContract, TheExecutableNameIsASingleName) {
  EXPECT_FALSE(identity.executableName().empty());
  EXPECT_EQ(identity.executableName().find(identity.separator()), std::string::npos);
}

TEST_P(IdentityContract, EveryAnswerStaysTheSame) {
  EXPECT_EQ(identity.programFolder(), identity.programFolder());
  EXPECT_EQ(identity.executableName(), identity.executableName());
  EXPECT_EQ(identity.dataFolder(), identity.dataFolder());
  EXPECT_EQ(&identity.version(), &identity.version());
}

}  // namespace
}  // namespace zelvane::test
