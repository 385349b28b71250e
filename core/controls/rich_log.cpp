#include "core/controls/rich_log.h"

namespace zelvane::controls {

std::string RichLog::text() const {
  std::string all;
  for (const Run& run : runs_) {
    all += run.text;
  }
  return all;
}

void RichLog::clear() {
  runs_.clear();
  cleared.raise();
  changed.raise();
}

void RichLog::append(std::string_view text) {
  runs_.push_back({std::string(text), selectionColour_});
  changed.raise();
}

}  // namespace zelvane::controls
