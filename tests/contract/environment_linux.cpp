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

// The entries, one a line.
std::string listInProcessWith(const Variables& variables,
                              std::vector<std::string> Environment::*list) {
  ChildProcess child([&](const Say& say) {
    clearenv();
    for (const auto& [name, value] : variables) setenv(name, value, 1);
    const Environment environment = Environment::ofProcess();
    for (const std::string& entry : environment.*list) say(entry);
  });
  return child.hearAll();
}

TEST(Environment, TheSystemsFoldersAreWhereSystemsPutThemUnlessTheyAreNamed) {
  const Variables named = {
      {"XDG_CONFIG_DIRS", "/a:/b/"}, {"XDG_DATA_DIRS", "/c"}, {"PATH", "/d:/e"}};

  EXPECT_EQ(listInProcessWith({}, &Environment::configDirs), "/etc/xdg\n");
  EXPECT_EQ(listInProcessWith({}, &Environment::dataDirs), "/usr/local/share\n/usr/share\n");
  EXPECT_EQ(listInProcessWith({}, &Environment::programDirs), "/usr/local/bin\n/usr/bin\n/bin\n");
  EXPECT_EQ(listInProcessWith(named, &Environment::configDirs), "/a\n/b\n");
  EXPECT_EQ(listInProcessWith(named, &Environment::dataDirs), "/c\n");
  EXPECT_EQ(listInProcessWith(named, &Environment::programDirs), "/d\n/e\n");
}

TEST(Environment, NoFolderIsNamedByARelativeOrEmptyPath) {
  EXPECT_EQ(listInProcessWith({{"PATH", ":bin:.:/d:"}}, &Environment::programDirs), "/d\n");
}

TEST(Environment, TheDesktopHasItsNamesInLowerCase) {
  EXPECT_EQ(listInProcessWith({{"XDG_CURRENT_DESKTOP", "ubuntu:GNOME"}}, &Environment::desktops),
            "ubuntu\ngnome\n");
  EXPECT_EQ(listInProcessWith({}, &Environment::desktops), "");
}

}  // namespace
}  // namespace zelvane::test
