#include "platform/shared/browsers/files_store.h"

#include <optional>
#include <vector>

#include "platform/error.h"
#include "platform/shared/browsers/browser_folder.h"
#include "platform/shared/browsers/path_pattern.h"

namespace zelvane::platform {
namespace {

std::vector<Match> filesOf(const BrowserDesktop& desktop, const std::string& profile,
                           const FilesRule& rule) {
  std::vector<Match> files;
  for (const std::string_view pattern : rule.patterns) {
    for (Match& match : matches(desktop, profile, pattern)) files.push_back(std::move(match));
  }
  return files;
}

}  // namespace

FilesStore::FilesStore(std::string profile, const FilesRule& rule, const BrowserDesktop& desktop,
                       FolderTree& tree)
    : profile_(std::move(profile)), rule_(rule), desktop_(desktop), tree_(tree) {}

bool FilesStore::holdsAnything() const { return !filesOf(desktop_, profile_, rule_).empty(); }

void FilesStore::erase() {
  std::optional<Error> failed;
  for (const Match& file : filesOf(desktop_, profile_, rule_)) {
    const std::size_t separator = file.path.rfind('/');
    const std::string name = file.path.substr(separator + 1);
    try {
      if (isNeverErased(name)) throw Error(ErrorNumber::accessError, file.path);
      tree_.openRoot(file.path.substr(0, separator))->removeFile(name);
    } catch (const Error& error) {
      failed = error;
    }
  }
  if (failed) throw Error(*failed);
}

}  // namespace zelvane::platform
