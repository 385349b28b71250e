#include "platform/linux/linux_programs.h"

#include <QMimeDatabase>
#include <array>
#include <csignal>
#include <string_view>
#include <utility>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include "platform/linux/desktop_entry.h"
#include "platform/linux/mime_associations.h"

namespace zelvane::platform {
namespace {

// How a program is told that the user has just asked for its window, and may be given the keyboard.
// Whoever started this program may have told it so; the next one is told nothing.
constexpr auto kActivation =
    std::to_array<std::string_view>({"DESKTOP_STARTUP_ID=", "XDG_ACTIVATION_TOKEN="});

std::vector<char*> environmentWithoutActivation() {
  std::vector<char*> lines;
  for (char** line = environ; *line != nullptr; ++line) {
    bool activates = false;
    for (const std::string_view name : kActivation) {
      activates = activates || std::string_view(*line).starts_with(name);
    }
    if (!activates) lines.push_back(*line);
  }
  lines.push_back(nullptr);
  return lines;
}

// How a new process begins, whatever this one has done to itself.
class Beginning {
 public:
  Beginning() {
    posix_spawnattr_init(&attributes_);
    posix_spawn_file_actions_init(&files_);
    sigset_t chosen;
    sigemptyset(&chosen);
    posix_spawnattr_setsigmask(&attributes_, &chosen);
    sigfillset(&chosen);
    posix_spawnattr_setsigdefault(&attributes_, &chosen);
    posix_spawnattr_setflags(&attributes_,
                             POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    posix_spawn_file_actions_addopen(&files_, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&files_, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addopen(&files_, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
  }
  Beginning(const Beginning&) = delete;
  Beginning& operator=(const Beginning&) = delete;
  ~Beginning() {
    posix_spawn_file_actions_destroy(&files_);
    posix_spawnattr_destroy(&attributes_);
  }

  const posix_spawnattr_t* attributes() const { return &attributes_; }
  const posix_spawn_file_actions_t* files() const { return &files_; }

 private:
  posix_spawnattr_t attributes_{};
  posix_spawn_file_actions_t files_{};
};

}  // namespace

LinuxPrograms::LinuxPrograms(Environment environment) : environment_(std::move(environment)) {}

std::optional<std::string> LinuxPrograms::programFor(const std::string& file) const {
  if (file.find('\0') != std::string::npos) return std::nullopt;
  const QMimeType type =
      QMimeDatabase().mimeTypeForFile(QString::fromStdString(file), QMimeDatabase::MatchExtension);
  if (type.isDefault()) return std::nullopt;
  const auto entry = programForType(type.name().toStdString(), environment_);
  if (!entry) return std::nullopt;
  return entry->path;
}

bool LinuxPrograms::start(const std::string& program, const std::string& argument) {
  forgetEnded();
  if (argument.starts_with('-') || argument.find('\0') != std::string::npos) return false;
  const auto entry = readDesktopEntry(program, environment_);
  if (!entry) return false;
  std::vector<std::string> words = commandWords(*entry, argument, environment_);
  if (words.empty()) return false;
  std::vector<char*> pointers;
  pointers.reserve(words.size() + 1);
  for (std::string& word : words) pointers.push_back(word.data());
  pointers.push_back(nullptr);
  const Beginning beginning;
  pid_t process = 0;
  if (posix_spawn(&process, words.front().c_str(), beginning.files(), beginning.attributes(),
                  pointers.data(), environmentWithoutActivation().data()) != 0) {
    return false;
  }
  started_.push_back(process);
  return true;
}

// A process that has ended stays in the system's table until its parent has looked at it.
void LinuxPrograms::forgetEnded() {
  std::erase_if(started_, [](pid_t process) { return waitpid(process, nullptr, WNOHANG) != 0; });
}

}  // namespace zelvane::platform
