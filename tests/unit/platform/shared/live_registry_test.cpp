#include "platform/shared/live_registry.h"

#include <string_view>

#include <gtest/gtest.h>

#include "platform/memory/memory_registry.h"

namespace zelvane::platform {
namespace {

class LiveRegistryTest : public testing::Test {
 protected:
  int erased = 0;
  MemoryRegistry hive;
  LiveRegistry registry{hive, {{R"(Software\Lists\Typed)", [this] { ++erased; }}}};
};

TEST_F(LiveRegistryTest, DeletingALiveKeyErasesWhatItStandsFor) {
  const auto result = registry.deleteKey(Registry::Root::currentUser, R"(Software\Lists\Typed)");

  EXPECT_EQ(result, Registry::Result::success);
  EXPECT_EQ(erased, 1);
}

TEST_F(LiveRegistryTest, TheKeyItselfGoesAsWell) {
  registry.create(Registry::Root::currentUser, R"(Software\Lists\Typed)");

  registry.deleteKey(Registry::Root::currentUser, R"(software\\lists\TYPED)");

  EXPECT_EQ(hive.open(Registry::Root::currentUser, R"(Software\Lists\Typed)").result,
            Registry::Result::notFound);
  EXPECT_EQ(erased, 1);
}

TEST_F(LiveRegistryTest, OtherKeysAreTheRegistrysOwn) {
  EXPECT_EQ(registry.deleteKey(Registry::Root::currentUser, R"(Software\Lists\Other)"),
            Registry::Result::notFound);
  EXPECT_EQ(registry.deleteKey(Registry::Root::localMachine, R"(Software\Lists\Typed)"),
            Registry::Result::notFound);
  EXPECT_EQ(registry.deleteKey(Registry::Root::currentUser, R"(Software\Lists)"),
            Registry::Result::notFound);
  EXPECT_EQ(erased, 0);
}

TEST_F(LiveRegistryTest, OpeningALiveKeyErasesNothing) {
  registry.open(Registry::Root::currentUser, R"(Software\Lists\Typed)");

  EXPECT_EQ(erased, 0);
}

class LiveValueTest : public testing::Test {
 protected:
  using Root = Registry::Root;
  using Type = Registry::Type;

  static constexpr auto kPath = R"(Software\Browser\Main)";

  static std::vector<std::byte> string(std::string_view text) {
    std::vector<std::byte> bytes;
    for (const char c : text) bytes.push_back(static_cast<std::byte>(c));
    bytes.push_back(std::byte{0});
    return bytes;
  }
  LiveRegistry::LiveValue valueAs(LiveRegistry::Answers answers) {
    return {.path = kPath,
            .name = "Page",
            .written = [this](const std::string& text) { told.push_back(text); },
            .present = [this] { return present; },
            .answers = answers};
  }
  Registry::Key open() { return registry.open(Root::currentUser, kPath).key; }

  std::vector<std::string> told;
  std::optional<std::string> present;
  MemoryRegistry hive;
  LiveRegistry registry{hive, {}, {valueAs(LiveRegistry::Answers::asItStands)}};
};

TEST_F(LiveValueTest, WhatIsWrittenIsWrittenAndTold) {
  hive.addKey(Root::currentUser, kPath);

  registry.set(registry.open(Root::currentUser, R"(software\\browser\MAIN)").key, "PAGE",
               Type::string, string("a"));

  EXPECT_EQ(told, (std::vector<std::string>{"a"}));
  EXPECT_EQ(hive.text(Root::currentUser, kPath, "Page"), "a");
}

TEST_F(LiveValueTest, InAKeyThatIsMadeItIsToldAsWell) {
  registry.set(registry.create(Root::currentUser, kPath).key, "Page", Type::string, string(""));

  EXPECT_EQ(told, (std::vector<std::string>{""}));
}

TEST_F(LiveValueTest, WhatTheRegistryRefusesIsNotTold) {
  hive.addKey(Root::currentUser, kPath);
  const Registry::Key key = open();
  hive.deleteKey(Root::currentUser, kPath);

  registry.set(key, "Page", Type::string, string("a"));

  EXPECT_TRUE(told.empty());
}

TEST_F(LiveValueTest, NeitherAreNumbersOtherValuesOrOtherKeys) {
  hive.addKey(Root::currentUser, kPath);
  hive.addKey(Root::currentUser, R"(Software\Browser)");
  const Registry::Key key = open();

  registry.set(key, "Page", Type::number, string("abc"));
  registry.set(key, "Other", Type::string, string("a"));
  registry.set(registry.open(Root::currentUser, R"(Software\Browser)").key, "Page", Type::string,
               string("a"));
  registry.close(key);
  registry.set(key, "Page", Type::string, string("a"));

  EXPECT_TRUE(told.empty());
}

TEST_F(LiveValueTest, ItAnswersAsItStandsElseAsWasWritten) {
  hive.put(Root::currentUser, kPath, "Page", "written");
  const Registry::Key key = open();

  EXPECT_EQ(registry.query(key, "Page")->data, string("written"));

  present = "present";

  EXPECT_EQ(registry.query(key, "Page")->data, string("present"));
  EXPECT_EQ(registry.query(key, "Other"), std::nullopt);
}

TEST_F(LiveValueTest, OrAsWasWrittenElseAsItStands) {
  hive.addKey(Root::currentUser, kPath);
  present = "present";
  LiveRegistry other(hive, {}, {valueAs(LiveRegistry::Answers::asWritten)});
  const Registry::Key key = other.open(Root::currentUser, kPath).key;

  EXPECT_EQ(other.query(key, "Page")->data, string("present"));

  hive.put(Root::currentUser, kPath, "Page", "written");

  EXPECT_EQ(other.query(key, "Page")->data, string("written"));
}

}  // namespace
}  // namespace zelvane::platform
