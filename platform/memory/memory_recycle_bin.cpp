#include "platform/memory/memory_recycle_bin.h"

#include "platform/error.h"

namespace zelvane::platform {

std::uint64_t MemoryRecycleBin::empty() {
  ++emptied_;
  std::uint64_t freed = 0;
  std::erase_if(items_, [&freed](const Item& item) {
    if (!item.refuses) freed += item.bytes;
    return !item.refuses;
  });
  if (!items_.empty()) throw Error(ErrorNumber::permissionDenied);
  return freed;
}

}  // namespace zelvane::platform
