// Sounds that nobody hears: a test can read them.
#pragma once

#include <string>
#include <vector>

#include "platform/sound.h"

namespace zelvane::platform {

class MemorySound : public Sound {
 public:
  void play(const std::string& file) override { played.push_back(file); }

  std::vector<std::string> played;  // the paths as given, in their order
};

}  // namespace zelvane::platform
