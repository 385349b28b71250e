#include "cleaner/cleaning_tasks.h"

#include "cleaner/browser_settings.h"
#include "cleaner/erasure.h"
#include "core/handler.h"
#include "core/text.h"
#include "platform/clipboard.h"
#include "platform/recycle_bin.h"
#include "platform/registry.h"

namespace zelvane::cleaner {

using controls::RichLog;
using platform::SpecialFolder;

namespace {

constexpr auto kTypedUrls = R"(Software\Microsoft\Internet Explorer\TypedURLs)";
constexpr auto kRunMru = R"(Software\Microsoft\Windows\CurrentVersion\Explorer\RunMRU)";

// A folder's path is asked for with a buffer of 255 characters, the last of which ends it. One that
// does not fit is no path: a path cut short might name somebody else's folder.
constexpr std::size_t kLongestPath = 254;

std::string boundedPath(const std::optional<std::string>& path) {
  return path && core::characterCount(*path) <= kLongestPath ? *path : std::string();
}

}  // namespace

void CleaningTasks::perform(const Option& option) {
  switch (option.task) {
    case Task::none:
      return;
    case Task::typedAddresses:
      return deleteUserKey(option.logCaption, kTypedUrls);
    case Task::recentFiles:
      return eraseSpecialFolder(option.logCaption, SpecialFolder::recent);
    case Task::myDocuments:
      return eraseSpecialFolder(option.logCaption, SpecialFolder::personal);
    case Task::recycleBin:
      return emptyRecycleBin(option.logCaption);
    case Task::browserCache:
      showStatus(option.logCaption);
      return eraseSpecialFolder(option.logCaption, SpecialFolder::internetCache);
    case Task::cookies:
      return eraseSpecialFolder(option.logCaption, SpecialFolder::cookies);
    case Task::favorites:
      return eraseSpecialFolder(option.logCaption, SpecialFolder::favorites);
    case Task::history:
      showStatus(option.logCaption);
      return eraseSpecialFolder(option.logCaption, SpecialFolder::history);
    case Task::temporaryFiles:
      showStatus(option.logCaption);
      return eraseTemporaryFolder(option.logCaption);
    case Task::clipboard:
      return core::ignoringErrors([this] { desktop_.clipboard.clear(); });
    case Task::runHistory:
      return deleteUserKey(option.logCaption, kRunMru);
    case Task::scriptDebugging:
      return disableScriptDebugger(desktop_.registry);
    case Task::scriptErrors:
      return disableScriptErrorNotification(desktop_.registry);
  }
}

void CleaningTasks::eraseSpecialFolder(std::string_view caption, SpecialFolder folder) {
  const std::string path = specialFolderPath(folder);
  logged(caption, path, [&] { eraseFolder(path); });
}

void CleaningTasks::eraseTemporaryFolder(std::string_view caption) {
  const std::string path = boundedPath(desktop_.specialFolders.temporaryPath());
  logged(caption, path, [&] { eraseFolder(path); });
}

void CleaningTasks::emptyRecycleBin(std::string_view caption) {
  // The bin is no folder with a path of its own. The log names the recent documents in its place,
  // which this task does not touch, and empties the bins also where that path is empty.
  logged(caption, specialFolderPath(SpecialFolder::recent),
         [this] { desktop_.recycleBin.empty(desktop_.pump); });
}

void CleaningTasks::deleteUserKey(std::string_view caption, const std::string& path) {
  using platform::Registry;
  logged(caption, R"(HKEY_CURRENT_USER\)" + path, [&] {
    // The key is opened first and stays open, and is deleted whether or not that worked. Deleting
    // it while it is open makes whoever else holds it find it gone as well.
    desktop_.registry.open(Registry::Root::currentUser, path);
    desktop_.registry.deleteKey(Registry::Root::currentUser, path);
  });
}

void CleaningTasks::eraseFolder(const std::string& path) {
  if (!path.empty()) {
    eraseContents(desktop_.folderTree, desktop_.pump, path);
  }
}

void CleaningTasks::logged(std::string_view caption, const std::string& path,
                           const std::function<void()>& work) {
  const std::string text(caption);
  log_.setSelectionColour(RichLog::Colour::blue);
  log_.append("\r\nPath: " + path);
  log_.append("\r\n" + text + " ...");
  // Whatever could not be erased stays where it is; the run tells nothing about it.
  core::ignoringErrors(work);
  log_.setSelectionColour(RichLog::Colour::green);
  log_.append("\r\nFinished " + text);
}

void CleaningTasks::showStatus(std::string_view caption) {
  lblStatus_.setCaption(std::string(caption) + " ...");
}

std::string CleaningTasks::specialFolderPath(SpecialFolder folder) const {
  return boundedPath(desktop_.specialFolders.path(folder));
}

}  // namespace zelvane::cleaner
