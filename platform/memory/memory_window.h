// A window that only writes down what it was told to do.
#pragma once

#include <string>
#include <vector>

#include "platform/window_commands.h"

namespace zelvane::platform {

class MemoryWindow : public WindowCommands {
 public:
  void bringForward() override { calls_.emplace_back("bringForward"); }
  void activate() override { calls_.emplace_back("activate"); }
  void focus(const std::string& controlName) override { calls_.push_back("focus " + controlName); }
  void repaint(const std::string& controlName) override {
    calls_.push_back("repaint " + controlName);
  }

  // In order: "bringForward", "focus cmdBrowse", "repaint lblStatus".
  const std::vector<std::string>& calls() const { return calls_; }

 private:
  std::vector<std::string> calls_;
};

}  // namespace zelvane::platform
