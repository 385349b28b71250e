#include "cleaner/cleaner_page.h"

#include <string>

namespace zelvane::cleaner {

CleanerPage::CleanerPage() {
  for (std::size_t index = 0; index < kOptionCount; ++index) {
    chkSettings[index].setDescription(std::string(kOptions[index].description));
    if (kOptions[index].tab == OptionTab::cleanInternet) {
      chkSettings[index].placeIn(fmSettings);
    }
  }
  for (controls::Control* control :
       {static_cast<controls::Control*>(&chkWebAddress), static_cast<controls::Control*>(&Command2),
        static_cast<controls::Control*>(&cmdDefaultSettings)}) {
    control->placeIn(fmSettings);
  }
  constexpr auto runsEverything =
      "Erases every ticked line of both cleaning pages, not of this page alone.";
  cmdBasicClean.setDescription(runsEverything);
  Command2.setDescription(runsEverything);
  Command3.setDescription(runsEverything);
  cmdDefaultSettings.setDescription("Sets the usual ticks on this page and on the others.");
  cmdDefaultSettings1.setDescription("Sets the usual ticks on this page.");
  rtfMessage.setDescription("What a cleaning erased is told here.");
  cmdHomePage.setDescription(
      "Makes this address the browser's start page, now and at every start.");
  txtHomePageURL.setDescription("The address of your home page.");
  chkWebAddress.setDescription(
      "Acts at once: ticked, the browser no longer suggests addresses while you type.");
}

}  // namespace zelvane::cleaner
