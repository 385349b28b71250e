#include "tests/support/kill/traced_call.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <stdexcept>
#include <system_error>

#include <fcntl.h>
#include <sys/ptrace.h>
#include <sys/stat.h>
#include <unistd.h>

#include "tests/support/kill/disk_calls.h"

namespace zelvane::test {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kLongestPath = 4096;

class StoppedThread {
 public:
  explicit StoppedThread(pid_t thread) : thread_(thread) {
    unsigned long message = 0;
    if (ptrace(PTRACE_GETEVENTMSG, thread_, nullptr, &message) != 0 ||
        ptrace(PTRACE_GET_SYSCALL_INFO, thread_, sizeof call_, &call_) <= 0) {
      throw std::system_error(errno, std::generic_category(), "ptrace");
    }
    if (message >= diskCalls().size()) {
      throw std::runtime_error("the program makes system calls of another machine");
    }
    kind_ = &diskCalls()[message];
  }

  const DiskCall& kind() const { return *kind_; }

  // Nothing where it is no file that lies on a disk.
  std::optional<std::string> openFile() const {
    const std::string name = descriptorName(argument(kind_->descriptor));
    struct stat status {};
    if (stat(name.c_str(), &status) != 0) return std::nullopt;
    if (!S_ISREG(status.st_mode) && !S_ISDIR(status.st_mode)) return std::nullopt;
    std::string path = target(name);
    if (path.starts_with("/memfd:") || path.starts_with("/proc/")) return std::nullopt;
    return path;
  }

  std::string path(const PathArgument& where) const {
    const std::string given = text(argument(where.path));
    if (given.starts_with("/")) return absolute(given);
    const bool fromHere =
        where.folder < 0 || static_cast<std::int32_t>(argument(where.folder)) == AT_FDCWD;
    const std::string folder =
        target(fromHere ? procName("cwd") : descriptorName(argument(where.folder)));
    return given.empty() ? folder : absolute(folder + "/" + given);
  }

  // Whether an opening has one of the flags that change something. The filter has looked at those
  // of most openings already.
  bool opensToChange() const {
    if (std::strcmp(kind_->name, kOpenByStructure) != 0) return true;
    std::uint64_t flags = 0;
    read(argument(2), &flags, sizeof flags);
    return (flags & changingOpenFlags()) != 0;
  }

 private:
  std::uint64_t argument(int number) const {
    return call_.seccomp.args[static_cast<std::size_t>(number)];
  }
  std::string procName(const std::string& name) const {
    return "/proc/" + std::to_string(thread_) + "/" + name;
  }
  std::string descriptorName(std::uint64_t descriptor) const {
    return procName("fd/" + std::to_string(static_cast<std::int32_t>(descriptor)));
  }

  static std::string target(const std::string& link) {
    std::array<char, kLongestPath> path{};
    const ssize_t length = readlink(link.c_str(), path.data(), path.size());
    return {path.data(), static_cast<std::size_t>(std::max<ssize_t>(length, 0))};
  }

  // Without links and detours, but for the last name, which is what the call changes.
  static std::string absolute(const std::string& given) {
    const fs::path path = fs::path(given).lexically_normal();
    std::error_code failed;
    const fs::path folder = fs::weakly_canonical(path.parent_path(), failed);
    return failed ? path.string() : (folder / path.filename()).string();
  }

  std::size_t read(std::uint64_t address, void* to, std::size_t size) const {
    const int memory = open(procName("mem").c_str(), O_RDONLY | O_CLOEXEC);
    const ssize_t count = pread(memory, to, size, static_cast<off_t>(address));
    close(memory);
    return static_cast<std::size_t>(std::max<ssize_t>(count, 0));
  }

  std::string text(std::uint64_t address) const {
    std::array<char, kLongestPath> bytes{};
    const std::size_t count = address == 0 ? 0 : read(address, bytes.data(), bytes.size());
    return {bytes.data(), strnlen(bytes.data(), count)};
  }

  pid_t thread_;
  __ptrace_syscall_info call_{};
  const DiskCall* kind_ = nullptr;
};

bool isInOrBelow(const std::string& path, const std::string& folder) {
  return path == folder || path.starts_with(folder + "/");
}

}  // namespace

std::optional<TracedCall> TracedCall::of(pid_t thread) {
  const StoppedThread stopped(thread);
  TracedCall call{stopped.kind().name, {}};
  if (!stopped.opensToChange()) return std::nullopt;
  if (stopped.kind().descriptor >= 0) {
    const auto path = stopped.openFile();
    if (!path) return std::nullopt;
    call.paths.push_back(*path);
  }
  for (const PathArgument& where : {stopped.kind().first, stopped.kind().second}) {
    if (where.path >= 0) call.paths.push_back(stopped.path(where));
  }
  return call;
}

bool TracedCall::concerns(const std::string& folder) const {
  return std::ranges::any_of(paths,
                             [&](const std::string& path) { return isInOrBelow(path, folder); });
}

std::string TracedCall::text() const {
  std::string text = name;
  for (const std::string& path : paths) text += " " + path;
  return text;
}

}  // namespace zelvane::test
