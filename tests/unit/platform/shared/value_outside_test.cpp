#include <gtest/gtest.h>

#include "platform/error.h"
#include "platform/memory/memory_registry.h"
#include "platform/shared/live_registry.h"

namespace zelvane::platform {
namespace {

using Result = Registry::Result;
using Root = Registry::Root;

constexpr auto kList = R"(Software\Start\List)";

// A value that has to be outside before it is in the registry.
class ValueOutsideTest : public testing::Test {
 protected:
  ValueOutsideTest() { hive.addKey(Root::currentUser, kList); }

  Registry::Key open(const std::string& path = kList) {
    return registry.open(Root::currentUser, path).key;
  }

  // What the value is when its meaning is told.
  void tell(const std::string& what) {
    told.push_back(what + " while it is " +
                   hive.text(Root::currentUser, kList, "Mine").value_or("missing"));
    if (refuses) throw Error(ErrorNumber::permissionDenied);
  }

  Result set(Registry::Key key, const std::string& name) {
    const std::string text = "new";
    return registry.set(key, name, Registry::Type::string,
                        std::as_bytes(std::span(text.c_str(), text.size() + 1)));
  }

  using Texts = std::vector<std::string>;
  Texts told;
  bool refuses = false;
  MemoryRegistry hive;
  LiveRegistry registry{hive,
                        {},
                        {{.path = kList,
                          .name = "Mine",
                          .beforeSet = [this] { tell("set"); },
                          .afterDelete = [this] { tell("deleted"); }}}};
};

TEST_F(ValueOutsideTest, SettingItTellsBeforeItIsSet) {
  EXPECT_EQ(set(open(), "Mine"), Result::success);

  EXPECT_EQ(told, Texts{"set while it is missing"});
  EXPECT_EQ(hive.text(Root::currentUser, kList, "Mine"), "new");
}

TEST_F(ValueOutsideTest, DeletingItTellsAfterItIsDeleted) {
  hive.put(Root::currentUser, kList, "Mine", "old");

  EXPECT_EQ(registry.deleteValue(open(), "Mine"), Result::success);

  EXPECT_EQ(told, Texts{"deleted while it is missing"});
}

TEST_F(ValueOutsideTest, DeletingOneThatIsMissingTellsAsWell) {
  EXPECT_EQ(registry.deleteValue(open(), "Mine"), Result::notFound);

  EXPECT_EQ(told, Texts{"deleted while it is missing"});
}

TEST_F(ValueOutsideTest, WhatIsRefusedOutsideIsNotSet) {
  refuses = true;

  EXPECT_EQ(set(open(), "Mine"), Result::accessDenied);

  EXPECT_EQ(hive.text(Root::currentUser, kList, "Mine"), std::nullopt);
}

TEST_F(ValueOutsideTest, WhatIsRefusedOutsideIsDeletedAllTheSame) {
  hive.put(Root::currentUser, kList, "Mine", "old");
  refuses = true;

  EXPECT_EQ(registry.deleteValue(open(), "Mine"), Result::accessDenied);

  EXPECT_EQ(hive.text(Root::currentUser, kList, "Mine"), std::nullopt);
}

TEST_F(ValueOutsideTest, NamesAreToldApartWithoutRegardToCase) {
  set(open(R"(software\\START\list)"), "MINE");

  EXPECT_EQ(told.size(), 1U);
}

TEST_F(ValueOutsideTest, OtherValuesAndOtherKeysMeanNothing) {
  hive.addKey(Root::localMachine, kList);

  set(open(), "Other");
  set(open(R"(Software\Start)"), "Mine");
  set(registry.open(Root::localMachine, kList).key, "Mine");
  registry.deleteValue(open(), "Other");

  EXPECT_EQ(told, Texts{});
  EXPECT_EQ(hive.text(Root::currentUser, kList, "Other"), std::nullopt);
  EXPECT_EQ(hive.text(Root::localMachine, kList, "Mine"), "new");
}

TEST_F(ValueOutsideTest, AKeyThatWasClosedMeansNothing) {
  const Registry::Key key = open();
  registry.close(key);

  EXPECT_EQ(set(key, "Mine"), Result::invalidHandle);

  EXPECT_EQ(told, Texts{});
}

TEST_F(ValueOutsideTest, AKeyThatWasMadeMeansTheSameAsOneThatWasOpened) {
  hive.deleteKey(Root::currentUser, kList);

  set(registry.create(Root::currentUser, kList).key, "Mine");

  EXPECT_EQ(told.size(), 1U);
}

}  // namespace
}  // namespace zelvane::platform
