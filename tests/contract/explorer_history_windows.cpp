#include <gtest/gtest.h>

#include "platform/windows/explorer_history.h"
#include "platform/windows/windows_registry.h"
#include "tests/support/windows/throw_away_key.h"

namespace zelvane::test {
namespace {

using platform::ExplorerHistory;
using Root = platform::Registry::Root;

constexpr auto kTypedTimes = R"(Software\Microsoft\Internet Explorer\TypedURLsTime)";
constexpr auto kExplorer = R"(Software\Microsoft\Windows\CurrentVersion\Explorer\)";

class ExplorerHistoryTest : public testing::Test {
 protected:
  ThrowAwayKey key_;
  platform::WindowsRegistry registry_{key_.path()};
  ExplorerHistory explorer_{registry_};

  static std::string ofExplorer(const std::string& name) { return kExplorer + name; }

  void make(const std::string& path) {
    const auto made = registry_.create(Root::currentUser, path);
    const std::string text = "typed";
    registry_.set(made.key, "1", platform::Registry::Type::string,
                  std::as_bytes(std::span(text.data(), text.size())));
    registry_.close(made.key);
  }

  bool has(const std::string& path) {
    const auto opened = registry_.open(Root::currentUser, path);
    registry_.close(opened.key);
    return opened.result == platform::Registry::Result::success;
  }
};

TEST_F(ExplorerHistoryTest, TypedAddressesTakeTheirTimesAndTheAddressBar) {
  for (const std::string& path : {std::string(kTypedTimes), ofExplorer("TypedPaths"),
                                  ofExplorer("WordWheelQuery"), ofExplorer("Advanced")}) {
    make(path);
  }

  explorer_.eraseTyped();

  EXPECT_FALSE(has(kTypedTimes));
  EXPECT_FALSE(has(ofExplorer("TypedPaths")));
  EXPECT_TRUE(has(ofExplorer("WordWheelQuery")));
  EXPECT_TRUE(has(ofExplorer("Advanced")));
}

TEST_F(ExplorerHistoryTest, TheHistoryOfRunTakesTheSearchBox) {
  for (const char* name : {"TypedPaths", "WordWheelQuery", "Advanced"}) make(ofExplorer(name));

  explorer_.eraseRun();

  EXPECT_FALSE(has(ofExplorer("WordWheelQuery")));
  EXPECT_TRUE(has(ofExplorer("TypedPaths")));
  EXPECT_TRUE(has(ofExplorer("Advanced")));
}

TEST_F(ExplorerHistoryTest, WhatIsNotThereIsNoError) {
  EXPECT_NO_THROW(explorer_.eraseTyped());
  EXPECT_NO_THROW(explorer_.eraseRun());
}

}  // namespace
}  // namespace zelvane::test
