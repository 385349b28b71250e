// The About box: what the program is called, and on which terms one has it.
#pragma once

#include <string>

#include "about/about_page.h"

namespace zelvane::platform {
class Identity;
struct VersionRecord;
}  // namespace zelvane::platform

namespace zelvane::about {

// A shell shows the form as a box: while it is visible the rest of the window cannot be used and no
// timer ticks.
class frmAbout {
 public:
  // Both outlive it.
  frmAbout(AboutPage& page, const platform::Identity& identity);

  // Loads the box and shows it. One that is open stays as it is.
  void show();

  void Form_Load();
  void cmdOK_Click();

 private:
  AboutPage& page_;
  const platform::Identity& identity_;
};

// A paragraph of five lines, and below it the line that reserves all rights, with the program's
// legal text and the company's name; every line break is "\r\n".
std::string notice(const platform::VersionRecord& version);

}  // namespace zelvane::about
