// A window and a notification area for the icons that the program can show in it.
#pragma once

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "core/controls/form.h"
#include "core/controls/picture.h"
#include "platform/memory/memory_tray.h"

namespace zelvane::core {

class TrayIconsTest : public testing::Test {
 protected:
  std::vector<std::string> calls() const {
    std::vector<std::string> names;
    for (const auto& call : tray.calls()) {
      names.push_back(call.name);
    }
    return names;
  }

  const platform::NotificationRecord& lastRecord() const { return tray.calls().back().record; }

  controls::Page page;
  controls::Form form{page, "frmTest", "A window"};
  controls::Picture picture{page, "picNew", controls::Picture::Image::broom};
  platform::MemoryTray tray;
};

}  // namespace zelvane::core
