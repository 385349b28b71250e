#include "platform/linux/descriptor.h"

#include <cerrno>

namespace zelvane::platform {

void Descriptor::close() {
  if (!isOpen()) return;
  const int before = errno;
  // Not repeated when interrupted: Linux has let go of the number by then, and a second call could
  // close somebody else's. What is written is checked by fsync, not here.
  ::close(release());
  errno = before;
}

}  // namespace zelvane::platform
