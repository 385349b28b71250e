// A start while the program runs.
#include <cstdlib>

#include "tests/desktop/windows/desktop_test.h"

namespace zelvane::test {
namespace {

using SecondStart = DesktopTest;

TEST_F(SecondStart, SaysThatTheProgramRunsAndEndsWithoutAWindow) {
  const RunningProgram first(world);
  first.window();

  const RunningProgram second(world);
  const MessageBox box = second.message();

  EXPECT_EQ(box.title(), "Zelvane");
  EXPECT_EQ(box.text(), "Zelvane v1.0 already running.");
  EXPECT_FALSE(second.hasWindow());
  box.accept();
  EXPECT_EQ(second.endStatus(), EXIT_SUCCESS);
}

TEST_F(SecondStart, ChangesNothing) {
  const RunningProgram first(world);
  const ProgramWindow window = first.window();
  window.tick(Option::clipboard);
  const auto stored = ThrowAwayWorld::allStored();
  ThrowAwayWorld::setProfileEntry(std::nullopt);
  setUserText(ThrowAwayWorld::kBrowser, "Start Page", "https://later.example/");

  const RunningProgram second(world);
  second.message().accept();
  second.endStatus();

  EXPECT_TRUE(first.isRunning());
  EXPECT_EQ(window.page(), TabPage::cleanComputer);
  EXPECT_TRUE(window.option(Option::clipboard).isTicked());
  EXPECT_EQ(ThrowAwayWorld::allStored(), stored);
  EXPECT_EQ(ThrowAwayWorld::profileEntry(), std::nullopt);
  EXPECT_EQ(userText(ThrowAwayWorld::kBrowser, "Start Page"), "https://later.example/");
}

TEST_F(SecondStart, AfterAnEndByForceTheProgramStartsAgain) {
  {
    const RunningProgram first(world);
    first.window();
    first.kill();
  }

  const RunningProgram second(world);

  EXPECT_EQ(second.window().status(), "Ready");
}

}  // namespace
}  // namespace zelvane::test
