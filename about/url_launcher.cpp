#include "about/url_launcher.h"

#include <cstddef>
#include <optional>
#include <string_view>
#include <utility>

#include "core/handler.h"
#include "core/text.h"
#include "platform/desktop.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/programs.h"
#include "platform/special_folders.h"

namespace zelvane::about::GenFunc {

namespace {

using platform::MessageIcon;

constexpr std::size_t kLongestPath = 255;  // characters

// A file with one empty quoted text in it, gone with this object.
class TemporaryFile {
 public:
  TemporaryFile(platform::Files& files, std::string path) : files_(files), path_(std::move(path)) {
    const auto file = files_.createBeside(path_);
    file->write("\"\"\r\n");
    file->publish();
  }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;
  // Whoever took it away meanwhile did what is left to do.
  ~TemporaryFile() {
    core::ignoringErrors([this] { files_.remove(path_); });
  }

  const std::string& path() const { return path_; }

 private:
  platform::Files& files_;
  std::string path_;
};

std::string trimmed(const std::string& text) {
  const std::size_t begin = text.find_first_not_of(' ');
  return begin == std::string::npos ? std::string()
                                    : text.substr(begin, text.find_last_not_of(' ') + 1 - begin);
}

std::string upperCase(std::string text) {
  for (char& letter : text) {
    if (letter >= 'a' && letter <= 'z') {
      letter = static_cast<char>(letter - 'a' + 'A');
    }
  }
  return text;
}

// A path that does not fit is not cut, which might name another file; it counts as none.
std::optional<std::string> ifItFits(const std::optional<std::string>& path) {
  return path && core::characterCount(*path) <= kLongestPath ? path : std::nullopt;
}

// An association may name more than the executable, so what follows its suffix is left out. A path
// without the suffix is no executable: its folder is opened, and of that as much is left as the
// suffix has letters, which is the root of a drive.
std::string executableOf(const std::string& program) {
  constexpr std::string_view kSuffix = ".EXE";
  const std::size_t suffix = upperCase(program).find(kSuffix);
  return suffix == std::string::npos ? core::firstCharacters(program, kSuffix.size() - 1)
                                     : program.substr(0, suffix + kSuffix.size());
}

void open(const platform::Desktop& desktop, const std::string& address,
          const std::string& extension) {
  const auto tell = [&](const char* text, MessageIcon icon, const char* title) {
    desktop.dialogs.show({.text = text, .title = title, .icon = icon});
  };
  const auto folder = ifItFits(desktop.specialFolders.temporaryPath());
  if (!folder) {
    tell("Can not create file.", MessageIcon::information, "OpenWith");
    return;
  }
  const TemporaryFile file(desktop.files, *folder + "temphtm." + extension);
  const auto found = ifItFits(desktop.programs.programFor(file.path()));
  if (!found) {
    tell("Could not find associated application", MessageIcon::exclamation, "Browser Not Found");
    return;
  }
  std::string program = trimmed(*found);
  if (desktop.programs.executablesHaveSuffix()) {
    program = trimmed(executableOf(program));
  }
  if (!desktop.programs.start(program, address)) {
    tell("Page not Opened", MessageIcon::exclamation, "URL Failed");
  }
}

}  // namespace

void OpenURL(const platform::Desktop& desktop, const std::string& address,
             const std::string& extension) {
  core::ignoringErrors([&] { open(desktop, address, extension); });
}

}  // namespace zelvane::about::GenFunc
