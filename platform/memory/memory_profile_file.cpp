#include "platform/memory/memory_profile_file.h"

#include "platform/shared/ini_text.h"

namespace zelvane::platform {

std::optional<std::string> MemoryProfileFile::find(const std::string& section,
                                                   const std::string& key) const {
  auto text = IniText(content_).find(section, key);
  if (text) text = cutText(*text, kLongestText);
  return text;
}

bool MemoryProfileFile::write(const std::string& section, const std::string& key,
                              const std::string& text) {
  IniText file(content_);
  if (refusesWrites_ || !file.set(section, key, text)) return false;
  content_ = file.text();
  return true;
}

}  // namespace zelvane::platform
