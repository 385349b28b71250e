// A bin that tests fill.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/recycle_bin.h"

namespace zelvane::platform {

class MemoryRecycleBin : public RecycleBin {
 public:
  struct Item {
    std::string name;
    std::uint64_t bytes = 0;
    bool refuses = false;  // to go

    friend bool operator==(const Item&, const Item&) = default;
  };

  void put(Item item) { items_.push_back(std::move(item)); }

  // Delivers events after each item; an item that is put there meanwhile is another run's affair.
  std::uint64_t empty(EventPump& pump) override;

  const std::vector<Item>& items() const { return items_; }

  // How often it was asked to empty itself.
  int emptied() const { return emptied_; }

 private:
  std::vector<Item> items_;
  int emptied_ = 0;
};

}  // namespace zelvane::platform
