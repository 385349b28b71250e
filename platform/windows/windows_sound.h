// Sounds played by the Windows multimedia library.
#pragma once

#include <functional>

#include <windows.h>
// That has to come first.
#include <mmsystem.h>

#include "platform/sound.h"

namespace zelvane::platform {

// The system itself plays its default sound for a name that it does not find. A name may also be
// one of its events' ("SystemAsterisk").
class WindowsSound : public Sound {
 public:
  // The system's player, in whose stead a test may listen.
  using Player = std::function<BOOL(const wchar_t* name, HMODULE, DWORD flags)>;

  explicit WindowsSound(Player player = PlaySoundW);

  void play(const std::string& file) override;

 private:
  Player player_;
};

}  // namespace zelvane::platform
