// A notification area that a test looks at, clicks in, and takes away.
#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "platform/tray.h"

namespace zelvane::platform {

class MemoryTray : public Tray {
 public:
  // On a window with these menus; without a word on it, with every menu that is asked for.
  explicit MemoryTray(std::set<std::string> menus = {}) : known_(std::move(menus)) {}

  // Each name that is asked for has a handle of its own.
  std::uint32_t windowHandle(const std::string& formName) const override;
  std::uint32_t iconHandle(const std::string& controlName) const override;

  bool add(const NotificationRecord& record) override;
  bool modify(const NotificationRecord& record) override;
  bool remove(const NotificationRecord& record) override;
  bool isShown() const override { return hasPlace_ && icon_; }
  void showMenu(const std::string& menuName) override;
  void whenUsed(std::function<void(int mouseMessage)> used) override { used_ = std::move(used); }
  void whenLost(std::function<void()> lost) override { lost_ = std::move(lost); }

  // What the user sees and does.
  std::optional<std::string> tip() const;
  void use(int mouseMessage) const;
  void takePlaceAway();
  void givePlace() { hasPlace_ = true; }

  // What the program asked for, in its order and whether or not it was done: "add", "remove", ...
  struct Call {
    std::string name;
    NotificationRecord record;
  };
  const std::vector<Call>& calls() const { return calls_; }

  // The names of the menus that were opened.
  const std::vector<std::string>& menus() const { return menus_; }

 private:
  std::uint32_t handleOf(const std::string& name) const;
  bool isThere(const NotificationRecord& record) const;

  std::set<std::string> known_;
  mutable std::map<std::string, std::uint32_t> handles_;
  bool hasPlace_ = true;
  std::optional<NotificationRecord> icon_;
  std::vector<Call> calls_;
  std::vector<std::string> menus_;
  std::function<void(int)> used_ = [](int) {};
  std::function<void()> lost_ = [] {};
};

}  // namespace zelvane::platform
