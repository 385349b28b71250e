#include "platform/windows/windows_recycle_bin.h"

#include <utility>

#include <shellapi.h>

#include "platform/error.h"
#include "platform/event_pump.h"

namespace zelvane::platform {
namespace {

struct Content {
  std::uint64_t items = 0;
  std::uint64_t bytes = 0;
};

// Nothing, too, where there is no bin to ask.
Content contentOfAllBins() {
  SHQUERYRBINFO info{};
  info.cbSize = sizeof info;
  if (FAILED(SHQueryRecycleBinW(nullptr, &info))) return {};
  return {static_cast<std::uint64_t>(info.i64NumItems), static_cast<std::uint64_t>(info.i64Size)};
}

}  // namespace

WindowsRecycleBin::WindowsRecycleBin(std::function<HWND()> owner) : owner_(std::move(owner)) {}

std::uint64_t WindowsRecycleBin::empty(EventPump& pump) {
  pump.doEvents();
  const Content before = contentOfAllBins();
  // What this returns tells nothing: it fails for a bin that is empty already, and may succeed
  // although something stays.
  SHEmptyRecycleBinW(owner_(), nullptr, SHERB_NOCONFIRMATION);
  const Content after = contentOfAllBins();
  pump.doEvents();
  if (after.items > 0) throw Error(ErrorNumber::permissionDenied);
  return before.bytes;
}

}  // namespace zelvane::platform
