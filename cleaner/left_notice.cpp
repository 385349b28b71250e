#include "cleaner/left_notice.h"

namespace zelvane::cleaner {

std::string noticeOf(const std::vector<platform::LeftTrace>& left) {
  std::string notice;
  for (const auto& [profile, reason] : left) {
    notice += notice.empty() ? "" : "\n";
    notice += reason.empty() ? profile + " is open. Its traces were left: close it and clean again."
                             : profile + ": " + reason + ". It was left as it is.";
  }
  return notice;
}

}  // namespace zelvane::cleaner
