// A desktop on which every cleaning option finds work.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "platform/memory/memory_desktop.h"
#include "platform/special_folders.h"

namespace zelvane::faults {

// The folders in which a run erases. A desktop need not have all of them.
struct CleaningWorld {
  std::map<platform::SpecialFolder, std::string> folders;
  std::string temporary;  // as the desktop tells it, with its closing separator; empty for none
  bool small = false;     // trees of a few files

  // All of them, without a closing separator.
  std::vector<std::string> roots() const;
};

// Every folder there is, each holding a tree three levels deep with hidden files, files in use,
// read-only ones and links; and a desktop with nothing but a few documents.
CleaningWorld wholeWorld();
CleaningWorld smallWorld();

// Builds the trees, and what lies beside them and must stay; fills trash, clipboard and registry.
void furnish(platform::MemoryDesktop& desktop, const CleaningWorld& world);

}  // namespace zelvane::faults
