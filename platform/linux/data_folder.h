// The files that belong to the program and that its user may change.
#pragma once

#include <string>

namespace zelvane::platform {

// Puts "wavpath.txt", with an empty line, and "ding.wav" into the folder where they are missing,
// and makes the folder, for its user alone. What is there stays, whatever it is. What cannot be
// made is left out without a word.
//
// A package can bring these files into the system's folders, but not into a home that does not know
// the program yet, nor back into one from which they were erased.
void refillDataFolder(const std::string& folder);

}  // namespace zelvane::platform
