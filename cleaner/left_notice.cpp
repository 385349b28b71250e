#include "cleaner/left_notice.h"

namespace zelvane::cleaner {

std::string noticeOf(const std::vector<platform::LeftTrace>& left) {
  std::string notice;
  for (const auto& [profile, reason] : left) {
    notice.append(notice.empty() ? "" : "\n").append(profile);
    if (reason.empty()) {
      notice += " is open. Its traces were left: close it and clean again.";
    } else {
      notice.append(": ").append(reason).append(". It was left as it is.");
    }
  }
  return notice;
}

}  // namespace zelvane::cleaner
