// Erases the history of the browsers in the home of its environment and ends, so that its whole
// process can be timed.
#include <cstdio>
#include <exception>

#include "cleaner/erasure.h"
#include "platform/event_pump.h"
#include "platform/linux/linux_browser_desktop.h"
#include "platform/linux/linux_files.h"
#include "platform/linux/linux_folder_tree.h"
#include "platform/linux/linux_special_folders.h"
#include "platform/shared/browsers/browser_traces.h"
#include "platform/shared/live_folders.h"

namespace zelvane::platform {
namespace {

// There is no window here whose events could wait.
class NoEvents : public EventPump {
 public:
  void doEvents() override {}
};

int eraseHistory() {
  const Environment environment = Environment::ofProcess();
  const LinuxSpecialFolders plainFolders(environment);
  LinuxFolderTree plainTree;
  LinuxFolderTree wholeTree{{.listsHiddenFiles = true}};
  LinuxFiles files;
  const LinuxBrowserDesktop desktop(environment);
  LeftTraces left;
  const BrowserTraces traces(desktop, wholeTree, files, left);
  LiveFolders folders(plainFolders, plainTree, {traces});
  NoEvents pump;
  cleaner::eraseContents(folders, pump, folders.path(SpecialFolder::history).value());
  for (const LeftTrace& trace : left.take()) {
    std::fprintf(stderr, "%s: %s\n", trace.profile.c_str(), trace.reason.c_str());
    return 1;
  }
  return 0;
}

}  // namespace
}  // namespace zelvane::platform

int main() {
  try {
    return zelvane::platform::eraseHistory();
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
  }
}
