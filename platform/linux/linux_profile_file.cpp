#include "platform/linux/linux_profile_file.h"

#include "platform/error.h"
#include "platform/shared/ini_text.h"

namespace zelvane::platform {

LinuxProfileFile::LinuxProfileFile(const Environment& environment)
    : file_(environment.configHome + "/zelvane", "win.ini") {}

std::optional<std::string> LinuxProfileFile::find(const std::string& section,
                                                  const std::string& key) const {
  try {
    const auto text = IniText(file_.read().value_or("")).find(section, key);
    if (!text) return std::nullopt;
    return cutText(*text, kLongestText);
  } catch (const Error&) {
    return std::nullopt;  // a file that cannot be read has no entries
  }
}

bool LinuxProfileFile::write(const std::string& section, const std::string& key,
                             const std::string& text) {
  bool understood = false;
  try {
    file_.update([&](const std::optional<std::string>& content) -> std::optional<std::string> {
      IniText file(content.value_or(""));
      understood = file.set(section, key, text);
      if (!understood) return std::nullopt;
      return file.text();
    });
    return understood;
  } catch (const Error&) {
    return false;
  }
}

}  // namespace zelvane::platform
