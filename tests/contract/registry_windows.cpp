#include <string>

#include "platform/shared/registry_names.h"
#include "platform/windows/windows_registry.h"
#include "tests/contract/registry_contract.h"
#include "tests/support/windows/throw_away_key.h"

namespace zelvane::test {
namespace {

using platform::WindowsRegistry;
using Registry = platform::Registry;
using Root = Registry::Root;
using Result = Registry::Result;
using Type = Registry::Type;

// A user's desktop has these keys from the first log-on. The real ones are not for tests.
void makeKeysOfANewDesktop(Registry& registry) {
  for (const platform::KeyPath& key : platform::kKeysOfANewDesktop) {
    registry.close(registry.create(key.root, std::string(key.path)).key);
  }
}

class WindowsRegistryBed : public RegistryBed {
 public:
  WindowsRegistryBed() { makeKeysOfANewDesktop(registry_); }
  Registry& registry() override { return registry_; }
  Registry& inAnotherProcess() override { return other_; }
  std::string whyNoRefusals() const override {
    return "Windows asks for rights when a key is opened, and Wine neither when one is made below "
           "it nor when it is deleted.";
  }
  void makeUnwritable(Root, const std::string&) override {}
  std::string whyNoDamage() const override {
    return "The system keeps its registry whole and readable by itself.";
  }
  void damage() override {}
  void makeUnreadable() override {}

 private:
  ThrowAwayKey key_;
  WindowsRegistry registry_{key_.path()};
  WindowsRegistry other_{key_.path()};
};

std::unique_ptr<RegistryBed> makeWindowsRegistryBed() {
  return std::make_unique<WindowsRegistryBed>();
}

INSTANTIATE_TEST_SUITE_P(Windows, RegistryContract, testing::Values(makeWindowsRegistryBed));

class WindowsRegistryTest : public testing::Test {
 protected:
  Registry::Key made(const std::string& path) { return registry.create(Root::classes, path).key; }

  ThrowAwayKey key;
  WindowsRegistry registry{key.path()};
};

TEST_F(WindowsRegistryTest, AStringIsTextForOtherPrograms) {
  registry.set(made(".zvt"), "Ä", Type::string, bytesOf(std::string("Zürich 😀\0", 13)));

  const auto stored = platform::readValue(key.key(R"(classes\.zvt)").get(), L"\u00C4");

  ASSERT_NE(stored, std::nullopt);
  EXPECT_EQ(stored->type, static_cast<DWORD>(REG_SZ));
  EXPECT_EQ(platform::textIn(stored->data), std::wstring(L"Z\u00FCrich \xD83D\xDE00\0", 10));
}

TEST_F(WindowsRegistryTest, WhatOtherProgramsWroteIsReadAsUtf8WithItsType) {
  const auto opened = made(".zvt");
  platform::writeValue(key.key(R"(classes\.zvt)").get(), L"a", REG_EXPAND_SZ,
                       platform::dataOf(std::wstring(L"%TEMP%\\\u00E9\0", 9)));
  platform::writeValue(key.key(R"(classes\.zvt)").get(), L"b", REG_BINARY, bytesOf("\x01\xFF"));

  EXPECT_EQ(registry.query(opened, "a"),
            (Registry::Value{Type{REG_EXPAND_SZ}, bytesOf(std::string("%TEMP%\\é\0", 10))}));
  EXPECT_EQ(registry.query(opened, "b"), (Registry::Value{Type{REG_BINARY}, bytesOf("\x01\xFF")}));
}

// The system adds the zero where it sees one behind the data: here it sees an "s".
TEST_F(WindowsRegistryTest, AStringThatOthersLeftWithoutAClosingZeroIsReadWithoutOne) {
  const auto opened = made(".zvt");
  platform::writeValue(key.key(R"(classes\.zvt)").get(), L"a", REG_SZ,
                       platform::dataOf(std::wstring_view(L"texts", 4)));

  EXPECT_EQ(registry.query(opened, "a"), (Registry::Value{Type::string, bytesOf("text")}));
}

TEST_F(WindowsRegistryTest, ALongTextComesBackWhole) {
  const auto opened = made(".zvt");
  auto text = bytesOf(std::string(100'000, 'x'));
  text.push_back(std::byte{0});

  EXPECT_EQ(registry.set(opened, "a", Type::string, text), Result::success);
  EXPECT_EQ(registry.query(opened, "a"), (Registry::Value{Type::string, text}));
}

TEST_F(WindowsRegistryTest, ANameIsNeverCutAtAZeroByte) {
  const std::string cut(".zvt\0x", 6);
  const auto opened = made(".zvt");
  registry.set(opened, ".zvt", Type::string, bytesOf(std::string("a\0", 2)));

  EXPECT_EQ(registry.open(Root::classes, cut).result, Result::notFound);
  EXPECT_EQ(registry.create(Root::classes, cut).result, Result::accessDenied);
  EXPECT_EQ(registry.deleteKey(Root::classes, cut), Result::notFound);
  EXPECT_EQ(registry.query(opened, cut), std::nullopt);
  EXPECT_EQ(registry.set(opened, cut, Type::string, {}), Result::accessDenied);
  EXPECT_EQ(registry.deleteValue(opened, cut), Result::notFound);
  EXPECT_NE(registry.query(opened, ".zvt"), std::nullopt);
}

TEST_F(WindowsRegistryTest, ANameThatIsTooLongForAKeyIsNotThereAndNotMade) {
  const std::string path = ".zvt\\" + std::string(300, 'x');
  made(".zvt");

  EXPECT_EQ(registry.open(Root::classes, path).result, Result::notFound);
  EXPECT_EQ(registry.create(Root::classes, path).result, Result::accessDenied);
}

TEST_F(WindowsRegistryTest, ARootIsNotDeleted) {
  made("");

  EXPECT_EQ(registry.deleteKey(Root::classes, ""), Result::accessDenied);
  EXPECT_EQ(registry.deleteKey(Root::classes, "\\"), Result::accessDenied);
  EXPECT_EQ(registry.open(Root::classes, "").result, Result::success);
}

TEST_F(WindowsRegistryTest, AKeyWhoseRightsSayNoIsNotOpened) {
  key.refuse(R"(currentUser\Software\refused)");

  EXPECT_EQ(registry.open(Root::currentUser, R"(Software\refused)").result, Result::accessDenied);
  EXPECT_EQ(registry.create(Root::currentUser, R"(Software\refused)").result, Result::accessDenied);
}

TEST_F(WindowsRegistryTest, AClassThatIsRefusedIsMadeAmongTheUsersOwn) {
  key.refuse(R"(classes\.zvt)");

  const auto created = registry.create(Root::classes, ".zvt");

  EXPECT_EQ(created.result, Result::success);
  EXPECT_TRUE(key.has(R"(currentUser\Software\Classes\.zvt)"));
}

// The system's own roots, where only looking is allowed to a test.
TEST(WindowsRegistry, TheRootsAreTheSystems) {
  WindowsRegistry registry;

  EXPECT_EQ(registry.check(), std::nullopt);
  EXPECT_EQ(registry.open(Root::currentUser, "Software").result, Result::success);
  EXPECT_EQ(registry.open(Root::currentUser, R"(\Software\\Microsoft\)").result, Result::success);
  EXPECT_EQ(registry.open(Root::classes, "").result, Result::success);
  EXPECT_EQ(registry.open(Root::classes, R"(zelvane test\missing)").result, Result::notFound);
  EXPECT_EQ(registry.open(Root::localMachine, R"(SOFTWARE\zelvane test)").result, Result::notFound);
}

}  // namespace
}  // namespace zelvane::test
