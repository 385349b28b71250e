// The pages that a profile knows for one reason, whatever else it knows of them.
#pragma once

#include <string>
#include <vector>

#include "platform/files.h"
#include "platform/shared/browsers/browser_desktop.h"

namespace zelvane::platform {

// All give addresses, and throw where the file that holds them cannot be read or understood,
// because then nobody can say what belongs to such a page. Without the file there are none.

// Of "places.sqlite"; a keyword counts as a bookmark.
std::vector<std::string> bookmarksOfFirefox(const std::string& profile,
                                            const BrowserDesktop& desktop, const Files& files);
std::vector<std::string> visitedByFirefox(const std::string& profile, const BrowserDesktop& desktop,
                                          const Files& files);

// Of the files of JSON "Bookmarks" and "AccountBookmarks"; of "History".
std::vector<std::string> bookmarksOfChromium(const std::string& profile,
                                             const BrowserDesktop& desktop, const Files& files);
std::vector<std::string> visitedByChromium(const std::string& profile,
                                           const BrowserDesktop& desktop, const Files& files);

}  // namespace zelvane::platform
