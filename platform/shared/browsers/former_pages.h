// What browsers started with before this program gave them its user's home page.
#pragma once

#include <map>
#include <optional>
#include <string>

#include <nlohmann/json.hpp>

#include "platform/files.h"
#include "platform/shared/browsers/browser.h"
#include "platform/shared/browsers/browser_desktop.h"

namespace zelvane::platform {

// One file, for people to read:
//
//     start-pages.json in the program's data folder
//     {
//       "format": 1,
//       "profiles": {
//         "/home/anna/.mozilla/firefox/abcd.default": {
//           "browser": "Firefox (default)",
//           "settings": {
//             "browser.startup.homepage": "https://before.example/",
//             "browser.startup.page": null
//           }
//         }
//       }
//     }
//
// null stands for a setting that was not made: the browser did as it does by itself.
class FormerPages {
 public:
  // All are borrowed but the folder, which need not exist yet.
  FormerPages(std::string dataFolder, const BrowserDesktop& desktop, Files& files);

  std::string path() const;

  using Settings = std::map<std::string, std::optional<nlohmann::json>>;

  // Notes them, unless some are noted for that profile already: those were the user's own. True if
  // it did. A file that is not understood is given another name. Throws where nothing can be
  // written.
  bool note(const Profile& profile, const Settings& settings);

 private:
  nlohmann::json read();
  std::string setAside() const;

  std::string dataFolder_;
  const BrowserDesktop& desktop_;
  Files& files_;
};

}  // namespace zelvane::platform
