// Sounds that tell the user of something.
#pragma once

#include <string>

#include "platform/port.h"

namespace zelvane::platform {

class Sound : public Port {
 public:
  // Plays the sound file at that path while the program goes on; a sound that still plays is cut
  // off. Where there is no such file, and for the empty path, the system's own sound for events is
  // played. A desktop without a sound, or without anything to play it on, stays silent: nothing
  // fails, and nobody is kept waiting.
  virtual void play(const std::string& file) = 0;
};

}  // namespace zelvane::platform
