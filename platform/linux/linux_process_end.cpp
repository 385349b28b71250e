#include "platform/linux/linux_process_end.h"

#include <cstdlib>

namespace zelvane::platform {

void LinuxProcessEnd::end() { std::_Exit(EXIT_SUCCESS); }

}  // namespace zelvane::platform
