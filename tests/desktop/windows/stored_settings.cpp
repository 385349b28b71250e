#include "tests/desktop/windows/stored_settings.h"

#include "platform/windows/stored_name.h"
#include "platform/windows/wide_text.h"
#include "platform/windows/windows_settings.h"
#include "tests/desktop/windows/running_program.h"
#include "tests/desktop/windows/throw_away_world.h"

namespace zelvane::test {
namespace {

constexpr auto kTitle = "Zelvane";
constexpr auto kOptions = "Settings";

std::string keyOf(int index) { return "Index" + std::to_string(index); }

std::string folderOfTheProgram() {
  const std::string path = pathOfTheProgram();
  return path.substr(0, path.rfind('\\'));
}

}  // namespace

std::optional<std::string> storedText(const std::string& section, const std::string& key) {
  return platform::WindowsSettings().find(kTitle, section, key);
}

void storeText(const std::string& section, const std::string& key, const std::string& text) {
  platform::WindowsSettings().save(kTitle, section, key, text);
}

std::optional<std::string> storedOption(int index) {
  return platform::WindowsSettings().find(folderOfTheProgram(), kOptions, keyOf(index));
}

void storeOption(int index, const std::string& text) {
  platform::WindowsSettings().save(folderOfTheProgram(), kOptions, keyOf(index), text);
}

void storeOption(int index, const RegistryData& value) {
  storeOption(index, "1");
  std::string path(ThrowAwayWorld::kZelvane);
  path += "\\Settings";
  for (const std::string& name : {folderOfTheProgram(), std::string(kOptions)}) {
    for (const std::wstring& stored : platform::storedNames(name)) {
      path += "\\" + platform::plainText(stored);
    }
  }
  setUserValue(path, platform::plainText(platform::storedNames(keyOf(index)).front()), value);
}

RegistryData number(unsigned char value) {
  return {REG_DWORD, {std::byte{value}, std::byte{0}, std::byte{0}, std::byte{0}}};
}

}  // namespace zelvane::test
