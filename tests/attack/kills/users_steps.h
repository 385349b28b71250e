// What a user does from the start to the exit, for programs that are killed meanwhile.
#pragma once

#include <functional>
#include <vector>

namespace zelvane::test {

// Each step stores little, so that what is on the disk after a kill can be told apart.
template <typename Program>
std::vector<std::function<void(Program&)>> usersSteps() {
  return {
      [](Program& program) { program.start(); },
      [](Program& program) { program.clickOption(12); },
      [](Program& program) { program.clickOption(13); },
      [](Program& program) { program.clickOption(14); },
      [](Program& program) {
        program.window.cleanerPage.txtHomePageURL.setText("https://home.example/");
        program.window.cleanerPage.cmdHomePage.click();
      },
      [](Program& program) { program.window.cleanerPage.chkWebAddress.click(); },
      [](Program& program) { program.window.cleanerPage.cmdBasicClean.click(); },
      [](Program& program) { program.window.schedulePage.tmrMakeScehduleEnable.tick(); },
      [](Program& program) {
        program.window.mainPage.chkStartup.setValue(1);
        program.exit();
      },
  };
}

// All steps after the start once more, in a program that has been started, however many of them an
// earlier run had done.
template <typename Program>
void doAllAgain(Program& program) {
  for (const std::size_t option : {12U, 13U, 14U}) {
    program.window.cleanerPage.chkSettings[option].setValue(0);
  }
  program.window.cleanerPage.chkWebAddress.setValue(1);
  const auto steps = usersSteps<Program>();
  for (auto step = steps.begin() + 1; step != steps.end(); ++step) (*step)(program);
}

}  // namespace zelvane::test
