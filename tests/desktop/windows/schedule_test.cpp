// The page "Schedule", and a cleaning that starts by itself.
#include <chrono>
#include <cstdio>
#include <string>

#include <windows.h>

#include "tests/desktop/windows/desktop_test.h"
#include "tests/desktop/windows/waiting.h"

namespace zelvane::test {
namespace {

constexpr int kDaily = 7;
constexpr int kDateAndTime = 9;
constexpr int kNever = 10;

class Schedule : public DesktopTest {
 protected:
  // The page in front, with nothing ticked that a run could erase.
  static ProgramWindow openPage(const RunningProgram& program) {
    ProgramWindow window = program.window();
    window.tickOnly({});
    window.turnTo(TabPage::schedule);
    return window;
  }

  // The time of day in so many seconds, on the clock on the wall.
  static std::string timeIn(int seconds) {
    constexpr ULONGLONG kSecond = 10'000'000;
    FILETIME now{};
    GetSystemTimePreciseAsFileTime(&now);
    ULARGE_INTEGER moment{{now.dwLowDateTime, now.dwHighDateTime}};
    moment.QuadPart += static_cast<ULONGLONG>(seconds) * kSecond;
    const FILETIME then{moment.LowPart, moment.HighPart};
    SYSTEMTIME universal{};
    SYSTEMTIME local{};
    FileTimeToSystemTime(&then, &universal);
    SystemTimeToTzSpecificLocalTime(nullptr, &universal, &local);
    char text[16];
    std::snprintf(text, sizeof text, "%02d:%02d:%02d", int{local.wHour}, int{local.wMinute},
                  int{local.wSecond});
    return text;
  }

  static void apply(const ProgramWindow& window) {
    window.control("cmdApply").pressAndWait();
    EXPECT_FALSE(window.control("cmdApply").isUsable());
    EXPECT_FALSE(window.control("cmdCancel").isUsable());
  }
};

TEST_F(Schedule, ACleaningStartsByItselfAtItsSecond) {
  const RunningProgram program(world);
  const ProgramWindow window = openPage(program);
  window.control("cmbDays").choose(kDaily);
  window.control("dtpScheduleTime").setTime("00:00:00");

  const std::string time = timeIn(2);
  window.control("dtpScheduleTime").setTime(time);
  apply(window);

  waitUntil("the run has begun", [&] { return window.control("lblLastRunTime").text() == time; });
  EXPECT_EQ(storedText("Schedule", "Time"), time);
  EXPECT_EQ(storedText("Schedule", "RunOn"), "7");
  waitUntil("its time is stored", [&] { return storedText("Schedule", "LastRunTime") == time; });
  EXPECT_EQ(window.page(), TabPage::main);
  EXPECT_EQ(window.log(), accountOf({}));
}

TEST_F(Schedule, ACleaningStartsByItselfWhileNobodySeesTheWindow) {
  const RunningProgram program(world);
  const ProgramWindow window = openPage(program);
  const std::string time = timeIn(3);
  window.control("dtpScheduleTime").setTime(time);
  apply(window);

  PostMessageW(window.window(), WM_CLOSE, 0, 0);
  waitUntil("the window is minimised", [&] { return window.isMinimised(); });

  EXPECT_NE(window.control("lblLastRunTime").text(), time);
  waitUntil("the run has begun", [&] { return window.control("lblLastRunTime").text() == time; });
  waitUntil("it shows the window", [&] { return !window.isMinimised(); });
}

TEST_F(Schedule, CancelBringsBackWhatWasApplied) {
  const RunningProgram program(world);
  const ProgramWindow window = openPage(program);
  window.control("dtpScheduleTime").setTime("08:30:15");
  apply(window);
  window.control("cmbDays").choose(kNever);
  EXPECT_FALSE(window.control("dtpScheduleTime").isUsable());

  window.control("cmdCancel").pressAndWait();

  EXPECT_EQ(window.control("cmbDays").text(), "Daily");
  EXPECT_TRUE(window.control("dtpScheduleTime").isUsable());
  EXPECT_EQ(window.control("dtpScheduleTime").text(), "08:30:15");
  EXPECT_FALSE(window.control("txtHours").isUsable());
  EXPECT_FALSE(window.control("cmdCancel").isUsable());
  EXPECT_EQ(storedText("Schedule", "RunOn"), "7");
}

TEST_F(Schedule, WhatIsAppliedIsThereAtTheNextStart) {
  {
    const RunningProgram program(world);
    const ProgramWindow window = openPage(program);
    window.control("dtpScheduleTime").setTime("08:30:15");
    apply(window);
    program.kill();
  }

  const RunningProgram program(world);
  const ProgramWindow window = program.window();

  EXPECT_EQ(window.control("dtpScheduleTime").text(), "08:30:15");
  EXPECT_FALSE(window.control("cmdApply").isUsable());
}

TEST_F(Schedule, ADateAndTimeWithoutADateIsNotApplied) {
  const RunningProgram program(world);
  const ProgramWindow window = openPage(program);
  window.control("cmbDays").choose(kDateAndTime);

  window.control("cmdApply").press();

  const MessageBox box = program.message();
  EXPECT_EQ(box.title(), "Zelvane");
  EXPECT_EQ(box.text(), "Define Date");
  box.accept();
  EXPECT_TRUE(window.control("cmdApply").isUsable());
  EXPECT_EQ(storedText("Schedule", "RunOn"), std::nullopt);
}

}  // namespace
}  // namespace zelvane::test
