#include "cleaner/options_handlers.h"

#include <string>

#include "cleaner/browser_settings.h"
#include "core/handler.h"
#include "core/numbers.h"

namespace zelvane::cleaner {

namespace {

// Stands in the store's place where nothing is stored; no box has it.
constexpr int kNeverStored = 3;

std::string keyOf(std::size_t index) { return "Index" + std::to_string(index); }

}  // namespace

OptionsHandlers::OptionsHandlers(CleanerPage& page, core::SettingsStore& settings,
                                 platform::Registry& registry, const bool& saving)
    : page_(page), settings_(settings), registry_(registry), saving_(saving) {
  for (std::size_t index = 0; index < kOptionCount; ++index) {
    page_.chkSettings[index].clicked.connect([this, index] { chkSettings_Click(index); });
  }
  page_.cmdDefaultSettings.clicked.connect([this] { cmdDefaultSettings_Click(); });
  page_.cmdDefaultSettings1.clicked.connect([this] { cmdDefaultSettings1_Click(); });
  page_.chkWebAddress.clicked.connect([this] { chkWebAddress_Click(); });
}

void OptionsHandlers::loadOptions() {
  for (std::size_t index = 0; index < kOptionCount; ++index) {
    // A value that someone spoiled by hand costs its own option only.
    core::ignoringErrors([&] { loadOption(index); });
  }
}

void OptionsHandlers::loadOption(std::size_t index) {
  const std::string stored = settings_.load(core::SettingsStore::Application::programFolder,
                                            "Settings", keyOf(index), std::to_string(kNeverStored));
  const double number = core::toNumber(stored);
  if (number != kNeverStored) {
    page_.chkSettings[index].setValue(core::toInteger(number));
  }
}

void OptionsHandlers::loadWebAddress() {
  page_.chkWebAddress.setValue(readAutoSuggest(registry_) == "yes" ? controls::CheckBox::kUnchecked
                                                                   : controls::CheckBox::kChecked);
}

void OptionsHandlers::chkSettings_Click(std::size_t index) {
  if (!saving_) {
    return;
  }
  // The box keeps showing the click, so the user loses nothing by a store that refuses it.
  core::ignoringErrors([&] {
    settings_.save(core::SettingsStore::Application::programFolder, "Settings", keyOf(index),
                   std::to_string(page_.chkSettings[index].value()));
  });
}

void OptionsHandlers::cmdDefaultSettings_Click() { setDefaults(kInternetDefaults); }

void OptionsHandlers::cmdDefaultSettings1_Click() { setDefaults(kComputerDefaults); }

void OptionsHandlers::setDefaults(std::span<const DefaultState> defaults) {
  for (const DefaultState& option : defaults) {
    page_.chkSettings[option.index].setValue(option.state);
  }
}

void OptionsHandlers::chkWebAddress_Click() {
  writeAutoSuggest(registry_, page_.chkWebAddress.checked() ? "no" : "yes");
}

}  // namespace zelvane::cleaner
