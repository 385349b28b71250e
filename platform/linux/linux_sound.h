// The sounds of a freedesktop.org desktop.
#pragma once

#include <condition_variable>
#include <mutex>
#include <optional>
#include <string>
#include <thread>

#include "platform/sound.h"

namespace zelvane::platform {

// Played by libcanberra, which most desktops play their own sounds with, where it is installed; it
// knows the user's sound theme and how this desktop makes itself heard. On a system without it the
// program is silent rather than not startable, so it is looked for at the first sound.
//
// It talks to the sound server before it returns. One that hangs would hang the window, hence a
// thread of its own. Whoever asks while that is still at work replaces what waits.
class LinuxSound : public Sound {
 public:
  LinuxSound() = default;
  // Waits for the thread.
  ~LinuxSound() override;

  void play(const std::string& file) override;

 private:
  void work();
  std::optional<std::string> next();

  std::mutex mutex_;
  std::condition_variable changed_;
  std::optional<std::string> next_;
  bool ending_ = false;
  std::thread worker_;
};

}  // namespace zelvane::platform
