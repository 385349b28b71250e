// What each test of the real program stands on.
#pragma once

#include <initializer_list>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/desktop/windows/program_window.h"
#include "tests/desktop/windows/running_program.h"
#include "tests/desktop/windows/stored_settings.h"
#include "tests/desktop/windows/throw_away_world.h"

namespace zelvane::test {

class DesktopTest : public testing::Test {
 protected:
  // Starts the program, cleans with these options alone, and returns the account.
  std::vector<LogLine> clean(std::initializer_list<Option> options) const {
    const RunningProgram program(world);
    const ProgramWindow window = program.window();
    window.tickOnly(options);
    return window.clean();
  }

  // What the account says of one task.
  static std::vector<LogLine> accountOf(const std::string& caption, const std::string& path) {
    return {
        {"Path: " + path, "blue"}, {caption + " ...", "blue"}, {"Finished " + caption, "green"}};
  }

  // What it says of a whole run.
  static std::vector<LogLine> accountOf(std::initializer_list<std::vector<LogLine>> tasks) {
    std::vector<LogLine> all;
    for (const auto& lines : tasks) all.insert(all.end(), lines.begin(), lines.end());
    all.push_back({"Done", "black"});
    return all;
  }

  ThrowAwayWorld world;
};

}  // namespace zelvane::test
