// What the first page says about the machine.
#pragma once

#include <string>

namespace zelvane::platform {
class Machine;
}

namespace zelvane::core {

// "User " and the computer's name, its user's name notwithstanding. A name is shown up to its first
// zero character.
std::string userLine(const platform::Machine& machine);

namespace OS {

// The system's name: by this table where the system has a version record, and otherwise what its
// release calls itself.
//
//   kind   test                    name
//   1      minor version 0         Windows 95
//   1      minor version 10        Windows 98
//   2      major version 3         Windows NT 3.51
//   2      major version 4         Windows NT 4.0
//   2      major version 5         Windows 2000
//   2      major version 6         Windows XP
//   1, 2   any other               (empty)
//   other  none                    Failed
//
// Later systems therefore go without a name, and so do the minor versions of the NT line.
std::string GetOSName(const platform::Machine& machine);

}  // namespace OS
}  // namespace zelvane::core
