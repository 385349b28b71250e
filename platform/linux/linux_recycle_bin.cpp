#include "platform/linux/linux_recycle_bin.h"

#include <utility>
#include <vector>

#include "platform/error.h"
#include "platform/linux/linux_files.h"
#include "platform/linux/mounted_volumes.h"
#include "platform/linux/trash_folder.h"
#include "platform/linux/trash_places.h"

namespace zelvane::platform {
namespace {

constexpr std::uint64_t kLongestTable = std::uint64_t{64} << 20U;

}  // namespace

LinuxRecycleBin::LinuxRecycleBin(const Environment& environment, std::string mountTable)
    : dataHome_(environment.dataHome), mountTable_(std::move(mountTable)) {}

std::uint64_t LinuxRecycleBin::empty(EventPump& pump) {
  bool refused = false;
  std::string table;
  try {
    table = LinuxFiles().readWhole(mountTable_, kLongestTable);
  } catch (const Error&) {
    refused = true;  // the home's trash can be emptied all the same
  }
  std::uint64_t freed = 0;
  for (Descriptor& place : openTrashPlaces(dataHome_, mountedVolumes(table))) {
    TrashFolder trash(std::move(place), pump);
    trash.empty();
    freed += trash.bytesFreed();
    refused = refused || trash.refused();
  }
  if (refused) throw Error(ErrorNumber::permissionDenied);
  return freed;
}

}  // namespace zelvane::platform
