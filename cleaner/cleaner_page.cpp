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
      "Makes this address your browsers' start page, now and at every start of Zelvane. Open "
      "browsers "
      "follow at the next start after they are closed.");
  txtHomePageURL.setDescription(
      "The address of your home page. Empty means a blank page. A browser that guards its start "
      "page "
      "against other programs, as Chrome does on Windows, keeps its own: set it there by hand.");
  chkWebAddress.setDescription(
      "Acts at once, on browsers that are closed: ticked, they no longer suggest addresses while "
      "you "
      "type.");
}

}  // namespace zelvane::cleaner
