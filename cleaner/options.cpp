#include "cleaner/options.h"

namespace zelvane::cleaner {

// "Cashe" and the blank after "Favorites" have been there since the first version and stay.
constexpr std::array<Option, kOptionCount> kOptions{{
    {"Prevent Sites from improperly changing your Home Page", OptionTab::main, Task::none, "",
     "Kept for you as you set it. Your home page is put back at every start either way."},
    {"Clear Windows' secret index.dat file", OptionTab::cleanComputer, Task::none, "",
     "Kept for you as you set it. Today's systems have no such file; nothing is done."},
    {"Clear Site Addresses", OptionTab::cleanInternet, Task::typedAddresses,
     "Erasing 'Auto Complete' Site Addresses", "Erases the addresses that you typed."},
    {"Clear Recent Files List", OptionTab::cleanInternet, Task::recentFiles, "Erasing Recent Files",
     "Erases the list of documents that you used lately. The documents themselves stay."},
    {"Clear My Documents Files", OptionTab::cleanComputer, Task::myDocuments,
     "Erasing My Documents Files",
     "Erases the files in your documents folder for good. They do not go to the recycle bin."},
    {"Clear Recycle Bin", OptionTab::cleanComputer, Task::recycleBin,
     "Erasing Contents of Recycle Bin",
     "Erases for good what waits in the recycle bin of every mounted volume."},
    {"Clear Temporary Internet Files", OptionTab::cleanInternet, Task::browserCache,
     "Erasing Internet Cashe", "Erases the pages and pictures that browsers keep to load faster."},
    {"Clear Browser Cookies", OptionTab::cleanInternet, Task::cookies, "Erasing Browser Cookies",
     "Erases cookies. Web sites will ask you to sign in again."},
    {"Clear Browser Favorites ", OptionTab::cleanInternet, Task::favorites,
     "Erasing Browser Favorites", "Erases your bookmarks for good."},
    {"Clear Browser History Logs", OptionTab::cleanInternet, Task::history,
     "Erasing Internet History", "Erases the list of the pages that you visited."},
    {"Frees space on your Hard Drive", OptionTab::cleanComputer, Task::none, "",
     "Kept for you as you set it. Every ticked line frees space; this one adds nothing."},
    {"Windows Temp Directories", OptionTab::cleanComputer, Task::temporaryFiles,
     "Erasing Windows Temporary Files",
     "Erases your files in the folder for temporary files. Files in use stay."},
    {"Clear Clipboard", OptionTab::cleanComputer, Task::clipboard, "",
     "Empties what you copied last."},
    {"Delete Windows start menu \"run\" history", OptionTab::cleanComputer, Task::runHistory,
     "Erasing Windows Start Run History", "Erases the commands that you typed into the Run box."},
    {"Disable Script Debugging", OptionTab::cleanInternet, Task::scriptDebugging, "",
     "Notes for the system's own browser not to offer to debug pages. Others have no such switch. "
     "Not "
     "undone when you untick it."},
    {"Don't Display a Notification About Every Script Error", OptionTab::cleanInternet,
     Task::scriptErrors, "",
     "Notes for the system's own browser to keep quiet about errors in pages. Others do so anyway. "
     "Not "
     "undone when you untick it."},
}};

namespace {

constexpr DefaultState kInternet[] = {{2, 1}, {6, 0}, {7, 1}, {8, 0}, {9, 1}, {10, 1},
                                      {1, 1}, {4, 0}, {0, 1}, {3, 1}, {5, 1}, {11, 1}};
constexpr DefaultState kComputer[] = {{10, 1}, {1, 1}, {4, 0}, {0, 1}, {3, 1}, {5, 1}, {11, 1}};

constexpr std::size_t kInternetColumn[] = {8, 2, 3, 6, 7, 9, 15, 14};
constexpr std::size_t kComputerColumn[] = {1, 5, 10, 11, 4, 12, 13};

}  // namespace

const std::span<const DefaultState> kInternetDefaults = kInternet;
const std::span<const DefaultState> kComputerDefaults = kComputer;
const std::span<const std::size_t> kInternetOrder = kInternetColumn;
const std::span<const std::size_t> kComputerOrder = kComputerColumn;

}  // namespace zelvane::cleaner
