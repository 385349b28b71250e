#include "platform/shared/browsers/tree_removal.h"

#include <optional>

#include "platform/error.h"
#include "platform/event_pump.h"

namespace zelvane::platform {
namespace {

// Deeper than anything that is removed in this way, and no danger to the stack.
constexpr int kDeepest = 16;

// No window's events wait for something so short.
class NoEvents : public EventPump {
 public:
  void doEvents() override {}
};

void removeIn(OpenFolder& parent, const std::string& name, int depth) {
  if (depth > kDeepest) throw Error(ErrorNumber::pathNotFound);
  std::optional<Error> failed;
  const auto attempt = [&](const auto& deed) {
    try {
      deed();
    } catch (const Error& error) {
      failed = error;
    }
  };
  {
    const auto folder = parent.openSubfolder(name);
    NoEvents pump;
    const FolderListing listing = folder->list(pump);
    for (const std::string_view file : listing.files) {
      attempt([&] { folder->removeFile(std::string(file)); });
    }
    for (const std::string_view inner : listing.subfolders) {
      attempt([&] { removeIn(*folder, std::string(inner), depth + 1); });
    }
  }
  if (failed) throw Error(*failed);
  parent.removeFolder(name);
}

}  // namespace

void removeWholeFolder(FolderTree& tree, const std::string& parent, const std::string& name) {
  removeIn(*tree.openRoot(parent), name, 0);
}

}  // namespace zelvane::platform
