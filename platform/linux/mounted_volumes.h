// Where the mounted volumes begin.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zelvane::platform {

// The folders on which volumes are mounted, in the order of the kernel's table, whose lines are
//
//     36 35 98:0 /root /media/my\040disk rw,noatime master:1 - ext4 /dev/sdb1 rw
//     id parent device root MOUNT-POINT options [tags...] - TYPE source options
//
// Those that hold no files of anybody's (proc, sysfs, ...) and those that would only be mounted by
// being looked at are left out. Lines that are not understood are skipped.
std::vector<std::string> mountedVolumes(std::string_view mountTable);

}  // namespace zelvane::platform
