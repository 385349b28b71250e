// The whole state of a desktop and of a window, as texts that can be compared and told apart.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "core/main_window/frm_main.h"
#include "platform/memory/memory_desktop.h"

namespace zelvane::faults {

// The browser's and the desktop's keys below HKEY_CURRENT_USER that the program touches.
inline constexpr auto kBrowserMain = R"(Software\Microsoft\Internet Explorer\Main)";
inline constexpr auto kTypedUrls = R"(Software\Microsoft\Internet Explorer\TypedURLs)";
inline constexpr auto kAutoComplete =
    R"(Software\Microsoft\Windows\CurrentVersion\Explorer\AutoComplete)";
inline constexpr auto kRun = R"(Software\Microsoft\Windows\CurrentVersion\Run)";
inline constexpr auto kRunMru = R"(Software\Microsoft\Windows\CurrentVersion\Explorer\RunMRU)";

// The path of a key or a value as it is named in facts and in calls.
std::string inUserRoot(const std::string& path);

// A fact is there or not; what is there has a value. Those of a desktop:
//
//   path /home/user/Recent/a.txt          "file", "folder", "link", "hidden file", "file in use"
//   key HKEY_CURRENT_USER\Software\...    "there"
//   value HKEY_CURRENT_USER\Software\...  its text
//   opened 00                             the path of a key that was never closed
//   stored Zelvane/HomePage/StartPage     the text of a setting
//   save 00                               what was saved, in its order
//   box 00                                what was shown
//   win.ini DVK, bin, clipboard, ended
//
// and of a window:
//
//   chkSettings_2.value, lblStatus.caption, rtfMessage.run 00
//   cmdApply.disabled, frmMain.hidden     "yes"; missing for most controls
//   dtpScheduleDate.value                 the number of its day and its time, or "none"
//   txtHours.background                   "button face"; missing for the usual one
using Facts = std::map<std::string, std::string>;

Facts factsOf(const platform::MemoryDesktop& desktop);
Facts factsOf(const main_window::frmMain& window);

// How a list of facts is numbered: "box 00", "save 12".
std::string numbered(const std::string& name, std::size_t index);

// How one box is told: its icon's name, its title and its text.
std::string boxFact(const std::string& icon, const std::string& text);

// Where a setting of the program's title is among the facts.
std::string storedFact(const std::string& section, const std::string& key);
std::string storedOptionFact(std::size_t index);

// One line for each fact in which they differ; none for equal ones.
std::vector<std::string> differences(const Facts& expected, const Facts& found);

// The facts whose names begin so.
Facts beginningWith(const std::string& name, const Facts& facts);

}  // namespace zelvane::faults
