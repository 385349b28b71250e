// The browsers that Zelvane knows, and the profiles that are there.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/shared/browsers/rules.h"

namespace zelvane::platform {

enum class Family { firefox, chromium };

// One browser, installed in one way. A pattern begins with a folder in braces; "*" in it stands for
// any part of a name.
struct Installation {
  std::string_view browser;  // as its users call it
  Family family;
  std::string_view root;   // pattern of the folder that holds its profiles and the list of them
  std::string_view cache;  // the same for its caches; empty where they are in the profiles
};

// Adding a browser is adding rows.
const std::vector<Installation>& knownInstallations();

const FamilyRules& rulesOf(Family family);

struct Profile {
  std::string browser;  // "Firefox"
  std::string name;     // "default-release", as the browser shows it to its user
  Family family{};
  std::string root;    // the folder that holds the list
  std::string folder;  // the profile itself
  std::string cache;   // of this profile; may be `folder`

  std::string title() const { return browser + " (" + name + ")"; }
};

class BrowserDesktop;
class Files;

// What is there now, each profile once, whatever leads to it. A profile is a folder of the user's
// own and no link; lists that name any other, that cannot be read, or that are no lists, add
// nothing.
std::vector<Profile> profilesThere(const BrowserDesktop& desktop, const Files& files);

}  // namespace zelvane::platform
