#include "platform/linux/mounted_volumes.h"

#include <algorithm>
#include <array>

namespace zelvane::platform {
namespace {

constexpr std::size_t kMountPointField = 4;
constexpr std::size_t kFirstTagField = 6;

constexpr auto kWithoutFiles = std::to_array<std::string_view>(
    {"autofs",   "binfmt_misc", "bpf",        "cgroup",          "cgroup2",
     "configfs", "debugfs",     "devpts",     "devtmpfs",        "efivarfs",
     "fusectl",  "hugetlbfs",   "iso9660",    "mqueue",          "nsfs",
     "proc",     "pstore",      "rpc_pipefs", "securityfs",      "selinuxfs",
     "squashfs", "sysfs",       "tracefs",    "fuse.gvfsd-fuse", "fuse.portal"});

std::vector<std::string_view> fieldsOf(std::string_view line) {
  std::vector<std::string_view> fields;
  while (!line.empty()) {
    fields.push_back(line.substr(0, line.find(' ')));
    line.remove_prefix(std::min(fields.back().size() + 1, line.size()));
  }
  return fields;
}

bool isOctal(char digit) { return digit >= '0' && digit <= '7'; }

// Blanks, line breaks and backslashes are written as "\" and three octal digits.
std::string decoded(std::string_view text) {
  std::string path;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const std::string_view code = text.substr(at + 1, 3);
    if (text[at] == '\\' && code.size() == 3 && std::ranges::all_of(code, isOctal)) {
      path += static_cast<char>((code[0] - '0') * 64 + (code[1] - '0') * 8 + (code[2] - '0'));
      at += 3;
    } else {
      path += text[at];
    }
  }
  return path;
}

}  // namespace

std::vector<std::string> mountedVolumes(std::string_view mountTable) {
  std::vector<std::string> volumes;
  while (!mountTable.empty()) {
    const std::string_view line = mountTable.substr(0, mountTable.find('\n'));
    mountTable.remove_prefix(std::min(line.size() + 1, mountTable.size()));
    const std::vector<std::string_view> fields = fieldsOf(line);
    if (fields.size() <= kFirstTagField) continue;
    const auto dash = std::find(fields.begin() + kFirstTagField, fields.end(), "-");
    if (dash == fields.end() || dash + 1 == fields.end()) continue;
    if (std::ranges::count(kWithoutFiles, dash[1]) > 0) continue;
    volumes.push_back(decoded(fields[kMountPointField]));
  }
  return volumes;
}

}  // namespace zelvane::platform
