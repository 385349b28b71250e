#include "platform/memory/memory_recycle_bin.h"

#include <utility>

#include "platform/error.h"
#include "platform/event_pump.h"

namespace zelvane::platform {

std::uint64_t MemoryRecycleBin::empty(EventPump& pump) {
  ++emptied_;
  std::uint64_t freed = 0;
  // Out of the bin first: an event may look into it, or empty it as well.
  for (Item& item : std::exchange(items_, {})) {
    if (item.refuses) {
      items_.push_back(std::move(item));
    } else {
      freed += item.bytes;
    }
    pump.doEvents();
  }
  if (!items_.empty()) throw Error(ErrorNumber::permissionDenied);
  return freed;
}

}  // namespace zelvane::platform
