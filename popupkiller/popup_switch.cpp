#include "popupkiller/popup_switch.h"

#include "core/controls/menu.h"
#include "core/handler.h"

namespace zelvane::popupkiller {

namespace {

using Application = core::SettingsStore::Application;

constexpr auto kSection = "PopupKiller";
constexpr auto kKey = "IsActive";
constexpr auto kOn = "1";
constexpr auto kOff = "0";

int boxValue(bool active) {
  return active ? controls::CheckBox::kChecked : controls::CheckBox::kUnchecked;
}

}  // namespace

PopupSwitch::PopupSwitch(PopupPage& page, controls::MenuItem& mnuPoupKiller, Events& events,
                         core::SettingsStore& settings)
    : page_(page), mnuPoupKiller_(mnuPoupKiller), events_(events), settings_(settings) {
  page_.chkPopupKillerActivate.clicked.connect([this] { chkPopupKillerActivate_Click(); });
  mnuPoupKiller_.clicked.connect([this] { mnuPoupKiller_Click(); });
}

void PopupSwitch::load() {
  const bool active = settings_.load(Application::title, kSection, kKey, kOn) != kOff;
  page_.chkPopupKillerActivate.setValue(boxValue(active));
  events_.gPopupKillerActive = active;
}

void PopupSwitch::markMenuItem() {
  mnuPoupKiller_.setChecked(page_.chkPopupKillerActivate.checked());
}

void PopupSwitch::chkPopupKillerActivate_Click() {
  activate(page_.chkPopupKillerActivate.checked());
  markMenuItem();
}

void PopupSwitch::mnuPoupKiller_Click() {
  const bool active = !mnuPoupKiller_.checked();
  activate(active);
  page_.chkPopupKillerActivate.setValue(boxValue(active));
}

void PopupSwitch::activate(bool active) {
  core::ignoringErrors(
      [&] { settings_.save(Application::title, kSection, kKey, active ? kOn : kOff); });
  events_.gPopupKillerActive = active;
}

}  // namespace zelvane::popupkiller
