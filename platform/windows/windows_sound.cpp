#include "platform/windows/windows_sound.h"

#include <utility>

#include "platform/windows/wide_text.h"

namespace zelvane::platform {

WindowsSound::WindowsSound(Player player) : player_(std::move(player)) {}

void WindowsSound::play(const std::string& file) {
  // A name is not found behind a zero character, which would end it for the system.
  const bool isName = file.find('\0') == std::string::npos;
  // Nothing but the flag to return at once: with more of them the system would play no default.
  player_(isName ? wideText(file).c_str() : L"", nullptr, SND_ASYNC);
}

}  // namespace zelvane::platform
