#include "cleaner/options.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "cleaner/cleaner_page.h"

namespace zelvane::cleaner {
namespace {

TEST(Options, CaptionsStandAsTheyAreShown) {
  std::vector<std::string> captions;
  captions.reserve(kOptions.size());
  for (const Option& option : kOptions) {
    captions.emplace_back(option.caption);
  }

  EXPECT_EQ(captions, (std::vector<std::string>{
                          "Prevent Sites from improperly changing your Home Page",
                          "Clear Windows' secret index.dat file",
                          "Clear Site Addresses",
                          "Clear Recent Files List",
                          "Clear My Documents Files",
                          "Clear Recycle Bin",
                          "Clear Temporary Internet Files",
                          "Clear Browser Cookies",
                          "Clear Browser Favorites ",
                          "Clear Browser History Logs",
                          "Frees space on your Hard Drive",
                          "Windows Temp Directories",
                          "Clear Clipboard",
                          "Delete Windows start menu \"run\" history",
                          "Disable Script Debugging",
                          "Don't Display a Notification About Every Script Error",
                      }));
}

TEST(Options, EachBoxCarriesItsCaptionAndSaysMoreInItsDescription) {
  const CleanerPage page;

  for (std::size_t index = 0; index < kOptionCount; ++index) {
    EXPECT_EQ(page.chkSettings[index].caption(), kOptions[index].caption);
    EXPECT_EQ(page.chkSettings[index].name(), "chkSettings_" + std::to_string(index));
    EXPECT_NE(page.chkSettings[index].description(), "") << index;
    EXPECT_EQ(page.chkSettings[index].value(), 0) << index;
  }
}

TEST(Options, EachStandsOnItsPageInTheOrderOfTheScreen) {
  EXPECT_EQ(std::vector(kInternetOrder.begin(), kInternetOrder.end()),
            (std::vector<std::size_t>{8, 2, 3, 6, 7, 9, 15, 14}));
  EXPECT_EQ(std::vector(kComputerOrder.begin(), kComputerOrder.end()),
            (std::vector<std::size_t>{1, 5, 10, 11, 4, 12, 13}));
  for (const std::size_t index : kInternetOrder) {
    EXPECT_EQ(kOptions[index].tab, OptionTab::cleanInternet) << index;
  }
  for (const std::size_t index : kComputerOrder) {
    EXPECT_EQ(kOptions[index].tab, OptionTab::cleanComputer) << index;
  }
  EXPECT_EQ(kOptions[0].tab, OptionTab::main);
}

TEST(Options, ThreeOptionsHaveNoTaskAndTheSilentOnesNoLogCaption) {
  std::vector<std::size_t> withoutTask;
  std::vector<std::size_t> silent;
  for (std::size_t index = 0; index < kOptionCount; ++index) {
    if (kOptions[index].task == Task::none) {
      withoutTask.push_back(index);
    } else if (kOptions[index].logCaption.empty()) {
      silent.push_back(index);
    }
  }

  EXPECT_EQ(withoutTask, (std::vector<std::size_t>{0, 1, 10}));
  EXPECT_EQ(silent, (std::vector<std::size_t>{12, 14, 15}));
}

}  // namespace
}  // namespace zelvane::cleaner
