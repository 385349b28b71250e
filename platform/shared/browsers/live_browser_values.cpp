#include "platform/shared/browsers/live_browser_values.h"

#include <optional>
#include <string>

namespace zelvane::platform {

std::vector<LiveRegistry::LiveValue> liveBrowserValues(const BrowserSettings& settings,
                                                       LiveRegistry::Answers answers) {
  const auto imposeStartPage = [&settings](const std::string& text) {
    settings.imposeStartPage(text);
  };
  const auto suggestAddresses = [&settings](const std::string& text) {
    if (text == "yes" || text == "no") settings.suggestAddresses(text == "yes");
  };
  const auto suggestsAddresses = [&settings]() -> std::optional<std::string> {
    const std::optional<bool> suggests = settings.suggestsAddresses();
    if (!suggests) return std::nullopt;
    return *suggests ? "yes" : "no";
  };
  return {{.path = R"(Software\Microsoft\Internet Explorer\Main)",
           .name = "Start Page",
           .written = imposeStartPage},
          {.path = R"(Software\Microsoft\Windows\CurrentVersion\Explorer\AutoComplete)",
           .name = "AutoSuggest",
           .written = suggestAddresses,
           .present = suggestsAddresses,
           .answers = answers}};
}

}  // namespace zelvane::platform
