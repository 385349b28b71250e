// The program's entry, once `main` has built ports, window and shell.
#pragma once

#include <string>

namespace zelvane::platform {
struct Desktop;
class Identity;
}  // namespace zelvane::platform

namespace zelvane::main_window {

class frmMain;

namespace GenFunc {

// Refuses to run twice, tells of each store that is damaged or cannot be read (settings first) in a
// box of its own, makes sure that the encrypted-file type has its entry in "WIN.INI", and shows the
// window. A second instance says so in a box and ends before it has touched any window,
// setting or profile. Returns once the window is shown; the program lives on in its event loop.
void Main(const platform::Desktop& desktop, frmMain& window);

// The entry for files whose names end in ".dvk": folder and executable follow each other without a
// separator, and nothing is quoted. It has always been written so; who reads it knows it so.
std::string containerProfileEntry(const platform::Identity& identity);

}  // namespace GenFunc
}  // namespace zelvane::main_window
