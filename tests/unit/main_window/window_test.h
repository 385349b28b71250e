// The whole window on a desktop in memory.
#pragma once

#include <optional>
#include <string>

#include <gtest/gtest.h>

#include "core/main_window/frm_main.h"
#include "core/main_window/startup.h"
#include "platform/memory/memory_desktop.h"

namespace zelvane::main_window {

inline constexpr auto kBrowserMain = R"(Software\Microsoft\Internet Explorer\Main)";
inline constexpr auto kAutoComplete =
    R"(Software\Microsoft\Windows\CurrentVersion\Explorer\AutoComplete)";

class WindowTest : public testing::Test {
 protected:
  using Root = platform::Registry::Root;

  void start() { GenFunc::Main(desktop.ports(), window); }

  void storeOption(std::size_t index, const std::string& text) {
    desktop.settings.put(desktop.identity.programFolder(), "Settings",
                         "Index" + std::to_string(index), text);
  }

  platform::MemoryDesktop desktop;
  frmMain window{desktop.ports()};
};

}  // namespace zelvane::main_window
