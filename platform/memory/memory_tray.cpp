#include "platform/memory/memory_tray.h"

namespace zelvane::platform {

std::uint32_t MemoryTray::windowHandle(const std::string& formName) const {
  return handleOf("window " + formName);
}

std::uint32_t MemoryTray::iconHandle(const std::string& controlName) const {
  return handleOf("icon " + controlName);
}

std::uint32_t MemoryTray::handleOf(const std::string& name) const {
  constexpr std::uint32_t kFirst = 0x00A1B2C4;
  return handles_.emplace(name, kFirst + static_cast<std::uint32_t>(handles_.size())).first->second;
}

bool MemoryTray::isThere(const NotificationRecord& record) const {
  return icon_ && areOfOneIcon(*icon_, record);
}

bool MemoryTray::add(const NotificationRecord& record) {
  calls_.push_back({"add", record});
  if (icon_) {
    return false;
  }
  icon_ = record;
  return true;
}

bool MemoryTray::modify(const NotificationRecord& record) {
  calls_.push_back({"modify", record});
  if (!isThere(record)) {
    return false;
  }
  icon_ = record;
  return true;
}

bool MemoryTray::remove(const NotificationRecord& record) {
  calls_.push_back({"remove", record});
  if (!isThere(record)) {
    return false;
  }
  icon_.reset();
  return true;
}

void MemoryTray::showMenu(const std::string& menuName) {
  if (known_.empty() || known_.contains(menuName)) {
    menus_.push_back(menuName);
  }
}

std::optional<std::string> MemoryTray::tip() const {
  return isShown() ? std::optional(tipText(*icon_)) : std::nullopt;
}

void MemoryTray::use(int mouseMessage) const {
  if (isShown()) {
    used_(mouseMessage);
  }
}

void MemoryTray::takePlaceAway() {
  const bool wasShown = isShown();
  hasPlace_ = false;
  if (wasShown) {
    lost_();
  }
}

}  // namespace zelvane::platform
