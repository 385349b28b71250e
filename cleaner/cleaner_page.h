// The cleaner's controls, on three pages of the window.
#pragma once

#include <array>

#include "cleaner/options.h"
#include "core/controls/button.h"
#include "core/controls/check_box.h"
#include "core/controls/control_array.h"
#include "core/controls/frame.h"
#include "core/controls/rich_log.h"
#include "core/controls/text_box.h"

namespace zelvane::cleaner {

struct CleanerPage : controls::Page {
  CleanerPage();

  // "Main"
  controls::Button cmdBasicClean{*this, "cmdBasicClean", "Clean Computer and Internet"};
  controls::RichLog rtfMessage{*this, "rtfMessage"};
  controls::Button cmdHomePage{*this, "cmdHomePage", "Set Home Page"};
  controls::TextBox txtHomePageURL{*this, "txtHomePageURL"};

  // Spread over all three pages, as `kOptions` says.
  std::array<controls::CheckBox, kOptionCount> chkSettings =
      controls::controlArray<controls::CheckBox, kOptionCount>(
          *this, "chkSettings", [](std::size_t index) { return kOptions[index].caption; });

  // "Clean Internet"
  controls::Frame fmSettings{*this, "fmSettings", ""};
  controls::CheckBox chkWebAddress{*this, "chkWebAddress", "Clear Auto Complete Web &Addresses"};
  controls::Button Command2{*this, "Command2", "Clean Internet"};
  controls::Button cmdDefaultSettings{*this, "cmdDefaultSettings", "&Default"};

  // "Clean Computer"
  controls::Button Command3{*this, "Command3", "Clean Computer"};
  controls::Button cmdDefaultSettings1{*this, "cmdDefaultSettings1", "&Default"};
};

}  // namespace zelvane::cleaner
