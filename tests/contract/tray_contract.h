// What every notification area promises.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/tray.h"

namespace zelvane::test {

// A program with a window "frmMain", a picture "picOther" in it and a menu "mnuMain", on a desktop
// that has a place for icons, until it is taken away.
class TrayBed {
 public:
  virtual ~TrayBed() = default;

  virtual platform::Tray& tray() = 0;

  // The tips of the program's icons that the user sees, as soon as the desktop has had its time.
  virtual std::vector<std::string> seen() = 0;

  // What the user does with the icon, as often as this desktop knows it.
  virtual void doubleClick() = 0;
  virtual void rightClick() = 0;

  virtual void takePlaceAway() = 0;
  virtual void givePlace() = 0;

  // Opens the menu by the port and tells which menus the user sees open; they are closed then.
  virtual std::vector<std::string> opened(const std::string& menuName) = 0;
};

using MakeTrayBed = std::unique_ptr<TrayBed> (*)();

class TrayContract : public testing::TestWithParam<MakeTrayBed> {
 protected:
  platform::NotificationRecord record(const std::string& tip) const;

  std::unique_ptr<TrayBed> bed = GetParam()();
};

}  // namespace zelvane::test
