#include "core/controls/list_view.h"

#include <algorithm>

#include "platform/error.h"

namespace zelvane::controls {

void ListView::clear() {
  rows_.clear();
  changed.raise();
}

void ListView::add(Row row) {
  if (std::ranges::find(rows_, row.key, &Row::key) != rows_.end()) {
    throw platform::Error(platform::ErrorNumber::invalidPropertyValue);
  }
  row.cells.resize(columns_.size());
  rows_.push_back(std::move(row));
  changed.raise();
}

}  // namespace zelvane::controls
