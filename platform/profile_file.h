// The desktop's old-fashioned initialisation file "WIN.INI": sections of "key=text" lines.
#pragma once

#include <optional>
#include <string>

#include "platform/port.h"

namespace zelvane::platform {

// Names are told apart without regard to (ASCII) case. Lines that are not understood are kept.
class ProfileFile : public Port {
 public:
  // What a reader's buffer takes: 255 characters, the last of which ends the text.
  static constexpr std::size_t kLongestText = 254;

  // The text of the first such key, without the blanks and the one pair of quotes around it, cut
  // to `kLongestText` bytes but never inside a character. An entry that is empty is there.
  // Nothing where it is missing or the file cannot be read.
  virtual std::optional<std::string> find(const std::string& section,
                                          const std::string& key) const = 0;

  // Adds or replaces one entry; the rest of the file stays as it is. Written whole or not at all.
  // False where that failed. A text with a line break is refused.
  virtual bool write(const std::string& section, const std::string& key,
                     const std::string& text) = 0;
};

}  // namespace zelvane::platform
