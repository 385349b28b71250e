// Erases as a cleaning run does, with the real folder tree.
#pragma once

#include <functional>
#include <stdexcept>
#include <string>
#include <utility>

#include "cleaner/erasure.h"
#include "platform/event_pump.h"
#include "platform/linux/linux_folder_tree.h"

namespace zelvane::test {

// Stands for whatever happens on the machine while an erasure lets events run: calls `happen` with
// the number of the event, from 1. An erasure that never ends is ended here, with an exception.
class Meanwhile : public platform::EventPump {
 public:
  explicit Meanwhile(std::function<void(int event)> happen = [](int) {})
      : happen_(std::move(happen)) {}

  void doEvents() override {
    if (++events_ == kEndless) throw std::runtime_error("the erasure does not end");
    happen_(events_);
  }

 private:
  static constexpr int kEndless = 2'000'000;

  std::function<void(int event)> happen_;
  int events_ = 0;
};

inline void erase(const std::string& path, platform::EventPump& pump,
                  const platform::LinuxFolderTree::Options& options = {}) {
  platform::LinuxFolderTree tree(options);
  cleaner::eraseContents(tree, pump, path);
}

}  // namespace zelvane::test
