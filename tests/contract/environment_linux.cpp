#include <cstdlib>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "platform/linux/environment.h"
#include "tests/support/linux/child_process.h"

namespace zelvane::test {
namespace {

using platform::Environment;
using Variables = std::vector<std::pair<const char*, const char*>>;

// What a process with these variables and no other finds there.
std::string inProcessWith(const Variables& variables, std::string Environment::*folder) {
  ChildProcess child([&](const Say& say) {
    clearenv();
    for (const auto& [name, value] : variables) setenv(name, value, 1);
    say(Environment::ofProcess().*folder);
  });
  return child.hearLine();
}

TEST(Environment, WhatIsNotSaidIsWhereDesktopsPutIt) {
  const Variables variables = {{"HOME", "/home/user"}};

  EXPECT_EQ(inProcessWith(variables, &Environment::home), "/home/user");
  EXPECT_EQ(inProcessWith(variables, &Environment::configHome), "/home/user/.config");
  EXPECT_EQ(inProcessWith(variables, &Environment::dataHome), "/home/user/.local/share");
  EXPECT_EQ(inProcessWith(variables, &Environment::cacheHome), "/home/user/.cache");
  EXPECT_EQ(inProcessWith(variables, &Environment::tmpDir), "/tmp");
}

TEST(Environment, WhatIsSaidCounts) {
  const Variables variables = {{"HOME", "/home/user"},    {"XDG_CONFIG_HOME", "/c"},
                               {"XDG_DATA_HOME", "/d"},   {"XDG_CACHE_HOME", "/e"},
                               {"XDG_RUNTIME_DIR", "/r"}, {"TMPDIR", "/t"}};

  EXPECT_EQ(inProcessWith(variables, &Environment::configHome), "/c");
  EXPECT_EQ(inProcessWith(variables, &Environment::dataHome), "/d");
  EXPECT_EQ(inProcessWith(variables, &Environment::cacheHome), "/e");
  EXPECT_EQ(inProcessWith(variables, &Environment::runtimeDir), "/r");
  EXPECT_EQ(inProcessWith(variables, &Environment::tmpDir), "/t");
}

TEST(Environment, ARelativeOrEmptyPathCountsForNothing) {
  const Variables variables = {{"HOME", "/home/user"},
                               {"XDG_CONFIG_HOME", "config"},
                               {"XDG_DATA_HOME", "./data"},
                               {"XDG_CACHE_HOME", ""},
                               {"TMPDIR", "tmp"}};

  EXPECT_EQ(inProcessWith(variables, &Environment::configHome), "/home/user/.config");
  EXPECT_EQ(inProcessWith(variables, &Environment::dataHome), "/home/user/.local/share");
  EXPECT_EQ(inProcessWith(variables, &Environment::cacheHome), "/home/user/.cache");
  EXPECT_EQ(inProcessWith(variables, &Environment::tmpDir), "/tmp");
}

TEST(Environment, ARelativeRuntimeFolderIsAsGoodAsNone) {
  EXPECT_EQ(inProcessWith({{"XDG_RUNTIME_DIR", "run"}}, &Environment::runtimeDir),
            inProcessWith({}, &Environment::runtimeDir));
}

TEST(Environment, WithoutAHomeTheListedOneCounts) {
  const std::string listed = inProcessWith({}, &Environment::home);

  EXPECT_TRUE(listed.starts_with('/'));
  EXPECT_EQ(inProcessWith({{"HOME", ""}}, &Environment::home), listed);
  EXPECT_EQ(inProcessWith({{"HOME", "relative"}}, &Environment::home), listed);
}

TEST(Environment, ClosingSeparatorsAreCut) {
  EXPECT_EQ(inProcessWith({{"HOME", "/home/user//"}}, &Environment::configHome),
            "/home/user/.config");
  EXPECT_EQ(inProcessWith({{"XDG_DATA_HOME", "/d/"}}, &Environment::dataHome), "/d");
  EXPECT_EQ(inProcessWith({{"TMPDIR", "/"}}, &Environment::tmpDir), "/");
}

TEST(Environment, AHomeThatIsTheRootHasOneSeparator) {
  EXPECT_EQ(inProcessWith({{"HOME", "/"}}, &Environment::configHome), "/.config");
}

}  // namespace
}  // namespace zelvane::test
