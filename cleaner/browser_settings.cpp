#include "cleaner/browser_settings.h"

#include "core/registry_routines.h"
#include "platform/registry.h"

namespace zelvane::cleaner {

namespace {

using platform::Registry;

constexpr auto kMain = R"(Software\Microsoft\Internet Explorer\Main)";
constexpr auto kAutoComplete = R"(Software\Microsoft\Windows\CurrentVersion\Explorer\AutoComplete)";
constexpr auto kAutoSuggest = "AutoSuggest";

void write(Registry& registry, const char* path, const char* name, const std::string& text) {
  core::Registry::SetKeyValue(registry, Registry::Root::currentUser, path, name, text,
                              Registry::Type::string);
}

}  // namespace

void writeStartPage(Registry& registry, const std::string& address) {
  write(registry, kMain, "Start Page", address);
}

std::optional<std::string> readAutoSuggest(Registry& registry) {
  return core::Registry::stringValue(registry, Registry::Root::currentUser, kAutoComplete,
                                     kAutoSuggest);
}

void writeAutoSuggest(Registry& registry, const std::string& answer) {
  write(registry, kAutoComplete, kAutoSuggest, answer);
}

void disableScriptDebugger(Registry& registry) {
  write(registry, kMain, "Disable Script Debugger", "yes");
}

void disableScriptErrorNotification(Registry& registry) {
  write(registry, kMain, "Disable Script DebuggerX", "yes");
}

}  // namespace zelvane::cleaner
