// Opens a web address in the user's browser.
#pragma once

#include <string>

namespace zelvane::platform {
struct Desktop;
}

namespace zelvane::about::GenFunc {

// Starts the program that opens files of that type ("htm") with the address as its one argument,
// and tells in a box what fails. To learn of the program, a small file of that type is made in the
// folder for temporary files; it replaces what had its name there, and is gone afterwards. A
// failure to make it ends all this without a word.
void OpenURL(const platform::Desktop& desktop, const std::string& address,
             const std::string& extension);

}  // namespace zelvane::about::GenFunc
